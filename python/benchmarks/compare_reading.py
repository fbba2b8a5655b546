#!/usr/bin/env python3
"""Tells what reading a file into an array takes, in this package and in others.

Usage: compare_reading.py READ_TAKE FILE...

READ_TAKE is the program of read_take.cpp: --target read_take of a build with the Python package. FILE
is in .trc or .htr. Each way runs in a process of its own, by turns, five times, numpy.genfromtxt once.
Told are the least processor time and the least memory, that of the libraries left out, and how often
they go into those of C++. pandas and numpy read the rows of markers alone, and of motion nothing.
"""

import pathlib
import subprocess
import sys
import time

TURNS = 5


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
    return lambda: pandas.read_csv(path, sep="\t", skiprows=6, header=None).to_numpy()


def read_genfromtxt(path):
    import numpy
    return lambda: numpy.genfromtxt(path, delimiter="\t", skip_header=6)


WAYS = {"orvane.read": read_orvane, "orvane.read, check=False": read_orvane_unchecked,
        "pandas.read_csv": read_pandas, "numpy.genfromtxt": read_genfromtxt}


def kilobytes(what):
    """What the system says of this process' memory: VmRSS, or VmHWM for the most so far."""
    status = pathlib.Path("/proc/self/status").read_text(encoding="ascii")
    return int(status.partition(what + ":")[2].split()[0])


def measure(way, path):
    read = WAYS[way](path)
    before = kilobytes("VmRSS")
    begin = time.process_time()
    array = read()
    seconds = time.process_time() - begin
    print(seconds, kilobytes("VmHWM") - before)
    del array


def run(*command):
    told = subprocess.run(command, capture_output=True, text=True, check=True).stdout.split()
    return float(told[0]), int(told[1])


def compare(floor, path):
    commands = {"C++": (floor, path)}
    for way in WAYS:
        if path.endswith(".trc") or way.startswith("orvane"):
            commands[way] = (sys.executable, __file__, "--way", way, path)
    runs = {way: [] for way in commands}
    for turn in range(TURNS):
        for way, command in commands.items():
            if way != "numpy.genfromtxt" or turn == 0:
                runs[way].append(run(*command))
    print(f"{path}\n{'':26} seconds  times       MB  times")
    for way, told in runs.items():
        seconds, memory = (min(column) for column in zip(*told))
        first_seconds, first_memory = (min(column) for column in zip(*runs["C++"]))
        print(f"{way:26} {seconds:7.3f} {seconds / first_seconds:6.2f} {memory / 1000:8.1f} "
              f"{memory / first_memory:6.2f}")


if __name__ == "__main__":
    if len(sys.argv) == 4 and sys.argv[1] == "--way":
        measure(sys.argv[2], sys.argv[3])
    elif len(sys.argv) >= 3:
        for name in sys.argv[2:]:
            compare(sys.argv[1], name)
    else:
        sys.exit(__doc__)
