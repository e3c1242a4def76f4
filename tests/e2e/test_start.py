"""The start, the guard of the main menu, and the end."""

import shutil

from port import PROGRAM, Port

MISSING = (
    "La base de données '{}' est introuvable. Veuillez à l'aide du SUPERVISEUR la placer dans un repertoire "
    "quelconque de votre reseau puis relancer le programme"
)


def test_the_menu_shows_alone(port):
    port.start()
    assert port.shown() == {"Form1"}
    assert port.text("Form1.Command1") == "&Dossiers Patientes"


def test_a_first_start_has_no_settings_and_opens_no_dossier(port):
    port.start()
    for button in ["Command1", "Command2"]:
        port.click("Form1." + button)
        assert port.said() == [MISSING.format("Echo.mdb")]
        assert port.boxes[0]["kind"] == "message"
    assert port.shown() == {"Form1"}


def test_a_wrong_path_is_told_by_its_name(practice):
    practice.setting(key="CHEMCIV", value="/nulle/part")
    practice.start()
    practice.click("Form1.Command1")
    assert practice.said() == [MISSING.format("Nom.mdb")]


def test_a_missing_file_is_reported_and_not_made(practice):
    (practice.folder / "NOM.MDB").unlink()
    practice.start()
    practice.click("Form1.Command1")
    assert [box["kind"] for box in practice.boxes] == ["error"]
    assert practice.boxes[0]["text"].startswith("Erreur d'exécution '3024' :\n\n")
    assert practice.shown() == {"Form1"}
    assert not (practice.folder / "NOM.MDB").exists()


def test_the_program_ends_from_the_menu_alone(practice):
    practice.start()
    practice.click("Form1.Command1")
    practice.close(form="Form4")
    practice.click("Form1.Command3")
    assert practice.forms()["forms"] == []
    practice.start()
    practice.close(form="Form1")
    assert practice.forms()["forms"] == []


def test_the_about_box_stands_beside_the_menu(port):
    port.start()
    port.click("Form1.Command4")
    assert port.shown() == {"Form1", "Form14"}
    assert port.text("Form14.Label2") == "Version 3.11 du 01/03/2002"
    port.click("Form14.Command1")
    assert port.shown() == {"Form1"}


def test_the_greeting_comes_once_a_year(tmp_path):
    for day, first in [("15", {"Form1"}), ("16", {"Form15"}), ("17", {"Form1"})]:
        port = Port(tmp_path, today=f"2026-04-{day}")
        port.start()
        assert port.shown() == first
        if day == "16":
            assert port.text("Form15.Label2") == "16 Avril"
            port.click("Form15.Command1")
            assert port.shown() == {"Form1"}
        assert port.end() == 0


def test_the_help_opens_at_its_contents_and_closes(port):
    shutil.copy(PROGRAM.parent / "VERANOX.HLP", port.folder)
    port.start()
    port.click("Form1.CmdAide")
    assert port.boxes == []
    assert port.shown() == {"Form1", "VERANOX.HLP"}
    port.close(form="VERANOX.HLP")
    assert port.shown() == {"Form1"}
    port.click("Form1.CmdAide")
    assert port.shown() == {"Form1", "VERANOX.HLP"}


def test_a_help_file_that_is_missing_or_damaged_is_told(port):
    port.start()
    port.click("Form1.CmdAide")
    assert port.said() == [f"Le fichier d'aide {port.folder}/VERANOX.HLP est introuvable."]
    (port.folder / "VERANOX.HLP").write_text("?")
    port.click("Form1.CmdAide")
    assert port.said() == [f"Le fichier d'aide {port.folder}/VERANOX.HLP ne peut pas être lu."]
    assert port.shown() == {"Form1"}
