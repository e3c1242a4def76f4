"""Backups, settings, small files, pictures and pages, on a medium that fails: the old file stays whole, what was
entered stays on screen, and the same step works once the fault is gone."""

import contextlib
import os
import pathlib
import socket
import subprocess
import time

import pytest
from bitmaps import plain
from faults import damaged, full_disk, locked, ordinary_port, read_only, removed
from port import PROGRAM

BASES = ["NOM.MDB", "ECHO.MDB", "ATCD.MDB", "ECHOTEK.MDB"]
BACKED_UP = "Sauvegarde terminée"
NOT_BACKED_UP = "Ce repertoire n'est pas valide"
NO_CARD = "Pas de connection à la carte video"
OLD = b"ce qui y etait"


@pytest.fixture
def sample(tmp_path):
    port = ordinary_port(tmp_path)
    port.practice(patients=True)
    port.start()
    yield port
    assert port.end() == 0


@contextlib.contextmanager
def no_room(path, port):
    """The disk has not a byte left."""
    with full_disk(path, port, bytes=0):
        yield


MEDIA = pytest.mark.parametrize("fault", [full_disk, read_only], ids=["full_disk", "read_only"])
SMALL_MEDIA = pytest.mark.parametrize("fault", [no_room, read_only], ids=["full_disk", "read_only"])


def errors(port):
    return [box["text"] for box in port.boxes if box["kind"] == "error"]


def files_beside(path):
    return sorted(other.name for other in path.parent.iterdir())


# Backups


def open_all_bases(port):
    port.click("Form1.Command1")
    port.type("Form4.Text1", text="MARTINEAU")
    port.click("Form4.CmdATCD")
    port.click("Form4.Menu")


def back_up(port):
    open_all_bases(port)
    port.click("Form1.CmdSauve")
    port.click("Form21.CmdSauve1")
    return port.said()


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}


@pytest.mark.parametrize("base", BASES)
@pytest.mark.parametrize("fault", [locked, removed, damaged], ids=lambda fault: fault.__name__)
def test_a_base_at_fault_leaves_the_earlier_backup_whole(sample, base, fault):
    assert back_up(sample) == [BACKED_UP]
    earlier = contents(sample.folder / "Sauve")
    assert sorted(earlier) == sorted(BASES)
    open_all_bases(sample)
    sample.click("Form1.CmdSauve")
    with fault(sample.folder / base, sample):
        sample.click("Form21.CmdSauve1")
        assert [text.startswith(NOT_BACKED_UP) for text in sample.said()] == [True]
        assert "Form21" in sample.shown()
    assert contents(sample.folder / "Sauve") == earlier
    sample.click("Form21.Command1")
    assert back_up(sample) == [BACKED_UP]


@MEDIA
def test_a_medium_at_fault_leaves_the_earlier_backup_whole(sample, fault):
    assert back_up(sample) == [BACKED_UP]
    earlier = contents(sample.folder / "Sauve")
    open_all_bases(sample)
    sample.click("Form1.CmdSauve")
    with fault(sample.folder / "Sauve" / "NOM.MDB", sample):
        sample.click("Form21.CmdSauve1")
        assert [text.startswith(NOT_BACKED_UP) for text in sample.said()] == [True]
    assert contents(sample.folder / "Sauve") == earlier
    sample.click("Form21.Command1")
    assert back_up(sample) == [BACKED_UP]


def test_a_program_killed_in_a_backup_leaves_four_sound_files(tmp_path):
    port = ordinary_port(tmp_path)
    port.practice(patients=True)
    port.start()
    assert back_up(port) == [BACKED_UP]
    open_all_bases(port)
    began = time.monotonic()
    port.click("Form1.CmdSauve")
    port.click("Form21.CmdSauve1")
    took = time.monotonic() - began
    assert port.end() == 0
    for part in range(10):
        port = ordinary_port(tmp_path)
        port.start()
        open_all_bases(port)
        port.click("Form1.CmdSauve")
        port.process.stdin.write('{"do": "click", "control": "Form21.CmdSauve1"}\n')
        port.process.stdin.flush()
        time.sleep(took * part / 10)
        port.process.kill()
        port.process.wait(10)
        checked = subprocess.run([PROGRAM.parent / "veranox-base", "verifie", tmp_path / "Sauve"], capture_output=True)
        assert (checked.returncode, checked.stderr) == (0, b"")
    port = ordinary_port(tmp_path)
    port.start()
    assert back_up(port) == [BACKED_UP]
    assert port.end() == 0


