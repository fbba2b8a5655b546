"""Takes as tables of a notebook."""

from __future__ import annotations

from html import escape
from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from orvane.motion import Motion
    from orvane.take import Take

MOST_ROWS = 60


def take_table(take: Take) -> str:
    rows = [(name, take.coverage[name], f"{len(take.gaps[name])}") for name in take.names]
    return _table(repr(take), ("marker", "measured", "gaps"), rows)


def motion_table(motion: Motion) -> str:
    frames = max(motion.frame_count, 1)
    rows = [(name, int(count) / frames, "" if parent < 0 else motion.names[parent])
            for name, count, parent in zip(motion.names, motion.frame_counts, motion.parents)]
    return _table(repr(motion), ("segment", "frames held", "parent"), rows)


def _table(caption: str, heads: tuple[str, ...], rows: list[tuple[str, float, str]]) -> str:
    lines = [f"<table><caption>{escape(caption)}</caption>",
             "<tr>" + "".join(f"<th>{head}</th>" for head in heads) + "</tr>"]
    lines += [_row(*row) for row in rows[:MOST_ROWS]]
    if len(rows) > MOST_ROWS:
        lines.append(f"<tr><td colspan=3>and {len(rows) - MOST_ROWS} more</td></tr>")
    return "\n".join([*lines, "</table>"])


def _row(name: str, part: float, rest: str) -> str:
    return (f"<tr><td>{escape(name)}</td>"
            f'<td><progress max="1" value="{part:.4f}"></progress> {_percent(part)}</td>'
            f"<td>{escape(rest)}</td></tr>")


def _percent(part: float) -> str:
    """Neither all nor nothing unless it is that."""
    percent = min(max(part * 100, 0.1), 99.9) if 0 < part < 1 else part * 100
    return f"{percent:.3g} %"
