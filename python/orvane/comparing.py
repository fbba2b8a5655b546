"""How far two takes are apart."""

from __future__ import annotations

from collections.abc import Mapping
from dataclasses import dataclass
from typing import Any

from orvane import _orvane
from orvane.motion import Motion
from orvane.reading import read
from orvane.sources import Source
from orvane.take import Take


@dataclass(frozen=True)
class Spread:
    """Differences of one quantity in the frames that both hold.

    ``largest`` is that of frame number ``frame``, the first one that has it; ``count`` differences
    have the mean ``mean``.
    """

    largest: float
    frame: int
    mean: float
    count: int


@dataclass(frozen=True)
class Difference:
    """Of one marker or segment, or of all.

    ``distance_mm`` is that of positions, of segments in the world; ``angle_deg`` that of rotations
    against the parent, ``None`` of markers. ``only_in_a`` and ``only_in_b`` count the frames in
    which one alone has measured a marker. ``first_beyond`` is the number of the first frame out of
    tolerance, if there is one.
    """

    distance_mm: Spread
    angle_deg: Spread | None
    only_in_a: int
    only_in_b: int
    first_beyond: int | None


@dataclass(frozen=True)
class Comparison:
    """How far two takes are apart; true when they are the same within the tolerance.

    ``by_name`` has what both hold, in the order of the first. ``frames`` are the numbers of the
    first and the last frame that both hold. ``only_names`` are (``"a"`` or ``"b"``, name),
    ``only_frames`` (``"a"`` or ``"b"``, segment or ``""`` for all, (first, last)), ``parents``
    (segment, parent in a, parent in b).
    """

    overall: Difference
    by_name: Mapping[str, Difference]
    frames: tuple[int, int] | None
    only_names: tuple[tuple[str, str], ...]
    only_frames: tuple[tuple[str, str, tuple[int, int]], ...]
    parents: tuple[tuple[str, str, str], ...]
    rate_differs: bool

    @property
    def hold_the_same(self) -> bool:
        """Whether names, frames, parents and rates are the same."""
        return not (self.only_names or self.only_frames or self.parents or self.rate_differs)

    def __bool__(self) -> bool:
        return self.hold_the_same and self.overall.first_beyond is None


def compare(a: Take | Motion | Source, b: Take | Motion | Source, *, tolerance_mm: float = 0.001,
            tolerance_deg: float = 0.001) -> Comparison:
    """Tells how far two takes, or two files, of markers or of motion are apart.

    Names, with the case of their letters, and numbers of frames say what belongs together. Raises a
    TypeError when one is of markers and the other is not, and a FileError as ``read`` does.

    >>> import orvane
    >>> walk = orvane.read("walk.htr")
    >>> bool(orvane.compare(walk, "walk.htr"))
    True
    >>> orvane.compare(walk, orvane.read("walk.htr", unit="m")).overall.first_beyond is None
    True
    """
    if not min(tolerance_mm, tolerance_deg) >= 0:
        raise ValueError("a tolerance is 0 or more")
    left, right = _take_of(a), _take_of(b)
    if isinstance(left, Take) and isinstance(right, Take):
        return _comparison(_orvane.compare_markers(left._held, right._held, tolerance_mm))
    if isinstance(left, Motion) and isinstance(right, Motion):
        return _comparison(_orvane.compare_motion(left._held, right._held, tolerance_mm,
                                                  tolerance_deg))
    raise TypeError("markers are compared with markers, and motion with motion")


def _take_of(source: Take | Motion | Source) -> Take | Motion:
    return source if isinstance(source, (Take, Motion)) else read(source)


def _comparison(told: dict[str, Any]) -> Comparison:
    return Comparison(
        overall=_difference(told["overall"]),
        by_name={name: _difference(each) for name, each in told["by_name"].items()},
        frames=told["frames"],
        only_names=tuple(told["only_names"]),
        only_frames=tuple(told["only_frames"]),
        parents=tuple(told["parents"]),
        rate_differs=told["rate_differs"],
    )


def _difference(told: dict[str, Any]) -> Difference:
    is_of_markers = "distance_mm" in told
    return Difference(
        distance_mm=Spread(*told["distance_mm" if is_of_markers else "position_mm"]),
        angle_deg=None if is_of_markers else Spread(*told["orientation_deg"]),
        only_in_a=told.get("only_in_a", 0),
        only_in_b=told.get("only_in_b", 0),
        first_beyond=told["first_beyond"],
    )
