"""Where the system looks for the libraries of a program, as its file says: the run path of an ELF file."""

import os
import pathlib
import re
import subprocess

ELF_KINDS = (2, 3)  # programs and libraries; object files are of kind 1


def is_binary(path):
    with path.open("rb") as file:
        start = file.read(18)
    return start.startswith(b"\x7fELF") and start[16] in ELF_KINDS


def binaries(folder):
    """The programs and libraries below the folder, without those that CMake tries compilers with."""
    return [path for path in sorted(pathlib.Path(folder).rglob("*"))
            if path.is_file() and not path.is_symlink() and "CMakeFiles" not in path.parts
            and is_binary(path)]


def entries(path):
    """Those of the file's run path, which may be empty ones: they stand for the current folder."""
    told = subprocess.run(["readelf", "--dynamic", "--wide", path], env=dict(os.environ, LC_ALL="C"),
                          capture_output=True, text=True, check=True).stdout
    return [entry for run_path in re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", told)
            for entry in run_path.split(":")]


def strange(path):
    """The entries that do not start from the file's own folder."""
    return [entry for entry in entries(path)
            if entry != "$ORIGIN" and not entry.startswith("$ORIGIN/")]
