"""Pictures during an examination: grabbed, looked at, printed, saved and archived."""

import os

import pytest
from pictures import Page, plain
from port import PortError

COLORS = [
    (200, 30, 30),
    (30, 160, 40),
    (40, 60, 200),
    (200, 160, 20),
    (150, 40, 170),
    (20, 160, 170),
    (230, 110, 40),
    (120, 130, 220),
    (90, 40, 20),
    (20, 60, 40),
    (250, 180, 190),
    (180, 220, 120),
    (0, 0, 90),
]
NO_CARD = "Pas de connection à la carte video"
TO_ALBUM = "Voulez vous classer maintenant la photo dans l'album?"
PLACES = {
    2: (155, 115, [(25, 30), (25, 152)]),
    4: (95, 70, [(5, 70), (105, 70), (5, 155), (105, 155)]),
    6: (95, 70, [(5, 30), (105, 30), (5, 112), (105, 112), (5, 192), (105, 192)]),
    8: (80, 60, [(15, 25), (110, 25), (15, 87), (110, 87), (15, 149), (110, 149), (15, 211), (110, 211)]),
}


@pytest.fixture
def dossier(practice):
    practice.insert(table="OPTIONS", row={"NUMEROS": 19, "Texte": "Cabinet du Parc"})
    row = {"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie", "Civilitee": "Mme"}
    practice.insert(table="FICHEPATIENT", row=row)
    practice.open_dossier("DUPONT")
    return practice


@pytest.fixture
def wall(dossier):
    """The capture window, opened from the exam in writing."""
    dossier.click("Form4.Cmd1Ter")
    dossier.click("Form5.CmdPhotos")
    return dossier


def capture(port, *numbers):
    for number in numbers:
        image = plain(port.folder / f"source-{number}.png", COLORS[number - 1], 360, 288)
        port.camera(image=image)
        port.click("Form19.Command4")
        assert port.boxes == []


def picture(port, control):
    return port.get(control)["picture"]


def shown_marks(port):
    return [i for i in range(1, 13) if port.get(f"Form19.Image1({i})")["onscreen"]]


def color_of_file(path, width=360, height=288):
    """The colour of the first pixel of a bitmap of 24 bits a pixel."""
    content = path.read_bytes()
    assert content[:2] == b"BM"
    start = int.from_bytes(content[10:14], "little")
    assert int.from_bytes(content[18:22], "little") == width
    assert abs(int.from_bytes(content[22:26], "little", signed=True)) == height
    assert int.from_bytes(content[28:30], "little") == 24
    return tuple(reversed(content[start : start + 3]))


def size_of_jpeg(path):
    content = path.read_bytes()
    assert content[:3] == b"\xff\xd8\xff"
    frame = content.index(b"\xff\xc0")
    height, width = (int.from_bytes(content[frame + at : frame + at + 2], "big") for at in (5, 7))
    return width, height


def test_opens_on_the_patient_and_the_exam(wall):
    for control, text in {
        "TxtEntete": "Cabinet du Parc",
        "CmbCivilite": "Mme",
        "TxtNom": "DUPONT",
        "TxtPrenom": "Marie",
        "txtDatexam": "05/04/2002",
        "TxtNumEcho": wall.text("Form5.TxtNumEcho"),
    }.items():
        assert wall.text(f"Form19.{control}") == text, control
    assert wall.get("Form19.Option6")["checked"]
    assert not wall.get("Form19.Image3")["onscreen"]
    assert not wall.get("Form19.Command6")["onscreen"]


def test_opens_from_the_main_menu_and_without_a_dossier(practice):
    practice.start()
    practice.click("Form1.Command5")
    assert practice.boxes == []
    assert practice.text("Form19.TxtNom") == ""
    assert practice.text("Form19.txtDatexam") == "05/04/2002"


def test_opened_again_from_another_exam_it_takes_the_patient_and_keeps_the_wall(wall):
    capture(wall, 1)
    wall.set("Form19.TxtEntete", text="Cliniques du Parc")
    wall.click("Form5.CmdQuitter")
    wall.insert(table="FICHEPATIENT", row={"Numint": 3, "Nom": "MARTIN", "Prenom": "Anne"})
    wall.set("Form4.Text1", text="MARTIN")
    wall.click("Form4.Cmd1Ter")
    wall.click("Form5.CmdPhotos")
    assert wall.text("Form19.TxtNom") == "MARTIN"
    assert wall.text("Form19.TxtEntete") == "Cliniques du Parc"
    assert wall.text("Form19.TxtNumEcho") == wall.text("Form5.TxtNumEcho")
    assert picture(wall, "Form19.Image2(1)") == {"width": 360, "height": 288}


