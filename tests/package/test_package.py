"""The Debian package: put into a clean system, started there by an ordinary user, and taken away again."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOURCES = [*pathlib.Path("/etc/apt").glob("sources.list"), *pathlib.Path("/etc/apt/sources.list.d").glob("*.sources")]
QUIET = {"env": {**os.environ, "DEBIAN_FRONTEND": "noninteractive", "LC_ALL": "C.UTF-8"}}


def run(*words, **more):
    done = subprocess.run([str(word) for word in words], text=True, capture_output=True, **{**QUIET, **more})
    assert done.returncode == 0, f"{words}\n{done.stdout}\n{done.stderr}"
    return done.stdout


@pytest.fixture(scope="module")
def package():
    return pathlib.Path(run(ROOT / "script" / "package").splitlines()[-1])


class System:
    """A Debian that holds nothing but apt."""

    def __init__(self, folder):
        self.folder = folder
        run("mmdebstrap", "--variant=apt", "--mode=root", "--skip=cleanup/apt/lists", "bookworm", folder, *SOURCES)

    def run(self, *words):
        return run("chroot", self.folder, *words)

    def files(self):
        return set(run("find", "usr", "opt", cwd=self.folder).splitlines())


@pytest.fixture(scope="module")
def system():
    if os.geteuid() != 0:
        pytest.fail("a clean system can only be made by root")
    folder = tempfile.mkdtemp(prefix="veranox-system-")
    try:
        yield System(folder)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


@pytest.fixture(scope="module")
def installed(system, package):
    system.before = system.files()
    shutil.copy(package, f"{system.folder}/veranox.deb")
    system.run("apt-get", "install", "-y", "-qq", "--no-install-recommends", "./veranox.deb")
    os.remove(f"{system.folder}/veranox.deb")
    system.run("useradd", "--create-home", "secretaire")
    return system


def as_user(system, *words, **environment):
    settings = [f"{name}={value}" for name, value in {"HOME": "/home/secretaire", **environment}.items()]
    return ["chroot", "--userspec=secretaire", system.folder, "env", "-i", "PATH=/usr/bin:/bin", *settings, *words]


def test_nothing_is_said_against_the_package(package):
    told = run("lintian", "--allow-root", "--fail-on", "none", package)
    assert not re.findall("^[EW]: .*", told, re.MULTILINE)


def test_the_desktop_knows_the_program():
    run("desktop-file-validate", ROOT / "packaging" / "veranox.desktop")
    run("appstreamcli", "validate", "--no-net", ROOT / "packaging" / "fr.veranox.Veranox.metainfo.xml")


def test_an_ordinary_user_makes_a_practice(installed):
    run(*as_user(installed, "veranox-base", "exemple", "/home/secretaire/cabinet"))
    told = run(*as_user(installed, "veranox-base", "verifie", "/home/secretaire/cabinet"))
    assert told.count("en ordre") >= 4


def test_an_ordinary_user_starts_it(installed):
    with subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1366x768x24"], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True) as screen:
        display = ":" + screen.stdout.readline().strip()
        program = subprocess.Popen(as_user(installed, "veranox", DISPLAY=display, QT_QPA_PLATFORM="xcb"),
                                   stderr=subprocess.PIPE, text=True)
        try:
            titles = wait_for(lambda: run("xwininfo", "-root", "-tree", "-display", display), "VERANOX")
            assert "VERANOX" in titles
            assert program.poll() is None
        finally:
            program.terminate()
            program.wait()
            screen.terminate()


def wait_for(ask, word, seconds=30):
    end = time.monotonic() + seconds
    while word not in (told := ask()) and time.monotonic() < end:
        time.sleep(0.2)
    return told


def test_its_help_and_manual_pages_are_there(installed):
    home = pathlib.Path(installed.folder, "usr/lib/veranox")
    assert (home / "VERANOX.HLP").stat().st_size > 10_000
    for page in ("veranox", "veranox-base"):
        assert pathlib.Path(installed.folder, f"usr/share/man/man1/{page}.1.gz").exists()


def test_it_goes_without_a_trace(installed):
    system = installed
    assert {"usr/bin/veranox", "usr/lib/veranox/veranox"} <= system.files() - system.before
    system.run("apt-get", "purge", "-y", "-qq", "veranox")
    assert not [name for name in system.files() if "veranox" in name.lower()]
    assert pathlib.Path(system.folder, "home/secretaire/cabinet/NOM.MDB").exists()
