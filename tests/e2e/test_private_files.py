"""Whatever the program writes is its owner's alone."""

import os
import stat
import subprocess

import pytest
from pictures import plain
from port import PROGRAM

BASE = PROGRAM.parent / "veranox-base"
FOUR = {"ATCD.MDB", "ECHO.MDB", "ECHOTEK.MDB", "NOM.MDB"}


@pytest.fixture(autouse=True)
def generous_machine():
    """A machine whose users share their files by default."""
    before = os.umask(0o000)
    yield
    os.umask(before)


def open_to_others(folder, of_the_test=()):
    return {
        str(path.relative_to(folder)): oct(path.stat().st_mode & 0o777)
        for path in folder.rglob("*")
        if path.stat().st_mode & (stat.S_IRWXG | stat.S_IRWXO) and path.name not in of_the_test
    }


def write_an_introduction(port):
    port.click("Form1.Command2")
    port.click("Form9.CmdIntro")
    port.set("Form9.TxtIntro", text="Examen fait ce jour.")
    port.click("Form9.CmdEnreg")
    port.click("Form9.CmdQuitter")


def print_a_report_and_write_the_history(port):
    port.click("Form1.Command1")
    port.type("Form4.Text1", text="MARTINEAU")
    port.type("Form4.Text2", text="CHRISTELLE")
    port.click("Form4.HlbCptDer")
    port.click("Form6.Command1")
    port.click("RicheT.tbToolBar(Imprimer)")
    port.click("RicheT.tbToolBar(Quitter)")
    port.click("Form6.CmdQuitter")
    port.type("Form4.Text1", text="MARTINEAU")
    port.click("Form4.CmdATCD")
    port.set("Form4.TxtATCD", text="Allergie")
    port.click("Form4.CmdEnregATCD")
    port.click("Form4.Menu")


def save_pictures(port):
    port.click("Form1.Command5")
    port.camera(image=plain(port.folder / "source.png", (200, 30, 30), 360, 288))
    port.click("Form19.Command4")
    port.dblclick("Form19.Image2(1)")
    for filter, ending in [(1, "jpg"), (2, "bmp")]:
        port.answer(**{"with": [{"file": str(port.folder / "VIDEOTEK" / f"cliche.{ending}"), "filter": filter}]})
        port.click("Form19.Command5")
        if filter == 1:
            port.click("FrmCpr.Command3")
    port.click("Form19.Qui")


def test_no_file_of_a_days_work_can_be_read_by_others(port, tmp_path):
    port.practice(patients=True)
    port.printer(file=str(tmp_path / "rapport.pdf"))
    port.start()
    write_an_introduction(port)
    print_a_report_and_write_the_history(port)
    save_pictures(port)
    port.click("Form1.CmdSupervi")
    port.click("Form22.Command2")
    port.click("Form1.CmdSauve")
    port.click("Form21.CmdSauve1")
    assert port.said() == ["Sauvegarde terminée"]
    written = {path.name for path in tmp_path.rglob("*")}
    assert FOUR | {"intro", "rapport.pdf", "Settings", "user-settings.ini"} <= written
    assert {"Cliche1.BMP", "VIDEOTEK", "cliche.jpg", "cliche.bmp", "Entet.txt", "ATCD.MDB-journal"} <= written
    assert {path.name for path in (tmp_path / "Sauve").iterdir()} == FOUR
    assert open_to_others(tmp_path, of_the_test={"source.png"}) == {}


def test_no_file_of_a_practice_made_and_restored_can_be_read_by_others(tmp_path):
    for step in [("exemple", "cabinet"), ("nouveau", "autre"), ("restaure", "cabinet", "autre"),
                 ("restaure", "cabinet", "encore")]:
        subprocess.run([BASE, step[0], *(tmp_path / name for name in step[1:])], check=True, capture_output=True)
    assert {path.name for path in (tmp_path / "encore").iterdir()} >= FOUR
    assert list((tmp_path / "autre").glob("avant-restauration-*/NOM.MDB"))
    assert open_to_others(tmp_path) == {}