def test_a_gynaecology_exam_opens_it_with_its_number(dossier):
    dossier.click("Form4.CmdGyneco")
    dossier.set("Form16.TxtNumEcho", text="7")
    dossier.click("Form16.CmdPhotos")
    assert dossier.text("Form19.TxtNumEcho") == "7"
    assert dossier.text("Form19.TxtNom") == "DUPONT"


def test_without_a_card_each_capture_says_so(wall):
    wall.click("Form19.Command4")
    assert wall.said() == [NO_CARD]
    assert picture(wall, "Form19.Image2(1)") is None
    assert picture(wall, "Form19.ezVidCap1") is None
    capture(wall, 1)
    assert picture(wall, "Form19.Image2(1)") is None
    assert picture(wall, "Form19.Image2(2)") == {"width": 360, "height": 288}
    wall.camera(none=True)
    wall.click("Form19.Command4")
    assert wall.said() == [NO_CARD]


def test_the_key_f4_captures_from_any_field(wall):
    wall.camera(image=plain(wall.folder / "a.png", COLORS[0], 360, 288))
    for slot, control in enumerate(["TxtNom", "CmbCivilite", "Command1", "Image2(1)"], 1):
        wall.key(f"Form19.{control}", key="F4")
        assert wall.boxes == []
        assert picture(wall, f"Form19.Image2({slot})") == {"width": 360, "height": 288}
        assert picture(wall, f"Form19.Image2({slot + 1})") is None


def test_thirteen_captures(wall):
    capture(wall, *range(1, 13))
    wall.click("Form19.Image2(1)")
    files = {path.name: color_of_file(path) for path in wall.folder.glob("*.BMP")}
    assert sorted(files.values()) == sorted(COLORS[:12])
    capture(wall, 13)
    after = {path.name: color_of_file(path) for path in wall.folder.glob("*.BMP")}
    changed = [name for name in files if files[name] != after[name]]
    assert [files[name] for name in changed] == [COLORS[0]]
    assert after[changed[0]] == COLORS[12]
    assert shown_marks(wall) == [1]


@pytest.mark.parametrize("number", [2, 4, 6, 8])
def test_the_selection_stops_at_the_number_of_the_sheet(wall, number):
    capture(wall, *range(1, 11))
    wall.click(f"Form19.Option{number}")
    for slot in range(1, 11):
        wall.click(f"Form19.Image2({slot})")
        assert wall.boxes == []
    assert shown_marks(wall) == list(range(1, number + 1))
    wall.click("Form19.Command2")
    assert shown_marks(wall) == []


def test_an_empty_place_is_told_at_a_click_and_not_at_a_double_click(wall):
    wall.click("Form19.Image2(3)")
    assert wall.said() == ["Veuillez capturer une image avant de la selectionner."]
    wall.dblclick("Form19.Image2(3)")
    assert wall.boxes == []
    assert not wall.get("Form19.Image3")["onscreen"]


def test_a_double_click_shows_the_picture_and_doesnt_select_it(wall):
    capture(wall, 1, 2)
    wall.click("Form19.Image2(1)")
    wall.dblclick("Form19.Image2(2)")
    assert picture(wall, "Form19.Image3") == {"width": 360, "height": 288}
    assert wall.get("Form19.Command6")["onscreen"]
    with pytest.raises(PortError):
        wall.click("Form19.Image2(1)")
    wall.click("Form19.Command6")
    assert not wall.get("Form19.Image3")["onscreen"]
    assert picture(wall, "Form19.Image3") is None
    assert shown_marks(wall) == [1]


def test_a_picture_is_selected_enlarged_and_closed_by_the_keyboard(wall):
    capture(wall, 1, 2)
    wall.key("Form19.Image2(2)", key="Space")
    assert shown_marks(wall) == [2]
    for enter in ("Return", "Enter"):
        wall.key("Form19.Image2(2)", key=enter)
        assert wall.boxes == []
        assert picture(wall, "Form19.Image3") == {"width": 360, "height": 288}
        assert wall.get("Form19.Image3")["onscreen"]
        # The same key once more closes the view: it prints nothing, nor does it report that pictures lack.
        assert wall.focused()["control"] == "Form19.Command6"
        wall.key("Form19.Command6", key=enter)
        assert wall.boxes == []
        assert not wall.get("Form19.Image3")["onscreen"]
        assert wall.focused()["control"] == "Form19.Image2(2)"


