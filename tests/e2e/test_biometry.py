"""The biometry of a later exam: its page, retrying measures, the recall of the pregnancy, the curves."""

import json
import subprocess

import pytest
from port import Port, PortError

# 140 days after the start: week 22.
EXAM = {
    "Numero": 2,
    "NUMECHO": 1,
    "TYPECHO": "2",
    "DATEXAM": "21/05/2002",
    "DGUS": "01/01/2002",
    "AGESTA": "22",
    "NBRE": "1",
    "Bip": "53",
    "Cc": "196",
    "Dat": "52",
    "Ca": "173",
    "Fem": "38",
    "Pied": "38",
    "Hum": "35",
    "CERV": "23",
    "DIO": "24",
    "Bip2": "47",
    "CA2": "160",
    "FEM2": "33",
    "Bip3": "60",
    "CA3": "190",
    "FEM3": "44",
}
FIELDS = ["Bip", "Cc", "Dat", "Ca", "Fem", "Pied", "Hum", "Cer", "Orb"]
MEDIANS = ["CBip", "CCc", "CDat", "CCa", "CFem", "CPied", "CHum", "CCer"]


def view(port, *exams):
    """Shows the last of these exams of DUPONT Marie."""
    port.practice()
    port.insert(table="FICHEPATIENT", row={"Numint": 2, "Nom": "DUPONT", "Prenom": "Marie", "CIVILITEE": "Madame"})
    for exam in exams:
        port.insert(table="1TER", row=exam)
    port.open_dossier()
    port.click("Form4.HlbCptDer")


def biometry(port, *exams):
    view(port, *(exams or [EXAM]))
    port.click("Form10.CmdBiometrie")


def texts(port, names):
    return [port.text(f"Form12.{name}") for name in names]


def title(port, name):
    return next(form["title"] for form in port.forms()["forms"] if form["name"] == name)


def place(port, control):
    seen = port.get(control)
    return seen["left"], seen["top"]


def test_the_page_of_a_lone_fetus(port):
    biometry(port)
    assert port.boxes == []
    assert title(port, "Form12") == "Madame  DUPONT  Marie"
    assert texts(port, ["LblDGUS", "LblAgeGesta", "LblDatExam", "LblFoetus"]) == [
        "01/01/2002",
        "22",
        "21/05/2002",
        "Foetus ",
    ]
    assert texts(port, ["LblBip", "LblCBip", "LblCHum", "LblOrb", "LblCOrb"]) == [
        "53",
        "50 ème Percentile",
        "50 ème Percentile",
        "24",
        "",
    ]
    assert texts(port, ["LblPiedFem", "LblDioBip", "LblPoids", "LblPoidsTheo"]) == ["1,00", "0,45", "441 g", "441 g"]
    assert port.text("Form12.TxtEspion") == "0"
    assert not port.get("Form12.TxtEspion")["onscreen"]
    assert "back" not in port.get("Form12.Frame2")


@pytest.mark.parametrize("fetus, bip, word", [(1, "53", "50"), (2, "47", "< 3"), (3, "60", "> 97")])
def test_the_page_of_the_fetus_in_view(port, fetus, bip, word):
    view(port, {**EXAM, "NBRE": "3"})
    port.click(f"Form10.CmdJ{fetus}")
    port.click("Form10.CmdBiometrie")
    assert port.text("Form12.LblBip") == bip
    assert port.text("Form12.LblCBip") == f"{word} ème Percentile"
    assert port.text("Form12.LblFoetus") == f"G. Multiple Foetus N°{fetus}"
    assert port.text("Form12.TxtEspion") == str(fetus)
    assert port.get("Form12.Frame2")["back"] == "#c0ffff"


def test_the_menu_shows_it_too_and_always_the_fetus_in_view(port):
    view(port, {**EXAM, "NBRE": "2"})
    port.click("Form10.Biometrie")
    assert port.text("Form12.Bip") == "53"
    port.click("Form10.CmdJ2")
    port.click("Form10.Biometrie")
    assert port.text("Form12.Bip") == "47"


