"""Takes into files."""

from __future__ import annotations

from orvane.common import Path
from orvane.motion import Motion
from orvane.take import Take


def write(path: Path, take: Take | Motion, *, decimals: int | None = None,
          force: bool = False) -> None:
    """Writes a take as a file: markers to a name in ``.trc``, motion to one in ``.htr``.

    Numbers are the shortest text that reads back to the same; ``decimals`` gives all of them so
    many digits behind the point. ``force`` replaces a file that is there. The file appears whole or
    not at all. Raises a ValueError for another extension, and for what no file can hold, and a
    FileError when it cannot be written.

    >>> import orvane
    >>> take = orvane.read("walk.trc")
    >>> orvane.write("written.trc", take.cut(1, 60), force=True)
    >>> orvane.read("written.trc").frame_count
    60
    """
    take.write(path, decimals=decimals, force=force)
