"""A gynaecological exam of two pages: written key by key, viewed, reported, corrected, deleted."""

import pytest
from port import PortError

PHRASES = [
    (1, "Docteur VAUCLAIR", "A"),
    (2, "Voie vaginale.", "C"),
    (14, "ORIVANNE 3500", "A"),
    (15, "04/09/2000", "A"),
    (19, "CABINET DES TILLEULS", "A"),
    (32, "Antéversé", "C"),
    (41, "Examen normal.", "A"),
]

FIRST_QUESTION = "Voulez vous vraiment SUPPRIMER cette Echographie ?"
SECOND_QUESTION = "ATTENTION cette Echographie a être supprimée. CONTINUER ?"


@pytest.fixture
def dossier(practice):
    """The dossier window on DUPONT Marie, number 2."""
    practice.insert(
        table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie", "CIVILITEE": "Madame"}
    )
    practice.responses(PHRASES)
    practice.open_dossier()
    return practice


@pytest.fixture
def viewing(dossier):
    """The viewing window on the last of three exams."""
    for number, date, conclusion in [(1, "10/01/2002", "Une"), (2, "11/02/2002", "Deux"), (3, "12/03/2002", "Trois")]:
        dossier.insert(
            table="GYNECO",
            row={"Numero": 2, "NUMECHO": number, "DATEXAM": date, "CONCLU": conclusion, "JSTIM": str(number)},
        )
    dossier.click("Form4.Command5")
    return dossier


def field(index, form="Form16"):
    return f"{form}.TxtGyneco({index})"


def exams(port):
    return [row for row in port.rows(table="GYNECO")["rows"] if row["Numero"] == 2]


def save(port):
    port.answer(**{"with": ["yes"]})
    port.click("Form16.CmdEnregis")


def test_a_pelvic_exam_from_its_first_field_to_the_record(dossier):
    port = dossier
    port.click("Form4.CmdGyneco")
    assert port.focused()["control"] == field(1)
    assert port.text("Form16.TxtNumEcho") == "1"
    assert port.text("Form16.TxtDate") == "05/04/2002"
    assert port.text("Form16.LblMachine") == "ORIVANNE 3500"
    assert port.text("Form16.LblDateCirc") == "04/09/2000"
    port.dblclick("Form16.List1", row=0)
    assert port.text(field(1)) == "Docteur VAUCLAIR "
    port.focus(field(2))
    assert port.items("Form16.List1") == []
    port.pick("Form16.Calendar1", date="25/03/2002")
    assert port.text(field(2)) == "25/03/2002"
    assert port.focused()["control"] == field(3)
    port.dblclick("Form16.List1", row=0)
    assert port.text(field(3)) == "Voie vaginale."
    assert port.focused()["control"] == field(4)
    port.focus(field(7))
    assert port.get("Form16.List2")["text"] == "80"
    port.dblclick("Form16.List2", line="72")
    port.focus(field(26))
    port.dblclick("Form16.List1", row=0)
    assert port.items("Form16.List1") == ["--- OK"]
    save(port)
    assert port.said() == ["Voulez vous vraiment enregistrer ce compte rendu ?", "Enregistré"]
    assert port.shown() == {"Form4", "Form18"}
    assert port.text("Form18.LblNom") == "DUPONT"
    assert port.text("Form18.TxtGyneco(2)") == "72"
    (row,) = exams(port)
    assert (row["NUMECHO"], row["OPERATEUR"], row["DDR"]) == (1, "Docteur VAUCLAIR ", "25/03/2002")
    assert (row["MODEXAM"], row["LONGUEUR"], row["CONCLU"]) == ("Voie vaginale.", "72", "Examen normal. ")
    assert (row["JSTIM"], row["DIMFOLD"], row["DOP2"]) == ("", "", "")


