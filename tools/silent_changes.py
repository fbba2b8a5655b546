#!/usr/bin/env python3
"""Damages files as other programs do, has every verb take them, and tells where what comes out
changes and nobody says so.

    tools/silent_changes.py [--program ORVANE] [--all] [--quick] [FILE...]

FILE is an HTR, TRC or MNM file; by default those of examples/ are taken. Nothing is written beside
them; with --quick only what makes a file of one file is done. Every damage (tools/further_damages.py) is done to each file of its kind. A change is silent
when the verb makes something else than of the whole file, ends with status 0, and tells nothing on
standard error that it does not tell of the whole file. A change of which there is but a note, which
says that nothing differs, is listed too.

Prints a table of silent changes, or with --all of everything that was done; ends with status 1 when
there are silent ones.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import typing

import further_damages
import marker_damages
import motion_damages

ROOT = pathlib.Path(__file__).resolve().parent.parent
EXAMPLES = [ROOT / "examples" / name for name in ("walk.trc", "walk.htr", "walk.mnm")]
TIME = "741476948"  # of files that tell when they were written
WHOLE = "whole"  # the folder of the whole file, and of what is made of it
LIMIT_SECONDS = 60
KNOWN_STATUSES = range(5)


class Action(typing.NamedTuple):
    """What is done with a file, which is called {file}; {whole} is the whole one's folder."""

    name: str
    kinds: tuple
    arguments: tuple
    made: str = ""  # the file to compare; standard output where there is none
    shown_by: str = ""  # the action whose outcome this one announces
    is_quick: bool = False  # it makes a file of one file
    only_looks: bool = False  # all that it says is what it finds


CAPTURES = (".htr", ".trc")

ACTIONS = (
    Action("info", CAPTURES, ("info", "{file}", "--json")),
    Action("check", (".htr", ".trc", ".mnm"), ("check", "{file}"), only_looks=True),
    Action("import", CAPTURES, ("import", "{file}", "-o", "new.glb"), "new.glb", is_quick=True),
    Action("import --dry-run", CAPTURES,
           ("import", "{file}", "-o", "dry.glb", "--dry-run"), shown_by="import"),
    Action("import --apply", (".trc",),
           ("import", "{file}", "-o", "applied.glb", "--apply", "--into", "{whole}/new.glb",
            "--frame-rate", "file"), "applied.glb", is_quick=True),
    Action("import --apply", (".htr",),
           ("import", "{file}", "-o", "applied.glb", "--apply", "--into", "{whole}/new.glb",
            "--frame-rate", "file", "--select", "{root}"), "applied.glb", is_quick=True),
    Action("convert", (".trc",), ("convert", "{file}", "-o", "made.bvk"), "made.bvk",
           is_quick=True),
    Action("convert --dry-run", (".trc",),
           ("convert", "{file}", "-o", "dry.bvk", "--dry-run"), shown_by="convert"),
    Action("convert batch", (".trc",),
           ("convert", "{file}", "beside.trc", "--output-dir", "batch"),
           "batch/{stem}.bvk"),
    Action("convert --mapping", (".mnm",),
           ("convert", "{capture}", "-o", "made.bvk", "--mapping", "{file}"), "made.bvk",
           is_quick=True),
    Action("compare", (".htr",), ("compare", "{whole}/{file}", "{file}", "--json")),
    Action("map lint", (".mnm",), ("map", "lint", "{file}", "{capture}"),
           only_looks=True),
    Action("map create", (".trc",),
           ("map", "create", "{file}", "-o", "made.mnm", "--picks", "{picks}"),
           "made.mnm"),
)


class Outcome(typing.NamedTuple):
    status: int
    made: object  # what comes out
    said: tuple  # the lines of standard error


def what_it_says(text):
    """What a verb shows, without what it finds: that is compared as what is said."""
    try:
        shown = json.loads(text)
    except ValueError:
        return text
    shown.pop("findings", None)
    for key in ("a", "b"):
        if isinstance(shown.get(key), dict):
            shown[key].pop("findings", None)
    if isinstance(shown.get("segments"), list):
        shown["segments"].sort(key=json.dumps)  # their order is the file's
    return shown


def first_name(data, kind):
    """Of the root of a motion file."""
    if kind != ".htr":
        return ""
    return motion_damages.segments_of(data)[0].decode("latin-1")


