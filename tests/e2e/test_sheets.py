"""The sheet of a patient: entered without the mouse, found again, corrected; what keeps a sheet from being stored."""

import pytest
from port import PortError

ENTRIES = {
    "TxtCivilitee": "Mademoiselle",
    "TxtNom": "l'héritier",
    "TxtPrenom": "Anaïs",
    "TxtNomjf": "NOËL",
    "TxtDatenaiss": "29/02/1976",
    "OptFem": None,
    "OptMasc": None,
    "TxtRue1": "8, rue de l'Été",
    "TxtRue2": "Bâtiment B",
    "CmbVille": "Valmont",
    "CmbCodepost": "99100",
    "TxtTelephone": "05 00 00 00 01",
    "TxtFax": "05 00 00 00 02",
    "TxtEmail": "anais@example.org",
    "TxtNumsecsoc": "2 76 02 99",
    "TxtAssure": "n° 42",
    "CmbQualite": "Assurée",
    "TxtCaisse": "Caisse 12",
    "TxtPriseencharge": "Oui",
    "TxtDatefinprisencharge": "31/12/2003",
    "TxtRanggem": "2",
    "TxtCartesante": "Vue",
    "CmbDroits": "01/2002",
    "TxtAlsacemoselle": None,
    "CmbTierspayant": "Mutuelle",
    "TxtMedtt1": "Dr Un",
    "TxtMedtt2": "Dr Deux",
    "TxtMedtt3": "Dr Trois",
    "Txtmedtt4": "Dr Quatre",
    "TxtProfession": "Boulangère",
    "TxtCatsocpro": "Artisan",
    "TxtDCD": "C1",
    "TxtPerdudevue": "Non",
    "TxtDivers1": "a",
    "TxtDivers2": "b",
    "TxtDivers3": "c",
    "TxtDivers4": "7",
}
STORED = {
    "Numint": 2,
    "Nom": "L'HéRITIER",
    "Prenom": "Anaïs",
    "NOMJF": "NOËL",
    "DATENAISS": "29/02/1976",
    "RUE1": "8, rue de l'Été",
    "RUE2": "8, rue de l'Été",
    "VILLE": "Valmont",
    "CODEPOST": "99100",
    "TELEPHONE": "05 00 00 00 01",
    "FAX": "05 00 00 00 02",
    "PROFESSION": "Boulangère",
    "CATSOCPRO": "Artisan",
    "SEXE": "F",
    "CIVILITEE": "Mademoiselle",
    "NUMSECSOC": "2 76 02 99",
    "ASSURE": "42",
    "DIVERS1": "a",
    "DIVERS2": "b",
    "DIVERS3": "c",
    "DIVERS4": "7",
    "PRISEENCHARGE": "Oui",
    "DATEFINPRISENCHARGE": "31/12/2003",
    "CARTESANTE": "Vue",
    "DCD": "C1",
    "PERDUDEVUE": "Non",
    "MEDTT1": "Dr Un",
    "MEDTT2": "Dr Deux",
    "MEDTT3": "Dr Trois",
    "MEDTT4": "Dr Quatre",
    "CAISSE": "Caisse 12",
    "Ranggem": "2",
    "QUALITE": "Assurée",
    "DROITS": "01/2002",
    "EMAIL": "anais@example.org",
    "ALSACEMOSELLE": "O",
    "TIERSPAYANT": "Mutuelle",
}
QUESTION = "Voulez vous vraiment enregistrer cette nouvelle Fiche ?"
SAVED = "Nouvelle Fiche Enregistrée"


@pytest.fixture
def desk(practice):
    practice.start()
    practice.click("Form1.Command1")
    return practice


def focused(port):
    return port.focused()["control"].split(".")[1]


def patients(port):
    return port.rows(table="FICHEPATIENT")["rows"]


def save(port, form, answer="yes"):
    port.answer(**{"with": [answer]})
    port.click(form + ".CmdEnreg")


def new_patient(port, surname, first_name=""):
    port.click("Form4.CmdCreeDossier")
    port.set("Form2.TxtNom", text=surname)
    port.set("Form2.TxtPrenom", text=first_name)
    save(port, "Form2")