def test_a_monitoring_exam_with_follicles_picked_one_after_the_other(dossier):
    port = dossier
    port.click("Form4.CmdGyneco")
    with pytest.raises(PortError):
        port.focus(field(30))
    port.click("Form16.Command1")
    assert port.focused()["control"] == field(27)
    assert port.text("Form16.Label1") == "Monitorage de l'ovulation"
    assert port.get("Form16.Label1")["back"] == "#c0ffff"
    assert not port.get("Form16.Frame3")["onscreen"]
    assert port.get(field(5))["onscreen"]
    port.type(field(27), text="9")
    port.focus(field(30))
    assert port.items("Form16.List2")[0] == "5" and port.items("Form16.List2")[-1] == "33"
    for size in ["17", "12", "9"]:
        port.dblclick("Form16.List2", line=size)
    assert port.text(field(30)) == "17 12 9"
    save(port)
    (row,) = exams(port)
    assert (row["JSTIM"], row["DIMFOLD"]) == ("9", "17 12 9")
    assert (row["SITUATION"], row["CONCLU"]) == ("", "")


def test_both_pages_go_into_one_record(dossier):
    port = dossier
    port.click("Form4.CmdGyneco")
    port.focus(field(6))
    port.dblclick("Form16.List1", row=0)
    assert port.focused()["control"] == field(7)
    port.click("Form16.Command1")
    port.set(field(34), text="8")
    port.click("Form16.Command2")
    assert port.focused()["control"] == field(3)
    save(port)
    (row,) = exams(port)
    assert (row["SITUATION"], row["ENDOMETRE"]) == ("Antéversé", "8")
    assert port.text("Form18.TxtGyneco(1)") == "Antéversé"
    assert not port.get("Form18.TxtEndom")["onscreen"]
    port.click("Form18.Command2")
    assert port.text("Form18.TxtEndom") == "8"
    assert port.get("Form18.TxtEndom")["onscreen"]


def test_the_field_that_no_record_keeps_is_on_screen(dossier):
    port = dossier
    port.click("Form4.CmdGyneco")
    assert port.text(field(0)) == "Voir Liste"
    port.set(field(0), text="pense-bête")
    port.click("Form16.Command1")
    assert port.get(field(0))["onscreen"]
    save(port)
    (row,) = exams(port)
    assert "pense-bête" not in row.values()
    port.click("Form18.HlbGyn")
    assert port.text(field(0)) == "pense-bête"


def test_a_no_keeps_the_writing_window(dossier):
    dossier.click("Form4.CmdGyneco")
    dossier.set(field(26), text="Pas encore")
    dossier.answer(**{"with": ["no"]})
    dossier.click("Form16.CmdEnregis")
    assert exams(dossier) == []
    assert dossier.text(field(26)) == "Pas encore"
    assert "Form16" in dossier.shown()


def test_a_correction_that_renumbers_shows_that_exam(viewing):
    port = viewing
    port.click("Form18.CmdRec")
    port.click("Form18.CmdModifs")
    assert port.focused()["control"] == field(1, "Form17")
    with pytest.raises(PortError):
        port.click("Form18.CmdPrem")
    port.set("Form17.TxtNumEcho", text="9")
    port.set(field(26, "Form17"), text="Corrigée")
    port.answer(**{"with": ["yes"]})
    port.click("Form17.CmdModifs")
    assert port.said() == [
        "Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?",
        "Compte rendu modifié",
    ]
    assert "Form17" not in port.shown()
    assert port.text("Form18.TxtNumEcho") == "9"
    assert port.text("Form18.TxtGyneco(21)") == "Corrigée"
    assert sorted(row["NUMECHO"] for row in exams(port)) == [1, 3, 9]


def test_a_correction_answered_by_no_loses_its_entries(viewing):
    viewing.click("Form18.Modifie")
    viewing.set(field(26, "Form17"), text="Perdue")
    viewing.answer(**{"with": ["no"]})
    viewing.click("Form17.CmdModifs")
    assert "Form17" not in viewing.shown()
    assert viewing.text("Form18.TxtGyneco(21)") == "Trois"
    assert [row["CONCLU"] for row in exams(viewing)] == ["Une", "Deux", "Trois"]


def test_stepping_stops_at_the_edges(viewing):
    port = viewing
    assert port.text("Form18.TxtNumEcho") == "3"
    seen = []
    for button in ["CmdAv", "CmdRec", "CmdRec", "CmdRec", "CmdAv", "CmdDer", "CmdPrem"]:
        port.click(f"Form18.{button}")
        assert port.boxes == []
        seen.append(port.text("Form18.TxtNumEcho"))
    assert seen == ["3", "2", "1", "1", "2", "3", "1"]


