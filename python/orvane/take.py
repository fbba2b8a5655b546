"""Takes of markers."""

from __future__ import annotations

from collections.abc import Mapping, Sequence
from functools import cached_property
from types import MappingProxyType
from typing import TYPE_CHECKING, Any

import numpy as np
from numpy.typing import ArrayLike

from orvane import _orvane
from orvane.common import Floats, FramedTake, Rate
from orvane.rates import rate_pair
from orvane.shapes import shaped

if TYPE_CHECKING:
    import pandas

Gap = tuple[int, int]


class Take(FramedTake[_orvane.Markers]):
    """Markers over time: what a TRC file holds. ``orvane.read`` and ``Take.from_points`` make one.

    >>> import orvane
    >>> take = orvane.read("walk.trc")
    >>> take
    <Take 'walk.trc': 41 markers, 120 frames at 60 per second, mm>
    >>> take.names[:2], take.rate
    (('walker:LFHD', 'walker:LBHD'), Fraction(60, 1))
    >>> take["walker:LFHD"].shape
    (120, 3)
    """

    extension = ".trc"

    @classmethod
    def from_points(cls, points: ArrayLike, names: Sequence[str], *, rate: Rate,
                    unit: str = "mm", first_frame: int = 1) -> Take:
        """A take of an array of positions: (frames, markers, 3) in ``unit``; a gap is NaN.

        Raises a ValueError for another shape, for a position that is infinite or NaN in part, and
        for names that repeat.

        >>> import numpy, orvane
        >>> orvane.Take.from_points(numpy.zeros((4, 1, 3)), ["LASI"], rate="59.94")
        <Take '<points>': 1 markers, 4 frames at 59.94 per second, mm>
        """
        values = shaped("points", points, ("frames", "markers", 3))
        return cls("<points>", _orvane.make_markers(values, list(names), unit, rate_pair(rate),
                                                    first_frame))

    @cached_property
    def names(self) -> tuple[str, ...]:
        return tuple(self._held.names)

    @property
    def points(self) -> Floats:
        """Positions, x, y and z in ``unit``: float64 (frames, markers, 3); NaN in gaps.

        A view of the take's own memory, which lives as long as the view does. It is read-only;
        ``points.copy()`` is yours.

        >>> import orvane
        >>> points = orvane.read("walk.trc").points
        >>> points.dtype.name, points.flags.writeable
        ('float64', False)
        """
        return self._held.points

    @cached_property
    def gaps(self) -> Mapping[str, tuple[Gap, ...]]:
        """Of each marker the numbers of the first and the last frame of each gap, in order.

        >>> import orvane
        >>> orvane.read("walk.trc").gaps["walker:LBWT"]
        ((1, 3), (44, 63), (104, 120))
        """
        first = self.first_frame
        return MappingProxyType({
            name: tuple((first + begin, first + end - 1) for begin, end in gaps)
            for name, gaps in zip(self.names, self._held.gaps)
        })

    @cached_property
    def coverage(self) -> Mapping[str, float]:
        """Of each marker the part of the frames in which it was measured, 0 to 1."""
        frames = max(self.frame_count, 1)
        return MappingProxyType({
            name: 1.0 - sum(last - first + 1 for first, last in gaps) / frames
            for name, gaps in self.gaps.items()
        })

    def index(self, name: str) -> int:
        """Which of the markers is called so; raises a KeyError when none is."""
        try:
            return self._indices[name]
        except KeyError:
            raise self._unknown("marker", name) from None

    @cached_property
    def _indices(self) -> dict[str, int]:
        return {name: index for index, name in enumerate(self.names)}

    def __getitem__(self, name: str) -> Floats:
        """Positions of one marker: (frames, 3)."""
        return self.points[:, self.index(name)]

    def resample(self, rate: Rate) -> Take:
        """The same at another rate, interpolated linearly between two frames.

        What lies on a frame stays as it is, and what lies beside a gap is one.

        >>> import orvane
        >>> orvane.read("walk.trc").resample(30).points.shape
        (60, 41, 3)
        """
        return self._made(_orvane.resample_markers(self._held, *self._step_to(rate)))

    def to_pandas(self, layout: str = "wide") -> pandas.DataFrame:
        """Positions as a table of pandas, which has to be installed.

        ``"wide"`` has a row a frame, by its number, and columns of two levels, marker and axis;
        ``"long"`` has a row a marker and frame: frame, time, marker, x, y, z.

        >>> import orvane
        >>> take = orvane.read("walk.trc")
        >>> take.to_pandas()["walker:LFHD"].shape
        (120, 3)
        >>> list(take.to_pandas("long"))
        ['frame', 'time', 'marker', 'x', 'y', 'z']
        """
        from orvane.tables import take_to_pandas

        return take_to_pandas(self, layout)

    def plot_gaps(self, axes: Any = None) -> Any:
        """Draws when each marker was measured, with matplotlib, which has to be installed.

        Returns the axes: those that are given, or new ones.
        """
        from orvane.plots import plot_gaps

        return plot_gaps(self, axes)

    def __repr__(self) -> str:
        return self._summary("markers")

    def _repr_html_(self) -> str:
        from orvane.notebook import take_table

        return take_table(self)
