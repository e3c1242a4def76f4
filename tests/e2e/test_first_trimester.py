"""A first-trimester exam: written key by key, viewed, corrected, deleted."""

import pytest
from port import PortError

PHRASES = [
    (1, "Docteur VAUCLAIR", "A"),
    (2, "Voie abdominale.", "C"),
    (3, "Bonnes.", "C"),
    (7, "Datation.", "B"),
    (14, "ORIVANNE 3500", "A"),
    (15, "04/09/2000", "A"),
    (16, "Grossesse évolutive", "A"),
    (16, "unique.", "A"),
]


@pytest.fixture
def dossier(practice):
    """The dossier window on DUPONT Marie, number 2."""
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie"})
    practice.insert(table="FICHEPATIENT", row={"Numint": 3, "Nom": "MARTIN", "Prenom": "Anne"})
    practice.responses(PHRASES)
    practice.open_dossier()
    return practice


def field(index):
    return f"Form5.Txt1Ter({index})"


def exams(port, patient=2):
    return [row for row in port.rows(table="1TER")["rows"] if row["Numero"] == patient]


def save(port):
    port.answer(**{"with": ["yes"]})
    port.click("Form5.CmdEnregis")


def write_exam(port, embryos="1", opener="Form4.Cmd1Ter", **fields):
    port.click(opener)
    for index, text in fields.items():
        port.set(field(index[1:]), text=text)
    port.type(field(15), text=embryos)
    save(port)


def test_the_road_of_one_exam(dossier):
    port = dossier
    port.click("Form4.Cmd1Ter")
    assert port.focused()["control"] == field(1)
    assert port.text("Form5.TxtNumEcho") == "1"
    assert port.text("Form5.LblMachine") == "ORIVANNE 3500"
    assert port.items("Form5.List1") == ["Docteur VAUCLAIR "]
    port.dblclick("Form5.List1", row=0)
    assert port.text(field(1)) == "Docteur VAUCLAIR "
    assert port.items("Form5.List1") == ["--- OK"]
    port.focus(field(2))
    assert port.items("Form5.List1") == []
    assert port.get("Form5.Calendar1")["onscreen"]
    port.type(field(2), text="01/03/2002")
    assert port.text(field(3)) == "15/03/2002"
    assert port.text("Form5.LblAgeGesta") == "5"
    # A phrase that closes its field goes on to the next one.
    port.focus(field(5))
    port.dblclick("Form5.List1", row=0)
    assert port.text(field(5)) == "Voie abdominale."
    assert port.focused()["control"] == field(6)
    assert port.items("Form5.List1") == ["Bonnes.\t"]
    port.type(field(18), text="6a0")
    assert port.text(field(18)) == "60"
    port.key(field(18), key="Alt+D")
    # 05/04/2002 less 87 days plus 14.
    assert port.text(field(4)) == "22/01/2002"
    assert port.text("Form5.LblAgeGesta") == "12,3"
    port.focus(field(26))
    port.dblclick("Form5.List1", row=0)
    port.dblclick("Form5.List1", row=1)
    port.click("Form5.CmdEnregis")
    assert port.said() == ["Veuillez saisir le nombre d'embryons avant d'enregistrer."]
    port.type(field(15), text="1")
    port.click("Form5.CmdEnregis")
    assert port.boxes[0]["kind"] == "question"
    assert port.boxes[0]["title"] == "Attention"
    assert exams(port) == []
    save(port)
    assert port.said()[-1] == "Enregistré"
    assert port.shown() == {"Form4", "Form6"}
    assert port.text("Form6.LblAgeGesta") == "12,3 Sem. A."
    assert port.text("Form6.TxtConclu1") == "Grossesse évolutive unique. "
    (row,) = exams(port)
    assert (row["TYPECHO"], row["NUMECHO"], row["LCC"], row["LCC2"]) == ("1", 1, "60", "")


def test_a_day_of_the_calendar_goes_into_the_field_and_on(dossier):
    dossier.click("Form4.Cmd1Ter")
    dossier.focus(field(4))
    dossier.pick("Form5.Calendar1", date="04/03/2002")
    assert dossier.text(field(4)) == "04/03/2002"
    assert dossier.focused()["control"] == field(5)