def test_the_page_stays_while_stepping(viewing):
    viewing.click("Form18.Command2")
    viewing.click("Form18.CmdRec")
    assert viewing.text("Form18.TxtJStim") == "2"
    assert viewing.get("Form18.TxtJStim")["onscreen"]


def test_no_field_of_the_viewing_window_takes_a_key(viewing):
    viewing.type("Form18.TxtGyneco(21)", text="x")
    viewing.type("Form18.TxtNumEcho", text="1")
    assert viewing.text("Form18.TxtGyneco(21)") == "Trois"
    assert viewing.text("Form18.TxtNumEcho") == "3"


def test_each_page_offers_its_report(viewing):
    port = viewing
    assert port.get("Form18.CmdCptGyn")["onscreen"] and not port.get("Form18.CmdCptStim")["onscreen"]
    port.click("Form18.CmdCptGyn")
    assert {"Form18", "RicheT"} <= port.shown()
    assert port.titles()["RicheT"] == "Impression Echo Pelvienne"
    assert port.report().startswith("CABINET DES TILLEULS\r\n")
    assert "ECHOGRAPHIE PELVIENNE\r\n" in port.report()
    assert "\r\nMadame Marie DUPONT\r\n\r\nDate de l'examen : 12/03/2002\r\n\r\nEXAMEN\r\n" in port.report()
    assert "MASSE PELVIENNE" not in port.report()
    assert port.report().endswith("CONCLUSION\r\n          Trois\r\n\r\n le 12/03/2002")
    port.click("RicheT.tbToolBar(Quitter)")
    port.click("Form18.Command2")
    assert port.get("Form18.CmdCptStim")["onscreen"] and not port.get("Form18.CmdCptGyn")["onscreen"]
    port.click("Form18.CmdCptStim")
    assert port.titles()["RicheT"] == "Impression Monitorage Ovulation"
    assert "MONITORAGE ECHOGRAPHIQUE DE L'OVULATION\r\n" in port.report()
    assert "\r\nJour de la stimulation : J3.\r\n\r\n\r\n          OVAIRE DROIT :\r\n" in port.report()
    assert "Indication" not in port.report()
    runs = port.format("RicheT.RichTextBox1")["runs"]
    assert (runs[0]["size"], runs[0]["bold"], runs[0]["align"]) == (14, True, 2)
    assert (runs[-1]["size"], runs[-1]["bold"], runs[-1]["align"]) == (12, False, 2)


def test_the_menu_offers_both_reports_on_either_page(viewing):
    viewing.click("Form18.Monito")
    assert "MONITORAGE" in viewing.report()
    viewing.click("Form18.EchoP")
    # The second one stands on top of the first, in one paragraph with its first line.
    assert viewing.report().count("CABINET DES TILLEULS") == 2
    assert " le 12/03/2002CABINET DES TILLEULS\r\n" in viewing.report()
    assert viewing.report().index("PELVIENNE") < viewing.report().index("MONITORAGE")


def test_the_menu_turns_the_page_and_leaves_the_button(viewing):
    viewing.click("Form18.MonOv")
    assert viewing.get("Form18.Command2")["onscreen"] and viewing.get("Form18.Command3")["onscreen"]
    viewing.click("Form18.EchoPelv")
    assert viewing.get("Form18.TxtGyneco(21)")["onscreen"]
    assert not viewing.get("Form18.Command3")["onscreen"]


def test_the_last_exam_is_deleted_after_two_questions(viewing):
    port = viewing
    port.answer(**{"with": ["yes", "no"]})
    port.click("Form18.CmdSupprime")
    assert port.said() == [FIRST_QUESTION, SECOND_QUESTION]
    assert {box["title"] for box in port.boxes} == {"Attention"}
    assert len(exams(port)) == 3
    port.answer(**{"with": ["yes", "yes"]})
    port.click("Form18.CmdSupprime")
    assert [row["NUMECHO"] for row in exams(port)] == [1, 2]
    assert port.shown() == {"Form4"}
    # Its number is free again.
    port.type("Form4.Text1", text="dup")
    port.click("Form4.CmdGyneco")
    assert port.text("Form16.TxtNumEcho") == "3"


def test_leaving_brings_a_fresh_dossier_window(viewing):
    viewing.click("Form18.CmdQuitter")
    assert viewing.shown() == {"Form4"}
    assert viewing.text("Form4.NomLbl") == ""
