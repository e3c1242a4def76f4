"""Choosing where the databases and the backups are."""

import pytest

FIELDS = {"Text1": "CHEMIN", "Text2": "CHEMINS", "Text3": "CHEMCIV", "Text5": "CHEMATCD", "Text4": "SAUVE"}


@pytest.fixture
def supervisor(port):
    """The Supervisor of a program that has no settings yet."""
    port.start()
    port.click("Form1.CmdSupervi")
    assert port.shown() == {"Form1", "Form22"}
    return port


def test_a_first_start_is_set_up_and_opens_the_dossiers(supervisor):
    port = supervisor
    for field in FIELDS:
        assert port.text("Form22." + field) == str(port.folder)
    place = port.folder / "réseau"
    place.mkdir()
    port.practice(folder=str(place))
    for field, key in FIELDS.items():
        port.setting(key=key, value="")
    browse = {"Command4": "ECHO.MDB", "Command5": "ECHOTEK.MDB", "Command6": "NOM.MDB", "Command8": "ATCD.MDB"}
    for button, name in browse.items():
        port.answer(**{"with": [{"file": str(place / name)}]})
        port.click("Form22." + button)
        assert port.boxes[0]["kind"] == "open"
        assert port.boxes[0]["proposed"] == name
        assert port.boxes[0]["filter"] == "Basees de Données (*.MDB)|*.MDB"
    (port.folder / "Sauve" / "témoin.txt").write_text("x")
    port.answer(**{"with": [{"file": str(port.folder / "Sauve" / "témoin.txt")}]})
    port.click("Form22.Command7")
    assert port.boxes[0]["proposed"] == "*.*"
    assert port.text("Form22.Text4") == str(port.folder / "Sauve") + "/"
    port.click("Form22.Command2")
    assert port.shown() == {"Form1"}
    assert port.setting(key="CHEMIN")["value"] == str(place / "ECHO.MDB")
    assert port.setting(key="sauve")["value"] == str(port.folder / "Sauve") + "/"
    port.click("Form1.Command1")
    assert port.shown() == {"Form4"}


def test_a_file_that_is_not_there_yet_can_be_named(supervisor):
    # An empty folder for the backups holds nothing that could be picked.
    empty = supervisor.folder / "Sauvegardes"
    empty.mkdir()
    for field, button, file, shown in [
        ("Text1", "Command4", "ECHO.MDB", "ECHO.MDB"),
        ("Text2", "Command5", "ECHOTEK.MDB", "ECHOTEK.MDB"),
        ("Text3", "Command6", "NOM.MDB", "NOM.MDB"),
        ("Text5", "Command8", "ATCD.MDB", "ATCD.MDB"),
        ("Text4", "Command7", "ici", ""),
    ]:
        supervisor.answer(**{"with": [{"file": str(empty / file)}]})
        supervisor.click("Form22." + button)
        assert [box["kind"] for box in supervisor.boxes] == ["open"]
        assert supervisor.text("Form22." + field) == f"{empty}/{shown}"


def test_cancel_in_a_browse_dialog_empties_the_field(supervisor):
    for field, button in [("Text1", "Command4"), ("Text4", "Command7")]:
        supervisor.answer(**{"with": ["cancel"]})
        supervisor.click("Form22." + button)
        assert supervisor.text("Form22." + field) == ""
    supervisor.click("Form22.Command2")
    assert supervisor.setting(key="CHEMIN")["value"] == ""


def test_clearing_empties_two_fields_and_quitting_saves_nothing(supervisor):
    supervisor.set("Form22.Text3", text="/ailleurs/NOM.MDB")
    supervisor.click("Form22.Command1")
    shown = {field: supervisor.text("Form22." + field) for field in FIELDS}
    folder = str(supervisor.folder)
    assert shown == {"Text1": "", "Text2": "", "Text3": "/ailleurs/NOM.MDB", "Text5": folder, "Text4": folder}
    supervisor.click("Form22.Command3")
    assert supervisor.shown() == {"Form1"}
    assert all(supervisor.setting(key=key)["value"] is None for key in FIELDS.values())


def test_the_window_stands_in_the_middle_and_fits(supervisor):
    place = next(form for form in supervisor.forms()["forms"] if form["name"] == "Form22")
    assert place["width"] <= 1366 and place["height"] <= 768
    # The platform without a screen has one of 800 x 800, and a frame of two pixels around each window.
    assert abs(place["left"] * 2 + place["width"] - 800) <= 8
    assert abs(place["top"] * 2 + place["height"] - 800) <= 8


def test_damaged_settings_are_set_aside_and_told(port):
    file = port.folder / "user-settings.ini"
    file.write_bytes(b"[MARELLES]\nECHO\\CHEMIN=\"/r/EC")
    port.start()
    assert port.boxes[0]["icon"] == "exclamation"
    assert str(file) + ".endommage" in port.said()[0]
    assert port.shown() == {"Form1"}
    assert (port.folder / "user-settings.ini.endommage").read_bytes().startswith(b"[MARELLES]")
    port.click("Form1.Command1")
    assert len(port.said()) == 1 and "'Echo.mdb' est introuvable" in port.said()[0]
