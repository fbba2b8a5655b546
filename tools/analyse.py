#!/usr/bin/env python3
"""Runs clang-tidy on source files, several at a time.

Usage: analyse.py BUILD_FOLDER < LIST_OF_FILES

Reads file names, absolute, one a line; BUILD_FOLDER/compile_commands.json says how they are
compiled. Most of the work is the headers of the libraries, so files of one folder that declare no
name twice are analysed as one. A group with a finding is halved until the file is found that has it
alone: what comes of the grouping is nobody's fault. Exits with 1 when something was found, or when
there was nothing to look at.
"""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile

# More of them would save little, and leave processors without work at the end.
LARGEST_GROUP = 12

LOCAL_PART = re.compile(r"^namespace \{$(.*?)^\}  // namespace$", re.MULTILINE | re.DOTALL)
TYPE_NAME = re.compile(r"^(?:template <.*> )?(?:struct|class|enum class|enum|union) (\w+)")
OTHER_NAME = re.compile(r"(\w+)\s*(?:\(|=|\{|\[|;)")
ALIAS = re.compile(r"^(?:using (?:[\w:]+::)?(\w+)\b|namespace (\w+) =)", re.MULTILINE)
MACRO = re.compile(r"^#define (\w+)", re.MULTILINE)


def declared_name(line):
    """What a line that begins in the first column declares, or None."""
    match = TYPE_NAME.match(line) or OTHER_NAME.search(line)
    return match[1] if match else None


def local_names(text):
    """The names that a source file, formatted as ours are, declares for itself alone."""
    names = {name for match in ALIAS.finditer(text) for name in match.groups() if name}
    names.update(MACRO.findall(text))
    for part in LOCAL_PART.findall(text):
        lines = (line for line in part.splitlines() if line[:1].isalpha())
        names.update(filter(None, map(declared_name, lines)))
    return names


def grouped(names_of_files):
    """Lists of files in which no name is declared twice, from (file, names) of one kind."""
    groups = []
    for file, names in names_of_files:
        for group in groups:
            if len(group[0]) < LARGEST_GROUP and not names & group[1]:
                group[0].append(file)
                group[1].update(names)
                break
        else:
            groups.append(([file], set(names)))
    return [files for files, _ in groups]


def flags_of(entry):
    """How a file of the database is compiled, without the compiler, the file and its object."""
    flags = []
    skip = False
    for word in shlex.split(entry["command"])[1:]:
        if skip or word == entry["file"] or word == "-c":
            skip = False
        elif word == "-o":
            skip = True
        else:
            flags.append(word)
    return tuple(flags)


def make_groups(files, database):
    """Groups of files, each with the flags that its files are compiled with."""
    flags = {entry["file"]: flags_of(entry) for entry in database}
    kinds = {}
    for file in files:
        with open(file, encoding="utf-8") as source:
            kinds.setdefault((os.path.dirname(file), flags[file]), []).append(
                (file, local_names(source.read())))
    return [(group, kind[1]) for kind, members in kinds.items() for group in grouped(members)]


def run_tidy(arguments):
    return subprocess.run(["clang-tidy", "--quiet", *arguments], stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, text=True, check=False)


def analyse(group, flags, build):
    """What clang-tidy says of the files; empty when all is well."""
    if len(group) == 1:
        result = run_tidy(["-p", build, group[0]])
        return result.stdout + result.stderr if result.returncode != 0 else ""
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=build, encoding="utf-8") as joined:
        joined.writelines(f'#include "{file}"\n' for file in group)
        joined.flush()
        if run_tidy([joined.name, "--", *flags]).returncode == 0:
            return ""
    half = len(group) // 2
    return analyse(group[:half], flags, build) + analyse(group[half:], flags, build)


def main(build):
    files = sys.stdin.read().splitlines()
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as commands:
        groups = make_groups(files, json.load(commands))
    if not groups:
        sys.exit("analyse: there was no file to look at")
    groups.sort(key=lambda group: -len(group[0]))
    failed = False
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        jobs = [pool.submit(analyse, group, flags, os.path.abspath(build))
                for group, flags in groups]
        for job in concurrent.futures.as_completed(jobs):
            print(job.result(), end="", flush=True)
            failed = failed or bool(job.result())
    return 1 if failed else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
