"""Each window that writes, on a file that fails: it says so, keeps what was typed, and saves it once the fault is gone."""

import contextlib
import resource
import shutil
import sqlite3

import pytest
from port import Port

MARK = "Saisie à ne pas perdre"


@pytest.fixture
def sample(tmp_path):
    port = Port(tmp_path, today="2002-06-14")
    port.practice(patients=True)
    port.start()
    yield port
    assert port.end() == 0


class Window:
    """How a window comes up with something typed, how it saves, and where the entry goes."""

    def __init__(self, name, base, table, entry, save, open):
        self.name, self.base, self.table, self.entry, self.save, self.open = name, base, table, entry, save, open

    def fill(self, port):
        self.open(port)
        port.set(f"{self.name}.{self.entry}", text=MARK)

    def press(self, port):
        port.answer(**{"with": ["yes", "yes"]})
        port.click(f"{self.name}.{self.save}")
        return [box for box in port.boxes if box["kind"] == "error"]

    def text(self, port):
        return port.text(f"{self.name}.{self.entry}")

    def stored(self, port):
        return sum(MARK in str(row.values()) for row in port.rows(table=self.table)["rows"])


def dossier(port, surname="MARTINEAU", first_name="CHRISTELLE"):
    port.click("Form1.Command1")
    port.type("Form4.Text1", text=surname)
    port.type("Form4.Text2", text=first_name)


def clicks(*controls, surname="MARTINEAU", first_name="CHRISTELLE"):
    def open_it(port):
        dossier(port, surname, first_name)
        for control in controls:
            port.click(control)

    return open_it


def first_exam(port):
    clicks("Form4.Cmd1Ter")(port)
    port.type("Form5.Txt1Ter(15)", text="1")


def phrase(port):
    port.click("Form1.Command2")
    port.click("Form9.CmdIndications")


WINDOWS = [
    Window("Form2", "NOM.MDB", "FICHEPATIENT", "TxtNom", "CmdEnreg", clicks("Form4.CmdCreeDossier")),
    Window("Form3", "NOM.MDB", "FICHEPATIENT", "TxtRue1", "CmdEnreg", clicks("Form4.CmdModifie")),
    Window("Form5", "ECHO.MDB", "1TER", "Txt1Ter(26)", "CmdEnregis", first_exam),
    Window("Form7", "ECHO.MDB", "1TER", "Txt1Ter(26)", "CmdModifs", clicks("Form4.HlbCptDer", "Form6.CmdModifs")),
    Window("Form8", "ECHO.MDB", "1TER", "Txt2T(32)", "CmdEnregis", clicks("Form4.Cmd2Ter")),
    Window("Form11", "ECHO.MDB", "1TER", "Txt2T(32)", "CmdModifs",
           clicks("Form4.HlbCptDer", "Form10.CmdModifs", surname="GUÉRIN", first_name="SOPHIE")),
    Window("Form9", "ECHO.MDB", "OPTIONS", "Text1", "CmdAjoute", phrase),
    Window("Form16", "ECHO.MDB", "GYNECO", "TxtGyneco(26)", "CmdEnregis",
           clicks("Form4.CmdGyneco", surname="ROSSIGNOL", first_name="")),
    Window("Form17", "ECHO.MDB", "GYNECO", "TxtGyneco(26)", "CmdModifs",
           clicks("Form4.Command5", "Form18.CmdModifs", surname="ROSSIGNOL", first_name="")),
]
each_window = pytest.mark.parametrize("window", WINDOWS, ids=lambda window: window.name)


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
def full_disk(path, port):
    most = path.stat().st_size
    _, hard = resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE)
    resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE, (min(most, 2048), hard))
    try:
        yield
    finally:
        resource.prlimit(port.process.pid, resource.RLIMIT_FSIZE, (hard, hard))


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
    path.write_bytes(b"\x00" * path.stat().st_size)
    try:
        yield
    finally:
        # Put back into the same file: a station may have it open.
        path.write_bytes(sound.read_bytes())


FAULTS = {
    locked: "occupée par un autre poste",
    full_disk: "Le disque est plein",
    removed: "introuvable",
    damaged: "n'est pas une base de données reconnue, ou il est endommagé",
}


@each_window
@pytest.mark.parametrize("fault", FAULTS, ids=lambda fault: fault.__name__)
def test_a_fault_at_saving_loses_nothing(sample, window, fault):
    before = window.stored(sample)
    window.fill(sample)
    with fault(sample.folder / window.base, sample):
        errors = window.press(sample)
        assert len(errors) == 1
        assert FAULTS[fault] in errors[0]["text"]
        assert window.name in sample.shown()
        assert window.text(sample) == MARK
    assert window.press(sample) == []
    assert window.stored(sample) == before + 1


@each_window
def test_a_killed_program_starts_again_with_every_record(tmp_path, window):
    port = Port(tmp_path, today="2002-06-14")
    port.practice(patients=True)
    before = len(port.rows(table=window.table)["rows"])
    port.start()
    window.fill(port)
    port.process.kill()
    port.process.wait(10)
    again = Port(tmp_path, today="2002-06-14")
    again.start()
    assert len(again.rows(table=window.table)["rows"]) == before
    window.fill(again)
    assert window.press(again) == []
    assert window.stored(again) == 1
    assert again.end() == 0
