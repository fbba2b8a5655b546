"""Damages of motion files, by name."""

from file_edits import (lines_of, edited, cells_edited, with_cell, swapped, doubled,
                        numbered_again, sorted_as_text, plus)


def section_rows(data, name):
    """The indices of the rows of a section, without its comments."""
    lines = lines_of(data)
    start = next(index for index, line in enumerate(lines) if line.strip() == b"[" + name + b"]")
    rows = []
    for index in range(start + 1, len(lines)):
        if lines[index].startswith(b"["):
            break
        if lines[index].strip() and not lines[index].startswith(b"#"):
            rows.append(index)
    return rows


def segments_of(data):
    return [lines_of(data)[index].split()[0] for index in section_rows(data, b"SegmentNames&Hierarchy")]


def motion_rows(data, segment=2):
    return section_rows(data, segments_of(data)[segment])


def middle_motion(data):
    rows = motion_rows(data)
    return rows[len(rows) // 2]


def in_motion(column, text):
    return lambda data: cells_edited(data, middle_motion(data), with_cell(column, text))


def keyword(name, change):
    def damage(data):
        lines = lines_of(data)
        for index, line in enumerate(lines):
            if line.split()[:1] == [name]:
                value = line.split()[1]
                return edited(data, index, lambda text: name + b" " + change(value))
        return None

    return damage


def motion_moved(move, segment=2):
    def damage(data):
        lines, rows = lines_of(data), motion_rows(data, segment)
        first, behind = rows[0], rows[-1] + 1
        return b"".join(lines[:first] + move(lines[first:behind]) + lines[behind:])

    return damage


def row_of(section, row, change):
    """The cells of a row of a section."""
    return lambda data: cells_edited(data, section_rows(data, section)[row], change)


def without_row(section, row):
    def damage(data):
        lines = lines_of(data)
        del lines[section_rows(data, section)[row]]
        return b"".join(lines)

    return damage


def child_before_parent(data):
    """The first two rows of the hierarchy change places."""
    lines = lines_of(data)
    first, second = section_rows(data, b"SegmentNames&Hierarchy")[1:3]
    lines[first], lines[second] = lines[second], lines[first]
    return b"".join(lines)


def without_factor_one(data):
    """The last column goes in one row."""

    def change(cells):
        del cells[-1]

    return cells_edited(data, middle_motion(data), change)


HIERARCHY, BASE = b"SegmentNames&Hierarchy", b"BasePosition"

MOTION = {
    "latin-1-name": lambda data: data.replace(segments_of(data)[3], segments_of(data)[3] + b"\xe9"),
    "latin-1-name-once": row_of(HIERARCHY, 3, with_cell(0, lambda cell: cell + b"\xe9")),
    "segment-twice": lambda data: b"".join(
        line + (line if index == section_rows(data, HIERARCHY)[3] else b"")
        for index, line in enumerate(lines_of(data))),
    "child-before-parent": child_before_parent,
    "parent-in-lower-case": row_of(HIERARCHY, 3, with_cell(1, lambda cell: cell.lower())),
    "global-in-lower-case": row_of(HIERARCHY, 0, with_cell(1, b"global")),
    "base-row-lost": without_row(BASE, 3),
    "hierarchy-row-lost": without_row(HIERARCHY, 3),
    "base-and-count-lost": lambda data: keyword(b"NumSegments", plus(-1))(without_row(BASE, 3)(data)),
    "base-cell-lost": row_of(BASE, 3, lambda cells: cells.__delitem__(2)),
    "segment-count-one-more": keyword(b"NumSegments", plus(1)),
    "segment-count-one-less": keyword(b"NumSegments", plus(-1)),
    "frame-count-one-more": keyword(b"NumFrames", plus(1)),
    "frame-count-one-less": keyword(b"NumFrames", plus(-1)),
    "rate-with-comma": keyword(b"DataFrameRate", lambda value: b"59,94"),
    "rate-with-unit": keyword(b"DataFrameRate", lambda value: b"60Hz"),
    "order-misspelt": keyword(b"EulerRotationOrder", lambda value: b"ZXY"),
    "order-in-lower-case": keyword(b"EulerRotationOrder", lambda value: b"zyx"),
    "unit-centimeters": keyword(b"CalibrationUnits", lambda value: b"cm"),
    "unit-inches": keyword(b"CalibrationUnits", lambda value: b"in"),
    "unit-with-comma": keyword(b"CalibrationUnits", lambda value: b"mm,"),
    "radians": keyword(b"RotationUnits", lambda value: b"Radians"),
    "degrees-in-lower-case": keyword(b"RotationUnits", lambda value: b"deg"),
    "scale-zero": keyword(b"ScaleFactor", lambda value: b"0"),
    "scale-with-comma": keyword(b"ScaleFactor", lambda value: b"2,54"),
    "keyword-with-colon": lambda data: data.replace(b"DataFrameRate ", b"DataFrameRate: "),
    "nan": in_motion(4, b"NaN"),
    "infinite": in_motion(4, b"inf"),
    "indeterminate": in_motion(4, b"-1.#IND"),
    "dashes": in_motion(4, b"----"),
    "nines-for-missing": in_motion(1, b"9999999"),
    "cell-empty": in_motion(4, b""),
    "letter-for-digit": in_motion(4, lambda cell: cell[:1] + b"O" + cell[1:]),
    "bone-scale-zero": in_motion(7, b"0"),
    "cell-lost-in-a-row": lambda data: cells_edited(
        data, middle_motion(data), lambda cells: cells.__delitem__(3)),
    "last-cell-lost-in-a-row": without_factor_one,
    "rows-swapped": motion_moved(swapped),
    "row-twice": motion_moved(doubled),
    "row-lost": motion_moved(lambda rows: rows[:len(rows) // 2] + rows[len(rows) // 2 + 1:]),
    "rows-sorted-as-text": motion_moved(sorted_as_text),
    "rows-upside-down": motion_moved(lambda rows: rows[::-1]),
    "numbers-restart": motion_moved(numbered_again),
    "first-row-lost": motion_moved(lambda rows: rows[1:], 0),
    "blank-lines-at-the-end": lambda data: data + b"\r\n" * 5,
    "end-line-lost": lambda data: data.replace(b"[EndOfFile]", b""),
}
