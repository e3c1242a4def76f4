"""Classing pictures, finding them again, and printing them on a sheet."""

import subprocess

import pictures
import pytest
from bitmaps import plain

NOT_CLASSED = "Erreur de manipulation, Fichier dèjà saisi ou sans nom!"
NOTHING_FOUND = "Pas de cliché trouvé"
LOST = "Ce cliché a été déclassé, Voulez supprimer ce classement ?"
HUES = [(200, 30, 30), (30, 200, 30), (30, 30, 200), (200, 200, 30), (30, 200, 200), (200, 30, 200), (90, 90, 90)]


@pytest.fixture
def album(practice):
    """The album over the main menu, with its four lists of words filled."""
    for number, words in enumerate([["Normal", "Kyste de l'ovaire"], ["Face", "Ovaire"], ["Profil"], ["Courrier"]]):
        for text in words:
            practice.insert(table="CLEFS", row={"NUMCRIT": number, "CRIT": text})
    practice.start()
    practice.click("Form1.Command6")
    assert practice.shown() == {"Form1", "Form20"}
    return practice


def class_records(port, count):
    """So many pictures, each with a file of its own and a value in every field."""
    for i in range(1, count + 1):
        path = plain(port.folder / "VIDEOTEK" / f"p{i}.bmp", HUES[i % len(HUES)])
        port.insert(
            table="ECHOS",
            row={
                "Nom": "MARTIN", "Prenom": "Anne", "DATEXAM": "02/05/2002", "NOMFICH": f"p{i}.bmp", "NOMPATH": path,
                "Typexam": "1", "DIAGNO": "Normal", "CRIT1": "Face", "CRIT2": "Profil", "CRIT3": "Courrier",
            },
        )


def stored(port):
    return port.rows(table="ECHOS")["rows"]


def open_file(port, path):
    port.answer(**{"with": [{"file": str(path)}]})
    port.click("Form20.CmdOuvrir")


def wall(port):
    """The names of the files whose pictures are on the wall, in order."""
    places = [(port.get(f"Form20.Image1({i})")["picture"], port.text(f"Form20.TxtPath({i})")) for i in range(20)]
    return [path.rsplit("/", 1)[-1] for picture, path in places if picture]


def found(port):
    return [line.split()[0] for line in port.items("Form20.ListNom")]


def test_a_file_is_classed_with_all_its_values(album):
    path = plain(album.folder / "kyste.bmp")
    open_file(album, path)
    assert [box["kind"] for box in album.boxes] == ["open"]
    assert album.boxes[0]["filter"] == "Images (*.BMP;*.JPG;*.ICO)|*.BMP;*.JPG;*.ICO"
    assert album.get("Form20.ImgCharge")["picture"] == {"width": 64, "height": 48}
    assert album.text("Form20.TxtDate") == "05/04/2002"
    assert album.get("Form20.Label18")["onscreen"]
    album.type("Form20.TxtNom", text="D'ALMEIDA")
    album.type("Form20.TxtPrenom", text="Inès")
    album.click("Form20.Option4")
    album.choose("Form20.CmbDiagno", text="Kyste de l'ovaire")
    album.choose("Form20.CmbCrit1", text="Ovaire")
    album.choose("Form20.CmbCrit2", text="Profil")
    album.type("Form20.CmbCrit3", text="À revoir")
    album.click("Form20.CmdAjouter")
    assert album.boxes == []
    [row] = stored(album)
    assert {k: row[k] for k in row if k != "Numint"} == {
        "Nom": "D'ALMEIDA", "Prenom": "Inès", "DATEXAM": "05/04/2002", "NOMFICH": "kyste.bmp", "NOMPATH": path,
        "Typexam": "4", "DIAGNO": "Kyste de l'ovaire", "CRIT1": "Ovaire", "CRIT2": "Profil", "CRIT3": "À revoir",
        "NUMECHO": None,
    }
    assert album.get("Form20.ImgCharge")["picture"] is None
    assert album.text("Form20.Label5") == "OK Cliché Classé"
    assert album.get("Form20.Label5")["onscreen"]
    assert not album.get("Form20.Label18")["onscreen"]