def test_each_step_of_a_changed_week(port):
    biometry(port)
    assert not port.get("Form12.SAF3")["onscreen"]
    port.click("Form12.ReCalculer")
    port.click("Form12.Command2")
    assert port.text("Form12.Poids") == "441 g"
    port.set("Form12.SAF3", text="30")
    assert texts(port, FIELDS) == [""] * 9
    assert texts(port, MEDIANS) == ["76", "271", "76", "255", "57", "58", "51", "36"]
    assert texts(port, ["LabelBip", "LabelCer", "Label22", "Poids"]) == ["", "", "1408 g", ""]
    bars = ["BipScroll", "OrbScroll", "CCScroll", "DatScroll", "CAScroll", "FemurScroll", "PiedScroll", "HumScroll"]
    assert [port.get(f"Form12.{bar}")["value"] for bar in bars] == [76, 36, 271, 76, 255, 57, 58, 51]
    assert texts(port, ["LblAgeGesta", "LblBip", "LblPoids"]) == ["22", "53", "441 g"]
    port.set("Form12.SAF3", text="14")
    assert texts(port, MEDIANS) == ["28", "", "24", "", "13", "14", "14", ""]
    assert port.get("Form12.CCScroll")["value"] == 271
    assert port.text("Form12.Label22") == ""
    port.set("Form12.SAF3", text="12")
    assert texts(port, MEDIANS) == [""] * 8
    port.set("Form12.SAF3", text="41")
    assert texts(port, ["CPied", "CCer", "Label22"]) == ["", "", "3342 g"]
    port.set("Form12.SAF3", text="")
    assert texts(port, MEDIANS) == [""] * 8
    assert port.text("Form12.Label22") == "3342 g"


def test_the_week_is_typed_in_digits_and_scrolled(port):
    biometry(port)
    port.click("Form12.ReCalculer")
    port.set("Form12.SAF3", text="")
    port.type("Form12.SAF3", text="2a,6")
    assert port.text("Form12.SAF3") == "26"
    bar = port.get("Form12.SaScroll")
    assert (bar["min"], bar["max"], bar["value"]) == (13, 41, 22)
    port.scroll("Form12.SaScroll", value=31)
    assert texts(port, ["SAF3", "CBip"]) == ["31", "79"]


def test_retrying_measures(port):
    biometry(port)
    port.click("Form12.ReCalculer")
    port.set("Form12.Bip", text="47")
    label = port.get("Form12.LabelBip")
    assert (label["text"], label["color"], label["size"]) == ("< 3 ème Percentile", "#ff0000", 10)
    port.scroll("Form12.BipScroll", value=60)
    label = port.get("Form12.LabelBip")
    assert (port.text("Form12.Bip"), label["text"], label["color"], label["size"]) == (
        "60",
        "> 97 ème Percentile",
        "#0000ff",
        8,
    )
    port.click("Form12.Command1")
    assert texts(port, ["FemPied", "DioBip"]) == ["1,00", "0,40"]
    port.set("Form12.Hum", text="36")
    assert texts(port, ["FemPied", "DioBip"]) == ["1,00", "0,40"]
    port.set("Form12.Dat", text="53")
    assert texts(port, ["FemPied", "DioBip"]) == ["", ""]
    port.set("Form12.Orb", text="")
    port.click("Form12.Command1")
    assert port.said() == ["Veuillez saisir une valeur pour Pied, Fémur, Orbites et Bip"]
    port.set("Form12.Cc", text="")
    port.click("Form12.Command2")
    assert port.said() == ["Veuillez saisir une valeur pour Circonf. céphalique, Circonf. abdominale et Fémur."]
    assert texts(port, ["LblBip", "LblCBip"]) == ["53", "50 ème Percentile"]
    port.click("Form12.CmdQuitter")
    assert not port.get("Form12.Frame8")["onscreen"]
    assert "Form12" in port.shown()


def test_a_femur_of_zero_is_an_error_of_the_ratios(port):
    biometry(port, {**EXAM, "Fem": "0"})
    assert port.text("Form12.LblPiedFem") == " "
    port.click("Form12.ReCalculer")
    port.click("Form12.Command1")
    assert [box["kind"] for box in port.boxes] == ["error"]
    assert "'11'" in port.said()[0]
    assert port.text("Form12.FemPied") == ""


def test_an_exam_without_a_start_keeps_its_measures_and_its_weight(port):
    biometry(port, {**EXAM, "DGUS": None})
    assert texts(port, ["SAF3", "Bip", "LblCBip", "LblPoids", "LblPoidsTheo"]) == ["", "53", "", "441 g", ""]
    assert not port.get("Form12.ShPtBip")["visible"]


def test_the_present_point_stops_at_the_top_of_its_chart(port):
    biometry(port)
    assert place(port, "Form12.ShPtBip") == pytest.approx((1297.1379, 6642.375))
    port.click("Form12.ReCalculer")
    port.set("Form12.Bip", text="120")
    assert port.get("Form12.ShPtBip")["onscreen"]
    assert place(port, "Form12.ShPtBip") == pytest.approx((1297.1379, 4155))
    port.set("Form12.Bip", text="121")
    assert not port.get("Form12.ShPtBip")["visible"]