def test_twins_and_triplets_have_their_panels(dossier):
    port = dossier
    port.click("Form4.Cmd1Ter")
    assert not port.get("Form5.Frame5")["onscreen"]
    port.type(field(15), text="2")
    assert port.get("Form5.CmdJ2")["onscreen"]
    assert not port.get("Form5.CmdJ3")["onscreen"]
    assert not port.get(field(29))["onscreen"]
    port.click("Form5.CmdJ2")
    assert port.get("Form5.Frame5(3)")["back"] == "#ffffff"
    assert port.get(field(29))["onscreen"]
    assert not port.get(field(18))["onscreen"]
    port.type(field(29), text="6b")
    assert port.text(field(29)) == "6b"
    port.type(field(15), text="3")
    port.click("Form5.CmdJ3")
    port.type(field(37), text="58")
    save(port)
    port.click("Form6.CmdJ3")
    assert port.text("Form6.LblLCC(2)") == "58"
    assert not port.get("Form6.CmdRec")["onscreen"]
    port.click("Form6.CmdJ1")
    assert port.get("Form6.CmdRec")["onscreen"]
    port.click("Form6.CmdModifs")
    assert port.get("Form7.CmdJ3")["onscreen"]


def test_four_embryos_are_refused(dossier):
    dossier.click("Form4.Cmd1Ter")
    dossier.type(field(15), text="4")
    assert dossier.said() == ["Désolé le logiciel ne traite pas plus de 3 foetus"] * 2
    assert dossier.text(field(15)) == ""


def test_a_correction_takes_the_screen_for_itself(dossier):
    port = dossier
    write_exam(port, f2="01/03/2002", f26="avant")
    port.click("Form6.CmdModifs")
    with pytest.raises(PortError):
        port.click("Form6.CmdDer")
    port.set("Form7.Txt1Ter(26)", text="après")
    port.set("Form7.Txt1Ter(2)", text="08/03/2002")
    assert port.text("Form7.LblAgeGesta") == "5"
    port.set("Form7.Txt1Ter(15)", text="")
    port.answer(**{"with": ["yes"]})
    port.click("Form7.CmdModifs")
    assert port.said() == [
        "Voulez vous vraiment enregistrer les modifications apportées à ce compte rendu ?",
        "Compte rendu modifié",
    ]
    assert port.shown() == {"Form4", "Form6"}
    assert port.text("Form6.TxtConclu1") == "après"
    assert port.text("Form6.LblAgeGesta") == ""
    (row,) = exams(port)
    assert (row["NBRE"], row["AGESTA"], row["DDR"], row["DG"]) == ("0", "5", "08/03/2002", "15/03/2002")
    port.click("Form6.CmdDer")
    assert port.text("Form6.LblAgeGesta") == "5 Sem. A."


def test_a_correction_answered_no_is_lost(dossier):
    port = dossier
    write_exam(port, f26="avant")
    port.click("Form6.CmdModifs")
    port.set("Form7.Txt1Ter(26)", text="après")
    port.click("Form7.CmdModifs")
    assert "Form7" not in port.shown()
    assert exams(port)[0]["CONCLU1"] == "avant"


def test_numbers_leave_gaps_and_come_back_at_the_end(dossier):
    port = dossier
    write_exam(port)
    for _ in range(2):
        write_exam(port, opener="Form6.Hlb1T")
    port.click("Form6.CmdRec")
    port.answer(**{"with": ["yes", "yes"]})
    port.click("Form6.CmdSupprime")
    assert port.said() == [
        "Voulez vous vraiment SUPPRIMER cette Echographie ?",
        "ATTENTION cette Echographie va être supprimée. CONTINUER ?",
    ]
    assert port.shown() == {"Form4"}
    assert port.text("Form4.NomLbl") == ""
    assert [row["NUMECHO"] for row in exams(port)] == [1, 3]
    port.type("Form4.Text1", text="dup")
    port.click("Form4.Cmd1Ter")
    assert port.text("Form5.TxtNumEcho") == "4"
    port.click("Form5.CmdQuitter")
    port.click("Form4.HlbCptDer")
    port.answer(**{"with": ["yes", "yes"]})
    port.click("Form6.CmdSupprime")
    port.type("Form4.Text1", text="dup")
    port.click("Form4.Cmd1Ter")
    assert port.text("Form5.TxtNumEcho") == "2"


def test_stepping_stops_at_the_ends(dossier):
    port = dossier
    write_exam(port, f26="un")
    write_exam(port, opener="Form6.Hlb1T", f26="deux")
    port.click("Form6.CmdAv")
    assert port.text("Form6.TxtConclu1") == "deux"
    port.click("Form6.CmdRec")
    port.click("Form6.CmdRec")
    assert port.text("Form6.TxtConclu1") == "un"
    port.click("Form6.Hlb1T")
    port.click("Form5.CmdQuitter")
    assert not port.get("Form6.CmdRec")["visible"]
    port.click("Form6.CmdDer")
    assert port.get("Form6.CmdRec")["visible"]
    assert port.text("Form6.TxtConclu1") == "deux"