def test_the_same_file_is_not_classed_twice(album):
    path = plain(album.folder / "kyste.bmp")
    for _ in range(2):
        open_file(album, path)
        album.click("Form20.CmdAjouter")
    assert album.said() == [NOT_CLASSED]
    assert len(stored(album)) == 1


def test_a_picture_is_found_by_each_field(album):
    class_records(album, 1)
    path = plain(album.folder / "kyste.bmp")
    open_file(album, path)
    values = {"TxtNom": "D'ALMEIDA", "TxtDate": "12/03/2001", "CmbDiagno": "Kyste", "CmbCrit1": "Ovaire",
              "CmbCrit2": "Axiale", "CmbCrit3": "À revoir"}
    for control, value in values.items():
        album.set("Form20." + control, text=value)
    album.click("Form20.Option4")
    album.click("Form20.CmdAjouter")
    for control, value in [
        ("TxtRechNom", "almeida"), ("TxtRechDate", "03/2001"), ("CmbRechDiag", "kys"), ("CmbRechCrit1", "ovaire"),
        ("CmbRechCrit2", "Axiale"), ("CmbRechCrit3", "revoir"),
    ]:
        album.set("Form20." + control, text=value)
        album.click("Form20.Command1")
        assert found(album) == ["2"], control
        album.set("Form20." + control, text="")
    album.click("Form20.Option8")
    album.click("Form20.Command1")
    assert found(album) == ["2"]
    album.click("Form20.Option9")
    album.click("Form20.Command1")
    assert found(album) == ["1", "2"]
    assert album.boxes == []
    album.set("Form20.TxtRechNom", text="NEMO")
    album.click("Form20.Command1")
    assert album.said() == [NOTHING_FOUND]
    assert not album.get("Form20.CmdAffiche")["onscreen"]


def test_twenty_five_results_fill_the_wall_in_three_clicks(album):
    class_records(album, 25)
    album.click("Form20.Command1")
    names = [f"p{i}.bmp" for i in range(1, 26)]
    album.click("Form20.CmdAffiche")
    assert wall(album) == names[:20]
    album.click("Form20.CmdAffiche")
    assert wall(album) == names[20:]
    album.click("Form20.CmdAffiche")
    assert wall(album) == names[:20]


def test_a_picture_opens_large_by_three_ways(album):
    class_records(album, 3)
    album.click("Form20.Command1")
    album.click("Form20.CmdAffiche")
    ways = [
        lambda: album.dblclick("Form20.Image1(1)"),
        lambda: album.dblclick("Form20.List4", row=1),
        lambda: album.key("Form20.List4", key="Return"),
        lambda: album.click("Form20.ListNom", row=1),
        lambda: album.key("Form20.ListNom", key="Return"),
    ]
    for way in ways:
        way()
        assert album.boxes == []
        assert album.text("Form20.LblFilename") == "p2.bmp"
        assert album.get("Form20.Image2")["onscreen"]
        assert album.get("Form20.Image2")["picture"] == {"width": 64, "height": 48}
        assert not album.get("Form20.Image1(0)")["onscreen"]
        album.click("Form20.CmdFermer")
        assert not album.get("Form20.Image2")["onscreen"]
        assert album.get("Form20.Image1(0)")["onscreen"]


def test_a_picture_of_the_wall_opens_and_closes_by_the_keyboard(album):
    class_records(album, 25)
    album.click("Form20.Command1")
    album.click("Form20.CmdAffiche")
    album.key("Form20.Image1(1)", key="Return")
    assert album.text("Form20.LblFilename") == "p2.bmp"
    assert album.get("Form20.Image2")["onscreen"]
    # The same key once more closes it: it doesn't turn the page behind it.
    assert album.focused()["control"] == "Form20.CmdFermer"
    album.key("Form20.CmdFermer", key="Return")
    assert not album.get("Form20.Image2")["onscreen"]
    assert album.focused()["control"] == "Form20.Image1(1)"
    assert wall(album)[0] == "p1.bmp"


