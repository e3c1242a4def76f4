"""The medical history of a patient, and the deletion of her dossier from all files."""

import pytest

FIRST = "Voulez vous vraiment SUPPRIMER ce DOSSIER ?"
SECOND = "ATTENTION ce dossier patient a être supprimé. CONTINUER ?"


@pytest.fixture
def desk(practice):
    """A patient with exams in both tables, another one beside her."""
    for number, surname in [(2, "L'HÉRITIER"), (3, "MARTIN")]:
        practice.insert(table="FICHEPATIENT", row={"Numint": number, "Nom": surname, "Prenom": "Anaïs"})
        practice.insert(table="1TER", row={"Numero": number, "NUMECHO": 1, "DATEXAM": "10/01/2002", "TYPECHO": "1"})
        practice.insert(table="1TER", row={"Numero": number, "NUMECHO": 2, "DATEXAM": "12/03/2002", "TYPECHO": "2"})
        practice.insert(table="GYNECO", row={"Numero": number, "NUMECHO": 1, "DATEXAM": "04/05/2001"})
    practice.open_dossier("lheri")
    assert practice.text("Form4.NumLbl") == "2"
    return practice


def histories(port):
    return [(row["Numint"], row["Type"], row["Texte"]) for row in port.rows(table="FICHEATCD")["rows"]]


def owners(port, table, field):
    return [row[field] for row in port.rows(table=table)["rows"]]


def delete(port, *answers):
    port.answer(**{"with": list(answers)})
    port.click("Form4.CmdSupprime")


def test_a_history_is_written_and_reopened(desk):
    assert not desk.get("Form4.CmdEnregATCD")["enabled"]
    desk.click("Form4.CmdATCD")
    assert desk.boxes == []
    assert desk.get("Form4.CmdEnregATCD")["enabled"]
    desk.set("Form4.TxtATCD", text="Allergie à l'iode\nCésarienne")
    desk.click("Form4.CmdEnregATCD")
    assert desk.text("Form4.CmdEnregATCD") == "Enregistré"
    assert histories(desk) == [(2, "1", " Allergie à l'iode\r\nCésarienne")]
    desk.click("Form4.Command2")
    assert desk.text("Form4.TxtATCD") == ""
    assert desk.text("Form4.CmdEnregATCD") == "Enregistrer les Informations"
    assert not desk.get("Form4.CmdEnregATCD")["enabled"]
    desk.set("Form4.Text1", text="LH")
    desk.click("Form4.CmdATCD")
    assert desk.text("Form4.TxtATCD") == " Allergie à l'iode\r\nCésarienne"
    desk.type("Form4.TxtATCD", text=" x2")
    desk.click("Form4.CmdEnregATCD")
    desk.click("Form4.CmdEnregATCD")
    assert histories(desk) == [(2, "1", " Allergie à l'iode\r\nCésarienne x2")]


def test_a_missing_file_of_histories_is_silent(desk):
    (desk.folder / "ATCD.MDB").unlink()
    desk.click("Form4.CmdATCD")
    assert desk.boxes == []
    desk.set("Form4.TxtATCD", text="perdu ?")
    desk.click("Form4.CmdEnregATCD")
    assert desk.boxes == []
    assert desk.text("Form4.CmdEnregATCD") == "Enregistrer les Informations"
    assert desk.text("Form4.TxtATCD") == "perdu ?"


def test_a_dossier_is_deleted_from_all_files(desk):
    desk.click("Form4.CmdATCD")
    desk.set("Form4.TxtATCD", text="un")
    desk.click("Form4.CmdEnregATCD")
    delete(desk, "yes", "yes")
    assert [(box["title"], box["text"], box["icon"]) for box in desk.boxes] == [
        ("Attention", FIRST, ""),
        ("Attention", SECOND, "critical"),
    ]
    assert owners(desk, "FICHEPATIENT", "Numint") == [1, 3]
    assert owners(desk, "1TER", "Numero") == [3, 3]
    assert owners(desk, "GYNECO", "Numero") == [3]
    assert histories(desk) == []
    assert desk.text("Form4.NomLbl") == desk.text("Form4.TxtATCD") == ""
    assert desk.items("Form4.LstCiv") == []
    assert desk.text("Form4.NumLbl") == "2"
    desk.set("Form4.Text1", text="M")
    assert desk.text("Form4.NomLbl") == "MARTIN"
    desk.click("Form4.HlbCptDate")
    assert desk.items("Form4.List1") == ["10/01/2002", "12/03/2002"]


@pytest.mark.parametrize("answers", [["no"], ["yes", "no"]])
def test_a_deletion_stops_at_each_no(desk, answers):
    delete(desk, *answers)
    assert len(desk.boxes) == len(answers)
    assert owners(desk, "FICHEPATIENT", "Numint") == [1, 2, 3]
    assert len(owners(desk, "1TER", "Numero")) == 4
    assert desk.text("Form4.NomLbl") == "L'HÉRITIER"


def test_a_deletion_that_fails_midway_says_what_is_left(desk):
    (desk.folder / "ATCD.MDB").rename(desk.folder / "loin")
    delete(desk, "yes", "yes")
    assert [box["kind"] for box in desk.boxes] == ["question", "question", "error"]
    text = desk.boxes[2]["text"]
    assert text.startswith("Erreur d'exécution '3024' :\n\nLa fiche est supprimée ; les antécédents et les examens")
    assert "ATCD.MDB" in text
    assert owners(desk, "FICHEPATIENT", "Numint") == [1, 3]
    assert len(owners(desk, "1TER", "Numero")) == 4
