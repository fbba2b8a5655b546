"""Pictures of takes, where matplotlib is installed."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any

import numpy as np

if TYPE_CHECKING:
    from orvane.motion import Motion
    from orvane.take import Take


def plot_gaps(take: Take, axes: Any) -> Any:
    axes = axes if axes is not None else _new_axes((8.0, 1.0 + 0.2 * len(take.names)))
    step = float(1 / take.rate)
    begin = float(take.times[0]) if take.frame_count else 0.0
    for row, name in enumerate(take.names):
        axes.broken_barh([(begin, take.frame_count * step)], (row - 0.4, 0.8), color="#4c78a8",
                         label="measured" if row == 0 else None)
        bars = [(begin + (first - take.first_frame) * step, (last - first + 1) * step)
                for first, last in take.gaps[name]]
        axes.broken_barh(bars, (row - 0.4, 0.8), color="#e45756", label="gap" if row == 0 else None)
    axes.set_yticks(range(len(take.names)), take.names)
    axes.invert_yaxis()
    axes.set_xlabel("seconds")
    axes.set_title(f"{take.path}: gaps")
    axes.legend(loc="upper left", bbox_to_anchor=(1.0, 1.0))
    return axes


def plot_positions(motion: Motion, name: str, axes: Any) -> Any:
    axes = axes if axes is not None else _new_axes((8.0, 4.0))
    positions = motion.world_positions()[:, motion.index(name)]
    for axis, label in enumerate("xyz"):
        axes.plot(motion.times, np.asarray(positions[:, axis]), label=label)
    axes.set_xlabel("seconds")
    axes.set_ylabel(motion.unit)
    axes.set_title(f"{motion.path}: {name}")
    axes.legend()
    return axes


def _new_axes(size: tuple[float, float]) -> Any:
    from matplotlib import pyplot

    return pyplot.subplots(figsize=size, layout="constrained")[1]
