"""The port itself: each request, and what a person could not do refused. Everything else is driven through it."""

import json
import os
import struct
import subprocess

import pytest
from port import PROGRAM, PortError

ANSWERS = "with"


@pytest.fixture
def menu(practice):
    practice.start()
    return practice


@pytest.fixture
def desk(practice):
    """The dossier window on DUPONT Marie, number 2, with two exams."""
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie"})
    for number, embryos in [(1, "1"), (2, "3")]:
        practice.insert(
            table="1TER",
            row={"Numero": 2, "NUMECHO": number, "DATEXAM": f"0{number}/02/2002", "TYPECHO": "1", "NBRE": embryos},
        )
    practice.responses([(1, "Docteur VAUCLAIR", "A"), (1, "Docteur ÉLÉGANT", "A")])
    practice.open_dossier()
    return practice


@pytest.fixture
def writing(desk):
    desk.click("Form4.Cmd1Ter")
    return desk


@pytest.fixture
def viewing(desk):
    desk.click("Form4.HlbCptDer")
    return desk


def refused(port, verb, **fields):
    """Why a request is refused."""
    with pytest.raises(PortError) as refusal:
        port.request(verb, **fields)
    return str(refusal.value)


# Its manners.


def test_a_line_that_is_no_request_is_an_error_and_the_next_one_is_served(port):
    for line in ["no JSON", "[1]", "{}", '{"do": "dance"}', '{"do": "click"}']:
        port.process.stdin.write(line + "\n")
        port.process.stdin.flush()
        answer = json.loads(port.process.stdout.readline())
        assert answer["ok"] is False
        assert answer["error"]
        assert answer["boxes"] == []
    assert port.request("forms") == {"ok": True, "forms": [], "boxes": []}


@pytest.mark.parametrize("arguments, code", [(["--program", "."], 0), ([], 2)])
def test_the_end_of_the_input_ends_it_well(tmp_path, arguments, code):
    run = subprocess.run(
        [PROGRAM, *arguments],
        cwd=tmp_path,
        env=dict(os.environ, QT_QPA_PLATFORM="offscreen"),
        input="",
        capture_output=True,
        text=True,
        timeout=60,
    )
    assert (run.returncode, run.stdout) == (code, "")


def test_it_writes_no_settings_but_its_own(menu):
    menu.setting(key="CHEMIN", value="/ailleurs/ECHO.MDB")
    assert "ailleurs" in (menu.folder / "user-settings.ini").read_text(encoding="utf-8")
    assert menu.setting(key="chemin")["value"] == "/ailleurs/ECHO.MDB"
    assert menu.setting(key="INCONNU")["value"] is None


def test_the_window_behind_has_the_input_when_a_box_or_a_window_has_gone(menu):
    menu.click("Form1.CmdSauve")
    menu.click("Form21.CmdSauve1")
    assert [box["kind"] for box in menu.boxes] == ["message"]
    assert menu.focused()["control"] == "Form21.CmdSauve1"
    menu.click("Form21.Command1")
    assert menu.focused()["control"] == "Form1.CmdSauve"


def test_the_given_date_is_the_machines(writing):
    assert writing.text("Form5.TxtDate") == "05/04/2002"


# Records.


def test_a_new_practice_has_one_dossier_and_five_settings(port):
    place = port.folder / "cabinet"
    port.practice(folder=str(place))
    (model,) = port.rows(table="FICHEPATIENT")["rows"]
    assert (model["Numint"], model["Nom"], model["Prenom"]) == (1, "DOSSIER MODELE", " ")
    for table in ["1TER", "GYNECO", "OPTIONS", "CIVILITES", "FICHEATCD", "ECHOS", "CLEFS"]:
        assert port.rows(table=table)["rows"] == []
    for key, name in [("CHEMIN", "ECHO"), ("CHEMCIV", "NOM"), ("CHEMATCD", "ATCD"), ("CHEMINS", "ECHOTEK")]:
        assert port.setting(key=key)["value"] == str(place / (name + ".MDB"))
        assert (place / (name + ".MDB")).exists()
    assert port.setting(key="SAUVE")["value"] == str(port.folder) + "/Sauve/"
    assert (port.folder / "Sauve").is_dir()


def test_the_sample_practice_has_patients(port):
    port.practice(patients=True)
    assert len(port.rows(table="FICHEPATIENT")["rows"]) == 41