# Settings


@contextlib.contextmanager
def held(path, port):
    """Another run of the program holds the settings."""
    lock = path.with_name(path.name + ".lock")
    name = pathlib.Path("/proc/self/exe").resolve().name
    lock.write_text(f"{os.getpid()}\n{name}\n{socket.gethostname()}\n")
    try:
        yield
    finally:
        lock.unlink()


def supervise(port):
    port.click("Form1.CmdSupervi")
    port.set("Form22.Text4", text="/ailleurs/")


@pytest.mark.parametrize("fault", [no_room, read_only, damaged, held], ids=lambda fault: fault.__name__)
def test_settings_that_cant_be_saved_are_told_and_stay_entered(sample, fault):
    file = sample.folder / "user-settings.ini"
    before = file.read_bytes()
    supervise(sample)
    with fault(file, sample):
        sample.click("Form22.Command2")
        assert len(errors(sample)) == 1
        assert "réglages" in errors(sample)[0]
        assert sample.text("Form22.Text4") == "/ailleurs/"
    assert file.read_bytes() == before
    sample.click("Form22.Command2")
    assert sample.boxes == []
    assert sample.shown() == {"Form1"}
    assert sample.setting(key="SAUVE")["value"] == "/ailleurs/"


def test_a_lock_that_a_killed_program_left_holds_nothing_up(sample):
    gone = subprocess.Popen(["true"])
    gone.wait()
    lock = sample.folder / "user-settings.ini.lock"
    lock.write_text(f"{gone.pid}\nveranox-port\n{socket.gethostname()}\n")
    supervise(sample)
    sample.click("Form22.Command2")
    assert sample.boxes == []
    assert sample.setting(key="SAUVE")["value"] == "/ailleurs/"


def test_settings_that_cant_be_read_are_told_at_the_start_and_kept(tmp_path):
    port = ordinary_port(tmp_path)
    port.practice()
    file = tmp_path / "user-settings.ini"
    before = file.read_bytes()
    file.chmod(0)
    port.start()
    assert len(errors(port)) == 1
    assert "ne peut pas être lu" in errors(port)[0]
    assert port.shown() == {"Form1"}
    port.click("Form1.Command1")
    assert len(errors(port)) == 1
    assert port.shown() == {"Form1"}
    file.chmod(0o600)
    assert file.read_bytes() == before
    port.click("Form1.Command1")
    assert port.shown() == {"Form4"}
    assert port.end() == 0


# Small files beside the program


@SMALL_MEDIA
def test_an_introduction_that_cant_be_written_stays_in_its_panel(sample, fault):
    file = sample.folder / "intro"
    file.write_text('"Avant"\r\n', encoding="utf-8")
    sample.click("Form1.Command2")
    sample.click("Form9.CmdIntro")
    sample.set("Form9.TxtIntro", text="Après")
    with fault(file, sample):
        sample.click("Form9.CmdEnreg")
        assert len(errors(sample)) == 1
        assert sample.text("Form9.TxtIntro") == "Après"
        assert sample.get("Form9.Frame9")["onscreen"]
    assert file.read_text(encoding="utf-8") == '"Avant"\n'
    sample.click("Form9.CmdEnreg")
    assert sample.boxes == []
    assert file.read_text(encoding="utf-8") == '"Après"\n'


