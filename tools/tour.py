#!/usr/bin/env python3
"""Walks through the program as a person would and keeps a picture of each window, light and dark."""

import pathlib
import shutil
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from bitmaps import scan  # noqa: E402
from port import PROGRAM, Port  # noqa: E402


class Tour:
    def __init__(self, out, palette, folder=None):
        self.out = out
        self.palette = palette
        self.folder = folder or tempfile.mkdtemp(prefix="veranox-tour-")
        self.port = Port(self.folder, today="2002-06-14", platform="xcb", environment={"VERANOX_PALETTE": palette})

    def picture(self, form, name):
        file = self.out / f"{name}-{self.palette}.png"
        self.port.shot(form=form, file=str(file))
        print(file)

    def walk(self):
        self.port.practice(patients=True)
        self.port.start()
        self.picture("Form1", "menu")
        self.about()
        self.help()
        self.upkeep()
        self.responses()
        self.album()
        self.dossier()

    def about(self):
        self.port.click("Form1.Command4")
        self.picture("Form14", "a-propos")
        self.port.click("Form14.Command1")

    def help(self):
        shutil.copy(PROGRAM.parent / "VERANOX.HLP", self.folder)
        self.port.click("Form1.CmdAide")
        self.picture("VERANOX.HLP", "aide")
        self.port.close(form="VERANOX.HLP")

    def upkeep(self):
        self.port.click("Form1.CmdSupervi")
        self.picture("Form22", "superviseur")
        self.port.click("Form22.Command3")
        self.port.click("Form1.CmdSauve")
        self.picture("Form21", "sauvegardes")
        self.port.click("Form21.Command1")

    def responses(self):
        self.port.click("Form1.Command2")
        self.port.click("Form9.CmdIndications")
        self.port.dblclick("Form9.List1", row=2)
        self.picture("Form9", "reponses")
        self.port.click("Form9.CmdQuitter")

    def album(self):
        patients = [("ROSSIGNOL", "Isabelle"), ("MARTINEAU", "Christelle"), ("LEFÈVRE", "Anne-Sophie")]
        for i in range(1, 18):
            path = scan(pathlib.Path(self.folder) / "VIDEOTEK" / f"cliche-{i:02}.bmp", i)
            surname, first_name = patients[i % len(patients)]
            row = {"Nom": surname, "Prenom": first_name, "DATEXAM": f"{i:02}/03/2002", "NOMFICH": path.rsplit("/")[-1],
                   "NOMPATH": path, "Typexam": "1", "DIAGNO": "Normal", "CRIT1": "Face", "CRIT2": "Profil",
                   "CRIT3": "Courrier"}
            self.port.insert(table="ECHOS", row=row)
        self.port.click("Form1.Command6")
        self.port.click("Form20.Command1")
        self.port.click("Form20.CmdAffiche")
        self.picture("Form20", "album")
        for row in range(5):
            self.port.click("Form20.ListNom", row=row)
            self.port.click("Form20.CmdImpr")
        self.port.type("Form20.TxtImp", text="Profils du mois de mars")
        self.picture("Form20", "album-feuille")
        self.port.close(form="Form20")

    def dossier(self):
        self.port.click("Form1.Command1")
        self.port.type("Form4.Text1", text="martineau")
        self.port.click("Form4.HlbCptDate")
        self.port.click("Form4.Command6")
        self.port.click("Form4.CmdATCD")
        self.picture("Form4", "dossier")
        self.sheets()
        self.exam()
        self.report()
        self.biometry()
        self.gynaecology()
        self.later_exam()

    def sheets(self):
        self.port.click("Form4.CmdModifie")
        self.picture("Form3", "fiche-modifiee")
        self.port.click("Form3.CmdAnnule")
        self.port.click("Form4.CmdCreeDossier")
        self.picture("Form2", "fiche-nouvelle")
        self.port.click("Form2.CmdAnule")

    def exam(self):
        self.port.set("Form4.Text1", text="MARTINEAU")
        self.port.set("Form4.Text2", text="CHRISTELLE")
        self.port.click("Form4.Cmd1Ter")
        self.port.set("Form5.Txt1Ter(2)", text="11/03/2002")
        self.port.type("Form5.Txt1Ter(15)", text="1")
        self.port.focus("Form5.Txt1Ter(7)")
        self.picture("Form5", "examen-redaction")
        self.capture()
        self.port.click("Form5.CmdQuitter")
        self.port.click("Form4.HlbCptDer")
        self.picture("Form6", "examen")
        self.port.click("Form6.CmdModifs")
        self.picture("Form7", "examen-correction")
        self.port.click("Form7.CmdQuitter")

    def capture(self):
        for i in range(1, 8):
            self.port.camera(image=scan(pathlib.Path(self.folder) / f"source-{i}.bmp", 3 * i))
            self.port.click("Form5.CmdPhotos") if i == 1 else None
            self.port.click("Form19.Command4")
        for slot in (2, 5, 6):
            self.port.click(f"Form19.Image2({slot})")
        self.picture("Form19", "cliches")
        self.port.dblclick("Form19.Image2(4)")
        self.picture("Form19", "cliche-en-grand")
        self.port.answer(**{"with": [{"file": str(pathlib.Path(self.folder) / "VIDEOTEK" / "cliche.jpg"), "filter": 1}]})
        self.port.click("Form19.Command5")
        self.picture("FrmCpr", "compression")
        self.port.click("FrmCpr.Command2")
        self.port.click("Form19.Qui")

    def report(self):
        self.port.printer(file=str(self.out / "compte-rendu.pdf"))
        self.port.click("Form6.Command1")
        self.picture("RicheT", "compte-rendu")
        self.port.click("RicheT.tbToolBar(Imprimer)")
        self.port.click("RicheT.tbToolBar(Quitter)")
        self.port.click("Form6.CmdQuitter")

    def biometry(self):
        self.port.set("Form4.Text1", text="MARTINEAU")
        self.port.set("Form4.Text2", text="ANNE")
        self.port.click("Form4.HlbCptDer")
        self.port.click("Form10.CmdBiometrie")
        self.picture("Form12", "biometrie")
        self.port.click("Form12.ReCalculer")
        self.port.click("Form12.Command1")
        self.port.click("Form12.Command2")
        self.port.click("Form12.Rappel")
        self.picture("Form12", "biometrie-rappel")
        self.port.click("Form12.Courbe")
        self.picture("Form13", "courbes")
        for button in ["Bip", "Cc", "Dat", "Ca", "Fem", "Lp", "Cerv"]:
            self.port.click(f"Form13.Command{button}")
            self.picture("Form13", f"courbe-{button.lower()}")
        self.port.click("Form12.Quitter")
        self.port.click("Form10.CmdQuitter")

    def gynaecology(self):
        self.port.type("Form4.Text1", text="rossignol")
        self.port.click("Form4.CmdGyneco")
        self.port.focus("Form16.TxtGyneco(6)")
        self.picture("Form16", "gynecologie-redaction")
        self.port.click("Form16.Command1")
        self.port.focus("Form16.TxtGyneco(30)")
        for size in ["17", "12"]:
            self.port.dblclick("Form16.List2", line=size)
        self.picture("Form16", "ovulation-redaction")
        self.port.click("Form16.CmdQuitter")
        self.port.click("Form4.Command5")
        self.picture("Form18", "gynecologie")
        self.port.click("Form18.CmdCptGyn")
        self.picture("RicheT", "gynecologie-compte-rendu")
        self.port.click("RicheT.tbToolBar(Quitter)")
        self.port.click("Form18.Command2")
        self.picture("Form18", "ovulation")
        self.port.click("Form18.CmdModifs")
        self.picture("Form17", "gynecologie-correction")
        self.port.click("Form17.CmdQuitter")
        self.port.click("Form18.CmdQuitter")

    def later_exam(self):
        self.port.set("Form4.Text1", text="GUÉRIN")
        self.port.click("Form4.Cmd2Ter")
        self.port.set("Form8.Txt2T(2)", text="10/01/2002")
        self.port.click("Form8.Bourgeois")
        self.port.click("Form8.Option2")
        self.port.click("Form8.CmdJ1")
        self.port.click("Form8.CmdZoneA")
        self.port.focus("Form8.Txt2T(16)")
        self.picture("Form8", "examen-tardif-redaction")
        self.port.click("Form8.Perso")
        self.port.click("Form8.CmdQuitter")
        self.port.click("Form4.HlbCptDer")
        self.picture("Form10", "examen-tardif")
        self.port.click("Form10.CmdModifs")
        self.picture("Form11", "examen-tardif-correction")
        self.port.click("Form11.CmdQuitter")
        self.port.click("Form10.CmdQuitter")

    def end(self):
        self.port.end()
        shutil.rmtree(self.folder)


def main():
    out = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "out").resolve()
    out.mkdir(parents=True, exist_ok=True)
    for palette in ["claire", "sombre"]:
        tour = Tour(out, palette)
        try:
            tour.walk()
        finally:
            tour.end()


if __name__ == "__main__":
    main()