def test_initialising_anew_goes_on_behind_the_last_place(wall):
    capture(wall, 1, 2)
    wall.click("Form19.Image2(1)")
    wall.click("Form19.Command3")
    assert shown_marks(wall) == []
    assert picture(wall, "Form19.Image2(1)") is None
    capture(wall, 3)
    assert picture(wall, "Form19.Image2(1)") is None
    assert picture(wall, "Form19.Image2(3)") is not None


def printed(port):
    pdf = port.folder / "planche.pdf"
    port.printer(file=str(pdf))
    port.click("Form19.Command1")
    assert port.boxes == []
    return Page(pdf)


def test_pictures_beyond_the_number_of_the_sheet_are_not_printed(wall):
    capture(wall, 1, 2, 3, 4)
    wall.click("Form19.Option4")
    for slot in (4, 2, 3, 1):
        wall.click(f"Form19.Image2({slot})")
    wall.click("Form19.Option2")
    page = printed(wall)
    assert page.rectangle(COLORS[3]) == pytest.approx((25, 30, 155, 115), abs=0.5)
    assert page.rectangle(COLORS[1]) == pytest.approx((25, 152, 155, 115), abs=0.5)
    assert page.rectangle(COLORS[2]) is None
    assert page.rectangle(COLORS[0]) is None


def test_the_text_of_a_sheet_flows_behind_its_pictures(wall):
    capture(wall, 1, 2)
    for slot in (1, 2, 1, 2, 1, 2):
        wall.click(f"Form19.Image2({slot})")
    # Six pictures begin at 30 mm; the patient's line and the date stand there too, at the left edge.
    wall.set("Form19.txtDatexam", text="M" * 20)
    page = printed(wall)
    assert page.is_all((6, 31, 93, 68), COLORS[0])
    assert not page.is_all((0, 0, 100, 29), (255, 255, 255))


@pytest.mark.parametrize("number", [2, 4, 6, 8])
def test_a_sheet_has_its_pictures_where_they_belong(wall, number):
    width, height, places = PLACES[number]
    capture(wall, *range(1, number + 1))
    wall.click(f"Form19.Option{number}")
    order = list(range(number, 0, -1))
    for slot in order:
        wall.click(f"Form19.Image2({slot})")
    page = printed(wall)
    for slot, (left, top) in zip(order, places):
        found = page.rectangle(COLORS[slot - 1])
        assert found == pytest.approx((left, top, width, height), abs=0.5), slot


def test_a_sheet_that_lacks_pictures_isnt_printed(wall):
    capture(wall, 1)
    wall.click("Form19.Image2(1)")
    pdf = wall.folder / "planche.pdf"
    wall.printer(file=str(pdf))
    for number in (2, 4, 6, 8):
        wall.click(f"Form19.Option{number}")
        wall.click("Form19.Command1")
        assert wall.said() == [f"Veuillez selectionner {number} clichés."]
    assert not pdf.exists()


def test_the_menu_asks_for_the_printer(wall):
    capture(wall, 1, 2)
    wall.click("Form19.Option2")
    wall.click("Form19.Image2(1)")
    wall.click("Form19.Image2(2)")
    pdf = wall.folder / "planche.pdf"
    wall.printer(file=str(pdf))
    wall.answer(**{"with": ["cancel"]})
    wall.click("Form19.imprimer")
    assert [box["kind"] for box in wall.boxes] == ["print"]
    assert not pdf.exists()
    wall.answer(**{"with": ["ok"]})
    wall.click("Form19.imprimer")
    assert [box["kind"] for box in wall.boxes] == ["print"]
    assert Page(pdf).rectangle(COLORS[0]) == pytest.approx((25, 30, 155, 115), abs=0.5)


def in_full_size(port):
    capture(port, 1)
    port.dblclick("Form19.Image2(1)")


def choose(port, name, part):
    file = port.folder / "VIDEOTEK" / name
    file.parent.mkdir(exist_ok=True)
    port.answer(**{"with": [{"file": str(file), "filter": part}]})
    return file


def test_nothing_is_saved_without_a_picture_in_full_size(wall):
    capture(wall, 1)
    for control in ["Command5", "Archiver", "EnregBmp", "EnregJpg"]:
        wall.click(f"Form19.{control}")
        assert wall.said() == [
            "Pas d'image selectionnéee. Veuillez selectionner le cliché à archiver par double clic sur le coin de "
            "l'image désirée."
        ]


