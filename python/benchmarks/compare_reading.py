#!/usr/bin/env python3
"""Tells what reading a file into an array takes, in this package and in others.

Usage: compare_reading.py READ_TAKE FILE...

READ_TAKE is the program of read_take.cpp: --target read_take of a build with the Python package. FILE
is in .trc or .htr. Each way runs in a process of its own, by turns, 15 times, numpy.genfromtxt once.
Told are the least processor time, the least time on the clock and the least memory, that of the
libraries left out, and how often they go into those of C++. The others read rows of numbers alone:
those of markers, or of all segments one below the other, without the lines between them. fread is
that of R's data.table, and left out where there is no Rscript.
"""

import pathlib
import shutil
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
TURNS = 15


def read_orvane(path):
    import orvane
    return lambda: whole(orvane.read(path, warn=False))


def read_orvane_unchecked(path):
    import orvane
    return lambda: whole(orvane.read(path, warn=False, check=False))


def whole(take):
    return take.points if hasattr(take, "points") else take.translations


def read_pandas(path):
    import pandas
    return lambda: pandas.read_csv(path, sep="\t", skiprows=lines_in_front(path), header=None,
                                   comment="[").to_numpy()


def read_genfromtxt(path):
    import numpy
    return lambda: numpy.genfromtxt(path, delimiter="\t", skip_header=lines_in_front(path),
                                    comments="[")


WAYS = {"orvane.read": read_orvane, "orvane.read, check=False": read_orvane_unchecked,
        "pandas.read_csv": read_pandas, "numpy.genfromtxt": read_genfromtxt}
FREAD = "data.table::fread"
ONCE = ("numpy.genfromtxt",)


def lines_in_front(path):
    """How many lines stand in front of the first row of numbers over time."""
    if path.endswith(".trc"):
        return 6
    with open(path, encoding="utf-8") as file:
        sections = (number for number, line in enumerate(file, 1) if line.startswith("["))
        header, hierarchy, base, first = (next(sections) for _ in range(4))
    return first


def kilobytes(what):
    """What the system says of this process' memory: VmRSS, or VmHWM for the most so far."""
    status = pathlib.Path("/proc/self/status").read_text(encoding="ascii")
    return int(status.partition(what + ":")[2].split()[0])


def measure(way, path):
    read = WAYS[way](path)
    before = kilobytes("VmRSS")
    begin, begin_of_processor = time.perf_counter(), time.process_time()
    array = read()
    processor, elapsed = time.process_time() - begin_of_processor, time.perf_counter() - begin
    print(processor, elapsed, kilobytes("VmHWM") - before)
    del array


def run(command):
    told = subprocess.run(command, capture_output=True, text=True, check=True).stdout.split()
    return tuple(map(float, told))


def commands_for(floor, path):
    commands = {"C++": (floor, path)}
    for way in WAYS:
        commands[way] = (sys.executable, __file__, "--way", way, path)
    if shutil.which("Rscript"):
        commands[FREAD] = ("Rscript", str(HERE / "fread.R"), path, str(lines_in_front(path)))
    return commands


def compare(floor, path):
    commands = commands_for(floor, path)
    runs = {way: [] for way in commands}
    for turn in range(TURNS):
        for way, command in commands.items():
            if way not in ONCE or turn == 0:
                runs[way].append(run(command))
    first = [min(column) for column in zip(*runs["C++"])]
    print(f"{path}\n{'':26} processor  times   clock  times       MB  times")
    for way, told in runs.items():
        least = [min(column) for column in zip(*told)]
        processor, elapsed, memory = (one / other for one, other in zip(least, first))
        print(f"{way:26} {least[0]:9.3f} {processor:6.2f} {least[1]:7.3f} {elapsed:6.2f} "
              f"{least[2] / 1000:8.1f} {memory:6.2f}", flush=True)


if __name__ == "__main__":
    if len(sys.argv) == 4 and sys.argv[1] == "--way":
        measure(sys.argv[2], sys.argv[3])
    elif len(sys.argv) >= 3:
        for name in sys.argv[2:]:
            compare(sys.argv[1], name)
    else:
        sys.exit(__doc__)
