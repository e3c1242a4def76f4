#!/usr/bin/env python3
"""Renews the pictures of the manual: walks through the windows and keeps a small picture of each in help/images/.

Fails when a picture that a page shows was not made."""

import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "e2e"))
sys.path.insert(0, str(ROOT / "tools"))
from bitmaps import scan  # noqa: E402
from port import Port  # noqa: E402
from tour import Tour  # noqa: E402

HELP = ROOT / "help"
# Windows show paths: the practice of the pictures stands where one would.
PRACTICE = pathlib.Path("/srv/cabinet")
WIDTH = 740  # what a page of the help window shows without scrolling
HEAVIEST = 60 * 1024
COLOURS = [64, 48, 32, 16]  # tried in turn until the picture is light enough

# What the tour calls its pictures, and what the manual does.
OF_THE_TOUR = {
    "menu": "form1", "a-propos": "form14", "superviseur": "form22", "sauvegardes": "form21", "reponses": "form9",
    "dossier": "form4", "fiche-modifiee": "form3", "fiche-nouvelle": "form2", "examen-redaction": "form5",
    "examen": "form6", "examen-correction": "form7", "compte-rendu": "richet",
    "examen-tardif-redaction": "form8", "examen-tardif": "form10", "examen-tardif-correction": "form11",
    "biometrie": "form12", "courbe-bip": "form13",
    "gynecologie-redaction": "form16", "ovulation-redaction": "form16-ovulation", "gynecologie": "form18",
    "ovulation": "form18-ovulation", "gynecologie-correction": "form17", "album": "form20", "album-feuille": "form20-feuille",
}


def shown_by_pages():
    pages = "".join(page.read_text(encoding="utf-8") for page in HELP.glob("*.html"))
    return set(re.findall(r'src="images/([^"]+)\.png"', pages))


class Pictures(Tour):
    """The tour, once and in the light palette, with the windows that it passes by."""

    def __init__(self, out):
        PRACTICE.mkdir()  # fails where there is one: the tour removes its folder in the end
        super().__init__(out, "claire", str(PRACTICE))
        self.made = set()

    def picture(self, form, name):
        if name in OF_THE_TOUR:
            self.keep(form, OF_THE_TOUR[name])

    def keep(self, form, name, port=None):
        file = self.out / f"{name}.png"
        (port or self.port).shot(form=form, file=str(file))
        reduce(file, HELP / "images" / file.name)
        self.made.add(name)
        print(name)

    def greeting(self):
        """The window of one day in the year."""
        with tempfile.TemporaryDirectory() as folder:
            port = Port(folder, today="2002-04-16", platform="xcb", environment={"VERANOX_PALETTE": self.palette})
            port.start()
            self.keep("Form15", "form15", port)
            port.end()

    def captures(self):
        """The capture window with a camera that shows invented pictures, and the dialog of their quality."""
        self.port.set("Form4.Text1", text="MARTINEAU")
        self.port.click("Form4.Cmd1Ter")
        self.port.click("Form5.CmdPhotos")
        for number in range(1, 8):
            self.port.camera(image=scan(self.out / f"capture{number}.bmp", 2 * number))
            self.port.click("Form19.Command4")
        for number in [2, 3, 6]:
            self.port.click(f"Form19.Image2({number})")
        self.keep("Form19", "form19")
        self.port.dblclick("Form19.Image2(2)")
        self.port.answer(**{"with": [{"file": str(self.out / "MART_ANN020614_1.jpg")}]})
        self.port.click("Form19.Archiver")
        self.keep("FrmCpr", "frmcpr")
        self.port.click("FrmCpr.Command2")
        self.port.click("Form19.Qui")
        self.port.click("Form5.CmdQuitter")


def reduce(source, target):
    """A smaller picture of few colours, light enough for the help file."""
    target.parent.mkdir(exist_ok=True)
    for colours in COLOURS:
        subprocess.run(
            ["convert", str(source), "-strip", "-resize", f"{WIDTH}x>", "-dither", "None", "-colors", str(colours),
             "-define", "png:exclude-chunk=all", "-define", "png:compression-level=9", f"PNG8:{target}"],
            check=True,
        )
        if target.stat().st_size <= HEAVIEST:
            return
    raise SystemExit(f"{target} is heavier than {HEAVIEST} bytes")


def main():
    wanted = shown_by_pages()
    with tempfile.TemporaryDirectory() as folder:
        pictures = Pictures(pathlib.Path(folder))
        try:
            pictures.walk()
            pictures.captures()
            pictures.greeting()
        finally:
            pictures.end()
    missing = wanted - pictures.made
    if missing:
        raise SystemExit("no picture was made of: " + ", ".join(sorted(missing)))


if __name__ == "__main__":
    main()
