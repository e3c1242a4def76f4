"""Each window that writes into a base, on a file that fails: it says so, keeps what was typed, and saves it once the
fault is gone."""

import pytest
from bitmaps import plain
from faults import damaged, full_disk, locked, ordinary_port, read_only, removed
from port import Port

MARK = "Saisie à ne pas perdre"
NOT_CLASSED = "Erreur de manipulation, Fichier dèjà saisi ou sans nom!"


@pytest.fixture
def sample(tmp_path):
    port = ordinary_port(tmp_path)
    port.practice(patients=True)
    port.start()
    yield port
    assert port.end() == 0


class Window:
    """How a window comes up with something typed, how it saves, and where the entry goes."""

    def __init__(self, name, base, table, entry, save, open, id=None):
        self.name, self.base, self.table, self.entry, self.save, self.open = name, base, table, entry, save, open
        self.id = id or name

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


def chosen_phrase(port):
    phrase(port)
    port.dblclick("Form9.List1", row=0)


def album(port):
    port.click("Form1.Command6")


def picture_to_class(port):
    album(port)
    port.answer(**{"with": [{"file": str(plain(port.folder / "kyste.bmp"))}]})
    port.click("Form20.CmdOuvrir")


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
    Window("Form9", "ECHO.MDB", "OPTIONS", "Text1", "CmdModif", chosen_phrase, id="Form9-change"),
]
HISTORY = Window("Form4", "ATCD.MDB", "FICHEATCD", "TxtATCD", "CmdEnregATCD", clicks("Form4.CmdATCD"), id="Form4")
KEY_WORD = Window("Form20", "ECHOTEK.MDB", "CLEFS", "CmbDiagno", "CmdAjouD", album, id="Form20-word")
PICTURE = Window("Form20", "ECHOTEK.MDB", "ECHOS", "TxtNom", "CmdAjouter", picture_to_class, id="Form20")


class Deletion:
    """A window in which a record is deleted."""

    def __init__(self, name, base, table, button, open):
        self.name, self.base, self.table, self.button, self.open = name, base, table, button, open

    def press(self, port):
        port.answer(**{"with": ["yes", "yes"]})
        port.click(f"{self.name}.{self.button}")
        return [box for box in port.boxes if box["kind"] == "error"]

    def count(self, port):
        return len(port.rows(table=self.table)["rows"])


DELETIONS = [
    Deletion("Form4", "NOM.MDB", "FICHEPATIENT", "CmdSupprime", clicks()),
    Deletion("Form6", "ECHO.MDB", "1TER", "CmdSupprime", clicks("Form4.HlbCptDer")),
    Deletion("Form10", "ECHO.MDB", "1TER", "CmdSupprime",
             clicks("Form4.HlbCptDer", surname="GUÉRIN", first_name="SOPHIE")),
    Deletion("Form18", "ECHO.MDB", "GYNECO", "CmdSupprime",
             clicks("Form4.Command5", surname="ROSSIGNOL", first_name="")),
    Deletion("Form9", "ECHO.MDB", "OPTIONS", "CmdSupprime", chosen_phrase),
]


def each(name, cases, id=lambda case: case.id):
    return pytest.mark.parametrize(name, cases, ids=id)


FAULTS = {
    locked: "occupée par un autre poste",
    full_disk: "Le disque est plein",
    removed: "introuvable",
    damaged: "n'est pas une base de données reconnue, ou il est endommagé",
    read_only: "La base de données est en lecture seule",
}
each_fault = each("fault", FAULTS, id=lambda fault: fault.__name__)


@each("window", WINDOWS)
@each_fault
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


@each("window", [HISTORY, KEY_WORD])
@each_fault
def test_a_fault_that_ends_in_silence_loses_nothing(sample, window, fault):
    before = window.stored(sample)
    window.fill(sample)
    caption = sample.text(f"{window.name}.{window.save}")
    with fault(sample.folder / window.base, sample):
        assert window.press(sample) == []
        assert {box["kind"] for box in sample.boxes} <= {"question"}
        assert window.text(sample) == MARK
        assert sample.text(f"{window.name}.{window.save}") == caption
    assert window.stored(sample) == before
    assert window.press(sample) == []
    assert window.stored(sample) == before + 1


@each_fault
def test_a_picture_that_cant_be_classed_stays_in_hand(sample, fault):
    PICTURE.fill(sample)
    with fault(sample.folder / PICTURE.base, sample):
        PICTURE.press(sample)
        [box] = sample.boxes
        # The album tells a failure of its writing in its own words.
        writes = fault in (full_disk, read_only)
        assert (box["kind"] == "message") == writes
        assert (NOT_CLASSED if writes else FAULTS[fault]) in box["text"]
        assert PICTURE.text(sample) == MARK
        assert sample.get("Form20.ImgCharge")["picture"] == {"width": 64, "height": 48}
    assert PICTURE.stored(sample) == 0
    assert PICTURE.press(sample) == []
    assert PICTURE.stored(sample) == 1


@each_fault
def test_a_picture_that_is_gone_stays_classed_when_it_cant_be_declassed(sample, fault):
    PICTURE.fill(sample)
    assert PICTURE.press(sample) == []
    (sample.folder / "kyste.bmp").unlink()
    sample.set("Form20.TxtRechNom", text=MARK)
    sample.click("Form20.TriNom")
    with fault(sample.folder / PICTURE.base, sample):
        sample.answer(**{"with": ["yes"]})
        sample.dblclick("Form20.List4", row=0)
        assert [FAULTS[fault] in box["text"] for box in sample.boxes if box["kind"] == "error"] == [True]
    assert PICTURE.stored(sample) == 1
    sample.answer(**{"with": ["yes"]})
    sample.dblclick("Form20.List4", row=0)
    assert PICTURE.stored(sample) == 0


@each("deletion", DELETIONS, id=lambda deletion: deletion.name)
@each_fault
def test_a_deletion_that_fails_leaves_the_record(sample, deletion, fault):
    before = deletion.count(sample)
    deletion.open(sample)
    with fault(sample.folder / deletion.base, sample):
        errors = deletion.press(sample)
        assert len(errors) == 1
        assert FAULTS[fault] in errors[0]["text"]
        assert deletion.name in sample.shown()
    assert deletion.count(sample) == before
    assert deletion.press(sample) == []
    assert deletion.count(sample) == before - 1


@each("window", [*WINDOWS, HISTORY, KEY_WORD, PICTURE])
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
