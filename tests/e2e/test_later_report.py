"""From the viewing window of a later exam to its printed report."""

import subprocess

import pytest

# 140 days from the start by ultrasound to the exam: 22 weeks of amenorrhoea.
EXAM = {
    "Numero": 2,
    "NUMECHO": 1,
    "TYPECHO": "2",
    "DATEXAM": "05/04/2002",
    "DDR": "01/11/2001",
    "DG": "15/11/2001",
    "DGUS": "16/11/2001",
    "AGESTA": "22,0",
    "NBRE": "1",
    "NUQUE": "Céphalique",
    "Bip": "54",
    "Fem": "31",
    "TIBIA": "33",
    "MORPHO": "Crâne et face sans anomalie.",
    "UTG": "IR 0,60",
    "OPERATEUR": "Docteur VAUCLAIR",
    "CONCLU1": "Croissance harmonieuse.",
}


@pytest.fixture
def dossier(practice):
    """The files of a practice with DUPONT Marie in them."""
    practice.insert(
        table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie", "CIVILITEE": "Madame"}
    )
    practice.insert(table="OPTIONS", row={"NUMEROS": 19, "Texte": "CABINET DES TILLEULS", "TERMINAIS": "A"})
    (practice.folder / "intro").write_text('"Examen fait à la demande de la patiente."\r\n', encoding="utf-8")
    return practice


def view(port, **fields):
    """Shows the one exam of the patient."""
    port.insert(table="1TER", row={**EXAM, **fields})
    port.open_dossier()
    port.click("Form4.HlbCptDer")
    return port


def test_the_report_of_a_lone_fetus_tells_what_was_measured(dossier):
    port = view(dossier)
    port.click("Form10.Command1")
    assert {"Form10", "RicheT"} <= port.shown()
    assert port.titles()["RicheT"] == "Impression Echo 2ème 3ème trimestre"
    text = port.report()
    assert text.startswith("CABINET DES TILLEULS\r\n")
    assert "Examen fait à la demande de la patiente.\r\n\r\n\r\n" + " " * 15 + "Madame Marie DUPONT\r\n\r\n" in text
    assert "Age gestationnel : 22,0 Sem. A.\r\n\r\nEXAMEN\r\n" in text
    assert "DOPPLER ART. UTERINES\r\n          Art. utérine droite : \r\n" in text
    assert (
        "          BIOMETRIE\r\n"
        "               Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n"
        "               Fémur: 31 mm. (< 3 ème Percentile).\r\n"
        "               Tibia : 33 mm.\r\n"
        "\r\n          ACTIVITE\r\n"
    ) in text
    assert "DOPPLER\r\n" not in text
    assert text.endswith("Docteur VAUCLAIR le 05/04/2002")
    assert port.get("RicheT.RichTextBox1")["selection"]["start"] == 0
    runs = port.format("RicheT.RichTextBox1")["runs"]
    headings = [run["text"].strip().split("\n")[0] for run in runs if run["bold"] and run["size"] == 12 and run["align"] == 0]
    assert headings == [
        "EXAMEN",
        "PELVIS",
        "DOPPLER ART. UTERINES",
        "FOETUS",
        "LIQUIDE AMNIOTIQUE",
        "PLACENTA",
        "CONCLUSION",
    ]


def test_the_menu_gives_the_minimum_report_without_introduction(dossier):
    port = view(dossier)
    port.click("Form10.CptrM")
    port.click("Form10.Intro")
    port.click("Form10.imprimer")
    assert "Il n'a pas été mis en évidence d'anomalie" in port.report()
    assert "Crâne et face" not in port.report()
    assert "à la demande" not in port.report()


def test_twins_keep_every_line_and_have_no_words(dossier):
    port = view(dossier, NBRE="2", Bip2="52", MORPHO2="Rachis vu.")
    port.click("Form10.CmdJ2")
    port.click("Form10.Command1")
    text = port.report()
    assert "JUMEAU N°2 :\r\n" in text and "JUMEAU N°3" not in text
    assert "BIOMETRIE J2\r\n               Bi-Pariétal : 52 mm\r\n               Distance inter orbitaire :  mm\r\n" in text
    assert "MORPHOLOGIE J2\r\n               Rachis vu.\r\n" in text
    assert "Percentile" not in text


@pytest.mark.parametrize("count", ["0", "4"])
def test_an_unusual_count_says_nothing_of_the_fetuses(dossier, count):
    port = view(dossier, NBRE=count)
    port.click("Form10.Command1")
    assert port.boxes == []
    assert "FOETUS\r\n          LIQUIDE AMNIOTIQUE\r\n" in port.report()


def test_an_empty_count_composes_twice_and_is_reported(dossier):
    port = view(dossier, NBRE="")
    port.click("Form10.Command1")
    assert [box["kind"] for box in port.boxes] == ["error"]
    assert port.report().count("CABINET DES TILLEULS") == 2


def test_what_is_overtyped_in_the_window_is_what_the_report_tells(dossier):
    port = view(dossier)
    port.set("Form10.TxtPied(0)", text="38")
    port.click("Form10.Command1")
    assert "Pied : 38 mm. (50 ème Percentile).\r\n" in port.report()


def test_each_exam_has_the_words_of_its_own_week(dossier):
    # Ten weeks earlier: 12 weeks, below all tables.
    dossier.insert(table="1TER", row={**EXAM, "NUMECHO": 2, "DATEXAM": "25/01/2002"})
    port = view(dossier)
    assert port.text("Form10.LblNumEcho") == "2"
    port.click("Form10.Command1")
    assert "Bi-Pariétal : 54 mm. ().\r\n" in port.report()
    port.click("RicheT.tbToolBar(Quitter)")
    port.click("Form10.CmdRec")
    port.click("Form10.Command1")
    assert "Bi-Pariétal : 54 mm. (50 ème Percentile).\r\n" in port.report()


def test_a_corrected_report_is_printed(dossier, tmp_path):
    port = view(dossier)
    pdf = tmp_path / "report.pdf"
    port.printer(file=str(pdf))
    port.click("Form10.Command1")
    port.type("RicheT.RichTextBox1", text="\nAjout du médecin : œdème.")
    port.click("RicheT.tbToolBar(Imprimer)")
    assert port.boxes == []
    printed = subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout
    assert "Bi-Pariétal : 54 mm. (50 ème Percentile)." in printed
    assert "Ajout du médecin : œdème." in printed


def test_a_biometry_window_on_screen_stays_as_it_is(dossier):
    port = view(dossier)
    port.click("Form10.CmdBiometrie")
    assert port.text("Form12.LblCBip") == "50 ème Percentile"
    port.set("Form10.TxtPied(0)", text="38")
    port.click("Form10.Command1")
    assert "Pied : 38 mm. (50 ème Percentile).\r\n" in port.report()
    assert {"Form10", "Form12", "RicheT"} <= port.shown()
    assert port.text("Form12.LblCPied") == ""