@SMALL_MEDIA
def test_a_report_style_that_cant_be_written_stays_as_it_was(sample, fault):
    file = sample.folder / "Settings"

    def leave_the_exam():
        sample.click("Form4.HlbCptDer")
        sample.click("Form6.CmdQuitter")
        assert sample.boxes == []

    sample.click("Form1.Command1")
    sample.type("Form4.Text1", text="MARTINEAU")
    sample.type("Form4.Text2", text="CHRISTELLE")
    leave_the_exam()
    before = files_beside(file), file.read_bytes()
    sample.type("Form4.Text1", text="MARTINEAU")
    sample.type("Form4.Text2", text="CHRISTELLE")
    sample.click("Form4.HlbCptDer")
    sample.click("Form6.Intro")
    with fault(file, sample):
        sample.click("Form6.CmdQuitter")
        assert errors(sample) == []
        assert "Form4" in sample.shown()
    assert (files_beside(file), file.read_bytes()) == before


@SMALL_MEDIA
def test_a_sheet_heading_that_cant_be_written_is_told(sample, fault):
    file = sample.folder / "Entet.txt"
    file.write_bytes(OLD)
    sample.click("Form1.Command5")
    with fault(file, sample):
        sample.click("Form19.Qui")
        assert len(errors(sample)) == 1
        assert "Form19" not in sample.shown()
    assert file.read_bytes() == OLD


# Pictures


def grab(port, color):
    port.camera(image=plain(port.folder / "source.bmp", color, 360, 288))
    port.click("Form19.Command4")


@pytest.fixture
def capture(sample):
    """The capture window with a picture in full size."""
    sample.click("Form1.Command5")
    grab(sample, (200, 30, 30))
    assert sample.boxes == []
    sample.dblclick("Form19.Image2(1)")
    return sample


@MEDIA
def test_a_grab_that_cant_be_kept_is_told_and_leaves_the_others(capture, fault):
    capture.click("Form19.Command6")
    with fault(capture.folder / "Cliche2.BMP", capture):
        # The source of the port is a file of the test's own.
        capture.click("Form19.Command4")
        assert capture.said() == [NO_CARD]
    assert capture.get("Form19.Image2(1)")["picture"] == {"width": 360, "height": 288}
    assert capture.get("Form19.Image2(2)")["picture"] is None
    capture.click("Form19.Command4")
    assert capture.boxes == []
    assert capture.get("Form19.Image2(3)")["picture"] == {"width": 360, "height": 288}


def choose(port, file, filter):
    port.answer(**{"with": [{"file": str(file), "filter": filter}]})


@MEDIA
def test_a_bitmap_that_cant_be_saved_is_told_and_leaves_the_old_file(capture, fault):
    folder = capture.folder / "VIDEOTEK"
    folder.mkdir(exist_ok=True)
    file = folder / "cliche.bmp"
    file.write_bytes(OLD)
    with fault(file, capture):
        choose(capture, file, 2)
        capture.click("Form19.Command5")
        assert len(errors(capture)) == 1
        assert not any(box["kind"] == "question" and "album" in box["text"] for box in capture.boxes)
        assert capture.get("Form19.Image3")["picture"] == {"width": 360, "height": 288}
    assert contents(folder) == {"cliche.bmp": OLD}
    choose(capture, file, 2)
    capture.click("Form19.Command5")
    assert errors(capture) == []
    assert file.read_bytes()[:2] == b"BM"


@MEDIA
def test_a_jpeg_that_cant_be_saved_is_told_and_leaves_the_old_file(capture, fault):
    folder = capture.folder / "VIDEOTEK"
    folder.mkdir(exist_ok=True)
    file = folder / "cliche.jpg"
    file.write_bytes(OLD)
    choose(capture, file, 1)
    capture.click("Form19.Command5")
    with fault(file, capture):
        capture.click("FrmCpr.Command3")
        assert len(errors(capture)) == 1
        assert errors(capture)[0].startswith("Erreur d'exécution '26001' :")
        assert "FrmCpr" in capture.shown()
    assert contents(folder) == {"cliche.jpg": OLD}
    capture.click("FrmCpr.Command3")
    assert errors(capture) == []
    assert file.read_bytes()[:3] == b"\xff\xd8\xff"


def is_jpeg(content):
    return content[:3] == b"\xff\xd8\xff" and content[-2:] == b"\xff\xd9"


