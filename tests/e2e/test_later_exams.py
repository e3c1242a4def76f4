"""An exam of the second or third trimester: written, viewed among the dossier's others, corrected, deleted."""

import pytest
from port import PortError

PHRASES = [
    (1, "Docteur VAUCLAIR", "A"),
    (14, "ORIVANNE 3500", "A"),
    (15, "04/09/2000", "A"),
    (17, "Morphologie sans anomalie.", "A"),
    (18, "Croissance harmonieuse.", "C"),
    (25, "Céphalique.", "C"),
    (26, "Boîte crânienne.", "A"),
    (26, "Ligne médiane.", "A"),
    (27, "Situs normal.", "A"),
    (28, "Estomac à gauche.", "A"),
    (29, "Rachis aligné.", "A"),
    (55, "Pas d'incisure.", "C"),
]

# The measures of one fetus behind its presentation and its movements, in the order of the sheet: heart, BIP, head,
# orbits, cerebellum, transverse, abdomen, femur, foot, tibia, humerus, nose.
MEASURES = ["150", "53", "197", "23", "22", "53", "174", "38", "38", "33", "35", "7"]
VIEW = "TxtAC TxtBip TxtCc TxtDio TxtCerv TxtDat TxtCa TxtFem TxtPied TxtTibia TxtHum TxtNez".split()
FIELDS = "AC Bip Cc DIO CERV Dat Ca Fem Pied TIBIA Hum OSNEZ".split()


@pytest.fixture
def dossier(practice):
    """The dossier window on DUPONT Marie, number 2."""
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie"})
    practice.responses(PHRASES)
    practice.open_dossier()
    return practice


def field(index, form="Form8"):
    return f"{form}.Txt2T({index})"


def exams(port):
    return [row for row in port.rows(table="1TER")["rows"] if row["Numero"] == 2]


def save(port):
    port.answer(**{"with": ["yes"]})
    port.click("Form8.CmdEnregis")


def write_exam(port, opener="Form4.Cmd2Ter", **fields):
    port.click(opener)
    for index, text in fields.items():
        port.set(field(index[1:]), text=text)
    save(port)
    assert port.said()[-1] == "Enregistré"


def insert_exam(port, number, **fields):
    port.insert(table="1TER", row={"Numero": 2, "NUMECHO": number, "DATEXAM": "05/04/2002", "TYPECHO": "0", **fields})


def correct(port, answer="yes"):
    port.answer(**{"with": [answer]})
    port.click("Form11.CmdModifs")


def test_a_singleton_at_22_weeks_with_all_measures(dossier):
    port = dossier
    port.click("Form4.Cmd2Ter")
    assert port.focused()["control"] == field(1)
    assert port.text("Form8.TxtNumEcho") == "1"
    assert port.text("Form8.txtDatexam") == "05/04/2002"
    assert port.text("Form8.LblMachine") == "ORIVANNE 3500"
    assert port.items("Form8.List1") == ["Docteur VAUCLAIR "]
    port.dblclick("Form8.List1", row=0)
    # 140 days before the exam: 20 weeks, 22 of amenorrhoea.
    port.type(field(4), text="16/11/2001")
    assert port.text("Form8.LblAgeGesta") == "22"
    port.type("Form8.TxtPds", text="65")
    port.type("Form8.TxtTaille", text="168")
    assert port.text(field(0)) == "23"
    port.focus(field(11))
    port.dblclick("Form8.List1", row=0)
    assert port.text(field(11)) == "Pas d'incisure."
    assert port.focused()["control"] == field(12)
    port.focus(field(13))
    port.dblclick("Form8.List1", row=0)
    assert port.focused()["control"] == field(14)
    for index, measure in enumerate(MEASURES, start=15):
        port.focus(field(index))
        port.dblclick("Form8.List2", line=measure)
    port.type(field(28), text="0,70")
    port.type(field(29), text="0,81")
    port.focus(field(27))
    port.dblclick("Form8.List1", line="Morphologie sans anomalie. ")
    port.focus(field(32))
    port.dblclick("Form8.List1", row=0)
    assert port.focused()["control"] == field(1)
    port.click("Form8.CmdEnregis")
    assert (port.boxes[0]["kind"], port.boxes[0]["title"]) == ("question", "Attention")
    assert exams(port) == []
    save(port)
    assert port.said() == ["Voulez vous vraiment enregistrer ce compte rendu ?", "Enregistré"]
    # The writing window stays on screen behind the exam.
    assert port.shown() == {"Form4", "Form8", "Form10"}
    assert port.text("Form10.Label1") == "Echographie Obstétricale"
    assert port.text("Form10.LblAgeGesta") == "22 Sem. A."
    assert [port.text(f"Form10.{name}(0)") for name in VIEW] == MEASURES
    assert port.text("Form10.Txt1T(4)") == "Morphologie sans anomalie. "
    (row,) = exams(port)
    assert [row[name] for name in FIELDS] == MEASURES
    assert (row["NBRE"], row["TYPECHO"], row["NUMECHO"]) == ("1", "0", 1)
    assert (row["AGESTA"], row["BMI"], row["NUQUE"], row["Bip2"]) == ("22", "23", "Céphalique.", "")


