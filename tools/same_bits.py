#!/usr/bin/env python3
"""Runs the programs of two folders over many files, sound and damaged ones, and compares all that
they make, say and end with, byte for byte.

    tools/same_bits.py BEFORE AFTER [--random N] [--seed NUMBER] [--recordings FOLDER]
                       [--keep FOLDER]

BEFORE and AFTER are folders that hold `orvane` and the module, such as build/bin. The files are
those of examples/, tests/data/ and fuzz/corpus/, those of FOLDER, every damage of examples/ by
tools/further_damages.py, and N files that the seed alone determines: recipes and edits of bytes,
several on one file. The folder of --keep gets each file of which something differs.

Prints how many runs of each verb were the same, and which differ; ends with status 1 when any does.
"""

import argparse
import concurrent.futures
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import typing

import further_damages
import motion_damages

ROOT = pathlib.Path(__file__).resolve().parent.parent
EXAMPLES = ROOT / "examples"
KINDS = (".htr", ".trc", ".mnm", ".glb", ".gltf")
TIME = "741476948"  # of files that tell when they were written
LIMIT_SECONDS = 60
PER_ROUND = 500  # files that are made before they are looked at


class Run(typing.NamedTuple):
    """What is done with a file {file}, whose root segment is {root}; `made` is compared, too."""

    name: str
    kinds: tuple
    arguments: tuple
    made: str = ""
    needs: str = ""  # a file of an earlier run, without which there is nothing to do


CAPTURES, SCENES = (".htr", ".trc"), (".glb", ".gltf")

RUNS = (
    Run("info", CAPTURES, ("info", "{file}", "--json", "--frames")),
    Run("check", (".htr", ".trc", ".mnm"), ("check", "{file}", "--json")),
    Run("import", CAPTURES, ("import", "{file}", "-o", "new.glb", "--json"), "new.glb"),
    Run("export", (".htr",), ("export", "new.glb", "-o", "new.htr", "--select", "{root}", "--json"),
        "new.htr", needs="new.glb"),
    Run("convert", (".trc",), ("convert", "{file}", "-o", "new.bvk", "--json"), "new.bvk"),
    Run("scene", SCENES, ("scene", "{file}", "--json")),
    Run("check scene", SCENES, ("check", "{file}", "--for", "export", "--json")),
)


class Outcome(typing.NamedTuple):
    status: object
    shown: bytes
    said: bytes
    made: object  # None where there is no file

    def crashed(self):
        return self.status not in range(5)


class File(typing.NamedTuple):
    name: str
    kind: str
    data: bytes


def kind_of(path):
    """Files of the fuzzers are called after their target."""
    if path.suffix.lower() in KINDS:
        return path.suffix.lower()
    return {"trc_reader": ".trc", "htr_reader": ".htr"}.get(path.parent.name)


def files_below(folder):
    for path in sorted(folder.rglob("*")):
        if path.is_file() and kind_of(path):
            yield File(str(path.relative_to(folder.parent)), kind_of(path), path.read_bytes())


def sound_files():
    for folder in (EXAMPLES, ROOT / "tests/data", ROOT / "fuzz/corpus"):
        yield from files_below(folder)


def damage_done(damage, data):
    """None where a recipe does not fit the file: they are written for sound ones."""
    try:
        return damage(data)
    except (ValueError, IndexError, StopIteration, TypeError, AttributeError, RuntimeError):
        return None


def damaged_examples():
    for kind in further_damages.BY_KIND:
        data = (EXAMPLES / "walk").with_suffix(kind).read_bytes()
        for name, damage in further_damages.damages_of(kind).items():
            damaged = damage_done(damage, data)
            if damaged is not None:
                yield File(name + kind, kind, damaged)


def shortened(data, rows):
    """A capture with the first rows of every run of lines that begin with a number."""
    kept, in_run = [], 0
    for line in data.splitlines(keepends=True):
        in_run = in_run + 1 if re.match(rb"\d+\t-?\d", line) else 0
        if in_run <= rows:
            kept.append(line)
    text = b"".join(kept)
    return re.sub(rb"(?m)^(NumFrames )\d+", rb"\g<1>%d" % rows, text)


def flip(chance, data, at):
    return data[:at] + bytes([data[at] ^ (1 << chance.randrange(8))]) + data[at + 1:]


def put(chance, data, at):
    odd = (b"\t", b" ", b"\r", b"\n", b"\r\n", b"\0", b"-", b".", b"e", b"inf", b"nan", b"1e400",
           b"-0.0", b"[", b"]", b"#", b"9" * 40, b"0." + b"3" * 60, b"4294967296", b"\xff", b"0x1p3")
    return data[:at] + chance.choice(odd) + data[at + chance.randrange(2):]


def cut_out(chance, data, at):
    return data[:at] + data[at + chance.randrange(1, 200):]


def repeat(chance, data, at):
    return data[:at] + data[max(0, at - chance.randrange(1, 200)):]


def end_early(_, data, at):
    return data[:at]


EDITS = (flip, put, put, put, cut_out, repeat, end_early)


