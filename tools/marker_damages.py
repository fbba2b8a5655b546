"""Damages of marker files, by name."""

import re

from file_edits import (lines_of, end_of, edited, cells_edited, with_cell, swapped, doubled,
                        numbered_again, sorted_as_text, plus)

VALUES, NAMES, HEADINGS = 2, 3, 4


def is_frame(line):
    return re.match(rb"-?\d+\t", line) is not None


def frames_of(data):
    """The indices of the lines that hold frames."""
    return [index for index, line in enumerate(lines_of(data)) if index > HEADINGS and is_frame(line)]


def middle(data):
    frames = frames_of(data)
    return frames[len(frames) // 2]


def first_full_column(data):
    """The column of the first X of the middle frame that is there."""
    cells = lines_of(data)[middle(data)].rstrip(b"\r\n").split(b"\t")
    return next((at for at in range(2, len(cells), 3) if cells[at].strip()), None)


def in_middle_frame(cell_text):
    def damage(data):
        column = first_full_column(data)
        if column is None:
            return None
        return cells_edited(data, middle(data), with_cell(column, cell_text))

    return damage


def in_all_cells_of_middle_marker(cell_text):
    """Three cells of one frame."""

    def damage(data):
        column = first_full_column(data)
        if column is None:
            return None

        def change(cells):
            cells[column:column + 3] = [cell_text] * 3

        return cells_edited(data, middle(data), change)

    return damage


def header_value(column, text):
    return lambda data: cells_edited(data, VALUES, with_cell(column, text))


def unit_of_another_file(data):
    """Of as many markers as a body has: fewer may be anything."""
    cells = lines_of(data)[middle(data)].rstrip(b"\r\n").split(b"\t")
    if sum(cell.strip() != b"" for cell in cells[2::3]) < 8:
        return None
    return header_value(4, lambda cell: b"mm" if cell.strip() == b"m" else b"in")(data)


def frames_moved(move):
    """`move` gets the lines of the frames, and returns them as they shall stand."""

    def damage(data):
        lines, frames = lines_of(data), frames_of(data)
        first, behind = frames[0], frames[-1] + 1
        return b"".join(lines[:first] + move(lines[first:behind]) + lines[behind:])

    return damage


def without_cells(first, count):
    def change(cells):
        if len(cells) < first + count:
            return False
        del cells[first:first + count]
        return None

    return lambda data: cells_edited(data, middle(data), change)


def without_column(column):
    """In every frame."""

    def damage(data):
        lines = lines_of(data)
        for index in frames_of(data):
            cells = lines[index].rstrip(b"\r\n").split(b"\t")
            del cells[column]
            lines[index] = b"\t".join(cells) + end_of(lines[index])
        return b"".join(lines)

    return damage


def name_changed(change):
    return lambda data: cells_edited(data, NAMES, with_cell(5, change))


def header_of_fewer_markers(data):
    """The header of a capture with two markers less."""

    def change(cells):
        del cells[2:8]

    changed = cells_edited(data, NAMES, change)
    return cells_edited(changed, VALUES, with_cell(3, plus(-2)))


MARKERS = {
    "latin-1-name": name_changed(lambda name: name + b"\xe9"),
    "name-line-twice": lambda data: b"".join(
        lines_of(data)[:NAMES + 1] + lines_of(data)[NAMES:]),
    "headings-twice": lambda data: b"".join(
        lines_of(data)[:HEADINGS + 1] + lines_of(data)[HEADINGS:]),
    "names-and-headings-swapped": lambda data: b"".join(
        lines_of(data)[:NAMES] + [lines_of(data)[HEADINGS], lines_of(data)[NAMES]]
        + lines_of(data)[HEADINGS + 1:]),
    "header-of-fewer-markers": header_of_fewer_markers,
    "header-values-line-lost": lambda data: b"".join(
        lines_of(data)[:VALUES] + lines_of(data)[VALUES + 1:]),
    "frame-count-one-more": header_value(2, plus(1)),
    "frame-count-one-less": header_value(2, plus(-1)),
    "marker-count-one-more": header_value(3, plus(1)),
    "marker-count-one-less": header_value(3, plus(-1)),
    "rate-with-comma": header_value(0, b"59,94"),
    "rate-with-unit": header_value(0, b"60Hz"),
    "unit-with-dot": header_value(4, b"mm."),
    "unit-in-words": header_value(4, b"millimeters"),
    "unit-with-blanks": header_value(4, lambda cell: cell.strip() + b"  "),
    "unit-empty": header_value(4, b""),
    "unit-of-another-file": unit_of_another_file,
    "nan": in_all_cells_of_middle_marker(b"NaN"),
    "infinite": in_middle_frame(b"inf"),
    "indeterminate": in_all_cells_of_middle_marker(b"-1.#IND"),
    "dashes": in_all_cells_of_middle_marker(b"----"),
    "spreadsheet-error": in_middle_frame(b"#VALUE!"),
    "nines-for-missing": in_all_cells_of_middle_marker(b"9999999"),
    "blank-for-missing": in_all_cells_of_middle_marker(b" "),
    "date-for-number": in_middle_frame(b"01-Mar"),
    "two-dots": in_middle_frame(lambda cell: cell + b".5"),
    "letter-for-digit": in_middle_frame(lambda cell: cell[:1] + b"O" + cell[1:]),
    "tabs-lost-in-a-row": lambda data: edited(
        data, middle(data), lambda text: text.replace(b"\t", b"", 3)),
    "rows-swapped": frames_moved(swapped),
    "row-twice": frames_moved(doubled),
    "row-lost": frames_moved(lambda frames: frames[:len(frames) // 2] + frames[len(frames) // 2 + 1:]),
    "rows-sorted-as-text": frames_moved(sorted_as_text),
    "rows-upside-down": frames_moved(lambda frames: frames[::-1]),
    "numbers-restart": frames_moved(numbered_again),
    "every-second-row": frames_moved(lambda frames: frames[::2]),
    "headings-again-between": frames_moved(
        lambda frames: frames[:5] + [b"Frame#\tTime\tX1\tY1\tZ1\r\n"] + frames[5:]),
    "cells-lost-in-a-row": without_cells(5, 3),
    "cell-lost-in-a-row": without_cells(6, 1),
    "time-column-lost": without_column(1),
    "frame-column-lost": without_column(0),
    "blank-lines-at-the-end": lambda data: data + b"\r\n" * 5,
    "blank-line-of-blanks-at-the-end": lambda data: data + b"   \r\n",
    "tabs-at-the-end": lambda data: data + b"\t" * 10 + b"\r\n",
    "joined-frames-of-another": lambda data: data + b"".join(
        lines_of(data)[index] for index in frames_of(data)[:5]),
}
