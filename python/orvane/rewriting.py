"""Files into files, as the program makes them."""

from __future__ import annotations

import os
from typing import Any

from orvane.common import Path
from orvane.findings import Finding, warn_of
from orvane.program import arguments_of, require_good, run


def rewrite(path: Path, output: Path, *, force: bool = False, warn: bool = True,
            **options: Any) -> tuple[Finding, ...]:
    """Makes a file of another, as ``orvane rewrite`` does: its format is that of ``output``'s name.

    The options are the flags of that, as in ``to_scene``: ``cut=(10, 60)`` or ``(10, None)``,
    ``unit="m"``, ``select=["LASI", "RASI"]``, ``rename={"LASI": "L"}``. ``force`` replaces a file
    that is there. The file appears whole or not at all. Returns what is odd in the file, and what
    the new one cannot hold; each of that which is no note is a FindingWarning unless ``warn`` is
    false. Raises a FileError when nothing comes of it. One is done at a time.

    >>> import orvane
    >>> findings = orvane.rewrite("walk.trc", "rewritten.trc", cut=(10, 60), force=True)
    >>> orvane.read("rewritten.trc").frame_count
    51
    """
    if os.fspath(output) == "-":
        raise ValueError("output is a file: - is standard output, which is the program's alone")
    arguments = [*arguments_of("rewrite", options), "--output=" + os.fspath(output),
                 *["--force"][:force]]
    file = os.fspath(path)
    require_good(["rewrite", *arguments, "--", file])
    findings = run("rewrite", file, arguments).findings
    if warn:
        warn_of(file, findings, stacklevel=2)
    return findings