def test_a_record_keeps_texts_numbers_dates_and_nulls(practice):
    practice.insert(table="fichepatient", row={"numint": 7, "NOM": "L'ÉTOILE", "DateNaiss": "28/02/1970"})
    row = practice.rows(table="FICHEPATIENT")["rows"][-1]
    assert (row["Numint"], row["Nom"], row["Prenom"]) == (7, "L'ÉTOILE", " ")
    assert row["DATENAISS"] == "28/02/1970"
    assert row["ASSURE"] is None
    practice.insert(table="1TER", row={"Numero": 7, "DDR": None, "MORPHO": "deux\r\nlignes", "LCC": 60})
    (exam,) = practice.rows(table="1TER")["rows"]
    assert (exam["Numero"], exam["NUMECHO"], exam["DDR"]) == (7, None, None)
    assert (exam["MORPHO"], exam["LCC"]) == ("deux\r\nlignes", "60")
    for number in [3, 1, 2]:
        practice.insert(table="GYNECO", row={"Numero": 7, "NUMECHO": number})
    assert [row["NUMECHO"] for row in practice.rows(table="GYNECO")["rows"]] == [3, 1, 2]


def test_records_that_do_not_fit_are_refused(practice):
    assert "Champ inconnu" in refused(practice, "insert", table="1TER", row={"LONGUEUR": "1"})
    refused(practice, "insert", table="AUTRE", row={})
    refused(practice, "rows", table="AUTRE")
    refused(practice, "insert", table="FICHEPATIENT", row={"Numint": 2, "Nom": "A", "DATENAISS": "demain"})
    refused(practice, "insert", table="FICHEPATIENT", row={"Numint": 1, "Nom": "A"})
    assert len(practice.rows(table="FICHEPATIENT")["rows"]) == 1


# Names and what is seen.


def test_names_are_read_in_any_case(writing):
    assert writing.text("FORM5.TXTDATE") == "05/04/2002"
    writing.type("form5.txt1ter(5)", text="vu")
    assert writing.text("Form5.Txt1Ter(5)") == "vu"
    assert writing.focused()["control"] == "Form5.Txt1Ter(5)"


def test_an_array_of_one_answers_to_its_bare_name(writing):
    for name in ["Form5.Frame5", "Form5.Frame5(3)"]:
        assert writing.get(name)["kind"] == "Frame"
    assert "no control" in refused(writing, "get", control="Form5.Frame5(1)")
    assert "no control" in refused(writing, "get", control="Form5.Txt1Ter")
    assert "no control" in refused(writing, "get", control="Form5.Txt1Ter(43)")
    assert "no control" in refused(writing, "get", control="Form5.Inconnu")


def test_to_look_loads_no_window(menu):
    assert "not loaded" in refused(menu, "get", control="Form5.TxtDate")
    assert [form["name"] for form in menu.forms()["forms"]] == ["Form1"]


def test_each_kind_is_told_with_what_it_has(viewing):
    common = {"ok", "boxes", "kind", "text", "visible", "onscreen", "enabled"}
    placed = {"left", "top", "width", "height", "color", "back"}
    more = {
        "Form4.NumLbl": ("Label", set()),
        "Form4.Text1": ("TextBox", {"selection"}),
        "Form4.List1": ("ListBox", {"items", "row"}),
        "Form4.Cmd1Ter": ("Button", set()),
        "Form4.Frame5": ("Frame", set()),
        "Form6.CptrD": ("Menu", {"checked"}),
    }
    for control, (kind, fields) in more.items():
        seen = viewing.get(control)
        assert seen["kind"] == kind
        assert set(seen) - placed == common | fields, control
    viewing.click("Form4.CmdModifie")
    combo = viewing.get("Form3.TxtCivilitee")
    assert (combo["kind"], combo["row"]) == ("ComboBox", -1)
    assert combo["items"] == ["Mme", "Mlle", "Madame", "Mademoiselle"]
    viewing.click("Form3.OptFem")
    assert (viewing.get("Form3.OptFem")["kind"], viewing.get("Form3.OptFem")["checked"]) == ("Option", True)
    assert viewing.get("Form3.OptMasc")["checked"] is False
    assert (viewing.get("Form3.TxtAlsacemoselle")["kind"], viewing.get("Form3.TxtAlsacemoselle")["checked"]) == (
        "Check",
        False,
    )
    viewing.click("Form3.TxtAlsacemoselle")
    assert viewing.get("Form3.TxtAlsacemoselle")["checked"] is True