def test_archiving_proposes_the_name_in_the_folder_of_the_pictures(wall):
    in_full_size(wall)
    wall.set("Form19.txtDatexam", text="15/03/2002")
    wall.set("Form19.TxtNumEcho", text="12")
    wall.click("Form19.Command5")
    (box,) = wall.boxes
    assert (box["kind"], box["proposed"]) == ("save", "DUPO_Mar020315_12")
    assert box["filter"] == "Fichiers Jpeg (*.JPG)|*.jpg|Fichiers BMP (*.BMP)|*.bmp"
    assert box["folder"] == str(wall.folder / "VIDEOTEK")
    wall.set("Form19.TxtNumEcho", text="")
    wall.click("Form19.Archiver")
    assert wall.boxes[0]["proposed"] == "DUPO_Mar020315_0"
    assert "FrmCpr" not in wall.shown()


def test_archiving_as_a_bitmap_asks_about_the_album(wall):
    in_full_size(wall)
    file = choose(wall, "essai.bmp", 2)
    wall.click("Form19.Command5")
    question = wall.boxes[-1]
    assert [box["kind"] for box in wall.boxes] == ["save", "question"]
    assert (question["text"], question["title"]) == (TO_ALBUM, "Pelorine ")
    assert (question["icon"], question["default"]) == ("question", "no")
    assert color_of_file(file) == COLORS[0]
    assert "Form20" not in wall.shown()


def test_yes_opens_the_album_with_the_picture(wall):
    in_full_size(wall)
    file = choose(wall, "essai.bmp", 2)
    wall.answer(**{"with": ["yes"]})
    wall.click("Form19.Command5")
    assert "Form20" in wall.shown()
    assert picture(wall, "Form20.ImgCharge") == {"width": 360, "height": 288}
    assert wall.text("Form20.LblFilename") == "essai.bmp"
    assert wall.text("Form20.LblPath") == str(file)
    assert (wall.text("Form20.TxtNom"), wall.text("Form20.TxtPrenom")) == ("DUPONT", "Marie")
    assert wall.text("Form20.TxtDate") == "05/04/2002"
    assert wall.text("Form20.TxtNumEcho") == wall.text("Form19.TxtNumEcho")
    assert wall.get("Form20.Label18")["visible"]


def test_archiving_as_a_jpeg_goes_through_the_quality(wall):
    in_full_size(wall)
    file = choose(wall, "essai.jpg", 1)
    wall.click("Form19.Command5")
    assert "FrmCpr" in wall.shown()
    assert not file.exists()
    assert wall.get("FrmCpr.HScroll1") | {"value": 90, "min": 1, "max": 100} == wall.get("FrmCpr.HScroll1")
    wall.scroll("FrmCpr.HScroll1", value=30)
    assert wall.text("FrmCpr.TxtQuality") == "30"
    wall.set("FrmCpr.TxtQuality", text="75,5")
    assert wall.get("FrmCpr.HScroll1")["value"] == 30
    wall.click("FrmCpr.Command3")
    assert wall.said() == [TO_ALBUM]
    assert size_of_jpeg(file) == (360, 288)
    assert "FrmCpr" not in wall.shown()


def test_a_quality_that_is_no_number_is_ninety(wall):
    in_full_size(wall)
    contents = []
    for text in ("90", "haute"):
        file = choose(wall, f"{text}.jpg", 1)
        wall.click("Form19.Command5")
        wall.set("FrmCpr.TxtQuality", text=text)
        wall.click("FrmCpr.Command3")
        contents.append(file.read_bytes())
    assert contents[0] == contents[1]


def test_a_quality_beyond_a_hundred_is_an_error_and_leaves_the_old_file(wall):
    in_full_size(wall)
    file = choose(wall, "essai.jpg", 1)
    file.write_bytes(b"old")
    wall.click("Form19.Command5")
    wall.set("FrmCpr.TxtQuality", text="500")
    wall.click("FrmCpr.Command3")
    (box,) = wall.boxes
    assert (box["kind"], box["title"]) == ("error", "VERANOX")
    assert box["text"].startswith("Erreur d'exécution '26001' :")
    assert "Failed to save to JPG -1" in box["text"]
    assert file.read_bytes() == b"old"


def test_cancelling_the_quality_leaves_no_file(wall):
    in_full_size(wall)
    file = choose(wall, "essai.jpg", 1)
    wall.click("Form19.Command5")
    wall.click("FrmCpr.Command2")
    assert wall.boxes == []
    assert not file.exists()
    assert "FrmCpr" not in wall.shown()


