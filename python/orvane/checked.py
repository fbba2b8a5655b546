"""What comes of a check."""

from __future__ import annotations

from dataclasses import dataclass

from orvane.findings import Finding


@dataclass(frozen=True)
class CheckedFile:
    """A file, what it holds in a few words, and what is odd in it."""

    path: str
    format: str
    contents: str
    findings: tuple[Finding, ...]

    @property
    def is_refused(self) -> bool:
        """Whether there is an error among the findings."""
        return any(finding.severity == "error" for finding in self.findings)