def test_the_kinds_that_come_and_go(viewing):
    viewing.click("Form6.Command1")
    editor = viewing.get("RicheT.RichTextBox1")
    assert editor["kind"] == "RichText"
    assert editor["selection"] == {"start": 0, "length": 0}
    assert viewing.get("RicheT.tbToolBar(Gras)")["checked"] in (True, False)
    assert "checked" not in viewing.get("RicheT.tbToolBar(Imprimer)")
    viewing.click("Form4.Cmd1Ter")
    assert viewing.get("Form5.Calendar1")["kind"] == "Calendar"
    assert viewing.get("Form4.Image1")["kind"] == "Image"
    assert viewing.get("Form4.Image1")["picture"] is None


def test_a_list_tells_its_lines_and_the_chosen_one(writing):
    writing.focus("Form5.Txt1Ter(1)")
    seen = writing.get("Form5.List1")
    assert seen["items"] == ["Docteur VAUCLAIR ", "Docteur ÉLÉGANT "]
    writing.click("Form5.List1", row=1)
    assert writing.get("Form5.List1")["row"] == 1
    writing.click("Form5.List1", line="Docteur VAUCLAIR ")
    assert writing.get("Form5.List1")["row"] == 0
    writing.choose("Form5.List1", row=1)
    assert writing.get("Form5.List1")["row"] == 1
    writing.choose("Form5.List1", text="Docteur VAUCLAIR ")
    assert writing.get("Form5.List1")["row"] == 0


def test_colours_are_told_in_red_green_blue(viewing):
    viewing.click("Form6.CmdJ3")
    assert viewing.get("Form6.Frame5")["back"] == "#ffc0c0"


def test_the_windows_are_told_with_their_place(viewing):
    forms = {form["name"]: form for form in viewing.forms()["forms"]}
    assert forms["Form6"]["title"] == "Echographie du 1er Trimestre"
    assert (forms["Form6"]["shown"], forms["Form1"]["shown"]) == (True, False)
    assert forms["Form6"]["pointer"] == "normal"
    assert forms["Form6"]["width"] > 300 and forms["Form6"]["height"] > 300
    assert all(isinstance(forms["Form6"][side], int) for side in ["left", "top"])


# Keys.


def test_typing_goes_key_by_key_to_the_end(writing):
    writing.set("Form5.Txt1Ter(5)", text="ab")
    writing.key("Form5.Txt1Ter(5)", key="Home")
    writing.type("Form5.Txt1Ter(5)", text="cé œ'")
    assert writing.text("Form5.Txt1Ter(5)") == "abcé œ'"
    writing.type("Form5.Txt1Ter(18)", text="6a0")
    assert writing.text("Form5.Txt1Ter(18)") == "60"


def test_a_paste_is_one_change_past_every_filter(writing):
    writing.set("Form5.Txt1Ter(18)", text="6a0")
    assert writing.text("Form5.Txt1Ter(18)") == "6a0"
    writing.set("Form5.Txt1Ter(18)", text="")
    assert writing.text("Form5.Txt1Ter(18)") == ""


def test_keys_with_their_modifiers(writing):
    control = "Form5.Txt1Ter(5)"
    writing.set(control, text="abcdef")
    writing.key(control, key="Home")
    for _ in range(2):
        writing.key(control, key="Shift+Right")
    assert writing.get(control)["selection"] == {"start": 0, "length": 2}
    writing.key(control, key="Ctrl+C")
    assert writing.clipboard()["text"] == "ab"
    writing.key(control, key="Delete")
    writing.key(control, key="End")
    writing.key(control, key="Backspace")
    assert writing.text(control) == "cde"
    writing.key(control, key="Ctrl+A")
    assert writing.get(control)["selection"] == {"start": 0, "length": 3}
    writing.key(control, key="é")
    writing.key(control, key="Shift+A")
    writing.key(control, key="b")
    writing.key(control, key="Space")
    writing.key(control, key="5")
    assert writing.text(control) == "éAb 5"
    assert "unknown key" in refused(writing, "key", control=control, key="Hop")
    assert "unknown key" in refused(writing, "key", control=control, key="")


def test_backspace_passes_the_key_filters(writing):
    writing.set("Form5.Txt1Ter(15)", text="12")
    writing.key("Form5.Txt1Ter(15)", key="Backspace")
    assert writing.text("Form5.Txt1Ter(15)") == ""
    writing.set("Form5.TxtPds", text="60")
    writing.key("Form5.TxtPds", key="Backspace")
    assert writing.text("Form5.TxtPds") == "6"


