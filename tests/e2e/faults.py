"""What can happen to a file while the program works on it. Each fault lasts as long as its context."""

import contextlib
import os
import resource
import shutil
import sqlite3

from port import Port


def ordinary_port(folder, today="2002-06-14"):
    """A program that has to obey the rights of files and folders, even where root runs the tests."""
    obeying = ["setpriv", "--bounding-set=-dac_override,-dac_read_search"]
    return Port(folder, today=today, before=obeying if os.geteuid() == 0 else [])


@contextlib.contextmanager
def locked(path, port):
    other = sqlite3.connect(path, isolation_level=None)
    other.execute("BEGIN EXCLUSIVE")
    try:
        yield
    finally:
        other.execute("ROLLBACK")
        other.close()


@contextlib.contextmanager
def full_disk(path, port, bytes=2048):
    """No file of the program can grow, or be written beyond so many bytes."""
    _, hard = resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE)
    resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE, (bytes, hard))
    try:
        yield
    finally:
        resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE, (hard, hard))


@contextlib.contextmanager
def read_only(path, port):
    """Nothing can be made beside the file."""
    path.with_name(path.name + "-journal").unlink(missing_ok=True)
    mode = path.parent.stat().st_mode
    path.parent.chmod(0o555)
    try:
        yield
    finally:
        path.parent.chmod(mode)


@contextlib.contextmanager
def removed(path, port):
    aside = path.with_suffix(".autre")
    path.rename(aside)
    try:
        yield
        assert not path.exists(), "a file that is gone must not be made anew"
    finally:
        aside.rename(path)


@contextlib.contextmanager
def damaged(path, port):
    sound = path.with_suffix(".sain")
    shutil.copy(path, sound)
    blank = b"\x00" * path.stat().st_size
    path.write_bytes(blank)
    try:
        yield
        assert path.read_bytes() == blank, "a damaged file must not be written into"
    finally:
        # Put back into the same file: a station may have it open.
        path.write_bytes(sound.read_bytes())
        sound.unlink()
