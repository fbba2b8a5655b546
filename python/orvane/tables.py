"""Takes as tables of pandas, and back."""

from __future__ import annotations

from typing import TYPE_CHECKING

import numpy as np
from numpy.typing import NDArray

from orvane.common import Rate
from orvane.rates import LARGEST

if TYPE_CHECKING:
    import pandas

    from orvane.motion import Motion
    from orvane.take import Take

AXES = ("x", "y", "z")
MOTION_COLUMNS = ("tx", "ty", "tz", "rx", "ry", "rz", "scale")


def take_to_pandas(take: Take, layout: str) -> pandas.DataFrame:
    points = np.asarray(take.points)
    return _table(take, points, "marker", AXES, layout)


def motion_to_pandas(motion: Motion, layout: str) -> pandas.DataFrame:
    values = np.concatenate(
        [motion.translations, motion.rotations, motion.scales[:, :, np.newaxis]], axis=2)
    return _table(motion, values, "segment", MOTION_COLUMNS, layout)


def _table(take: Take | Motion, values: NDArray[np.float64], thing: str, columns: tuple[str, ...],
           layout: str) -> pandas.DataFrame:
    import pandas

    frames = np.arange(take.first_frame, take.first_frame + take.frame_count)
    if layout == "wide":
        heads = pandas.MultiIndex.from_product([take.names, columns], names=[thing, "axis"])
        return pandas.DataFrame(values.reshape(take.frame_count, -1),
                                index=pandas.Index(frames, name="frame"), columns=heads)
    if layout != "long":
        raise ValueError(f"layout is {layout!r}; it is 'wide' or 'long'")
    count = len(take.names)
    table = {
        "frame": np.repeat(frames, count),
        "time": np.repeat(take.times, count),
        thing: np.tile(np.array(take.names, dtype=object), take.frame_count),
    }
    flat = values.reshape(-1, len(columns))
    table.update({column: flat[:, place] for place, column in enumerate(columns)})
    return pandas.DataFrame(table)


def from_pandas(table: pandas.DataFrame, *, rate: Rate, unit: str = "mm") -> Take:
    """A take of markers from a table as ``Take.to_pandas`` makes it, wide or long.

    Frames that have no row are gaps. Raises a ValueError for a table of another kind.

    >>> import orvane
    >>> take = orvane.read("walk.trc")
    >>> orvane.from_pandas(take.to_pandas(), rate=take.rate, unit=take.unit).points.shape
    (120, 41, 3)
    """
    from orvane.take import Take

    wide = table if table.columns.nlevels == 2 else _widened(table)
    names = [str(name) for name in wide.columns.get_level_values(0).unique()]
    numbers = wide.index.to_numpy()
    if len(numbers) and not np.issubdtype(numbers.dtype, np.integer):
        raise ValueError("the index of the table is not the numbers of frames")
    first = int(numbers.min()) if len(numbers) else 1
    last = int(numbers.max()) if len(numbers) else 0
    if last - first >= LARGEST or len(set(numbers.tolist())) != len(numbers):
        raise ValueError("the numbers of frames repeat")
    columns = [(name, axis) for name in names for axis in AXES]
    missing = [column for column in columns if column not in wide.columns]
    if missing:
        raise ValueError(f"the table has no column {missing[0]}")
    values = wide[columns].to_numpy(dtype=np.float64).reshape(len(numbers), len(names), 3)
    points = np.full((last - first + 1, len(names), 3), np.nan)
    points[numbers - first] = values
    return Take.from_points(points, names, rate=rate, unit=unit, first_frame=first)


def _widened(table: pandas.DataFrame) -> pandas.DataFrame:
    missing = {"frame", "marker", *AXES} - set(table.columns)
    if missing:
        raise ValueError(f"the table has no column {sorted(missing)[0]!r}")
    order = table["marker"].unique()
    wide = table.pivot(index="frame", columns="marker", values=list(AXES))
    return wide.swaplevel(axis=1).reindex(columns=order, level=0)
