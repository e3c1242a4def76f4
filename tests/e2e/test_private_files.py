"""Whatever the program writes is its owner's alone."""

import os
import stat

import pytest


@pytest.fixture(autouse=True)
def generous_machine():
    """A machine whose users share their files by default."""
    before = os.umask(0o000)
    yield
    os.umask(before)


def open_to_others(folder):
    return {
        str(path.relative_to(folder)): oct(path.stat().st_mode & 0o777)
        for path in folder.rglob("*")
        if path.stat().st_mode & (stat.S_IRWXG | stat.S_IRWXO)
    }


def test_no_file_of_a_days_work_can_be_read_by_others(port, tmp_path):
    port.practice(patients=True)
    port.printer(file=str(tmp_path / "rapport.pdf"))
    port.start()
    port.click("Form1.Command2")
    port.click("Form9.CmdIntro")
    port.set("Form9.TxtIntro", text="Examen fait ce jour.")
    port.click("Form9.CmdEnreg")
    port.click("Form9.CmdQuitter")
    port.click("Form1.Command1")
    port.type("Form4.Text1", text="MARTINEAU")
    port.type("Form4.Text2", text="CHRISTELLE")
    port.click("Form4.HlbCptDer")
    port.click("Form6.Command1")
    port.click("RicheT.tbToolBar(Imprimer)")
    port.click("RicheT.tbToolBar(Quitter)")
    port.click("Form6.CmdQuitter")
    port.click("Form4.CmdATCD")
    port.click("Form4.Menu")
    port.click("Form1.CmdSauve")
    port.click("Form21.CmdSauve1")
    written = {path.name for path in tmp_path.rglob("*")}
    assert {"ECHO.MDB", "NOM.MDB", "intro", "rapport.pdf", "Settings", "user-settings.ini"} <= written
    assert open_to_others(tmp_path) == {}