class Trial:
    """The folder of one source file: each damage has a folder of its own there."""

    def __init__(self, program, source, folder, is_quick=False):
        self.program = program
        self.is_quick = is_quick
        self.source = source
        self.folder = folder
        self.kind = source.suffix.lower()
        self.data = source.read_bytes()
        self.root = first_name(self.data, self.kind)
        self.capture = EXAMPLES[0]
        self.picks = folder / "picks.tsv"
        self.picks.write_text("C7\t" + self.first_marker() + "\n")

    def first_marker(self):
        if self.kind != ".trc":
            return ""
        return self.data.splitlines()[marker_damages.NAMES].split(b"\t")[2].decode("latin-1")

    def actions(self):
        return [action for action in ACTIONS
                if self.kind in action.kinds and (action.is_quick or not self.is_quick)]

    def run_all(self, name, data):
        """The outcome of each action with these bytes, by its name."""
        place = self.folder / name
        place.mkdir()
        file = "take" + self.kind
        (place / file).write_bytes(data)
        (place / "beside.trc").write_bytes(EXAMPLES[0].read_bytes())
        return {action.name: self.run(action, place, file) for action in self.actions()}

    def run(self, action, place, file):
        names = {"file": file, "stem": "take", "whole": f"../{WHOLE}", "root": self.root,
                 "capture": self.capture, "picks": self.picks}
        command = [self.program] + [part.format(**names) for part in action.arguments]
        done = subprocess.run(command, cwd=place, capture_output=True, check=False,
                              timeout=LIMIT_SECONDS, env=dict(os.environ, SOURCE_DATE_EPOCH=TIME))
        made = place / action.made.format(**names)
        if not action.made:
            result = what_it_says(done.stdout.decode(errors="replace"))
        else:
            result = made.read_bytes() if made.is_file() else None
        said = done.stderr.decode(errors="replace").splitlines()
        return Outcome(done.returncode, result, tuple(said))


class Verdict(typing.NamedTuple):
    file: str
    damage: str
    action: str
    state: str
    said: str

    def is_silent(self):
        return self.state in ("SILENT", "CRASHED")


def judge(action, whole, damaged, lines):
    """What became of the damage, given the lines that are told of it and not of the whole file."""
    outcome = damaged[action.name]
    shown = action.shown_by or action.name
    if outcome.status not in KNOWN_STATUSES:
        return "CRASHED"
    if action.only_looks:
        return "looked at"
    if outcome.status != 0:
        return "refused"
    if damaged[shown].made == whole[shown].made:
        return "the same"
    if not lines:
        return "SILENT"
    return "a note" if all(": note: " in line for line in lines) else "told"


def verdicts_on(trial, whole, name, damage):
    data = damage(trial.data)
    if data is None or data == trial.data:
        return []
    damaged = trial.run_all(name, data)
    found = []
    for action in trial.actions():
        before = set(whole[action.name].said)
        lines = [line for line in damaged[action.name].said if line not in before]
        state = judge(action, whole, damaged, lines)
        found.append(Verdict(trial.source.name, name, action.name, state, " / ".join(lines[:3])))
    return found


def verdicts_of_file(program, source, folder, is_quick=False):
    trial = Trial(program, source, folder, is_quick)
    whole = trial.run_all(WHOLE, trial.data)
    damages = further_damages.damages_of(trial.kind)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        tried = pool.map(lambda item: verdicts_on(trial, whole, *item), damages.items())
        return [verdict for verdicts in tried for verdict in verdicts]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default=ROOT / "build/bin/orvane", type=pathlib.Path)
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("files", nargs="*", type=pathlib.Path, default=EXAMPLES)
    arguments = parser.parse_args()
    verdicts = []
    for source in arguments.files:
        with tempfile.TemporaryDirectory() as folder:
            verdicts += verdicts_of_file(arguments.program.resolve(), source, pathlib.Path(folder),
                                         arguments.quick)
    for verdict in verdicts:
        if arguments.all or verdict.is_silent() or verdict.state == "a note":
            print(*verdict, sep="\t")
    silent = sum(verdict.is_silent() for verdict in verdicts)
    print(f"{len(verdicts)} done, {silent} silent")
    return 1 if silent else 0


if __name__ == "__main__":
    sys.exit(main())
