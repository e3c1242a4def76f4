#!/usr/bin/env python3
"""Counts the keys from the main menu to a printed report, for an exam of the first trimester and one at 22 weeks with all
measures, written by keyboard alone on the sample practice."""

import pathlib
import re
import shutil
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from port import Port  # noqa: E402


class Road:
    """One exam on its way to paper. Each key press counts one, Alt or Ctrl with a key one too, a box one."""

    def __init__(self, port, writing, fields):
        self.port = port
        self.writing = writing
        self.fields = fields
        self.keys = {}

    def count(self, what, number=1):
        self.keys[what] = self.keys.get(what, 0) + number

    def press(self, key, what):
        self.port.key(self.port.focused()["control"], key=key)
        self.count(what)
        self.count("boxes", len(self.port.boxes))

    def type(self, text, what):
        self.port.type(self.port.focused()["control"], text=text)
        self.count(what, len(text))

    def field(self):
        """The number of the field that has the focus; none outside the fields."""
        found = re.fullmatch(rf"{self.writing}\.{self.fields}\((\d+)\)", self.port.focused()["control"])
        return int(found.group(1)) if found else None

    def fill(self, last, typed):
        """Fills each field once: types what is to be typed, takes the first phrase where some are kept, walks on."""
        left = set(range(1, last + 1))
        while left:
            field = self.field()
            if field in left:
                left.discard(field)
                if field in typed:
                    self.type(typed[field], "measures and dates")
                elif self.port.items(f"{self.writing}.List1"):
                    self.press("Ctrl+1", "phrases")
            if left and self.field() == field:
                self.press("Ctrl+Return", "next field")
            assert self.keys.get("next field", 0) < 100, f"the walk stays at {self.port.focused()['control']}, short of {left}"

    def walk(self, surname, first_name, opener, last, typed, save, report):
        self.press("Return", "windows")
        self.type(surname, "patient")
        self.press("Tab", "patient")
        self.type(first_name, "patient")
        self.press(opener, "windows")
        self.fill(last, typed)
        self.port.answer(**{"with": ["yes"]})
        self.press(save, "windows")
        self.press(report, "windows")
        self.press("Ctrl+P", "windows")

    def tell(self, name):
        parts = ", ".join(f"{what} {number}" for what, number in self.keys.items() if number)
        print(f"{name}: {sum(self.keys.values())} keys, no click ({parts})")


# What is typed, by field: dates and measures. 11/03/2002 to 14/06/2002 is 13 weeks and 4 days of amenorrhoea.
FIRST = {2: "11/03/2002", 11: "1", 13: "30", 15: "1", 17: "160", 18: "70", 19: "23", 20: "10", 21: "1.5"}
# 11/01/2002 to 14/06/2002 is 22 weeks of amenorrhoea.
LATER = {2: "11/01/2002", 15: "150", 16: "53", 17: "197", 18: "23", 19: "22", 20: "53", 21: "174", 22: "38", 23: "38",
         24: "33", 25: "35", 26: "7", 28: "0.70", 29: "0.60"}


def drive(name, writing, fields, **walk):
    folder = tempfile.mkdtemp(prefix="veranox-roads-")
    port = Port(folder, today="2002-06-14")
    try:
        port.practice(patients=True)
        port.printer(file=str(port.folder / "report.pdf"))
        port.start()
        road = Road(port, writing, fields)
        road.walk(**walk)
        assert (port.folder / "report.pdf").stat().st_size > 5000, "no report was printed"
        road.tell(name)
        return sum(road.keys.values())
    finally:
        port.end()
        shutil.rmtree(folder)


def count():
    """The keys of both roads."""
    return (
        drive("first trimester", "Form5", "Txt1Ter", surname="MARTINEAU", first_name="CH", opener="Alt+1", last=26,
              typed=FIRST, save="Alt+E", report="Alt+C"),
        drive("22 weeks, all measures", "Form8", "Txt2T", surname="MARTINEAU", first_name="CH", opener="Alt+2", last=32,
              typed=LATER, save="Alt+E", report="Alt+C"),
    )


if __name__ == "__main__":
    count()