def test_saving_under_a_name_in_both_formats(wall):
    in_full_size(wall)
    bitmap = choose(wall, "libre.bmp", 1)
    wall.click("Form19.EnregBmp")
    assert [box["kind"] for box in wall.boxes] == ["save", "message"]
    assert wall.boxes[0]["proposed"] == "DUPO_Mar"
    assert wall.boxes[0]["filter"] == "Fichiers BMP (*.BMP)|*.bmp"
    assert wall.boxes[1]["text"] == str(bitmap)
    assert color_of_file(bitmap) == COLORS[0]
    jpeg = choose(wall, "libre.jpg", 1)
    wall.click("Form19.EnregJpg")
    assert wall.boxes[0]["proposed"] == "DUPO_Mar"
    assert wall.boxes[0]["filter"] == "Fichiers JPG (*.JPG)|*.jpg"
    assert wall.boxes[1]["text"] == str(jpeg)
    wall.click("FrmCpr.Command3")
    assert wall.said() == [TO_ALBUM]
    assert size_of_jpeg(jpeg) == (360, 288)


def test_a_name_without_ending_gets_that_of_the_format(wall):
    in_full_size(wall)
    bitmap = choose(wall, "nom", 2)
    wall.click("Form19.Command5")
    assert color_of_file(bitmap.with_suffix(".bmp")) == COLORS[0]


def test_cancel_ends_each_dialog_quietly(wall):
    in_full_size(wall)
    for control in ["Command5", "Archiver", "EnregBmp", "EnregJpg", "OuvJpg", "imprimer"]:
        wall.answer(**{"with": ["cancel"]})
        if control == "imprimer":
            wall.click("Form19.Option2")
        wall.click(f"Form19.{control}")
        assert len(wall.boxes) == 1, control
        assert wall.boxes[0]["kind"] in ("open", "save", "print"), control
    assert "FrmCpr" not in wall.shown()


def test_replacing_a_jpeg_keeps_its_times(wall):
    in_full_size(wall)
    file = choose(wall, "ancien.jpg", 1)
    file.write_bytes(b"old")
    os.utime(file, (1016200000, 1016203600))
    wall.click("Form19.Command5")
    wall.click("FrmCpr.Command3")
    assert size_of_jpeg(file) == (360, 288)
    facts = file.stat()
    assert facts.st_mtime == 1016203600


def test_a_picture_file_opens_in_full_size_and_another_file_is_told(wall):
    in_full_size(wall)
    file = choose(wall, "essai.bmp", 2)
    wall.click("Form19.Command5")
    wall.click("Form19.Command6")
    wall.answer(**{"with": [{"file": str(file)}]})
    wall.click("Form19.OuvJpg")
    assert picture(wall, "Form19.Image3") == {"width": 360, "height": 288}
    wall.click("Form19.Command6")
    bad = wall.folder / "faux.jpg"
    bad.write_bytes(b"no picture at all")
    wall.answer(**{"with": [{"file": str(bad)}]})
    wall.click("Form19.OuvJpg")
    assert wall.boxes[0]["filter"] == "Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO"
    assert wall.boxes[1]["text"] == f"Fichier non chargé '{bad}'"
    assert wall.boxes[1]["icon"] == "information"
    assert wall.get("Form19.Image3")["onscreen"] and wall.get("Form19.Command6")["onscreen"]
    assert picture(wall, "Form19.Image3") is None


@pytest.mark.parametrize("close", ["menu", "frame"])
def test_closing_writes_the_heading(wall, close):
    capture(wall, 1)
    wall.set("Form19.TxtEntete", text="Échographie du soir")
    wall.click("Form19.Qui") if close == "menu" else wall.close(form="Form19")
    assert "Form19" not in wall.shown()
    assert (wall.folder / "Entet.txt").read_text(encoding="utf-8").strip() == '"Échographie du soir"'
    wall.click("Form5.CmdPhotos")
    assert wall.text("Form19.TxtEntete") == "Cabinet du Parc"
    assert picture(wall, "Form19.Image2(1)") is None
    assert list(wall.folder.glob("*.BMP"))


def test_a_program_that_ends_with_the_window_open_leaves_the_camera(wall):
    capture(wall, 1)
    wall.start()
    wall.click("Form1.Command5")
    assert picture(wall, "Form19.Image2(1)") is None
    capture(wall, 2)
    assert picture(wall, "Form19.Image2(1)") == {"width": 360, "height": 288}