def test_twins_have_their_panels(dossier):
    port = dossier
    port.click("Form4.Cmd2Ter")
    assert not port.get("Form8.Frame5")["onscreen"]
    port.click("Form8.Option2")
    assert port.text("Form8.TxtNbrE") == "2"
    assert port.get("Form8.CmdJ2")["onscreen"]
    assert not port.get("Form8.CmdJ3")["onscreen"]
    # Both frames are visible; the second one lies over the first.
    assert port.get("Form8.FrameJ1(0)")["visible"]
    assert not port.get("Form8.FrameJ1(0)")["onscreen"]
    assert not port.get(field(16))["onscreen"]
    with pytest.raises(PortError):
        port.type(field(16), text="5")
    port.type(field(36), text="51")
    port.click("Form8.CmdJ1")
    assert port.get("Form8.Frame5(3)")["back"] == "#c0ffff"
    port.type(field(16), text="54")
    port.set("Form8.TxtNumEcho", text="1")
    save(port)
    assert exams(port)[0]["NBRE"] == "2"
    assert port.get("Form10.CmdJ2")["onscreen"]
    assert not port.get("Form10.CmdJ3")["onscreen"]
    port.click("Form10.CmdJ2")
    assert port.text("Form10.TxtBip(1)") == "51"
    assert port.get("Form10.TxtBip(1)")["onscreen"]
    assert not port.get("Form10.TxtBip(0)")["onscreen"]
    assert not port.get("Form10.CmdPrem")["onscreen"]
    port.click("Form10.CmdJ1")
    assert port.get("Form10.CmdPrem")["onscreen"]
    # The correction offers the third button to twins too.
    port.click("Form10.CmdModifs")
    assert port.get("Form11.CmdJ3")["onscreen"]


def test_triplets_show_the_third_on_top_and_a_typed_number_is_overruled(dossier):
    port = dossier
    port.click("Form4.Cmd2Ter")
    port.type("Form8.TxtNbrE", text="3")
    assert port.get(field(53))["onscreen"]
    assert not port.get(field(36))["onscreen"]
    port.type("Form8.TxtNbrE", text="4")
    assert port.said() == ["Désolé le logiciel ne traite pas plus de 3 foetus"]
    assert port.text("Form8.TxtNbrE") == ""
    port.type("Form8.TxtNbrE", text="2")
    assert port.get("Form8.Frame5")["onscreen"]
    save(port)
    assert exams(port)[0]["NBRE"] == "1"


def test_zones_go_into_the_fetus_in_view(dossier):
    port = dossier
    port.click("Form4.Cmd2Ter")
    with pytest.raises(PortError):
        port.click("Form8.CmdZoneA")
    port.click("Form8.Bourgeois")
    port.focus(field(27))
    assert [line.strip() for line in port.items("Form8.List1")] == [
        text for rubric, text, _ in PHRASES if 26 <= rubric <= 29
    ]
    port.click("Form8.CmdZoneA")
    assert port.text(field(27)) == " Boîte crânienne. Ligne médiane."
    assert port.focused()["control"] == field(27)
    port.click("Form8.Option2")
    port.click("Form8.CmdJ2")
    port.click("Form8.CmdZoneB")
    port.click("Form8.CmdZoneD")
    assert port.text(field(47)) == " Situs normal.\r\n Rachis aligné."
    assert port.text(field(27)) == " Boîte crânienne. Ligne médiane."
    # The choice of the list outlives the window.
    port.click("Form8.CmdQuitter")
    port.click("Form4.Cmd2Ter")
    assert port.get("Form8.Bourgeois")["checked"]
    assert port.get("Form8.CmdZoneC")["onscreen"]
    port.click("Form8.Perso")
    assert not port.get("Form8.CmdZoneC")["onscreen"]