@pytest.mark.parametrize("leave", ["CmdQuitter", "Quitte", "frame"])
def test_each_exit_leads_to_a_fresh_dossier_window(dossier, leave):
    port = dossier
    write_exam(port)
    port.close(form="Form6") if leave == "frame" else port.click("Form6." + leave)
    assert port.shown() == {"Form4"}
    assert port.text("Form4.NomLbl") == ""
    assert [form["name"] for form in port.forms()["forms"] if form["name"] in ("Form5", "Form6")] == []
    # The menu entry alone keeps no report style.
    assert (port.folder / "Settings").exists() == (leave != "Quitte")


def test_an_exam_is_written_by_keyboard_alone(dossier):
    port = dossier
    port.click("Form4.Cmd1Ter")
    port.key(field(1), key="Alt+L")
    port.key("Form5.List1", key="Down")
    port.key("Form5.List1", key="Return")
    assert port.text(field(1)) == "Docteur VAUCLAIR "
    port.key(field(5), key="Return")
    assert port.focused()["control"] == field(6)
    port.type(field(7), text="un")
    port.key(field(7), key="Ctrl+Return")
    assert port.text(field(7)) == "un"
    assert port.focused()["control"] == field(8)


def test_a_correction_differs_from_writing_row_by_row(dossier):
    port = dossier
    port.click("Form4.Cmd1Ter")
    port.set("Form5.TxtCa1", text="55")
    port.type(field(15), text="3")
    save(port)
    port.click("Form6.CmdModifs")
    assert port.text("Form7.CmdModifs") == "Enregistrer Modifs"
    assert port.text("Form7.CmdQuitter") == "Quitter sans Enregistrer"
    for absent in ["TxtCa1", "TxtCa2", "TxtCa3", "Command2", "CmdPhotos", "TxtNumFoet"]:
        with pytest.raises(PortError, match="no control"):
            port.get("Form7." + absent)
    for index in [11, 15, 18]:
        port.set(f"Form7.Txt1Ter({index})", text="")
        port.type(f"Form7.Txt1Ter({index})", text="1x")
        assert port.text(f"Form7.Txt1Ter({index})") == "1x"
    port.set("Form7.Txt1Ter(15)", text="4")
    assert port.said() == []
    before = port.get("Form7.Frame5").get("back")
    port.click("Form7.CmdJ2")
    assert port.get("Form7.Frame5").get("back") == before
    assert port.get("Form7.Txt1Ter(29)")["onscreen"]
    for index, date in [(2, "01/03/2002"), (3, "02/03/2002"), (4, "03/03/2002")]:
        port.set(f"Form7.Txt1Ter({index})", text=date)
    assert [port.text(f"Form7.Txt1Ter({index})") for index in [2, 3, 4]] == ["01/03/2002", "02/03/2002", "03/03/2002"]
    assert port.text("Form7.LblAgeGesta") == ""
    port.answer(**{"with": ["yes"]})
    port.key("Form7.Txt1Ter(4)", key="Alt+E")
    (row,) = exams(port)
    assert (row["NBRE"], row["Ca"], row["AGESTA"], row["DG"]) == ("4", "55", "", "02/03/2002")


def test_a_store_error_at_saving_keeps_what_was_typed(dossier):
    port = dossier
    port.click("Form4.Cmd1Ter")
    port.set(field(26), text="Grossesse évolutive.")
    port.type(field(15), text="1")
    base = port.folder / "ECHO.MDB"
    base.rename(port.folder / "ailleurs.mdb")
    save(port)
    assert [box["kind"] for box in port.boxes] == ["question", "error"]
    assert "3024" in port.said()[-1]
    assert "Form5" in port.shown()
    assert port.text(field(26)) == "Grossesse évolutive."
    (port.folder / "ailleurs.mdb").rename(base)
    save(port)
    assert port.said()[-1] == "Enregistré"
    assert exams(port)[0]["CONCLU1"] == "Grossesse évolutive."


def test_a_corrected_exam_of_one_embryo_shows_it(dossier):
    port = dossier
    write_exam(port, embryos="3", f18="60")
    port.click("Form6.CmdJ3")
    port.click("Form6.CmdModifs")
    port.set("Form7.Txt1Ter(15)", text="1")
    port.answer(**{"with": ["yes"]})
    port.click("Form7.CmdModifs")
    assert not port.get("Form6.Frame5")["onscreen"]
    assert port.get("Form6.LblLCC(0)")["onscreen"]
    assert port.get("Form6.CmdRec")["onscreen"]
