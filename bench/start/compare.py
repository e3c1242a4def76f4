"""Times the start of two programs that end once their window is drawn: ours, and a yardstick. The display is given.

compare.py OURS BARE AT_MOST
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 20


def milliseconds(program, environment):
    start = time.perf_counter()
    subprocess.run([program], env=environment, check=True, stderr=subprocess.DEVNULL)
    return (time.perf_counter() - start) * 1000


def main():
    programs, at_most = sys.argv[1:3], float(sys.argv[3])
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home, QT_QPA_PLATFORM="xcb")
        for program in programs:
            milliseconds(program, environment)
        rounds = [[milliseconds(program, environment) for program in programs] for _ in range(RUNS)]
    ours, bare = (statistics.median(column) for column in zip(*rounds))
    missed = "" if ours / bare <= at_most else "  MISSED"
    print(f"\n{'':28} {'ours (ms)':>12} {'bare (ms)':>12} {'ratio':>8}  at most")
    print(f"{'start to the main menu':28} {ours:12.2f} {bare:12.2f} {ours / bare:8.2f}  {at_most:.1f}{missed}")


main()