def find(port, typed):
    port.set("Form4.Text1", text="")
    port.type("Form4.Text1", text=typed)
    return port.text("Form4.NomLbl") + " " + port.text("Form4.PrenomLbl")


def test_a_whole_sheet_is_entered_without_the_mouse(desk):
    desk.click("Form4.CmdCreeDossier")
    assert desk.shown() == {"Form2", "Form4"}
    assert desk.text("Form2.NumLbl") == "1"
    for control, text in ENTRIES.items():
        assert focused(desk) == control
        if text is not None:
            desk.type("Form2." + control, text=text)
        elif control == "TxtAlsacemoselle":
            desk.key("Form2." + control, key="Space")
        desk.key("Form2." + control, key="Return")
    assert focused(desk) == "CmdEnreg"
    desk.answer(**{"with": ["yes"]})
    desk.key("Form2.CmdEnreg", key="Space")
    assert desk.said() == [QUESTION, SAVED]
    assert [(box["kind"], box["title"], box["icon"]) for box in desk.boxes] == [
        ("question", "Attention", ""),
        ("message", "VERANOX", ""),
    ]
    assert desk.shown() == {"Form4"}
    assert patients(desk)[1] == STORED
    assert find(desk, "lheri") == "L'HéRITIER Anaïs"


def test_tab_walks_the_fields_in_their_order(desk):
    desk.click("Form4.CmdCreeDossier")
    walked = []
    for _ in range(len(ENTRIES) + 3):
        walked.append(focused(desk))
        desk.key("Form2." + walked[-1], key="Tab")
    assert walked == [*ENTRIES, "CmdEnreg", "CmdAnule", "CmdEfface"]


def test_the_sheet_is_found_again_and_corrected(desk):
    new_patient(desk, "D'ÉTÉ", "Zoë")
    assert find(desk, "dete") == "D'ÉTÉ Zoë"
    desk.click("Form4.CmdModifie")
    assert desk.text("Form3.TxtNom") == "D'ÉTÉ"
    desk.set("Form3.TxtDatenaiss", text="31/02/1970")
    desk.set("Form3.TxtPrenom", text="Zoé")
    desk.choose("Form3.TxtCivilitee", text="Madame")
    desk.click("Form3.OptMasc")
    save(desk, "Form3")
    assert desk.said() == [QUESTION, SAVED]
    assert desk.shown() == {"Form4"}
    assert desk.text("Form4.PrenomLbl") == "Zoé"
    assert desk.text("Form4.LblCivilite") == "Madame"
    row = patients(desk)[1]
    assert (row["Nom"], row["Prenom"], row["SEXE"], row["DATENAISS"]) == ("D'ÉTÉ", "Zoé", "M", None)


def test_a_modification_answered_by_no_shows_until_the_cursor_moves(desk):
    new_patient(desk, "DUPONT", "Anne")
    find(desk, "dup")
    desk.click("Form4.CmdModifie")
    desk.set("Form3.TxtPrenom", text="Jamais")
    save(desk, "Form3", "no")
    assert desk.said() == [QUESTION]
    assert desk.text("Form4.PrenomLbl") == "Jamais"
    desk.click("Form4.Command2")
    assert desk.text("Form4.PrenomLbl") == "Anne"
    assert patients(desk)[1]["Prenom"] == "Anne"


def test_a_sheet_answered_by_no_is_dropped(desk):
    desk.click("Form4.CmdCreeDossier")
    desk.set("Form2.TxtNom", text="DUPONT")
    save(desk, "Form2", "no")
    assert desk.said() == [QUESTION]
    assert len(patients(desk)) == 1
    assert desk.text("Form4.NomLbl") == "DOSSIER MODELE"


def test_a_sheet_needs_a_surname(desk):
    desk.click("Form4.CmdCreeDossier")
    desk.click("Form2.CmdEnreg")
    assert desk.said() == ["La saisie d'un nom de patiente est obligatoire"]
    assert "Form2" in desk.shown()