def test_tab_walks_on_and_back(writing):
    writing.focus("Form5.Txt1Ter(5)")
    writing.key("Form5.Txt1Ter(5)", key="Tab")
    after = writing.focused()["control"]
    assert after != "Form5.Txt1Ter(5)"
    writing.key(after, key="Shift+Tab")
    assert writing.focused()["control"] == "Form5.Txt1Ter(5)"


def test_alt_and_a_letter_press_a_button(writing):
    writing.focus("Form5.Txt1Ter(5)")
    writing.key("Form5.Txt1Ter(5)", key="Alt+E")
    assert writing.said() == ["Veuillez saisir le nombre d'embryons avant d'enregistrer."]
    writing.key("Form5.Txt1Ter(5)", key="Alt+Q")
    assert "Form5" not in writing.shown()


def test_a_function_key_does_nothing_where_nothing_waits_for_it(writing):
    writing.key("Form5.Txt1Ter(5)", key="F4")
    assert writing.text("Form5.Txt1Ter(5)") == ""


# The mouse.


def test_a_double_click_takes_a_line_and_a_right_click_goes_on(writing):
    writing.focus("Form5.Txt1Ter(1)")
    writing.dblclick("Form5.List1", row=1)
    assert writing.text("Form5.Txt1Ter(1)") == "Docteur ÉLÉGANT "
    writing.dblclick("Form5.List1", line="Docteur VAUCLAIR ")
    assert writing.text("Form5.Txt1Ter(1)") == "Docteur ÉLÉGANT Docteur VAUCLAIR "
    assert "no such line" in refused(writing, "dblclick", control="Form5.List1", row=9)
    assert "no such line" in refused(writing, "dblclick", control="Form5.List1", line="Docteur")
    assert "no such line" in refused(writing, "dblclick", control="Form5.List1")
    assert "is no list" in refused(writing, "choose", control="Form5.CmdEnregis", row=0)


def test_a_right_click_on_a_list_reaches_it(viewing):
    viewing.click("Form6.CmdModifs")
    viewing.focus("Form7.Txt1Ter(1)")
    viewing.click("Form7.CmdJ3")
    viewing.rightclick("Form7.List1")
    assert viewing.focused()["control"] == "Form7.Txt1Ter(2)"


def test_a_menu_entry_takes_a_click_and_nothing_else(viewing):
    viewing.click("Form6.CptrM")
    assert viewing.get("Form6.CptrM")["checked"] and not viewing.get("Form6.CptrD")["checked"]
    for verb in ["dblclick", "rightclick", "focus"]:
        assert refused(viewing, verb, control="Form6.CptrM")
    assert refused(viewing, "type", control="Form6.CptrM", text="a")
    assert refused(viewing, "set", control="Form6.CptrM", text="a")
    assert refused(viewing, "key", control="Form6.CptrM", key="Tab")


def test_a_day_is_picked_in_a_calendar_alone(writing):
    writing.focus("Form5.Txt1Ter(2)")
    writing.pick("Form5.Calendar1", date="28/02/2001")
    assert writing.text("Form5.Txt1Ter(2)") == "28/02/2001"
    assert refused(writing, "pick", control="Form5.Calendar1", date="30/02/2001")
    assert refused(writing, "pick", control="Form5.List1", date="01/02/2001")
    assert "no scroll bar" in refused(writing, "scroll", control="Form5.List1", value=3)


def test_a_combo_box_is_chosen_from_by_text_and_row(desk):
    desk.click("Form4.CmdModifie")
    desk.choose("Form3.TxtCivilitee", text="Madame")
    assert desk.text("Form3.TxtCivilitee") == "Madame"
    items = desk.items("Form3.TxtCivilitee")
    desk.choose("Form3.TxtCivilitee", row=0)
    assert desk.text("Form3.TxtCivilitee") == items[0]
    assert "no such entry" in refused(desk, "choose", control="Form3.TxtCivilitee", text="Baronne")
    assert "no such entry" in refused(desk, "choose", control="Form3.TxtCivilitee", row=99)


# What a person could not do.


