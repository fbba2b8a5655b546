"""Takes of skeletons."""

from __future__ import annotations

from collections.abc import Sequence
from dataclasses import dataclass
from functools import cached_property
from typing import TYPE_CHECKING, Any, Literal

import numpy as np
from numpy.typing import ArrayLike, NDArray

from orvane import _orvane
from orvane.common import Floats, FramedTake, Rate
from orvane.rates import rate_pair
from orvane.shapes import indices, shaped

if TYPE_CHECKING:
    import pandas


@dataclass(frozen=True)
class BasePose:
    """Where the segments are without motion, each relative to its parent.

    ``translations`` (segments, 3) in the take's unit, ``rotations`` (segments, 3) in radians by
    ``rotation_order``, ``bone_lengths`` (segments,) in the take's unit.
    """

    translations: Floats
    rotations: Floats
    bone_lengths: Floats


class Motion(FramedTake[_orvane.Motion]):
    """Segments over time: what an HTR file holds. ``orvane.read`` and ``from_arrays`` make one.

    All values are those of the file: relative to the parent, Y up, as offsets from the base
    position. A frame's translation is added to the base translation, and its rotation stands to
    the right of the base rotation; ``world_positions`` puts all of that together.

    >>> import orvane
    >>> motion = orvane.read("walk.htr")
    >>> motion
    <Motion 'walk.htr': 21 segments, 120 frames at 60 per second, mm>
    >>> motion.translations.shape, motion.rotations.shape, motion.scales.shape
    ((120, 21, 3), (120, 21, 3), (120, 21))
    """

    extension = ".htr"

    rotation_order = "ZYX"
    """As files name it: M = Rz(z) Ry(y) Rx(x) on column vectors, about fixed X first."""

    @classmethod
    def from_arrays(cls, names: Sequence[str], parents: ArrayLike, *, base: BasePose,
                    translations: ArrayLike, rotations: ArrayLike,
                    scales: ArrayLike | None = None, rate: Rate, unit: str = "mm",
                    first_frame: int = 1) -> Motion:
        """A motion of arrays, as it has them itself.

        ``parents`` (segments,) are indices, -1 for a root. ``translations`` (frames, segments, 3)
        in ``unit`` and ``rotations`` (frames, segments, 3) in radians are offsets from ``base``;
        ``scales`` (frames, segments) are 1 where there are none. Raises a ValueError for other
        shapes, for a number that is not finite, for parents that form a circle, and for names that
        repeat or that no file can hold.

        >>> import numpy, orvane
        >>> base = orvane.BasePose(translations=numpy.array([[0, 900, 0], [0, 300, 0]]),
        ...                        rotations=numpy.zeros((2, 3)), bone_lengths=numpy.array([300, 0]))
        >>> still = numpy.zeros((4, 2, 3))
        >>> motion = orvane.Motion.from_arrays(["Hips", "Neck"], [-1, 0], base=base,
        ...                                    translations=still, rotations=still, rate=60)
        >>> motion
        <Motion '<arrays>': 2 segments, 4 frames at 60 per second, mm>
        >>> motion.world_positions()[0, 1].tolist()
        [0.0, 1200.0, 0.0]
        """
        turns = shaped("rotations", rotations, ("frames", len(names), 3))
        frames = turns.shape[:2]
        values = np.concatenate([
            shaped("translations", translations, (*frames, 3)),
            turns,
            shaped("scales", np.ones(frames) if scales is None else scales, frames)[:, :, None],
        ], axis=2)
        bases = np.column_stack([
            shaped("base.translations", base.translations, (len(names), 3)),
            shaped("base.rotations", base.rotations, (len(names), 3)),
            shaped("base.bone_lengths", base.bone_lengths, (len(names),)),
        ])
        return cls("<arrays>", _orvane.make_motion(
            list(names), indices("parents", parents, len(names)), bases, values, unit,
            rate_pair(rate), first_frame))

    @cached_property
    def names(self) -> tuple[str, ...]:
        return tuple(self._held.names)

    @cached_property
    def parents(self) -> NDArray[np.int64]:
        """Of each segment the index of its parent; -1 for a root: int64 (segments,)."""
        return _frozen(np.array(self._held.parents, dtype=np.int64))

    @cached_property
    def frame_counts(self) -> NDArray[np.int64]:
        """Frames that each segment holds, of which some may hold fewer: int64 (segments,)."""
        return _frozen(np.array(self._held.frame_counts, dtype=np.int64))

    @cached_property
    def base(self) -> BasePose:
        """Where the segments are without motion."""
        rows = np.array(self._held.bases, dtype=np.float64).reshape(-1, 7)
        return BasePose(*(_frozen(part.copy()) for part in (rows[:, 0:3], rows[:, 3:6], rows[:, 6])))

    @property
    def translations(self) -> Floats:
        """Added to the base translations: float64 (frames, segments, 3) in ``unit``.

        This, ``rotations`` and ``scales`` are views of the motion's own memory, which lives as long
        as they do. They are read-only; ``copy()`` makes what is yours. Frames that a segment lacks
        are NaN.
        """
        return self._held.translations

    @property
    def rotations(self) -> Floats:
        """To the right of the base rotations: float64 (frames, segments, 3), the angles about x, y
        and z in radians, by ``rotation_order``.
        """
        return self._held.rotations

    @property
    def scales(self) -> Floats:
        """Of the bones' lengths: float64 (frames, segments)."""
        return self._held.scales

    def world_positions(self) -> Floats:
        """Where the segments begin, in the world: float64 (frames, segments, 3) in ``unit``.

        Base and frame are put together from the roots down. NaN in frames that a segment lacks, and
        for segments that hang from no root; what hangs from a segment without a frame hangs from
        the next one up in it.

        >>> import orvane
        >>> motion = orvane.read("walk.htr")
        >>> motion.world_positions()[0, motion.index("LeftHand")].round(1).tolist()
        [247.0, 838.4, -87.8]
        """
        return _orvane.world_positions(self._held)

    def world_rotations(self, as_: Literal["matrix", "quaternion", "euler"] = "matrix") -> Floats:
        """How the segments are turned in the world, NaN where ``world_positions`` is.

        ``"matrix"`` is (frames, segments, 3, 3), which turns column vectors; ``"quaternion"``
        (frames, segments, 4), x, y, z, w, w not negative; ``"euler"`` (frames, segments, 3), the
        angles about x, y and z in radians, by ``rotation_order``.
        """
        if as_ not in ("matrix", "quaternion", "euler"):
            raise ValueError(f"as_ is {as_!r}; it is 'matrix', 'quaternion' or 'euler'")
        rotations = _orvane.world_rotations(self._held, as_)
        return rotations.reshape(*rotations.shape[:2], 3, 3) if as_ == "matrix" else rotations

    def resample(self, rate: Rate, *, rotations: Literal["slerp", "linear"] = "slerp") -> Motion:
        """The same at another rate, interpolated between two frames; what lies on a frame stays.

        ``"slerp"`` turns about one axis at one speed, ``"linear"`` takes each angle by itself.
        """
        if rotations not in ("slerp", "linear"):
            raise ValueError(f"rotations is {rotations!r}; it is 'slerp' or 'linear'")
        return self._made(_orvane.resample_motion(self._held, *self._step_to(rate),
                                                  rotations == "slerp"))

    def to_pandas(self, layout: str = "wide") -> pandas.DataFrame:
        """Values of the file as a table of pandas, which has to be installed.

        ``"wide"`` has a row a frame, by its number, and columns of two levels: segment, and of it
        tx, ty, tz, rx, ry, rz (radians) and scale; ``"long"`` has a row a segment and frame.

        >>> import orvane
        >>> orvane.read("walk.htr").to_pandas().shape
        (120, 147)
        """
        from orvane.tables import motion_to_pandas

        return motion_to_pandas(self, layout)

    def plot_positions(self, name: str, axes: Any = None) -> Any:
        """Draws where a segment is in the world, with matplotlib, which has to be installed.

        Returns the axes: those that are given, or new ones.
        """
        from orvane.plots import plot_positions

        return plot_positions(self, name, axes)

    def index(self, name: str) -> int:
        """Which of the segments is called so; raises a KeyError when none is."""
        try:
            return self._indices[name]
        except KeyError:
            raise self._unknown("segment", name) from None

    @cached_property
    def _indices(self) -> dict[str, int]:
        return {name: index for index, name in enumerate(self.names)}

    def __repr__(self) -> str:
        return self._summary("segments")

    def _repr_html_(self) -> str:
        from orvane.notebook import motion_table

        return motion_table(self)


def _frozen(array: NDArray[Any]) -> NDArray[Any]:
    array.flags.writeable = False
    return array
