#!/usr/bin/env python3
"""What the program makes of many files, for the core of the page to be held against.

    program_results.py PROGRAM FOLDER

The files are those of examples/ and tests/data/, and every tenth damage of the examples. Of each
there is a folder in FOLDER: the file, whose name begins with "take", and for each run a folder with
the files `status`, `out`, `err` and what was made. `runs.json` there lists all: the folder, the
name of the file and what it was made of, and its runs, each with its arguments, the file that it
makes, and that of an earlier run that it needs.
"""

import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "tools"))

import same_bits

EVERY = 10  # of the damages
CAPTURES, MARKERS, MOTIONS = (".htr", ".trc"), (".trc",), (".htr",)

# Name, kinds, arguments, what is made, what is needed.
RUNS = (
    ("check", (".htr", ".trc", ".mnm"), ("check", "{file}", "--json"), "", ""),
    ("for import", CAPTURES, ("check", "{file}", "--for", "import", "--json"), "", ""),
    ("for convert", MARKERS, ("check", "{file}", "--for", "convert", "--json"), "", ""),
    ("import", CAPTURES, ("import", "{file}", "-o", "new.glb", "--json"), "new.glb", ""),
    ("export", MOTIONS, ("export", "new.glb", "-o", "new.htr", "--select", "{root}", "--json"), "new.htr",
     "new.glb"),
    ("rewrite", CAPTURES, ("rewrite", "{file}", "-o", "again{kind}", "--json"), "again{kind}", ""),
    ("convert", MARKERS, ("convert", "{file}", "-o", "new.bvk", "--json"), "new.bvk", ""),
    ("map", MARKERS, ("map", "suggest", "{file}", "-o", "new.mnm"), "new.mnm", ""),
)


def files():
    for folder in (ROOT / "examples", ROOT / "tests/data"):
        yield from same_bits.files_below(folder)
    yield from list(same_bits.damaged_examples())[::EVERY]


def run(program, place, name, words, made):
    """The bytes of what is made stay in `place` for later runs."""
    environment = dict(os.environ, TZ="UTC", XDG_CONFIG_HOME=str(place))
    done = subprocess.run([program, *words], cwd=place, capture_output=True, check=False,
                          stdin=subprocess.DEVNULL, env=environment)
    kept = place / "runs" / name
    kept.mkdir(parents=True)
    (kept / "status").write_text(str(done.returncode))
    (kept / "out").write_bytes(done.stdout)
    (kept / "err").write_bytes(done.stderr)
    if made and (place / made).is_file():
        (kept / made).write_bytes((place / made).read_bytes())


def results_of(program, place, file):
    place.mkdir()
    (place / ("take" + file.kind)).write_bytes(file.data)
    root = same_bits.root_of(file).decode(errors="replace")
    fill = {"file": "take" + file.kind, "root": root, "kind": file.kind}
    runs = []
    for name, kinds, arguments, made, needs in RUNS:
        if file.kind not in kinds or (needs and not (place / needs).is_file()):
            continue
        words = [word.format(**fill) for word in arguments]
        if any("\0" in word or "\ufffd" in word for word in words):
            continue
        run(program, place, name, words, made.format(**fill))
        runs.append({"name": name, "words": words, "made": made.format(**fill), "needs": needs})
    return {"folder": place.name, "file": "take" + file.kind, "of": file.name, "runs": runs}


def main(program, folder):
    folder.mkdir()
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        done = [pool.submit(results_of, program, folder / str(number), file)
                for number, file in enumerate(files()) if file.kind in (".htr", ".trc", ".mnm")]
        (folder / "runs.json").write_text(json.dumps([each.result() for each in done]))


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]))