def test_the_recall_of_eight_exams_places_six(port):
    exams = [{**EXAM, "NUMECHO": i, "AGESTA": f"{20 + i},3", "Bip": str(50 + i)} for i in range(1, 9)]
    biometry(port, *exams)
    port.click("Form12.Rappel")
    assert port.items("Form12.ListNumecho") == ["1", "2", "3", "4", "5", "6", "7", "8"]
    assert port.items("Form12.ListDate") == ["21/05/2002"] * 8
    assert port.items("Form12.ListSA")[0] == "21,3"
    assert port.items("Form12.ListBip") == ["51", "52", "53", "54", "55", "56", "57", "58"]
    assert len(port.items("Form12.ListCa")) == len(port.items("Form12.ListFem")) == 8
    points = [port.get(f"Form12.PtBip({i})") for i in range(6)]
    assert all(point["onscreen"] for point in points)
    # 22,3 counts as 22.3 weeks: 138 + 9.3 x 3735 / 29.
    assert (points[1]["left"], points[1]["top"]) == pytest.approx((1335.7759, 6679.5))
    assert not port.get("Form12.ShPtBip")["visible"]
    with pytest.raises(PortError):
        port.get("Form12.PtBip(6)")
    port.click("Form12.Command3")
    assert not port.get("Form12.Frame10")["onscreen"]
    assert port.get("Form12.PtBip(0)")["onscreen"]


def test_the_recall_takes_this_pregnancy_and_this_fetus(port):
    earlier = {**EXAM, "NUMECHO": 1, "DGUS": "02/02/2000"}
    twin = {**EXAM, "NUMECHO": 2, "NBRE": "2"}
    view(port, earlier, twin)
    port.click("Form10.CmdJ2")
    port.click("Form10.CmdBiometrie")
    port.click("Form12.Rappel")
    assert port.items("Form12.ListNumecho") == ["2"]
    assert port.items("Form12.ListBip") + port.items("Form12.ListCa") + port.items("Form12.ListFem") == [
        "47",
        "160",
        "33",
    ]


def test_leaving_brings_the_viewing_window_back_to_its_exam(port):
    biometry(port, *[{**EXAM, "NUMECHO": i} for i in (1, 2, 3)])
    port.click("Form12.Rappel")
    port.click("Form12.Quitter")
    assert "Form12" not in port.shown()
    port.click("Form10.CmdRec")
    assert port.text("Form10.LblNumEcho") == "2"
    port.click("Form10.CmdBiometrie")
    port.click("Form12.Courbe")
    port.close(form="Form12")
    assert not {"Form12", "Form13"} & port.shown()
    port.click("Form10.CmdAv")
    assert port.text("Form10.LblNumEcho") == "3"


def test_stepping_to_another_exam_closes_biometry_and_curves(port):
    biometry(port, *[{**EXAM, "NUMECHO": i} for i in (1, 2)])
    port.click("Form12.Courbe")
    port.click("Form10.CmdRec")
    assert not {"Form12", "Form13"} & port.shown()
    assert port.text("Form10.LblNumEcho") == "1"


def test_the_curves_follow_the_calculator(port):
    biometry(port)
    port.click("Form12.Courbe")
    assert port.get("Form13.Label3")["onscreen"]
    assert not port.get("Form13.BipCourbe")["visible"]
    port.click("Form13.CommandBip")
    assert title(port, "Form13") == "Diamètre Bipariétal"
    assert port.get("Form13.BipCourbe")["onscreen"]
    assert port.text("Form13.Centile") == "50 ème Percentile"
    # 1855 + 9 x 6880 / 29 and 6195 - 53 x 4990 / 120
    assert place(port, "Form13.Croix") == pytest.approx((3990.1724, 3991.0833))
    assert port.text("Form13.Ordonnee") == "53"
    assert port.text("Form13.Abscisse") == "22 Sem. A."
    echo = port.get("Form13.Echo")
    assert (echo["left"], echo["top"], echo["onscreen"]) == (6000, 4000, True)
    assert echo["picture"]["width"] > echo["picture"]["height"] > 0
    port.click("Form12.ReCalculer")
    port.set("Form12.Bip", text="120")
    port.click("Form13.CommandBip")
    assert place(port, "Form13.Croix") == pytest.approx((3990.1724, 1205))
    port.set("Form12.Ca", text="")
    port.click("Form13.CommandCa")
    assert not port.get("Form13.BipCourbe")["visible"]
    assert port.get("Form13.CaCourbe")["onscreen"]
    for control in ["Croix", "Ordonnee", "Centile"]:
        assert not port.get(f"Form13.{control}")["visible"], control
    port.click("Form13.CommandTib")
    assert port.get("Form13.CaCourbe")["onscreen"]
    port.click("Form13.Command1")
    assert "Form13" not in port.shown()
    assert "Form12" in port.shown()