def random_file(seed, index, sources):
    """The file of that number: a source, recipes and edits, all of them drawn by chance."""
    chance = random.Random(f"{seed}:{index}")
    _, kind, data = chance.choice(sources)
    recipes = list(further_damages.damages_of(kind).values())
    for _ in range(chance.randrange(3)):
        data = damage_done(chance.choice(recipes), data) or data
    for _ in range(chance.randrange(4)):
        if data:
            data = chance.choice(EDITS)(chance, data, chance.randrange(len(data)))
    return File(f"random-{seed}-{index}{kind}", kind, data)


def sources_of_random():
    """Short ones for the most part: what is odd in them is near to all the rest."""
    small = [file for file in sound_files() if file.kind in CAPTURES and len(file.data) < 20_000]
    walks = [File("walk", kind, (EXAMPLES / "walk").with_suffix(kind).read_bytes())
             for kind in CAPTURES]
    short = [file._replace(data=shortened(file.data, rows)) for file in walks for rows in (1, 4, 9)]
    # Longer than what programs read at once.
    long = [file._replace(data=file.data * 3) for file in walks]
    return small + (short + walks) * 3 + short * 6 + long


def root_of(file):
    try:
        return motion_damages.segments_of(file.data)[0]
    except (StopIteration, IndexError):
        return b"none"


def outcome_of(program, run, place, file):
    name = "take" + file.kind
    words = [name.encode() if part == "{file}" else root_of(file) if part == "{root}"
             else part.encode() for part in run.arguments]
    if any(b"\0" in word for word in words):
        return Outcome(0, b"", b"", None)
    try:
        done = subprocess.run([bytes(program), *words], cwd=place, capture_output=True, check=False,
                              timeout=LIMIT_SECONDS, stdin=subprocess.DEVNULL,
                              env=dict(os.environ, SOURCE_DATE_EPOCH=TIME,
                                       XDG_CONFIG_HOME=str(place)))
    except subprocess.TimeoutExpired:
        return Outcome("time", b"", b"", None)
    made = place / run.made
    return Outcome(done.returncode, done.stdout, done.stderr,
                   made.read_bytes() if run.made and made.is_file() else None)


def outcomes_of(program, file):
    """By name of the run, in a folder that is gone behind it."""
    with tempfile.TemporaryDirectory(prefix="same-bits-") as folder:
        place = pathlib.Path(folder)
        (place / ("take" + file.kind)).write_bytes(file.data)
        return {run.name: outcome_of(program, run, place, file) for run in RUNS
                if file.kind in run.kinds and (not run.needs or (place / run.needs).is_file())}


def difference(before, after):
    """What of two outcomes is not the same; an empty text where all is."""
    if before is None or after is None:
        return "done by one only"
    return ", ".join(part for part, first, second in zip(Outcome._fields, before, after)
                     if first != second)


class Counts:
    """Of runs, by verb, and the lines that tell which differ."""

    COLUMNS = ("runs", "status 0", "crashed", "different")

    def __init__(self):
        self.rows = {run.name: dict.fromkeys(self.COLUMNS, 0) for run in RUNS}
        self.told = []

    def add(self, file, before, after):
        differs = False
        for name in {**before, **after}:
            first = before.get(name) or after[name]
            row = self.rows[name]
            row["runs"] += 1
            row["status 0"] += first.status == 0
            row["crashed"] += first.crashed()
            what = difference(before.get(name), after.get(name))
            if what:
                row["different"] += 1
                self.told.append(f"{file.name}\t{name}\t{what}")
                differs = True
        return differs

    def show(self, out):
        print(f"{'':12}" + "".join(f"{column:>11}" for column in self.COLUMNS), file=out)
        for name, row in self.rows.items():
            print(f"{name:12}" + "".join(f"{row[column]:11}" for column in self.COLUMNS), file=out)


def all_files(arguments):
    yield from sound_files()
    if arguments.recordings:
        yield from files_below(arguments.recordings)
    yield from damaged_examples()
    sources = sources_of_random()
    for index in range(arguments.random):
        yield random_file(arguments.seed, index, sources)


def in_rounds(files, count):
    taken = []
    for file in files:
        taken.append(file)
        if len(taken) == count:
            yield taken
            taken = []
    yield taken


def compare(arguments, counts):
    programs = [(folder / "orvane").resolve(strict=True)
                for folder in (arguments.before, arguments.after)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for files in in_rounds(all_files(arguments), PER_ROUND):
            pairs = pool.map(lambda file: [outcomes_of(program, file) for program in programs],
                             files)
            for file, (before, after) in zip(files, pairs):
                if counts.add(file, before, after) and arguments.keep:
                    arguments.keep.mkdir(parents=True, exist_ok=True)
                    (arguments.keep / file.name.replace("/", "-")).write_bytes(file.data)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("before", type=pathlib.Path)
    parser.add_argument("after", type=pathlib.Path)
    parser.add_argument("--random", type=int, default=1000, metavar="N")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--recordings", type=pathlib.Path)
    parser.add_argument("--keep", type=pathlib.Path)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    arguments = parser.parse_args()
    counts = Counts()
    compare(arguments, counts)
    for line in counts.told:
        print(line)
    counts.show(sys.stdout)
    return 1 if counts.told else 0


if __name__ == "__main__":
    sys.exit(main())
