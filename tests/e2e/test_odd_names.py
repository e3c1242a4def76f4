"""Folders and names that mean something to a format, a shell, a statement or a path are names like any other."""

import pictures
import pytest
from port import Port

FOLDERS = ["50%1 %2 %3 %n", "d'ici \"et\" là; rm x", "$(touch x) `x` &", "ligne\nsuivante"]


def capture(port):
    port.camera(image=pictures.plain(port.folder / "source.png", (200, 30, 30), 360, 288))
    port.click("Form19.Command4")
    assert port.boxes == []
    port.dblclick("Form19.Image2(1)")


@pytest.mark.parametrize("name", FOLDERS)
def test_a_practice_works_in_a_folder_of_any_name(tmp_path, name):
    folder = tmp_path / "haut" / name
    folder.mkdir(parents=True)
    port = Port(folder, today="2002-06-14")
    port.practice(patients=True)
    port.start()
    port.click("Form1.Command1")
    port.type("Form4.Text1", text="MARTINEAU")
    port.click("Form4.CmdATCD")
    port.set("Form4.TxtATCD", text="Allergie")
    port.click("Form4.CmdEnregATCD")
    assert port.text("Form4.CmdEnregATCD") == "Enregistré"
    port.click("Form4.Menu")
    port.click("Form1.Command5")
    capture(port)
    assert (folder / "Cliche1.BMP").exists()
    # Quotation marks in the dialog are its own: they part several names.
    file = folder / "VIDEOTEK" / ("cliché " + name.replace('"', "") + ".jpg")
    file.parent.mkdir()
    for _ in range(2):
        port.answer(**{"with": [{"file": str(file), "filter": 1}]})
        port.click("Form19.Command5")
        port.click("FrmCpr.Command3")
        assert [box["kind"] for box in port.boxes] == ["question"]
    assert file.read_bytes()[:3] == b"\xff\xd8\xff"
    assert [path.name for path in file.parent.iterdir()] == [file.name]
    port.click("Form19.Qui")
    port.click("Form1.CmdSauve")
    port.click("Form21.CmdSauve1")
    assert port.said() == ["Sauvegarde terminée"]
    assert len(list((folder / "Sauve").iterdir())) == 4
    assert port.end() == 0
    assert not list(tmp_path.rglob("x"))


@pytest.mark.parametrize(
    "surname, first_name, proposed",
    [
        ("%1%2", "%3x", "%1%2_%3x020405_7"),
        ("../../x", "/y", ".._.__y020405_7"),
        ("a'b\"", "\\n", "a'b__\\n020405_7"),
        ("x" * 5000, "y" * 5000, "xxxx_yyy020405_7"),
    ],
)
def test_the_name_proposed_for_a_picture_is_one_name_in_its_folder(practice, surname, first_name, proposed):
    practice.start()
    practice.click("Form1.Command5")
    capture(practice)
    for control, text in [("TxtNom", surname), ("TxtPrenom", first_name), ("TxtNumEcho", "7")]:
        practice.set(f"Form19.{control}", text=text)
    practice.click("Form19.Command5")
    [box] = practice.boxes
    assert box["proposed"] == proposed
    assert box["folder"] == str(practice.folder / "VIDEOTEK")


NAMES = ["a'b", "a''b", "%1%2%n", "../../x", "'; DROP TABLE 1TER; --", "a\nb", "x" * 60, "[a-z]*?#"]


@pytest.mark.parametrize("name", NAMES)
def test_a_patient_of_any_name_is_kept_found_and_deleted(practice, name):
    practice.start()
    practice.click("Form1.Command1")
    practice.click("Form4.CmdCreeDossier")
    practice.set("Form2.TxtNom", text=name)
    practice.set("Form2.TxtPrenom", text=name)
    practice.answer(**{"with": ["yes", "yes"]})
    practice.click("Form2.CmdEnreg")
    assert [box["kind"] for box in practice.boxes if box["kind"] == "error"] == []
    assert practice.rows(table="FICHEPATIENT")["rows"][1]["Prenom"].replace("\r", "") in (name, name.replace("\n", " "))
    practice.insert(table="1TER", row={"Numero": 1, "NUMECHO": 1, "TYPECHO": "1", "DATEXAM": "12/03/2002"})
    practice.click("Form4.Command2")
    if practice.text("Form4.NumLbl") == "1":
        practice.click("Form4.Command1")
    assert practice.text("Form4.NumLbl") == "2"
    # A quotation mark in a name ends the search with an error, and nothing more.
    practice.set("Form4.Text2", text=name)
    practice.answer(**{"with": ["yes", "yes"]})
    practice.click("Form4.CmdSupprime")
    assert [box["kind"] for box in practice.boxes] == ["question", "question"]
    assert [row["Numint"] for row in practice.rows(table="FICHEPATIENT")["rows"]] == [1]
    assert len(practice.rows(table="1TER")["rows"]) == 1