def test_what_is_hidden_is_out_of_reach(desk):
    desk.click("Form4.Cmd1Ter")
    for control in ["Form5.Frame5", "Form5.CmdJ1", "Form5.Calendar1", "Form5.List2", "Form5.Txt1Ter(29)"]:
        assert not desk.get(control)["onscreen"]
        assert "not on screen" in refused(desk, "click", control=control)
    assert "not on screen" in refused(desk, "type", control="Form5.Txt1Ter(29)", text="60")
    assert "not on screen" in refused(desk, "set", control="Form5.Txt1Ter(29)", text="60")
    assert "not on screen" in refused(desk, "key", control="Form5.Txt1Ter(29)", key="5")
    assert "not on screen" in refused(desk, "focus", control="Form5.Txt1Ter(29)")
    assert desk.text("Form5.Txt1Ter(29)") == ""
    assert desk.get("Form5.CmdJ1")["visible"], "its frame is hidden, not the button"


def test_what_stands_on_a_hidden_window_is_out_of_reach(desk):
    assert "Form1" not in desk.shown()
    assert "not on screen" in refused(desk, "click", control="Form1.Command3")
    assert "not shown" in refused(desk, "close", form="Form1")
    assert "not shown" in refused(desk, "close", form="Form5")
    assert "not shown" in refused(desk, "shot", form="Form1", file=str(desk.folder / "x.png"))


def test_what_is_disabled_is_out_of_reach(practice):
    practice.start()
    practice.click("Form1.Command1")
    assert not practice.get("Form4.Command3")["enabled"]
    assert "disabled" in refused(practice, "click", control="Form4.Command3")
    assert "disabled" in refused(practice, "key", control="Form4.Command3", key="Space")


def test_windows_behind_an_exclusive_one_take_no_input(viewing):
    viewing.click("Form6.CmdModifs")
    for verb, fields in [("click", {"control": "Form4.Command1"}), ("type", {"control": "Form4.Text1", "text": "a"})]:
        assert "takes no input" in refused(viewing, verb, **fields)
    assert "takes no input" in refused(viewing, "click", control="Form6.CptrM")
    assert "takes no input" in refused(viewing, "close", form="Form6")
    assert viewing.get("Form4.Text1")["onscreen"], "it is still in sight"
    viewing.click("Form7.CmdQuitter")
    viewing.click("Form6.CptrM")


def test_what_takes_no_text_is_not_typed_into(viewing):
    assert "takes no focus" in refused(viewing, "focus", control="Form4.NumLbl")
    assert "locked" in refused(viewing, "set", control="Form6.TxtConclu1", text="autre")
    viewing.type("Form6.TxtConclu1", text="autre")
    assert viewing.text("Form6.TxtConclu1") == ""
    assert "takes no text" in refused(viewing, "set", control="Form6.CmdModifs", text="autre")
    assert "no rich text" in refused(viewing, "format", control="Form6.TxtConclu1")


# Boxes.


def test_boxes_are_told_in_their_order_with_every_field(writing):
    writing.set("Form5.Txt1Ter(15)", text="1")
    writing.answer(**{ANSWERS: ["yes"]})
    writing.click("Form5.CmdEnregis")
    question, message = writing.boxes
    assert question == {
        "kind": "question",
        "title": "Attention",
        "text": "Voulez vous vraiment enregistrer ce compte rendu ?",
        "icon": "",
        "default": question["default"],
        "answered": "yes",
    }
    assert question["default"] in ("yes", "no")
    assert (message["kind"], message["text"], message["default"], message["answered"]) == (
        "message",
        "Enregistré",
        "ok",
        "ok",
    )
    assert writing.request("forms")["boxes"] == []


def test_a_question_that_nobody_answers_is_answered_no(viewing):
    viewing.click("Form6.CmdSupprime")
    (question,) = viewing.boxes
    assert question["answered"] == "none waiting"
    viewing.answer(**{ANSWERS: ["yes"]})
    viewing.answer(**{ANSWERS: ["no"]})
    viewing.click("Form6.CmdSupprime")
    assert [box["answered"] for box in viewing.boxes] == ["yes", "no"]
    assert len(viewing.rows(table="1TER")["rows"]) == 2


def test_an_error_is_a_box_of_its_own_kind(writing):
    writing.set("Form5.TxtPds", text="60")
    writing.set("Form5.TxtTaille", text="0")
    (box,) = writing.boxes
    assert (box["kind"], box["title"], box["icon"]) == ("error", "VERANOX", "critical")
    assert box["text"].startswith("Erreur d'exécution '11' :\n\n")