@pytest.fixture
def small_screen(tmp_path):
    """A program on a screen of 1366 by 768 pixels."""
    screen = {"name": "small", "x": 0, "y": 0, "width": 1366, "height": 768, "logicalDpi": 96, "logicalBaseDpi": 96}
    config = tmp_path / "screens.json"
    config.write_text(json.dumps({"screens": [screen | {"dpr": 1}]}), encoding="utf-8")
    driven = Port(tmp_path, platform=f"offscreen:configfile={config}")
    yield driven
    assert driven.end() == 0


def test_the_curves_come_up_in_the_middle_of_the_screen(small_screen):
    biometry(small_screen)
    small_screen.click("Form12.Courbe")
    form = next(form for form in small_screen.forms()["forms"] if form["name"] == "Form13")
    assert form["width"] < 1366 and form["height"] < 768
    # What is told of a window lies inside its frame, two pixels wide on this platform.
    assert form["left"] == pytest.approx((1366 - form["width"]) / 2, abs=2)
    assert form["top"] == pytest.approx((768 - form["height"]) / 2, abs=2)


def test_a_start_with_a_quotation_mark_is_an_error_of_the_recall(port):
    biometry(port, {**EXAM, "DGUS": "01/01/20'02"})
    port.click("Form12.Rappel")
    assert [box["kind"] for box in port.boxes] == ["error"]
    assert port.items("Form12.ListDate") == []
    assert not port.get("Form12.PtBip(0)")["visible"]
    port.click("Form12.Quitter")
    assert port.boxes == []
    assert port.text("Form10.LblNumEcho") == "1"


def printed(pdf):
    return subprocess.run(["pdftotext", "-layout", str(pdf), "-"], capture_output=True, text=True, check=True).stdout


def test_the_page_is_printed_as_it_stands(port, tmp_path):
    pdf = tmp_path / "biometrie.pdf"
    biometry(port)
    port.printer(file=str(pdf))
    port.answer(**{"with": ["ok"]})
    port.click("Form12.Imprime")
    assert [box["kind"] for box in port.boxes] == ["print"]
    text = printed(pdf)
    assert "Madame DUPONT Marie" in " ".join(text.split())
    assert "441 g" in text
    assert "Circonférence Abdominale" in text
    assert "Re-Calculer" not in text
    port.click("Form12.ReCalculer")
    port.set("Form12.Bip", text="60")
    port.click("Form12.Rappel")
    port.answer(**{"with": ["ok"]})
    port.click("Form12.Imprime")
    text = printed(pdf)
    assert "> 97 ème Percentile" in text
    assert any(line.split() == ["Mesure", "50", "ème", "Percentile"] for line in text.splitlines())
    assert any(line.split()[2:] == ["60", "mm", "53", "mm", ">", "97", "ème", "Percentile"] for line in text.splitlines())
    assert "Rappel" in text
    assert text.count("\f") == 1


def test_a_recall_longer_than_the_sheet_is_printed_whole(port, tmp_path):
    pdf = tmp_path / "biometrie.pdf"
    exams = [{**EXAM, "NUMECHO": i, "Bip": str(50 + i)} for i in range(1, 31)]
    biometry(port, *exams)
    port.click("Form12.Rappel")
    port.printer(file=str(pdf))
    port.answer(**{"with": ["ok"]})
    port.click("Form12.Imprime")
    sheets = printed(pdf).split("\f")[:-1]
    assert len(sheets) == 2
    rows = [[line.split()[1] for line in sheet.splitlines() if line.startswith("21/05/2002")] for sheet in sheets]
    assert rows == [[str(i) for i in range(1, 25)], [str(i) for i in range(25, 31)]]
    assert all("DUPONT" in sheet and "Rappel" in sheet for sheet in sheets)


def test_a_cancelled_print_says_nothing(port, tmp_path):
    pdf = tmp_path / "biometrie.pdf"
    biometry(port)
    port.printer(file=str(pdf))
    port.answer(**{"with": ["cancel"]})
    port.click("Form12.Imprime")
    assert [box["kind"] for box in port.boxes] == ["print"]
    assert not pdf.exists()
    assert "Form12" in port.shown()
