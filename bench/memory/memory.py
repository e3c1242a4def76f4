"""Reads the resident memory of the program with some of its windows open, on a display that is given.

memory.py FOLDER: where the executables are. Prints JSON as the benchmarks do. `MB` is all that is resident, the pages of
the libraries included that other programs share; `own MB` is without what comes from files.
"""

import json
import os
import pathlib
import shutil
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
os.environ["VERANOX_PORT"] = str(pathlib.Path(sys.argv[1]) / "veranox-port")
sys.path.insert(0, str(ROOT / "tests" / "e2e"))
from port import Port  # noqa: E402

# The windows, and how much may be resident then in MB.
STEPS = (("the main menu", 60), ("the dossier window", 80), ("twins, charts and report", 130))


class Practice:
    """The sample practice; each step leaves its windows open."""

    def __init__(self, port):
        self.port = port
        port.practice(patients=True)

    def open(self, step):
        (self.menu, self.dossier, self.twins)[step]()

    def menu(self):
        self.port.start()

    def dossier(self):
        self.port.click("Form1.Command1")
        self.port.type("Form4.Text1", text="martineau")

    def twins(self):
        self.port.set("Form4.Text1", text="")
        self.port.type("Form4.Text1", text="carpentier")
        self.port.click("Form4.HlbCptDer")
        self.port.click("Form10.CmdBiometrie")
        self.port.click("Form12.Courbe")
        for chart in ("Bip", "Cc", "Dat", "Ca", "Fem"):
            self.port.click(f"Form13.Command{chart}")
        self.port.click("Form10.Command1")
        missing = {"Form10", "Form12", "Form13", "RicheT"} - self.port.shown()
        if missing:
            raise SystemExit(f"not shown: {missing}")


def resident(process):
    """All that is resident, and the part that doesn't come from files, in MB."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()

    def field(name):
        return int(status.split(name + ":")[1].split()[0]) / 1024

    return field("VmRSS"), field("RssAnon")


def main():
    folder = tempfile.mkdtemp(prefix="veranox-memory-")
    port = Port(folder, today="2002-06-14", platform=os.environ.get("QT_QPA_PLATFORM", "xcb"))
    lines = []
    try:
        practice = Practice(port)
        for step, (name, most) in enumerate(STEPS):
            practice.open(step)
            time.sleep(1)
            port.shown()
            total, own = resident(port.process)
            lines.append({"name": name, "MB": total, "MB_at_most": most, "own_MB": own})
    finally:
        port.end()
        shutil.rmtree(folder)
    json.dump({"benchmarks": lines}, sys.stdout)


main()
