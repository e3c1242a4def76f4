"""From the main menu to a printed report by keyboard alone, in no more keys than it takes."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from roads import count  # noqa: E402


def test_both_exams_reach_paper_by_keyboard_in_few_keys():
    first, later = count()
    assert first <= 77
    assert later <= 100
