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
    practice.open_dossier()
    practice.click("Form4.HlbCptDer")
    return practice


def test_the_report_tells_the_exam_on_show(view):
    view.click("Form6.Command1")
    assert {"Form6", "RicheT"} <= view.shown()
    assert view.titles()["RicheT"] == "Impression Echo 1er Trimestre"
    text = view.report()
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
    assert "à la demande" not in view.report()
    assert "Il n'a pas été mis en évidence d'anomalie" in view.report()


def test_the_dating_report_is_the_short_one(view):
    view.click("Form6.Datation")
    assert "Age gestationnel présumé : A determiner.\r\n" in view.report()
    assert "PELVIS" not in view.report()


def test_a_second_request_goes_on_top(view):
    view.click("Form6.Command1")
    first = view.report()
    view.click("Form6.Command2")
    text = view.report()
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
    assert view.report().count("CABINET DES TILLEULS") == 1


def test_a_count_that_is_none_composes_twice_and_is_reported(view):
    view.insert(table="1TER", row={**EXAM, "NUMECHO": 2, "NBRE": "?"})
    view.click("Form6.CmdDer")
    view.click("Form6.Command1")
    assert [box["kind"] for box in view.boxes] == ["error"]
    assert view.report().count("CABINET DES TILLEULS") == 2


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
    assert "DUPONT" in view.report()


BOX = "RicheT.RichTextBox1"


def tool(name):
    return f"RicheT.tbToolBar({name})"


@pytest.fixture
def editor(view):
    """The editor on a report whose first line, the name of the practice, is selected."""
    view.click("Form6.Command2")
    view.key(BOX, key="Ctrl+Home")
    view.key(BOX, key="Shift+End")
    return view


def first_run(port):
    return port.format(BOX)["runs"][0]


@pytest.mark.parametrize(
    "name, attribute, at_first", [("Gras", "bold", True), ("Italique", "italic", False), ("Souligné", "underline", False)]
)
def test_a_button_inverts_the_selection_and_shows_it(editor, name, attribute, at_first):
    for expected in [not at_first, at_first]:
        editor.click(tool(name))
        assert first_run(editor)["text"].startswith("CABINET")
        assert first_run(editor)[attribute] == expected
        assert editor.get(tool(name))["checked"] == expected


def test_the_alignment_buttons_stand_for_the_paragraph(editor):
    names = {"Aligner à gauche": 0, "Aligner à droite": 1, "Centrer": 2}
    for name, number in names.items():
        editor.click(tool(name))
        assert first_run(editor)["align"] == number
        assert [other for other in names if editor.get(tool(other))["checked"]] == [name]


def test_the_buttons_follow_the_caret(editor):
    assert editor.get(tool("Gras"))["checked"] and editor.get(tool("Centrer"))["checked"]
    editor.key(BOX, key="Ctrl+End")
    assert not editor.get(tool("Gras"))["checked"] and editor.get(tool("Centrer"))["checked"]
    editor.key(BOX, key="Ctrl+A")
    assert not editor.get(tool("Centrer"))["checked"]


def test_cutting_copying_and_pasting(editor):
    editor.clipboard(text="d'ailleurs")
    editor.click(tool("Copier"))
    assert editor.clipboard()["text"] == "CABINET DES TILLEULS"
    editor.click(tool("Couper"))
    assert editor.report().startswith("\r\n")
    editor.clipboard(text="Cabinet de l'Œuvre")
    editor.click(tool("Coller"))
    assert editor.report().startswith("Cabinet de l'Œuvre\r\n")


def test_nothing_selected_leaves_the_clipboard_alone(editor):
    editor.clipboard(text="d'ailleurs")
    editor.key(BOX, key="Ctrl+Home")
    editor.click(tool("Copier"))
    editor.click(tool("Couper"))
    assert editor.clipboard()["text"] == "d'ailleurs"
    assert editor.report().startswith("CABINET DES TILLEULS\r\n")


def test_the_font_dialog_sets_all_but_the_family(editor):
    before = first_run(editor)
    editor.answer(**{"with": ["cancel"]})
    editor.click(tool("Police"))
    assert [box["kind"] for box in editor.boxes] == ["font"]
    assert first_run(editor) == before
    chosen = {"size": 18, "bold": False, "italic": True, "underline": True, "strike": True, "color": "#ff0000"}
    editor.answer(**{"with": [{"font": {**chosen, "name": "DejaVu Sans"}}]})
    editor.click(tool("Police"))
    run = first_run(editor)
    assert {key: run[key] for key in chosen} == chosen
    assert run["family"] == before["family"]


def test_a_correction_is_undone_by_its_key(editor):
    before = editor.report()
    editor.type(BOX, text=" Vu.")
    assert editor.report().endswith(" Vu.")
    editor.key(BOX, key="Ctrl+Z")
    assert editor.report() == before
    # The report itself is no correction.
    editor.key(BOX, key="Ctrl+Z")
    assert editor.report() == before


def printed_text(pdf):
    return subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout


def test_the_menu_prints_through_the_dialog_alone(editor, tmp_path):
    pdf = tmp_path / "menu.pdf"
    editor.printer(file=str(pdf))
    editor.answer(**{"with": ["cancel"]})
    editor.click("RicheT.imprimer")
    assert [box["kind"] for box in editor.boxes] == ["print"]
    assert not pdf.exists()
    editor.answer(**{"with": ["ok"]})
    editor.click("RicheT.imprimer")
    assert [box["kind"] for box in editor.boxes] == ["print"]
    assert "DUPONT" in printed_text(pdf)


def test_without_a_printer_the_menu_still_prints_to_a_file(editor, tmp_path):
    pdf = tmp_path / "sans-imprimante.pdf"
    editor.printer(none=True)
    editor.answer(**{"with": [{"file": str(pdf)}]})
    editor.click("RicheT.imprimer")
    assert "DUPONT" in printed_text(pdf)