def test_a_deleted_file_leaves_its_place_and_then_the_album(album):
    class_records(album, 3)
    (album.folder / "VIDEOTEK" / "p2.bmp").unlink()
    album.click("Form20.Command1")
    album.click("Form20.CmdAffiche")
    assert album.boxes == []
    assert wall(album) == ["p1.bmp", "p3.bmp"]
    album.click("Form20.ListNom", row=1)
    assert [(b["kind"], b["title"], b["text"]) for b in album.boxes] == [("question", "Attention", LOST)]
    assert len(stored(album)) == 3
    album.answer(**{"with": ["yes"]})
    album.dblclick("Form20.List4", row=1)
    assert album.said() == [LOST]
    assert [row["NOMFICH"] for row in stored(album)] == ["p1.bmp", "p3.bmp"]


def test_a_click_in_a_sorted_list_ends_in_the_question(album):
    class_records(album, 3)
    album.set("Form20.TxtRechNom", text="MARTIN")
    album.click("Form20.TriNom")
    assert album.items("Form20.ListNom") == ["MARTIN  Anne  02/05/2002"] * 3
    album.answer(**{"with": ["yes"]})
    album.click("Form20.ListNom", row=2)
    assert album.said() == [LOST]
    assert [row["NOMFICH"] for row in stored(album)] == ["p2.bmp", "p3.bmp"]


def test_a_name_with_an_apostrophe_breaks_its_search_and_no_other(album):
    class_records(album, 1)
    album.click("Form20.Command1")
    assert found(album) == ["1"]
    album.set("Form20.TxtRechNom", text="D'ALMEIDA")
    album.click("Form20.Command1")
    assert [box["kind"] for box in album.boxes] == ["error"]
    assert found(album) == []
    album.set("Form20.TxtRechNom", text="D*ALMEIDA")
    album.click("Form20.Command1")
    assert album.said() == [NOTHING_FOUND]


def test_a_word_is_added_by_a_double_click_and_removed_by_the_menu(album):
    album.set("Form20.CmbDiagno", text="Fibrome")
    album.answer(**{"with": ["yes"]})
    album.dblclick("Form20.CmbDiagno")
    assert album.said() == ["Voulez vous vraiment ajouter Fibrome comme critère diagnostique ?"]
    assert (album.boxes[0]["icon"], album.boxes[0]["title"]) == ("question", "Attention")
    assert album.items("Form20.CmbRechDiag") == ["Normal", "Kyste de l'ovaire"]
    album.close(form="Form20")
    album.click("Form1.Command6")
    assert album.items("Form20.CmbRechDiag") == ["Normal", "Kyste de l'ovaire", "Fibrome"]
    album.choose("Form20.CmbRechDiag", text="Fibrome")
    album.answer(**{"with": ["yes"]})
    album.click("Form20.SDiagno")
    assert album.said() == ["Voulez vous vraiment supprimer Fibrome comme critère diagnostique ?"]
    assert (album.boxes[0]["icon"], album.boxes[0]["title"]) == ("question", "Attention")
    assert album.items("Form20.CmbDiagno") == ["Normal", "Kyste de l'ovaire"]


def test_the_album_without_a_base_says_so(practice):
    practice.setting(key="CHEMINS", value="")
    practice.start()
    practice.click("Form1.Command6")
    assert [box["text"][:45] for box in practice.boxes] == ["La base de données 'ECHOTEK.MDB' est introuva"]
    assert practice.items("Form20.CmbDiagno") == []


def put_on_sheet(port, count):
    for row in range(count):
        port.click("Form20.ListNom", row=row)
        port.click("Form20.CmdImpr")
        assert port.boxes == []


def sheet(port):
    return [port.get(f"Form20.ImgImp({i})")["picture"] is not None for i in range(1, 7)]


