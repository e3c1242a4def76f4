#!/usr/bin/env python3
"""Fails on an include that goes up or sideways between the rooms of src/, and on a call that starts another program."""

import pathlib
import re
import sys

LEVELS = [
    {"base", "forms"},
    {"ports", "store"},
    {"practice", "biometry", "responses", "reports"},
    {"dossier"},
    {"pictures"},
    {"exams"},
    {"gyneco"},
    {"shell"},
    {"qt"},
    {"app", "port"},
]
# What a room may include besides itself; a room that is not named here may include all the rooms below its level.
ALLOWED = {
    "base": set(),
    "forms": {"base"},
    "ports": {"base", "forms"},
    "store": {"base"},
    "practice": {"base", "store"},
    "biometry": {"base", "forms", "ports", "store"},
    "responses": {"base", "forms", "ports", "store"},
    "reports": {"base", "forms", "ports"},
}
# Single headers that a room may include although their room is closed to it.
EXCEPTIONS = {("gyneco", f"exams/{header}.h") for header in ("exam_life", "exam_record", "report_head")}
CLOSED = {("gyneco", "exams")}

# Libraries that belong to some rooms alone.
LIBRARIES = {
    r"<sqlite3\.h>": {"store"},
    r"<turbojpeg\.h>": {"pictures"},
    r"<cairo.*\.h>": {"qt"},
    r"<(QWidget|QtWidgets|QApplication|QDialog|QMainWindow|QWindow|QPrinter|QPrintDialog|QSvg\w*|gst/.*)>": {
        "qt",
        "app",
        "port",
    },
}

# The program starts no other one: nothing typed can reach a shell.
STARTS_A_PROGRAM = r"\bQProcess\b|\bQDesktopServices\b|\b(system|popen|fork|exec[lv]p?e?|posix_spawnp?)\s*\("


def allowed_rooms(room: str) -> set:
    if room in ALLOWED:
        return ALLOWED[room]
    level = next(i for i, rooms in enumerate(LEVELS) if room in rooms)
    return set().union(*LEVELS[:level]) if level else set()


def faults(root: pathlib.Path):
    rooms = set().union(*LEVELS)
    for path in sorted(root.rglob("*")):
        if path.suffix not in {".h", ".cpp"}:
            continue
        room = path.relative_to(root).parts[0]
        if room not in rooms:
            yield f"{path}: the room '{room}' is not in the table"
            continue
        allowed = allowed_rooms(room) | {room}
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            ours = re.match(r'\s*#\s*include\s+"([^"]+)"', line)
            if ours:
                target = ours.group(1)
                other = target.split("/")[0]
                if "/" not in target:
                    yield f"{path}:{number}: include \"{target}\" from src/, by its room"
                elif other not in allowed or (room, other) in CLOSED:
                    if (room, target) not in EXCEPTIONS:
                        yield f"{path}:{number}: {room} must not include {target}"
            if re.search(STARTS_A_PROGRAM, line):
                yield f"{path}:{number}: nothing in the program starts another one"
            theirs = re.match(r"\s*#\s*include\s+(<[^>]+>)", line)
            if theirs:
                for pattern, owners in LIBRARIES.items():
                    if re.fullmatch(pattern, theirs.group(1)) and room not in owners:
                        yield f"{path}:{number}: {theirs.group(1)} belongs to {', '.join(sorted(owners))}"


def main() -> int:
    found = list(faults(pathlib.Path(__file__).resolve().parent.parent / "src"))
    for fault in found:
        print(fault, file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
