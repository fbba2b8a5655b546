"""Files into takes."""

from __future__ import annotations

from typing import Literal, overload

from orvane import _orvane
from orvane.checked import CheckedFile
from orvane.common import Unit
from orvane.findings import findings_of, warn_of
from orvane.motion import Motion
from orvane.sources import Input, Source, format_of, open_input
from orvane.take import Take


@overload
def read(source: Source, *, format: Literal["trc"], unit: Unit | None = None,
         check: bool = True, warn: bool = True) -> Take: ...
@overload
def read(source: Source, *, format: Literal["htr"], unit: Unit | None = None,
         check: bool = True, warn: bool = True) -> Motion: ...
@overload
def read(source: Source, *, format: None = None, unit: Unit | None = None,
         check: bool = True, warn: bool = True) -> Take | Motion: ...


def read(source: Source, *, format: str | None = None, unit: Unit | None = None,
         check: bool = True, warn: bool = True) -> Take | Motion:
    """Reads a marker file (TRC) as a Take, or a motion file (HTR) as a Motion.

    ``source`` is a path, the bytes of a file, or a file that is open in binary mode. ``format`` is
    ``"trc"`` or ``"htr"``; without it the name of the file says what it is, and else its bytes.
    ``unit`` converts all lengths first, to ``"mm"``, ``"cm"``, ``"m"``, ``"in"``, ``"ft"`` or
    ``"yd"``.

    What is odd in the file is in the ``findings`` of the take, and each of them that is no note is
    a FindingWarning unless ``warn`` is false. ``check=False`` looks for none of it, and ``findings``
    is ``None`` then.

    Raises a FileError when the file cannot be read, is refused by the reader or holds nothing, and
    when an array of its frames would take more than 8 times the file and 512 MB. The lock of the
    interpreter is given back meanwhile.

    >>> import orvane
    >>> take = orvane.read("walk.trc")
    >>> take.points.shape, take.unit
    ((120, 41, 3), 'mm')
    >>> orvane.read("walk.trc", unit="m").points[0, 0].round(3).tolist()
    [0.082, 1.646, 0.134]
    """
    file = open_input(source)
    kind = format_of(file, format, ("trc", "htr"))
    take: Take | Motion
    if kind == "trc":
        take = Take(file.name, _orvane.read_markers(file.encoded_name, file.data, check, unit))
    else:
        take = Motion(file.name, _orvane.read_motion(file.encoded_name, file.data, check, unit))
    if warn:
        warn_of(file.name, take.findings or (), stacklevel=2)
    return take


def check(source: Source | Take | Motion, *, format: str | None = None,
          action: Literal["inspect", "import", "apply", "convert"] = "inspect") -> CheckedFile:
    """Everything that is odd in a marker, motion or mapping file (``"trc"``, ``"htr"``, ``"mnm"``).

    ``action`` is what is to be done with the file: the same finding may be of no account to one and
    spoil what comes out of another. A file that its reader refuses has an error among its findings.
    Raises a FileError when the file cannot be read at all.

    Of a take it tells what is odd in the file that ``to_bytes`` makes of it, and lines are those of
    that file: what the reader of another file has found is in the ``findings`` of the take. Raises a
    ValueError when no file can hold it.

    >>> import orvane
    >>> checked = orvane.check("walk.trc", action="convert")
    >>> checked.contents
    '41 markers, 120 frames'
    >>> [finding.code for finding in checked.findings]
    ['trc-marker-gaps']
    >>> orvane.check(orvane.read("walk.trc").cut(21, 43)).findings[0].count
    9
    """
    if isinstance(source, (Take, Motion)):
        own = source.extension[1:]
        file = Input(source.path, source.to_bytes())
        kind = format_of(file, format or own, (own,))
    else:
        file = open_input(source)
        kind = format_of(file, format, ("trc", "htr", "mnm"))
    contents, rows = _orvane.check(file.encoded_name, file.data, kind, action)
    return CheckedFile(file.name, kind, contents, findings_of(rows) or ())
