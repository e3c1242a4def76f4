"""Finding a patient, browsing, and the lists of her past exams."""

import pytest
from port import PortError

EXAM = {"TYPECHO": "1"}


def patient(port, number, surname, first_name, **more):
    port.insert(table="FICHEPATIENT", row={"Numint": number, "Nom": surname, "Prenom": first_name, **more})


@pytest.fixture
def desk(practice):
    """The dossier window of a small practice."""
    patient(practice, 2, "DUPONT", "Marie", SEXE="F", DATENAISS="31/12/1975", VILLE="Valmont")
    patient(practice, 3, "DUPONT", "Anne")
    patient(practice, 4, "ALBERT", "Zoé")
    patient(practice, 5, "D'ALMEIDA", "Inès")
    for number, date in [(1, "10/01/2002"), (2, "12/03/2002"), (3, "12/03/2002")]:
        practice.insert(table="1TER", row={"Numero": 2, "NUMECHO": number, "DATEXAM": date, **EXAM})
    practice.insert(table="GYNECO", row={"Numero": 2, "NUMECHO": 1, "DATEXAM": "04/05/2001"})
    practice.start()
    practice.click("Form1.Command1")
    assert practice.shown() == {"Form4"}
    return practice


def name(port):
    return port.text("Form4.NomLbl") + " " + port.text("Form4.PrenomLbl")


def test_a_surname_is_searched_as_it_is_typed(desk):
    desk.type("Form4.Text1", text="d")
    assert name(desk) == "D'ALMEIDA Inès"
    desk.type("Form4.Text1", text="up")
    assert desk.text("Form4.Text1") == "DUP"
    assert name(desk) == "DUPONT Anne"
    desk.type("Form4.Text1", text="zz")
    assert desk.said() == ["Ce Nom n'existe pas", "Ce Nom n'existe pas"]
    assert name(desk) == "DUPONT Anne"


def test_the_apostrophe_is_swallowed_by_both_search_boxes(desk):
    desk.type("Form4.Text1", text="d'alm")
    assert desk.text("Form4.Text1") == "DALM"
    assert name(desk) == "D'ALMEIDA Inès"
    desk.set("Form4.Text1", text="")
    desk.type("Form4.Text2", text="'")
    assert desk.text("Form4.Text2") == ""


def test_a_pasted_apostrophe_is_reported_and_the_program_goes_on(desk):
    desk.set("Form4.Text1", text="D'A")
    assert [box["kind"] for box in desk.boxes] == ["error"]
    assert desk.boxes[0]["title"] == "VERANOX"
    assert desk.boxes[0]["text"].startswith("Erreur d'exécution '3075' :\n\n")
    desk.set("Form4.Text1", text="ALB")
    assert name(desk) == "ALBERT Zoé"


def test_the_sheet_shows_the_composed_lines(desk):
    desk.set("Form4.Text1", text="DUP")
    desk.set("Form4.Text2", text="M")
    assert name(desk) == "DUPONT Marie"
    lines = desk.items("Form4.LstCiv")
    assert lines[:5] == [
        "Née          :  ",
        "Né(e) le     : 31/12/1975",
        "Age          : 27 ans",
        "Sexe         : Féminin",
        "Adress 1     :  ",
    ]
    assert "Ville        : Valmont" in lines


def test_browsing_walks_and_stops_at_the_ends(desk):
    assert not desk.get("Form4.Command4")["enabled"]
    with pytest.raises(PortError):
        desk.click("Form4.Command4")
    desk.click("Form4.Command1")
    assert name(desk) == "ALBERT Zoé"
    desk.click("Form4.Command3")
    assert name(desk) == "ALBERT Zoé"
    desk.click("Form4.Command4")
    assert name(desk) == "D'ALMEIDA Inès"
    desk.click("Form4.Command2")
    assert name(desk) == "DUPONT Marie"
    desk.click("Form4.Command4")
    assert name(desk) == "DUPONT Marie"


def test_the_arrow_keys_walk_in_the_search_boxes(desk):
    desk.click("Form4.Command1")
    desk.key("Form4.Text1", key="Right")
    assert name(desk) == "D'ALMEIDA Inès"
    desk.key("Form4.Text2", key="Left")
    assert name(desk) == "ALBERT Zoé"


def test_the_focus_on_the_surname_empties_the_first_name(desk):
    desk.set("Form4.Text1", text="DUP")
    desk.set("Form4.Text2", text="M")
    desk.focus("Form4.Text1")
    assert desk.text("Form4.Text2") == ""
    assert name(desk) == "DUPONT Anne"
    assert desk.focused()["control"] == "Form4.Text1"


def open_marie(desk):
    desk.set("Form4.Text1", text="DUP")
    desk.set("Form4.Text2", text="M")


def test_the_lists_of_past_exams_fill(desk):
    open_marie(desk)
    desk.click("Form4.HlbCptDate")
    desk.click("Form4.Command6")
    assert desk.items("Form4.List1") == ["10/01/2002", "12/03/2002", "12/03/2002"]
    assert desk.items("Form4.List2") == ["04/05/2001"]
    desk.click("Form4.Command4")
    assert desk.boxes == []
    assert name(desk) == "DUPONT Marie"
    desk.click("Form4.NomLbl")
    assert desk.items("Form4.List1") == []


def test_a_dossier_must_be_open_for_an_exam(desk):
    for button in ["HlbCptDate", "HlbCptDer", "Command5", "Command6", "Cmd1Ter", "Cmd2Ter", "CmdGyneco"]:
        desk.click("Form4." + button)
        assert desk.said() == ["Veuillez ouvrir un dossier patient au préalable."]


def test_an_empty_list_gives_no_message(desk):
    desk.set("Form4.Text1", text="ALB")
    desk.click("Form4.HlbCptDate")
    assert desk.boxes == []
    desk.click("Form4.HlbCptDer")
    assert desk.said() == ["Pas d'échographie  dans ce dossier"]


def test_the_window_closes_back_to_the_menu(desk):
    desk.close(form="Form4")
    assert desk.shown() == {"Form1"}
    desk.click("Form1.Command1")
    desk.click("Form4.CmdQuitter")
    assert desk.shown() == {"Form1"}
    desk.click("Form1.Command1")
    desk.click("Form4.Menu")
    assert desk.shown() == {"Form1"}
