"""Times the start of the program to its drawn main menu beside an empty window that loads the same libraries.

start.py FOLDER: where the executables are. A display is given. Prints JSON as the benchmarks do.
"""

import json
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
    programs = [os.path.join(sys.argv[1], name) for name in ("start_program", "start_empty")]
    with tempfile.TemporaryDirectory() as home:
        environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home, QT_QPA_PLATFORM="xcb")
        for program in programs:
            milliseconds(program, environment)
        rounds = [[milliseconds(program, environment) for program in programs] for _ in range(RUNS)]
    lines = [
        {"name": f"start to the main menu.{side}", "real_time": statistics.median(column), "time_unit": "ms"}
        for side, column in zip(("ours", "bare"), zip(*rounds))
    ]
    lines[0]["ratio_at_most"] = 2
    json.dump({"benchmarks": lines}, sys.stdout)


main()
