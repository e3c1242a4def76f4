import pytest
from port import Port


@pytest.fixture
def port(tmp_path):
    """A program on an empty folder of its own, not started yet. It must end well."""
    driven = Port(tmp_path)
    yield driven
    assert driven.end() == 0


@pytest.fixture
def practice(port):
    """A program on the four files of a new practice, not started yet."""
    port.practice()
    return port