@pytest.mark.parametrize(
    ("start", "age", "rounded"),
    [
        ("05/11/2001", "23,4", "23"),
        # A tie goes to the even week: 24.
        ("04/11/2001", "23,5", "24"),
        ("03/11/2001", "23,6", "24"),
    ],
)
def test_a_correction_rounds_the_age(dossier, start, age, rounded):
    port = dossier
    write_exam(port, f4=start)
    assert exams(port)[0]["AGESTA"] == age
    port.click("Form10.CmdModifs")
    assert port.text("Form11.txtAgeGesta") == rounded
    with pytest.raises(PortError):
        port.click("Form10.CmdDer")
    port.set(field(32, "Form11"), text="revu")
    correct(port)
    assert port.said() == [
        "Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?",
        "Compte rendu modifié",
    ]
    assert (exams(port)[0]["AGESTA"], exams(port)[0]["CONCLU1"]) == (rounded, "revu")
    assert port.text("Form10.LblAgeGesta") == rounded
    assert port.text("Form10.Sem_Entier") == age
    port.click("Form10.CmdDer")
    assert port.text("Form10.LblAgeGesta") == rounded + " Sem. A."


def test_an_exam_without_an_ultrasound_start_loses_its_age(dossier):
    port = dossier
    write_exam(port, f2="01/11/2001")
    # 14 days later the theoretical start, 141 days before the exam.
    assert exams(port)[0]["AGESTA"] == "22,1"
    port.click("Form10.Modif")
    assert port.text("Form11.txtAgeGesta") == ""
    correct(port)
    assert exams(port)[0]["AGESTA"] == ""


def test_a_correction_answered_no_is_lost(dossier):
    port = dossier
    write_exam(port, f4="05/11/2001", f32="avant")
    port.click("Form10.CmdModifs")
    port.set(field(32, "Form11"), text="après")
    correct(port, "no")
    assert port.shown() == {"Form4", "Form8", "Form10"}
    assert (exams(port)[0]["CONCLU1"], exams(port)[0]["AGESTA"]) == ("avant", "23,4")
    assert port.text("Form10.TxtConclu1") == "avant"


def test_an_exam_of_an_unreadable_date_can_be_corrected(dossier):
    port = dossier
    insert_exam(port, 1, DGUS="05/11/2001", DATEXAM="hier", AGESTA="23,4")
    port.click("Form4.HlbCptDer")
    port.click("Form10.CmdModifs")
    assert [box["kind"] for box in port.boxes] == ["error"]
    assert port.text("Form11.txtAgeGesta") == ""
    port.set("Form11.txtDatexam", text="05/04/2002")
    port.set(field(32, "Form11"), text="fin")
    assert port.text("Form11.txtAgeGesta") == "23"
    correct(port)
    assert (exams(port)[0]["DATEXAM"], exams(port)[0]["AGESTA"]) == ("05/04/2002", "23")


