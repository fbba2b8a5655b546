"""The verbs of the program `orvane`, within this process."""

from __future__ import annotations

import json
import os
import re
import tempfile
from collections.abc import Mapping
from dataclasses import dataclass
from typing import Any

from orvane import _orvane
from orvane.errors import FileError, MissingFileError
from orvane.findings import Finding

HERE = os.path.dirname(os.path.abspath(__file__))
# Beside this file in a wheel; Debian's package has that of the program, in /usr/lib/orvane.
PLACES = (HERE, os.path.join(HERE, *[os.pardir] * 3, "orvane"))
MODULES = [os.path.normpath(os.path.join(place, "OrvaneFileIO.so")) for place in PLACES]
MODULE = next(filter(os.path.exists, MODULES), MODULES[0])

# What the system says, and the codes that files have for it.
CODES = {"No such file or directory": "file-missing", "File exists": "file-exists"}

INTERRUPTED = 130
WRONG_USAGE = 2

Complaint = tuple[str, str, str]


@dataclass(frozen=True)
class Run:
    """What a verb has told: what it printed, and what it has found in its files."""

    output: str
    findings: tuple[Finding, ...]


def arguments_of(verb: str, options: Mapping[str, object]) -> list[str]:
    """The flags that keyword arguments mean.

    ``segment_size=2`` is ``--segment-size 2``, ``end_effectors=True`` is ``--end-effectors`` and
    ``False`` is ``--no-end-effectors``; ``None`` leaves a flag out, and so does ``False`` where
    there is no such flag. Two numbers are a range, of which ``None`` is an open end, three a
    position, a list is a flag for each, and so is a mapping: ``rename={"A": "B"}`` is
    ``--rename A=B``. ``True`` of a flag that takes a value is for the program to refuse.
    """
    known = _orvane.flags_of(verb)
    arguments: list[str] = []
    for name, value in options.items():
        flag = "--" + name.rstrip("_").replace("_", "-")
        if flag not in known:
            raise TypeError(f"{verb} has no option {name!r}")
        arguments += _words(flag, value, known)
    return arguments


def _words(flag: str, value: object, known: Mapping[str, bool]) -> list[str]:
    if value is None:
        return []
    if isinstance(value, bool) and not (value and known[flag]):
        opposite = "--no-" + flag[2:]
        return [flag] if value else [opposite] if opposite in known else []
    if isinstance(value, Mapping):
        return [f"{flag}={old}={new}" for old, new in value.items()]
    if isinstance(value, list):
        return [word for each in value for word in _words(flag, each, known)]
    if isinstance(value, tuple):
        if all(each is None for each in value):
            return []
        separator = ":" if len(value) == 2 else ","
        return [flag + "=" + separator.join("" if each is None else _text(each) for each in value)]
    return [flag + "=" + _text(value)]


def _text(value: object) -> str:
    return repr(float(value)) if isinstance(value, float) else os.fspath(value) if isinstance(
        value, os.PathLike) else str(value)


def require_good(arguments: list[str]) -> None:
    """Raises a ValueError when the program would not take them."""
    faults = _orvane.faults_of(arguments)
    if faults:
        raise ValueError(_sentence(*faults[0]))


def run(verb: str, path: str, arguments: list[str]) -> Run:
    """Does what the verb does with the file ``path``. Raises a FileError when it gives up."""
    if "--module" in _orvane.flags_of(verb):
        arguments = [*arguments, "--module=" + MODULE]
    wanted = [each for each in arguments if each.startswith("--report=")]
    with tempfile.TemporaryDirectory(prefix="orvane-") as folder:
        report = wanted[0][len("--report="):] if wanted else os.path.join(folder, "report.json")
        words = [verb, *arguments, *([] if wanted else ["--report=" + report]), "--", path]
        status, output, told, complaints = _orvane.run(words)
        findings = _findings_in(report)
    if status == INTERRUPTED:
        raise KeyboardInterrupt
    if status == WRONG_USAGE and complaints:
        raise ValueError(_sentence(*complaints[0]))
    if status != 0:
        raise _error(path, complaints or _complaints_in(told), findings)
    return Run(output, findings)


def _findings_in(report: str) -> tuple[Finding, ...]:
    if not os.path.exists(report):
        return ()
    with open(report, encoding="utf-8", errors="surrogateescape") as file:
        files = json.load(file)["files"]
    return tuple(_finding(each) for told in files if told for each in told["findings"])


def _finding(told: dict[str, Any]) -> Finding:
    return Finding(**{**told, "names": tuple(told["names"])})


def _complaints_in(told: str) -> list[Complaint]:
    """Those that the program has printed: "orvane: SUBJECT: TEXT", and what to do below."""
    found = re.search(r"^orvane: (?:([^\n]*?): )?([^\n]*)\n(?:  ([^\n]*))?", told, re.MULTILINE)
    return [(found[1] or "", found[2], found[3] or "")] if found else []


def _sentence(subject: str, text: str, advice: str) -> str:
    text = (f"{subject}: " if subject else "") + text
    advice = re.sub(r"--force\b", "force=True", advice)
    return ". ".join(part for part in (text.rstrip("."), advice) if part)


def _error(path: str, complaints: list[Complaint], findings: tuple[Finding, ...]) -> FileError:
    worst = next((each for each in findings if each.severity == "error"), None)
    if worst is not None:
        names = ": " + ", ".join(map(repr, worst.names)) if worst.names else ""
        return FileError(path, f"{worst.cause}{names}. {worst.consequence}", worst.line or 0,
                         worst.column or 0, worst.code, findings)
    subject, text, advice = complaints[-1] if complaints else ("", "was refused", "")
    code = re.search(r" \[([a-z0-9-]+)\]$", text)
    if code:
        text = text[:code.start()]
    name = code[1] if code else CODES.get(text, "refused")
    kind = MissingFileError if name == "file-missing" else FileError
    if subject.startswith("--"):
        subject, text = path, f"{subject}: {text}"
    return kind(subject or path, _sentence("", text, advice), code=name, findings=findings)
