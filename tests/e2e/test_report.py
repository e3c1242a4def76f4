"""From the viewing window to a corrected, printed report."""

import subprocess

import pytest

EXAM = {
    "Numero": 2,
    "NUMECHO": 1,
    "TYPECHO": "1",
    "DATEXAM": "05/04/2002",
    "DDR": "01/01/2002",
    "DG": "15/01/2002",
    "DGUS": "16/01/2002",
    "AGESTA": "13,2",
    "NBRE": "1",
    "LCC": "65",
    "OPERATEUR": "Docteur VAUCLAIR",
    "CONCLU1": "Grossesse évolutive.",
}


@pytest.fixture
def view(practice):
    """The viewing window of the one exam of DUPONT Marie."""
    practice.insert(
        table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie", "CIVILITEE": "Madame"}
    )
    practice.insert(table="OPTIONS", row={"NUMEROS": 19, "Texte": "CABINET DES TILLEULS", "TERMINAIS": "A"})
    practice.insert(table="1TER", row=EXAM)
    (practice.folder / "intro").write_text('"Examen fait à la demande de la patiente."\r\n', encoding="utf-8")
    practice.start()
    practice.click("Form1.Command1")
    practice.type("Form4.Text1", text="dup")
    practice.click("Form4.HlbCptDer")
    return practice


def report(port):
    return port.text("RicheT.RichTextBox1")


def test_the_report_tells_the_exam_on_show(view):
    view.click("Form6.Command1")
    assert {"Form6", "RicheT"} <= view.shown()
    titles = {form["name"]: form["title"] for form in view.forms()["forms"]}
    assert titles["RicheT"] == "Impression Echo 1er Trimestre"
    text = report(view)
    assert text.startswith("CABINET DES TILLEULS\r\n")
    assert "Examen fait à la demande de la patiente.\r\n\r\n\r\n" in text
    assert " " * 15 + "Madame Marie DUPONT\r\n\r\n" in text
    assert " " * 15 + "Longueur cranio-caudale: 65 mm\r\n" in text
    assert "Age gestationnel estimé par échographie: 13,2 Sem. A.\r\n" in text
    assert text.endswith("Docteur VAUCLAIR le 05/04/2002")
    assert view.get("RicheT.RichTextBox1")["selection"]["start"] == 0
    first = view.format("RicheT.RichTextBox1")["runs"][0]
    assert (first["size"], first["bold"], first["align"]) == (14, True, 2)


def test_the_marks_of_the_menu_choose_the_style(view):
    view.click("Form6.Intro")
    view.click("Form6.CptrM")
    view.click("Form6.Cptrendu")
    assert "à la demande" not in report(view)
    assert "Il n'a pas été mis en évidence d'anomalie" in report(view)


def test_the_dating_report_is_the_short_one(view):
    view.click("Form6.Datation")
    assert "Age gestationnel présumé : A determiner.\r\n" in report(view)
    assert "PELVIS" not in report(view)


def test_a_second_request_goes_on_top(view):
    view.click("Form6.Command1")
    first = report(view)
    view.click("Form6.Command2")
    text = report(view)
    assert text.endswith(first)
    assert len(text) > len(first)
    assert text.count("CABINET DES TILLEULS") == 2


def test_a_corrected_report_is_printed(view, tmp_path):
    pdf = tmp_path / "report.pdf"
    view.printer(file=str(pdf))
    view.click("Form6.Command1")
    view.type("RicheT.RichTextBox1", text="\nAjout du médecin : œdème.")
    view.click("RicheT.tbToolBar(Imprimer)")
    assert view.boxes == []
    printed = subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout
    assert "CABINET DES TILLEULS" in printed
    assert "Ajout du médecin : œdème." in printed


def test_quitting_the_editor_loses_the_text(view):
    view.click("Form6.Command1")
    view.click("RicheT.tbToolBar(Quitter)")
    assert "RicheT" not in view.shown()
    view.click("Form6.Command2")
    assert report(view).count("CABINET DES TILLEULS") == 1


def test_a_count_that_is_none_composes_twice_and_is_reported(view):
    view.insert(table="1TER", row={**EXAM, "NUMECHO": 2, "NBRE": "?"})
    view.click("Form6.CmdDer")
    view.click("Form6.Command1")
    assert [box["kind"] for box in view.boxes] == ["error"]
    assert report(view).count("CABINET DES TILLEULS") == 2


def test_the_editor_stays_when_the_viewing_window_closes(view):
    view.click("Form6.Command1")
    view.click("Form6.CmdQuitter")
    assert view.shown() == {"Form4", "RicheT"}


def test_without_a_printer_the_editor_works_and_prints_nothing(view):
    view.printer(none=True)
    view.click("Form6.Command1")
    assert view.boxes == []
    view.click("RicheT.tbToolBar(Imprimer)")
    assert view.boxes == []
    assert "DUPONT" in report(view)