def test_six_pictures_are_printed_on_a_sheet(album, tmp_path):
    pdf = tmp_path / "sheet.pdf"
    album.printer(file=str(pdf))
    class_records(album, 6)
    album.click("Form20.Command1")
    put_on_sheet(album, 6)
    assert sheet(album) == [True] * 6
    assert album.focused()["control"] == "Form20.TxtImp"
    place = album.get("Form20.ImgImp(6)")
    assert [place[k] for k in ["left", "top", "width", "height"]] == [1800, 3120, 1455, 1095]
    assert not album.get("Form20.CmdOuvrir")["onscreen"]
    album.type("Form20.TxtImp", text="Profil du fœtus")
    album.click("Form20.CmdImp")
    assert album.boxes == []
    printed = subprocess.run(["pdftotext", str(pdf), "-"], capture_output=True, text=True, check=True).stdout
    assert "MARTIN Anne" in printed
    assert "02/05/2002" in printed
    assert "MORVALT" in printed
    images = subprocess.run(["pdfimages", "-list", str(pdf)], capture_output=True, text=True, check=True).stdout
    assert [line.split()[3:5] for line in images.splitlines()[2:]] == [["64", "48"]] * 6
    assert sheet(album) == [True] * 6


def test_the_seventh_picture_throws_the_sheet_away(album):
    class_records(album, 7)
    album.click("Form20.Command1")
    put_on_sheet(album, 7)
    assert sheet(album) == [False] * 6
    album.click("Form20.CmdFerm")
    assert not album.get("Form20.TxtImp")["onscreen"]
    assert album.get("Form20.CmdOuvrir")["onscreen"]
    assert album.get("Form20.TxtNom")["onscreen"]


@pytest.mark.parametrize(
    "table, kind, last, photos",
    [
        ("1TER", "1", "Form4.HlbCptDer", "Form6.Command3"),
        ("1TER", "2", "Form4.HlbCptDer", "Form10.Command2"),
        ("GYNECO", None, "Form4.Command5", "Form18.Command1"),
    ],
)
def test_each_viewing_window_fills_the_search(practice, table, kind, last, photos):
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie"})
    row = {"Numero": 2, "NUMECHO": 3, "DATEXAM": "02/04/2002"} | ({"TYPECHO": kind} if kind else {})
    practice.insert(table=table, row=row)
    practice.start()
    practice.click("Form1.Command1")
    practice.set("Form4.Text1", text="DUPONT")
    practice.click(last)
    practice.click(photos)
    fields = ["TxtRechNom", "TxtRechDate", "TxtRechNumEcho"]
    assert [practice.text("Form20." + f) for f in fields] == ["DUPONT", "02/04/2002", "3"]
    assert practice.items("Form20.ListNom") == []


def test_a_capture_is_classed_and_found(practice):
    practice.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie"})
    practice.start()
    practice.click("Form1.Command1")
    practice.set("Form4.Text1", text="DUPONT")
    practice.click("Form4.Cmd1Ter")
    practice.click("Form5.CmdPhotos")
    practice.camera(image=pictures.plain(practice.folder / "source.png", (40, 60, 200), 360, 288))
    practice.click("Form19.Command4")
    practice.dblclick("Form19.Image2(1)")
    file = practice.folder / "VIDEOTEK" / "face.bmp"
    file.parent.mkdir(exist_ok=True)
    practice.answer(**{"with": [{"file": str(file), "filter": 2}, "yes"]})
    practice.click("Form19.Command5")
    assert practice.get("Form20.ImgCharge")["picture"] == {"width": 360, "height": 288}
    for box in ["CmbDiagno", "CmbCrit1", "CmbCrit2", "CmbCrit3"]:
        practice.set("Form20." + box, text="Face")
    practice.click("Form20.Option1")
    practice.click("Form20.CmdAjouter")
    assert practice.boxes == []
    [row] = stored(practice)
    assert [row[k] for k in ["Nom", "Prenom", "DATEXAM", "NOMFICH", "NOMPATH", "Typexam", "NUMECHO"]] == [
        "DUPONT", "Marie", "05/04/2002", "face.bmp", str(file), "1", None,
    ]
    practice.set("Form20.TxtRechNom", text="dupont")
    practice.click("Form20.Command1")
    practice.click("Form20.ListNom", row=0)
    assert practice.boxes == []
    assert practice.get("Form20.Image2")["picture"] == {"width": 360, "height": 288}
    assert practice.text("Form20.TxtNumEcho") == ""
