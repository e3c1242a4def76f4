#!/usr/bin/env python3
"""A day of a busy practice, many times over: memory, handles and time of a day must not grow.

Usage: soak.py [DAYS [WARM-UP]]. Prints a line a day and ends with 1 if a limit was passed.
"""

import os
import pathlib
import shutil
import statistics
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests" / "e2e"))
from pictures import plain  # noqa: E402
from port import Port  # noqa: E402

# What may be added from the first days behind the warm-up to the last ones.
MOST_MEMORY = 1.05
MOST_TIME = 1.30


class Day:
    """The work of a day. It takes away what it added, so that every day finds the same practice."""

    def __init__(self, port):
        self.port = port
        port.practice(patients=True)
        port.printer(file=str(port.folder / "imprime.pdf"))
        port.camera(image=plain(port.folder / "source.png", (90, 90, 90), 720, 576))
        port.start()

    def yes(self, *answers):
        self.port.answer(**{"with": list(answers or ("yes",))})

    def find(self, surname, first_name):
        self.port.set("Form4.Text1", text="")
        self.port.type("Form4.Text1", text=surname)
        self.port.type("Form4.Text2", text=first_name)

    def search(self):
        for surname in ("ROSSIGNOL", "MARTINEAU", "D'A"):
            self.port.type("Form4.Text1", text=surname)
            self.port.set("Form4.Text1", text="")
        for button in ("Command2", "Command3", "Command1", "Command4"):
            self.port.click("Form4." + button)

    def correct_sheet(self):
        self.port.click("Form4.CmdModifie")
        telephone = self.port.text("Form3.TxtTelephone")
        self.port.set("Form3.TxtTelephone", text=telephone)
        self.port.click("Form3.CmdAnnule")

    def first_trimester(self):
        self.port.click("Form4.Cmd1Ter")
        self.port.set("Form5.Txt1Ter(2)", text="11/03/2002")
        for field in (1, 5, 6, 7, 8, 9, 10, 23, 26):
            self.port.focus(f"Form5.Txt1Ter({field})")
            self.port.dblclick("Form5.List1", row=0)
        self.port.set("Form5.Txt1Ter(18)", text="60")
        self.port.type("Form5.Txt1Ter(15)", text="1")
        self.yes()
        self.port.click("Form5.CmdEnregis")
        self.port.click("Form6.CmdModifs")
        self.port.set("Form7.Txt1Ter(26)", text="Grossesse évolutive.")
        self.yes()
        self.port.click("Form7.CmdModifs")
        self.report("Form6.Command1")
        self.delete("Form6.Supprim")

    def delete(self, entry):
        self.yes("yes", "yes")
        self.port.click(entry)

    def report(self, opener):
        self.port.click(opener)
        self.port.type("RicheT.RichTextBox1", text="Ajout. ")
        self.port.click("RicheT.tbToolBar(Imprimer)")
        self.port.click("RicheT.tbToolBar(Quitter)")

    def later_trimesters(self):
        self.find("GUÉRIN", "")
        self.port.click("Form4.Cmd2Ter")
        self.port.set("Form8.Txt2T(2)", text="10/01/2002")
        self.port.click("Form8.Option2")
        for button in ("Bourgeois", "CmdJ2", "CmdJ1", "CmdZoneA", "Perso"):
            self.port.click("Form8." + button)
        for field in range(15, 27):
            self.port.focus(f"Form8.Txt2T({field})")
            self.port.dblclick("Form8.List2", row=0)
        self.yes()
        self.port.click("Form8.CmdEnregis")
        self.port.click("Form10.CmdModifs")
        self.port.set("Form11.Txt2T(32)", text="Croissance harmonieuse.")
        self.yes()
        self.port.click("Form11.CmdModifs")
        self.report("Form10.Command1")
        self.biometry()
        self.delete("Form10.Supprim")

    def biometry(self):
        self.port.click("Form10.CmdBiometrie")
        self.port.click("Form12.ReCalculer")
        self.port.click("Form12.Rappel")
        self.port.click("Form12.Courbe")
        for button in ("Bip", "Cc", "Dat", "Ca", "Fem", "Lp", "Cerv"):
            self.port.click(f"Form13.Command{button}")
        self.port.click("Form12.Quitter")

    def pictures(self):
        self.port.click("Form1.Command5")
        for _ in range(2):
            self.port.click("Form19.Command4")
        self.port.click("Form19.Option2")
        for place in (1, 2):
            self.port.click(f"Form19.Image2({place})")
        self.port.click("Form19.Command2")
        self.port.close(form="Form19")

    def gynaecology(self):
        self.port.type("Form4.Text1", text="rossignol")
        self.port.click("Form4.Command5")
        self.report("Form18.CmdCptGyn")
        self.port.click("Form18.CmdQuitter")

    def album(self):
        self.port.click("Form1.Command6")
        self.port.set("Form20.TxtRechNom", text="MAR")
        self.port.click("Form20.Command1")
        self.port.click("Form20.Qui")

    def backup(self):
        self.port.click("Form1.CmdSauve")
        self.port.click("Form21.CmdSauve1")
        self.port.click("Form21.Command1")

    def work(self):
        self.port.click("Form1.Command1")
        self.search()
        self.find("MARTINEAU", "CHRISTELLE")
        self.correct_sheet()
        self.first_trimester()
        self.later_trimesters()
        self.gynaecology()
        self.port.click("Form4.Menu")
        self.pictures()
        self.album()
        self.backup()


def memory(process):
    """The resident memory of a process in MB."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    return int(status.split("VmRSS:")[1].split()[0]) / 1024


def handles(process):
    return len(os.listdir(f"/proc/{process.pid}/fd"))


def seconds(process):
    """The processor time of a process."""
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def measure(days):
    """The memory, the handles and the seconds of processor time of each day."""
    folder = tempfile.mkdtemp(prefix="veranox-soak-")
    port = Port(folder, today="2002-06-14")
    figures = []
    try:
        day = Day(port)
        for number in range(1, days + 1):
            begin = seconds(port.process)
            day.work()
            figures.append((memory(port.process), handles(port.process), seconds(port.process) - begin))
            print("jour %3d : %6.1f Mo, %3d fichiers ouverts, %5.2f s" % (number, *figures[-1]), flush=True)
    finally:
        port.end()
        shutil.rmtree(folder)
    return figures


def grown(figures, warm_up):
    """What grew from the days behind the warm-up to the last ones, a line each."""
    rest = figures[warm_up:]
    part = max(len(rest) // 3, 1)

    def compare(index):
        return [statistics.median(day[index] for day in days) for days in (rest[:part], rest[-part:])]

    faults = []
    for index, name, most in ((0, "memory", MOST_MEMORY), (1, "handles", 1), (2, "time", MOST_TIME)):
        early, late = compare(index)
        print(f"{name}: {early:.2f} to {late:.2f}, {late / early:.3f} times (at most {most})")
        if late > early * most:
            faults.append(name)
    return faults


def main():
    days = int(sys.argv[1]) if len(sys.argv) > 1 else 100
    warm_up = int(sys.argv[2]) if len(sys.argv) > 2 else days // 10
    return 1 if grown(measure(days), warm_up) else 0


if __name__ == "__main__":
    sys.exit(main())