def test_the_windows_behind_take_no_input(desk):
    new_patient(desk, "DUPONT", "Anne")
    for button, sheet, leave in [("CmdCreeDossier", "Form2", "CmdAnule"), ("CmdModifie", "Form3", "CmdAnnule")]:
        find(desk, "dup")
        desk.click("Form4." + button)
        for act in [
            lambda: desk.type("Form4.Text1", text="a"),
            lambda: desk.click("Form4.Command1"),
            lambda: desk.close(form="Form4"),
        ]:
            with pytest.raises(PortError):
                act()
        assert desk.shown() == {"Form4", sheet}
        desk.click(sheet + "." + leave)
        assert desk.shown() == {"Form4"}
        desk.click("Form4.Command1")


def test_closing_a_sheet_by_its_frame_stores_nothing(desk):
    new_patient(desk, "DUPONT", "Anne")
    desk.click("Form4.CmdCreeDossier")
    desk.set("Form2.TxtNom", text="MARTIN")
    desk.close(form="Form2")
    assert desk.shown() == {"Form4"}
    find(desk, "dup")
    desk.click("Form4.CmdModifie")
    desk.set("Form3.TxtNom", text="MARTIN")
    desk.close(form="Form3")
    assert desk.shown() == {"Form4"}
    assert [row["Nom"] for row in patients(desk)] == ["DOSSIER MODELE", "DUPONT"]


def test_a_number_taken_by_another_station_keeps_the_entries(desk):
    # The cursor read the highest number before the other station added its own.
    desk.click("Form4.CmdCreeDossier")
    desk.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "AILLEURS"})
    desk.set("Form2.TxtNom", text="ICI")
    desk.set("Form2.CmbVille", text="Valmont")
    save(desk, "Form2")
    assert [box["kind"] for box in desk.boxes] == ["question", "error"]
    assert desk.boxes[1]["text"].startswith("Erreur d'exécution '3022' :\n\n")
    assert desk.shown() == {"Form2", "Form4"}
    assert desk.text("Form2.TxtNom") == "ICI"
    assert desk.text("Form2.CmbVille") == "Valmont"
    save(desk, "Form2")
    assert desk.said() == [QUESTION, SAVED]
    assert [(row["Numint"], row["Nom"]) for row in patients(desk)] == [
        (1, "DOSSIER MODELE"),
        (2, "AILLEURS"),
        (3, "ICI"),
    ]


def test_the_last_number_of_all_overflows(desk):
    desk.insert(table="FICHEPATIENT", row={"Numint": 32767, "Nom": "DERNIÈRE"})
    desk.click("Form4.CmdCreeDossier")
    desk.set("Form2.TxtNom", text="UNE DE TROP")
    desk.click("Form2.CmdEnreg")
    assert [box["kind"] for box in desk.boxes] == ["error"]
    assert desk.boxes[0]["text"].startswith("Erreur d'exécution '6' :\n\n")
    assert desk.text("Form2.TxtNom") == "UNE DE TROP"
    assert len(patients(desk)) == 2


def test_the_keys_of_the_numeric_boxes_are_filtered_on_a_new_sheet_alone(desk):
    new_patient(desk, "DUPONT")
    desk.click("Form4.CmdCreeDossier")
    desk.type("Form2.TxtDivers4", text="1a2,")
    assert desk.text("Form2.TxtDivers4") == "12"
    desk.key("Form2.TxtDivers4", key="Backspace")
    assert desk.text("Form2.TxtDivers4") == "1"
    desk.click("Form2.CmdAnule")
    find(desk, "dup")
    desk.click("Form4.CmdModifie")
    desk.type("Form3.TxtDivers4", text="1a2,")
    assert desk.text("Form3.TxtDivers4") == "1a2,"


def test_wiping_leaves_one_blank_in_each_box(desk):
    new_patient(desk, "DUPONT", "Anne")
    find(desk, "dup")
    desk.click("Form4.CmdModifie")
    desk.click("Form3.CmdEfface")
    assert {desk.text("Form3." + name) for name in ["TxtNom", "CmbVille", "TxtDivers4"]} == {" "}
    assert desk.get("Form3.OptFem")["checked"]
    save(desk, "Form3")
    assert patients(desk)[1]["Nom"] == " "
