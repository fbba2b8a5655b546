#!/usr/bin/env python3
"""Tells how the C++ sources are parted into files, and who includes whom.

Usage: structure.py [--check] [--tests] [FOLDER | REVISION]

Looks at the working tree of FOLDER, a checkout (by default the current one), or at what git holds as
REVISION of the current one: so that before and after can be compared. The tests are left out unless
--tests is given.

A unit is a header with the source file of the same name beside it. A circle is a set of units, or of
folders, each of which reaches all others by includes. A user of a header is another file than its own
source file that includes it.

With --check it prints only what may not be, circles and files that are too long, and exits with 1 if
there is any, or if there was nothing to look at.
"""

import argparse
import collections
import io
import os
import re
import statistics
import subprocess
import sys
import tarfile

LONGEST_FILE = 400
SMALL_FILE = 40

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]')
NAMESPACE = re.compile(r"^(?:inline )?namespace\b.*\{|^\}  // namespace\b")


class Source:
    """What is told of one file."""

    def __init__(self, name, text):
        lines = text.splitlines()
        self.name = name
        self.lines = len(lines)
        self.includes = [match[1] for match in map(INCLUDE.match, lines) if match]
        self.frame_lines = len(self.includes) + sum(1 for line in lines if NAMESPACE.match(line))


def git(folder, *arguments):
    run = subprocess.run(["git", "-C", folder, *arguments], capture_output=True, check=False)
    if run.returncode != 0:
        sys.exit(f"structure: {run.stderr.decode().strip()}")
    return run.stdout


def is_ours(name, with_tests):
    return name.endswith((".h", ".cpp")) and (with_tests or not name.startswith("tests/"))


def texts_of_folder(folder):
    """Names and texts of the files that git knows there or would add."""
    listed = git(folder, "ls-files", "-z", "--cached", "--others", "--exclude-standard")
    for name in sorted(set(listed.decode().split("\0"))):
        path = os.path.join(folder, name)
        if os.path.isfile(path) and name.endswith((".h", ".cpp")):
            with open(path, encoding="utf-8") as file:
                yield name, file.read()


def texts_of_revision(revision):
    archive = git(".", "archive", "--format=tar", revision)
    with tarfile.open(fileobj=io.BytesIO(archive)) as files:
        for member in files:
            if member.isfile() and member.name.endswith((".h", ".cpp")):
                yield member.name, files.extractfile(member).read().decode("utf-8")


def read_sources(place, with_tests):
    texts = texts_of_folder(place) if os.path.isdir(place) else texts_of_revision(place)
    return [Source(name, text) for name, text in texts if is_ours(name, with_tests)]


def folder_of(name):
    return name.rpartition("/")[0]


def unit_of(name):
    return name.rpartition(".")[0]


def graph_of(sources, part_of):
    """Which part includes which others, for the part of the tree that a file name belongs to."""
    names = {source.name for source in sources}
    graph = {part_of(name): set() for name in names}
    for source in sources:
        part = part_of(source.name)
        graph[part].update(part_of(name) for name in source.includes if name in names)
        graph[part].discard(part)
    return graph


def circles_of(graph):
    """The strongly connected components of more than one part, each sorted (Kosaraju)."""
    order = list(reversed(finished(graph, sorted(graph))))
    reverse = {part: set() for part in graph}
    for part, others in graph.items():
        for other in others:
            reverse[other].add(part)
    circles = []
    seen = set()
    for part in order:
        circle = finished(reverse, [part], seen)
        if len(circle) > 1:
            circles.append(sorted(circle))
    return sorted(circles)


def finished(graph, starts, seen=None):
    """The parts that the starts reach and that were not seen before, as a search leaves them."""
    seen = set() if seen is None else seen
    order = []
    stack = [(start, False) for start in reversed(starts)]
    while stack:
        part, leave = stack.pop()
        if leave:
            order.append(part)
        elif part not in seen:
            seen.add(part)
            stack.append((part, True))
            stack.extend((other, False) for other in graph[part])
    return order


def user_counts(sources):
    """How many files other than its own source file include each header."""
    counts = {source.name: 0 for source in sources if source.name.endswith(".h")}
    for source in sources:
        for name in set(source.includes) & counts.keys():
            counts[name] += unit_of(name) != unit_of(source.name)
    return counts


def figures(area, sources, users):
    """One row of the table of areas."""
    lines = sum(source.lines for source in sources)
    frame = sum(source.frame_lines for source in sources)
    headers = [source.name for source in sources if source.name in users]
    return [area, len(sources), lines, f"{statistics.median(source.lines for source in sources):g}",
            sum(1 for source in sources if source.lines <= SMALL_FILE),
            f"{100 * frame / lines if lines else 0:.1f} %", len(headers),
            sum(1 for name in headers if users[name] == 1)]


def print_table(rows):
    widths = [max(len(str(row[column])) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        first, *others = (str(cell) for cell in row)
        cells = (cell.rjust(width) for cell, width in zip(others, widths[1:]))
        print("  ".join([first.ljust(widths[0]), *cells]))


def print_areas(sources):
    users = user_counts(sources)
    areas = collections.defaultdict(list)
    for source in sources:
        areas[source.name.partition("/")[0]].append(source)
    print_table([["Area", "files", "lines", "median", f"up to {SMALL_FILE}", "includes and namespaces",
                  "headers", "with one user"],
                 *(figures(area, areas[area], users) for area in sorted(areas)),
                 figures("total", sources, users)])


def circle_messages(sources):
    return [f"circle of {kind}: {' '.join(circle)}"
            for kind, part_of in (("files", unit_of), ("folders", folder_of))
            for circle in circles_of(graph_of(sources, part_of))]


def length_messages(sources):
    return [f"{source.name}: {source.lines} lines, {LONGEST_FILE} at most"
            for source in sources if source.lines > LONGEST_FILE]


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--tests", action="store_true")
    parser.add_argument("place", nargs="?", default=".", metavar="FOLDER | REVISION")
    options = parser.parse_args(arguments)
    sources = read_sources(options.place, options.tests)
    if not sources:
        sys.exit("structure: there was no file to look at")
    messages = circle_messages(sources) + length_messages(sources)
    if not options.check:
        print_areas(sources)
    print("\n".join(messages), end="\n" if messages else "")
    return 1 if options.check and messages else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
