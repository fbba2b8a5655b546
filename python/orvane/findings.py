"""What is found in files: each code once, the worst first."""

from __future__ import annotations

import warnings
from collections.abc import Iterable
from dataclasses import dataclass

from orvane.errors import FindingWarning

FindingRow = tuple[str, str, int, int, int, tuple[str, ...], str, str]


@dataclass(frozen=True)
class Finding:
    """Something that is odd in a file, and what becomes of it.

    ``severity`` is ``"note"``, ``"warning"`` or ``"error"``; ``count`` says how often it was found;
    ``line`` and ``column`` (counted from 1, in bytes) are those of the first one, and 0 where it
    has no place in the file; ``names`` are the first ones that it is about. docs/findings.md
    explains the codes.
    """

    code: str
    severity: str
    count: int
    line: int
    column: int
    names: tuple[str, ...]
    cause: str
    consequence: str

    def __str__(self) -> str:
        place = f" (line {self.line}, column {self.column})" if self.line else ""
        names = ": " + ", ".join(f'"{name}"' for name in self.names) if self.names else ""
        more = ", ..." if self.names and self.count > len(self.names) else ""
        return f"{self.cause}{names}{more}{place}. {self.consequence} [{self.code}]"


def findings_of(rows: Iterable[FindingRow] | None) -> tuple[Finding, ...] | None:
    """Those of the binding; ``None`` when nobody has looked for them."""
    if rows is None:
        return None
    return tuple(Finding(*row) for row in rows)


def warn_of(path: str, findings: Iterable[Finding], stacklevel: int) -> None:
    """A warning of Python for each that is no note."""
    for finding in findings:
        if finding.severity != "note":
            warnings.warn(f"{path}: {finding}", FindingWarning, stacklevel=stacklevel + 1)
