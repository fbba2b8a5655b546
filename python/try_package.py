#!/usr/bin/env python3
"""Tries the package orvane that this interpreter has.

Usage: try_package.py FOLDER

FOLDER has copies of tests/, examples/, the pages named below and the walk of the project's examples,
and is written to. Runs the tests and the examples of the docstrings and the pages there, compares
the type stub with the module, and has mypy look at the package and the examples. Exits with 1 when
something fails.
"""

import os
import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
PAGES = ("python.md", "readme.md", "pandas.md")


def run(folder, *words):
    print("==", *words[1:] if words[0] == "-m" else words, flush=True)
    environment = {**os.environ, "MPLBACKEND": "Agg", "PYTHONDONTWRITEBYTECODE": "1"}
    command = [sys.executable, "-P", *words]
    return subprocess.run(command, cwd=folder, env=environment, check=False).returncode == 0


def main(folder):
    config = str(HERE / "pyproject.toml")
    pytest = ("-m", "pytest", "--quiet", "-c", config, "--rootdir", folder)
    results = [
        run(folder, *pytest, "tests"),
        run(folder, *pytest, "--doctest-modules", "--pyargs", "orvane"),
        run(folder, *pytest, "--doctest-glob=*.md", *PAGES),
        run(folder, "-m", "mypy.stubtest", "orvane", "--mypy-config-file", config, "--allowlist",
            str(HERE / "stubtest_allowlist.txt")),
        run(folder, "-m", "mypy", "--config-file", config, "--package", "orvane"),
        run(folder, "-m", "mypy", "--config-file", config, *sorted(
            str(path) for path in pathlib.Path(folder, "examples").glob("*.py"))),
    ]
    return 0 if all(results) else 1


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
