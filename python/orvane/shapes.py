"""Arrays that takes are made of: whether they are of the right kind."""

from __future__ import annotations

import numpy as np
from numpy.typing import ArrayLike, NDArray


def shaped(what: str, values: ArrayLike, shape: tuple[int | str, ...]) -> NDArray[np.float64]:
    """``values`` as an array of ``shape``, where a word is any number; raises a ValueError."""
    array = np.ascontiguousarray(values, dtype=np.float64)
    fits = array.ndim == len(shape) and all(isinstance(wanted, str) or wanted == size
                                            for wanted, size in zip(shape, array.shape))
    if not fits:
        wanted = ", ".join(map(str, shape)) + ("," if len(shape) == 1 else "")
        raise ValueError(f"{what} have the shape {array.shape}, not ({wanted})")
    return array


def indices(what: str, values: ArrayLike, count: int) -> list[int]:
    """``values`` as so many whole numbers; raises a ValueError."""
    array = np.asarray(values)
    if array.shape != (count,) or (count > 0 and not np.issubdtype(array.dtype, np.integer)):
        raise ValueError(f"{what} are {count} whole numbers, one of each name")
    return [int(value) for value in array]
