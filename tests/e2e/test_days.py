"""Some days of a busy practice in a row."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from soak import measure  # noqa: E402


def test_each_day_leaves_the_program_as_it_was():
    days = measure(5)
    open_files = [day[1] for day in days]
    assert open_files == [open_files[0]] * 5
    # The libraries' own caches fill on the first days; a leak of a window a day would show.
    assert days[-1][0] < days[1][0] * 1.5
