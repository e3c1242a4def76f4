"""Keeping the prepared phrases and the introduction of the reports."""

import pytest


@pytest.fixture
def editor(practice):
    """The editor of the stored responses, over the main menu, with three phrases in one rubric."""
    for text, closing in [("Datation.", "C"), ("Contrôle d'évolution", "B"), ("Douleurs", "A")]:
        practice.insert(table="OPTIONS", row={"NUMEROS": 7, "Texte": text, "TERMINAIS": closing})
    practice.start()
    practice.click("Form1.Command2")
    assert practice.shown() == {"Form1", "Form9"}
    return practice


def stored(port):
    return [(row["NUMEROS"], row["Texte"], row["TERMINAIS"]) for row in port.rows(table="OPTIONS")["rows"]]


def options(port):
    return [name for name in ["OBSuite", "OBLigne", "OBClot"] if port.get("Form9." + name)["checked"]]


def test_a_rubric_is_opened_and_a_phrase_added(editor):
    editor.click("Form9.CmdIndications")
    assert editor.text("Form9.Frame1") == "Indication de l'Echo"
    assert editor.text("Form9.LblEspion") == "7"
    assert editor.items("Form9.List1") == ["Datation.", "Contrôle d'évolution", "Douleurs"]
    editor.type("Form9.Text1", text="Terme dépassé d'hier")
    editor.click("Form9.OBClot")
    editor.click("Form9.CmdAjoute")
    assert editor.boxes == []
    assert editor.items("Form9.List1")[-1] == "Terme dépassé d'hier"
    assert editor.text("Form9.Text1") == ""
    assert editor.focused()["control"] == "Form9.Text1"
    assert [str(v) for v in stored(editor)[-1]] == ["7", "Terme dépassé d'hier", "C"]


def test_a_phrase_with_an_apostrophe_is_changed_and_deleted(editor):
    editor.click("Form9.CmdIndications")
    editor.dblclick("Form9.List1", line="Contrôle d'évolution")
    assert editor.text("Form9.Text1") == "Contrôle d'évolution"
    assert options(editor) == ["OBLigne"]
    editor.set("Form9.Text1", text="Contrôle de l'évolution")
    editor.click("Form9.OBSuite")
    editor.click("Form9.CmdModif")
    assert editor.items("Form9.List1") == ["Datation.", "Contrôle de l'évolution", "Douleurs"]
    assert editor.text("Form9.Text1") == "Contrôle de l'évolution"
    editor.click("Form9.CmdSupprime")
    assert editor.boxes == []
    assert [text for _, text, _ in stored(editor)] == ["Datation.", "Douleurs"]


def test_enter_chooses_a_phrase_without_the_mouse(editor):
    editor.click("Form9.CmdIndications")
    editor.key("Form9.List1", key="Home")
    editor.key("Form9.List1", key="Down")
    editor.key("Form9.List1", key="Return")
    assert editor.text("Form9.Text1") == "Contrôle d'évolution"


def test_nothing_is_stored_without_a_text_or_a_rubric(editor):
    editor.click("Form9.CmdAjoute")
    assert editor.said() == ["Veuillez saisir un Item au préalable"]
    editor.click("Form9.CmdModif")
    assert editor.said() == ["Veuillez selectionner un Item par Double Click"]
    editor.click("Form9.CmdSupprime")
    assert editor.said() == ["Veuillez selectionner un Item au préalable par Double Click."]
    editor.type("Form9.Text1", text="perdue")
    editor.click("Form9.CmdAjoute")
    assert [box["kind"] for box in editor.boxes] == ["error"]
    assert len(stored(editor)) == 3


def test_a_double_click_without_the_base_is_impossible(editor):
    editor.click("Form9.CmdIndications")
    (editor.folder / "ECHO.MDB").rename(editor.folder / "AILLEURS.MDB")
    editor.dblclick("Form9.List1", row=0)
    assert editor.said() == ["Impossible"]
    assert editor.text("Form9.Text1") == "Datation."


def test_the_letterhead_shows_at_the_next_opening_of_the_dossiers(editor):
    editor.click("Form9.CmdTel")
    editor.type("Form9.Text1", text="04 00 00 00 00")
    editor.click("Form9.CmdAjoute")
    editor.click("Form9.CmdQuitter")
    assert editor.shown() == {"Form1"}
    editor.click("Form1.Command1")
    assert editor.text("Form4.TxtTel") == "Tél :   04 00 00 00 00"


def test_the_introduction_is_kept_as_one_quoted_item(editor):
    editor.click("Form9.CmdIntro")
    assert editor.boxes == []
    assert editor.text("Form9.Frame1") == "Introduction"
    editor.set("Form9.TxtIntro", text='Madame, voici\n"l\'examen"')
    editor.click("Form9.CmdEnreg")
    assert not editor.get("Form9.Frame9")["visible"]
    written = (editor.folder / "intro").read_bytes().decode("utf-8")
    assert written == '"Madame, voici\r\n""l\'examen"""\r\n'
    editor.click("Form9.CmdIntro")
    assert editor.text("Form9.TxtIntro") == 'Madame, voici\r\n"l\'examen"'
    editor.click("Form9.CmdAnul")
    assert not editor.get("Form9.TxtIntro")["onscreen"]


def test_an_introduction_in_the_old_encoding_is_read(editor):
    (editor.folder / "intro").write_bytes('"Examen réalisé"\r\n'.encode("cp1252"))
    editor.click("Form9.CmdIntro")
    assert editor.text("Form9.TxtIntro") == "Examen réalisé"


def test_tab_walks_from_the_rubrics_to_the_actions(editor):
    seen = []
    editor.focus("Form9.CmdOperateurs")
    for _ in range(60):
        control = editor.focused()["control"]
        seen.append(control.removeprefix("Form9."))
        editor.key(control, key="Tab")
    assert seen[:3] == ["CmdOperateurs", "CmdApp", "CmdDateApp"]
    end = seen.index("List1")
    assert seen[end:end + 8] == ["List1", "Text1", "OBSuite", "OBLigne", "OBClot", "CmdAjoute", "CmdModif", "CmdSupprime"]
    assert seen[end + 8] == "CmdQuitter"
    assert end == 46