def test_a_program_killed_while_a_jpeg_is_replaced_leaves_a_whole_one(tmp_path):
    file = tmp_path / "VIDEOTEK" / "cliche.jpg"
    took = 0.05
    for part in range(12):
        port = ordinary_port(tmp_path)
        port.practice(folder=str(tmp_path / f"cabinet{part}"))
        port.start()
        port.click("Form1.Command5")
        grab(port, (20 * part, 30, 30))
        port.dblclick("Form19.Image2(1)")
        choose(port, file, 1)
        port.click("Form19.Command5")
        if part == 0:
            began = time.monotonic()
            port.click("FrmCpr.Command3")
            took = time.monotonic() - began
            assert is_jpeg(file.read_bytes())
            assert port.end() == 0
            continue
        port.process.stdin.write('{"do": "click", "control": "FrmCpr.Command3"}\n')
        port.process.stdin.flush()
        time.sleep(took * part / 12)
        port.process.kill()
        port.process.wait(10)
        assert any(is_jpeg(path.read_bytes()) for path in file.parent.iterdir())


@contextlib.contextmanager
def out_of_reach(path, port):
    path.chmod(0)
    try:
        yield
    finally:
        path.chmod(0o600)


@pytest.mark.parametrize("fault", [removed, damaged, out_of_reach], ids=lambda fault: fault.__name__)
def test_a_file_that_cant_be_read_leaves_the_picture_in_hand(sample, fault):
    sample.click("Form1.Command6")
    kept, other = plain(sample.folder / "un.bmp"), sample.folder / "deux.bmp"
    plain(other, width=32, height=16)
    sample.answer(**{"with": [{"file": kept}]})
    sample.click("Form20.CmdOuvrir")
    sample.answer(**{"with": [{"file": str(other)}]})
    with fault(other, sample):
        sample.click("Form20.CmdOuvrir")
        assert sample.get("Form20.ImgCharge")["picture"] == {"width": 64, "height": 48}
        assert sample.text("Form20.LblPath") == kept
    sample.answer(**{"with": [{"file": str(other)}]})
    sample.click("Form20.CmdOuvrir")
    assert sample.get("Form20.ImgCharge")["picture"] == {"width": 32, "height": 16}


# Pages


@pytest.fixture
def old_pdf(sample):
    """The PDF that the printer makes, of an earlier print."""
    file = sample.folder / "pages" / "pages.pdf"
    file.parent.mkdir()
    file.write_bytes(OLD)
    sample.printer(file=str(file))
    return file


@MEDIA
def test_a_sheet_that_cant_be_printed_is_told_and_leaves_the_old_pdf(capture, old_pdf, fault):
    capture.click("Form19.Option2")
    capture.click("Form19.Command6")
    for _ in range(2):
        capture.click("Form19.Image2(1)")
    with fault(old_pdf, capture):
        capture.click("Form19.Command1")
        assert len(errors(capture)) == 1
        assert errors(capture)[0].startswith("Erreur d'exécution '57' :")
    assert contents(old_pdf.parent) == {old_pdf.name: OLD}
    capture.click("Form19.Command1")
    assert capture.boxes == []
    assert old_pdf.read_bytes()[:5] == b"%PDF-"


@MEDIA
def test_a_report_that_cant_be_printed_leaves_the_old_pdf_and_its_text(sample, old_pdf, fault):
    sample.click("Form1.Command1")
    sample.type("Form4.Text1", text="MARTINEAU")
    sample.type("Form4.Text2", text="CHRISTELLE")
    sample.click("Form4.HlbCptDer")
    sample.click("Form6.Command1")
    text = sample.text("RicheT.RichTextBox1")
    with fault(old_pdf, sample):
        # A step of the toolbar that fails is skipped.
        sample.click("RicheT.tbToolBar(Imprimer)")
        assert sample.boxes == []
        assert sample.text("RicheT.RichTextBox1") == text
    assert contents(old_pdf.parent) == {old_pdf.name: OLD}
    sample.click("RicheT.tbToolBar(Imprimer)")
    assert old_pdf.read_bytes()[:5] == b"%PDF-"