def test_a_file_dialog_tells_what_it_offers(menu):
    menu.click("Form1.CmdSupervi")
    menu.click("Form22.Command4")
    (box,) = menu.boxes
    assert (box["kind"], box["proposed"], box["answered"]) == ("open", "ECHO.MDB", "none waiting")
    assert box["filter"] == "Basees de Données (*.MDB)|*.MDB"
    assert box["folder"].startswith("/")
    menu.answer(**{ANSWERS: ["cancel", {"file": str(menu.folder / "NOM.MDB"), "filter": 1}]})
    menu.click("Form22.Command4")
    assert [box["answered"] for box in menu.boxes] == ["cancel"]
    menu.click("Form22.Command6")
    assert menu.boxes[0]["answered"] == str(menu.folder / "NOM.MDB")
    assert menu.text("Form22.Text3") == str(menu.folder / "NOM.MDB")


def test_the_printer_and_the_font_dialogs_are_told(viewing):
    viewing.click("Form6.Command1")
    viewing.printer(file=str(viewing.folder / "page.pdf"))
    viewing.click("RicheT.imprimer")
    (box,) = viewing.boxes
    assert (box["kind"], box["answered"]) == ("print", "none waiting")
    assert not (viewing.folder / "page.pdf").exists()
    viewing.key("RicheT.RichTextBox1", key="Ctrl+A")
    viewing.answer(**{ANSWERS: ["cancel", {"font": {"size": 20, "italic": True, "color": "#0000ff"}}]})
    before = viewing.format("RicheT.RichTextBox1")["runs"]
    viewing.click("RicheT.tbToolBar(Police)")
    assert [(box["kind"], box["answered"]) for box in viewing.boxes] == [("font", "cancel")]
    assert viewing.format("RicheT.RichTextBox1")["runs"] == before
    viewing.click("RicheT.tbToolBar(Police)")
    runs = [run for run in viewing.format("RicheT.RichTextBox1")["runs"] if run["text"].strip()]
    assert {(run["size"], run["italic"], run["color"]) for run in runs} == {(20, True, "#0000ff")}


# The machine.


def test_the_clipboard_is_read_and_written(writing):
    writing.clipboard(text="à coller")
    assert writing.clipboard()["text"] == "à coller"
    writing.key("Form5.Txt1Ter(5)", key="Ctrl+V")
    assert writing.text("Form5.Txt1Ter(5)") == "à coller"


def test_a_report_is_told_in_runs_and_printed_into_the_file(viewing):
    viewing.click("Form6.Command1")
    runs = viewing.format("RicheT.RichTextBox1")["runs"]
    assert set(runs[0]) == {"text", "size", "bold", "italic", "underline", "strike", "color", "family", "align"}
    assert "".join(run["text"] for run in runs).replace("\n", "\r\n") == viewing.text("RicheT.RichTextBox1")
    page = viewing.folder / "page.pdf"
    viewing.printer(file=str(page))
    viewing.answer(**{ANSWERS: ["ok"]})
    viewing.click("RicheT.imprimer")
    assert page.read_bytes().startswith(b"%PDF")
    page.unlink()
    viewing.printer(none=True)
    viewing.click("RicheT.imprimer")
    assert viewing.boxes
    assert not page.exists()


def test_a_camera_shows_a_picture_of_any_format_until_it_is_unplugged(menu):
    bitmap = menu.folder / "a.bmp"
    bitmap.write_bytes(
        b"BM" + struct.pack("<IIIIiiHHIIiiII", 54 + 16, 0, 54, 40, 2, 2, 1, 24, 0, 16, 0, 0, 0, 0) + bytes(16)
    )
    menu.camera(image=str(bitmap))
    menu.click("Form1.Command5")
    menu.click("Form19.Command4")
    assert menu.get("Form19.Image2(1)")["picture"] == {"width": 2, "height": 2}
    menu.camera(none=True)
    menu.click("Form19.Command4")
    assert menu.boxes[0]["text"] == "Pas de connection à la carte video"
    assert menu.get("Form19.ezVidCap1")["picture"] is None
    (menu.folder / "text.png").write_text("no picture")
    for file in ("text.png", "nowhere.png"):
        with pytest.raises(PortError):
            menu.camera(image=str(menu.folder / file))


def test_a_picture_of_a_window_is_written(menu):
    file = menu.folder / "menu.png"
    menu.shot(form="form1", file=str(file))
    assert file.read_bytes().startswith(b"\x89PNG")
    assert "can't be written" in refused(menu, "shot", form="Form1", file="/nulle/part/menu.png")


def test_a_window_is_closed_by_its_frame(writing):
    writing.close(form="Form5")
    assert "Form5" not in writing.shown()
