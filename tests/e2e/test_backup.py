"""Backups, what fails of them, and the way back."""

import os
import subprocess

from port import PROGRAM, Port

BASE = PROGRAM.parent / "veranox-base"
FOUR = ["ATCD.MDB", "ECHO.MDB", "ECHOTEK.MDB", "NOM.MDB"]
DONE = "Sauvegarde terminée"
FAILED = (
    "Ce repertoire n'est pas valide \nOu bien les bases de données n'ont pas été ouvertes.\n\n"
    "Il faut avoir préalablement ouvert les 4 bases NOM.MDB, ECHO.MDB, ATCD.MDB et ECHOTEK.MDB"
)


def backups(port):
    return sorted(path.name for path in (port.folder / "Sauve").iterdir())


def open_dossiers(port):
    port.start()
    port.click("Form1.Command1")
    port.click("Form4.Menu")


def open_history_of(port, surname):
    port.click("Form1.Command1")
    port.type("Form4.Text1", text=surname)
    port.click("Form4.CmdATCD")


def back_up(port, button="CmdSauve1"):
    port.click("Form1.CmdSauve")
    port.click("Form21." + button)
    return port.said()


def test_straight_after_the_start_nothing_is_copied(practice):
    practice.start()
    practice.click("Form1.CmdSauve")
    assert practice.shown() == {"Form1", "Form21"}
    for button in ["CmdSauve1", "CmdSauve2"]:
        practice.click("Form21." + button)
        assert practice.said() == [FAILED]
    assert practice.shown() == {"Form1", "Form21"}
    assert backups(practice) == []


def test_without_the_history_nothing_is_copied(practice):
    open_dossiers(practice)
    practice.click("Form1.CmdSauve")
    practice.click("Form21.CmdSauve1")
    assert practice.said() == [FAILED]
    assert backups(practice) == []
    practice.click("Form21.Command1")
    practice.click("Form1.Command1")
    assert practice.shown() == {"Form4"}


def test_browsing_fills_the_place_and_cancel_leaves_it(practice):
    practice.start()
    practice.click("Form1.CmdSauve")
    practice.answer(**{"with": [{"file": str(practice.folder / "NOM.MDB")}]})
    practice.click("Form21.CmdParcourir")
    assert practice.boxes[0]["filter"] == "Fichiers Veranox (*.*)|*.*"
    assert practice.text("Form21.Text1") == str(practice.folder / "NOM.MDB")
    practice.answer(**{"with": ["cancel"]})
    practice.click("Form21.CmdParcourir")
    assert practice.text("Form21.Text1") == str(practice.folder / "NOM.MDB")


def test_browsing_takes_a_name_that_is_not_there_yet(practice):
    practice.start()
    open_history_of(practice, "doss")
    practice.click("Form4.Menu")
    practice.click("Form1.CmdSauve")
    practice.answer(**{"with": [{"file": str(practice.folder / "Sauve" / "Mardi ")}]})
    practice.click("Form21.CmdParcourir")
    assert practice.text("Form21.Text1") == str(practice.folder / "Sauve" / "Mardi ")
    practice.click("Form21.CmdSauve2")
    assert practice.said() == [DONE]
    assert backups(practice) == ["Mardi " + name for name in FOUR]


def test_the_four_files_are_copied_and_the_window_closes(practice):
    practice.start()
    open_history_of(practice, "doss")
    practice.click("Form4.Menu")
    assert back_up(practice) == [DONE]
    assert practice.boxes[0]["kind"] == "message"
    assert practice.shown() == {"Form1"}
    assert backups(practice) == FOUR


def test_a_second_backup_needs_the_bases_reopened(practice):
    practice.start()
    open_history_of(practice, "doss")
    practice.click("Form4.Menu")
    assert back_up(practice) == [DONE]
    assert back_up(practice) == [FAILED]
    practice.click("Form21.Command1")
    open_history_of(practice, "doss")
    assert practice.boxes == []
    practice.click("Form4.Menu")
    assert back_up(practice) == [DONE]
    assert backups(practice) == FOUR


def test_an_empty_place_is_the_current_folder_of_the_program(tmp_path):
    folder, current = tmp_path / "cabinet", tmp_path / "ici"
    folder.mkdir()
    current.mkdir()
    before = os.getcwd()
    os.chdir(current)
    try:
        port = Port(folder)
    finally:
        os.chdir(before)
    port.practice()
    port.start()
    open_history_of(port, "doss")
    port.click("Form4.Menu")
    assert back_up(port, "CmdSauve2") == [DONE]
    assert port.end() == 0
    assert sorted(path.name for path in current.iterdir()) == FOUR


def test_a_place_that_is_no_folder_fails_and_keeps_the_window(practice):
    practice.start()
    open_history_of(practice, "doss")
    practice.click("Form4.Menu")
    practice.click("Form1.CmdSauve")
    practice.set("Form21.Text1", text="/nulle/part/")
    practice.click("Form21.CmdSauve2")
    assert practice.said() == [FAILED]
    window = next(form for form in practice.forms()["forms"] if form["name"] == "Form21")
    assert window["shown"] and window["pointer"] == "busy"
    assert practice.text("Form21.Text1") == "/nulle/part/"


def test_a_dossier_deleted_by_mistake_comes_back_with_the_backup(practice):
    folder = practice.folder
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "L'HÉRITIER", "Prenom": "Zoé"})
    practice.insert(table="1TER", row={"Numero": 2, "NUMECHO": 1, "TYPECHO": "1", "DATEXAM": "12/03/2002"})
    practice.start()
    open_history_of(practice, "lh")
    practice.set("Form4.TxtATCD", text="Allergie à l'iode")
    practice.click("Form4.CmdEnregATCD")
    practice.click("Form4.Menu")
    assert back_up(practice) == [DONE]
    practice.click("Form1.Command1")
    practice.type("Form4.Text1", text="lh")
    practice.answer(**{"with": ["yes", "yes"]})
    practice.click("Form4.CmdSupprime")
    assert [row["Numint"] for row in practice.rows(table="FICHEPATIENT")["rows"]] == [1]
    assert practice.end() == 0

    restored = subprocess.run(
        [BASE, "restaure", folder / "Sauve", folder], capture_output=True, text=True, encoding="utf-8"
    )
    assert (restored.returncode, restored.stderr) == (0, "")
    assert "avant-restauration-" in restored.stdout
    assert sorted(path.name for path in next(folder.glob("avant-restauration-*")).glob("*.MDB")) == FOUR

    port = Port(folder)
    port.start()
    open_history_of(port, "lh")
    assert port.text("Form4.NomLbl") == "L'HÉRITIER"
    assert port.text("Form4.TxtATCD") == " Allergie à l'iode"
    port.click("Form4.HlbCptDate")
    assert port.items("Form4.List1") == ["12/03/2002"]
    assert port.end() == 0