def test_stepping_crosses_between_the_families(dossier):
    port = dossier
    for number, kind in enumerate(["1", "2", "1", "3"], start=1):
        insert_exam(port, number, TYPECHO=kind, NBRE="1", CONCLU1=f"examen {number}")
    port.click("Form4.HlbCptDer")
    assert port.shown() == {"Form4", "Form10"}
    assert port.text("Form10.Label1") == "Echographie du 3ème Trimestre"
    port.click("Form10.CmdRec")
    assert port.shown() == {"Form4", "Form6"}
    assert port.text("Form6.TxtConclu1") == "examen 3"
    port.click("Form6.CmdRec")
    assert port.shown() == {"Form4", "Form10"}
    assert port.text("Form10.TxtConclu1") == "examen 2"
    port.click("Form10.CmdPrem")
    assert port.text("Form6.TxtConclu1") == "examen 1"
    port.click("Form6.CmdRec")
    assert port.text("Form6.TxtConclu1") == "examen 1"
    port.click("Form6.CmdDer")
    port.click("Form10.CmdAv")
    assert port.text("Form10.TxtConclu1") == "examen 4"
    assert port.said() == []
    # A new exam of either family counts on in the one sequence, and its leaving takes the stepping away.
    port.click("Form10.Hlb1T")
    assert port.text("Form5.TxtNumEcho") == "5"
    port.click("Form5.CmdQuitter")
    assert not port.get("Form10.CmdRec")["onscreen"]
    port.click("Form10.CmdPrem")
    assert port.get("Form6.CmdAv")["onscreen"]
    port.click("Form6.Hlb2T")
    assert port.text("Form8.TxtNumEcho") == "5"


def test_the_view_can_be_read_but_for_three_boxes_not_written(dossier):
    port = dossier
    insert_exam(port, 1, NBRE="1", AC="140", Pied="40", MORPHO3="trois")
    port.click("Form4.HlbCptDer")
    assert port.text("Form10.Txt1T(1)") == "trois"
    port.type("Form10.TxtAC(0)", text="9")
    with pytest.raises(PortError):
        port.set("Form10.TxtAC(0)", text="9")
    port.key("Form10.TxtAC(0)", key="Delete")
    assert port.text("Form10.TxtAC(0)") == "140"
    port.type("Form10.TxtPied(0)", text="9")
    assert port.text("Form10.TxtPied(0)") == "409"
    port.set("Form10.TxtPres(0)", text="Siège")
    port.set("Form10.TxtNbrE", text="2")
    port.click("Form10.CmdDer")
    assert port.text("Form10.TxtPied(0)") == "40"
    assert port.text("Form10.TxtPres(0)") == ""
    assert port.text("Form10.TxtNbrE") == "1"


def test_a_deletion_leads_back_to_the_patients(dossier):
    port = dossier
    insert_exam(port, 1, NBRE="1")
    insert_exam(port, 2, NBRE="1")
    port.click("Form4.HlbCptDer")
    port.answer(**{"with": ["yes", "yes"]})
    port.click("Form10.CmdSupprime")
    assert port.said() == [
        "Voulez vous vraiment SUPPRIMER cette Echographie ?",
        "ATTENTION cette Echographie va être supprimée. CONTINUER ?",
    ]
    assert port.shown() == {"Form4"}
    assert [row["NUMECHO"] for row in exams(port)] == [1]


@pytest.mark.parametrize("leave", ["CmdQuitter", "fermer", "frame"])
def test_each_exit_leads_to_a_fresh_dossier_window(dossier, leave):
    port = dossier
    write_exam(port)
    settings = port.folder / "Settings"
    assert settings.exists()
    settings.unlink()
    port.close(form="Form10") if leave == "frame" else port.click("Form10." + leave)
    assert port.shown() == {"Form4"}
    assert port.text("Form4.NomLbl") == ""
    loaded = {form["name"] for form in port.forms()["forms"]}
    assert not loaded & {"Form6", "Form8", "Form10", "Form12", "Form13"}
    # The menu entry alone keeps neither the report style nor the morphology list.
    assert settings.exists() == (leave != "fermer")


def test_an_exam_is_written_by_keyboard_alone(dossier):
    port = dossier
    port.click("Form4.Cmd2Ter")
    port.key(field(1), key="Alt+L")
    port.key("Form8.List1", key="Down")
    port.key("Form8.List1", key="Return")
    assert port.text(field(1)) == "Docteur VAUCLAIR "
    port.key(field(5), key="Return")
    assert port.focused()["control"] == field(6)
    port.key(field(12), key="Return")
    assert port.focused()["control"] == "Form8.Option1"
    # Down the columns of the grid, as the sheet is read.
    for index in range(13, 27):
        port.key(field(index), key="Return")
        if index < 26:
            assert port.focused()["control"] == field(index + 1)
