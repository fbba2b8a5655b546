"""What other programs do to marker, motion and mapping files on their way: spreadsheets, mail,
transfers and editors. Each damage is a function from the bytes of a file to those of the damaged
one, or to nothing where the file has not what it damages. They work on any file of their kind, and
are others than those of examples/damage_*.py.

Not among them is what no program can see in the file alone: a position that is moved to where it
might be, markers whose names are swapped or changed to other sound names, a rate that is doubled,
frames that are swapped and numbered anew, a marker taken out with its columns and its count, radians
that are called degrees, which a quiet take may be, and a unit beside the right one that leaves a
body the size of a child or a hand.
"""

import base64
import gzip
import re

UTF_8_MARK = b"\xef\xbb\xbf"


def lines_of(data):
    """The lines with their ends."""
    return data.splitlines(keepends=True) if b"\r\n" in data or b"\r" not in data else [data]


def end_of(line):
    return line[len(line.rstrip(b"\r\n")):]


def edited(data, index, change):
    """The file with line `index` as `change` makes it of its text; `change` may return None."""
    lines = lines_of(data)
    text = change(lines[index].rstrip(b"\r\n"))
    if text is None:
        return None
    lines[index] = text + end_of(lines[index])
    return b"".join(lines)


def cells_edited(data, index, change):
    """The same for the list of its cells, which `change` edits."""

    def change_text(text):
        cells = text.split(b"\t")
        return None if change(cells) is False else b"\t".join(cells)

    return edited(data, index, change_text)


def with_cell(column, text):
    def change(cells):
        if column >= len(cells):
            return False
        cells[column] = text(cells[column]) if callable(text) else text
        return None

    return change


def each_line(data, change, first=0):
    """The file with `change` done to the text of each line from `first` on."""
    lines = lines_of(data)
    for index in range(first, len(lines)):
        lines[index] = change(lines[index].rstrip(b"\r\n")) + end_of(lines[index])
    return b"".join(lines)


def decimal_commas(text):
    return re.sub(rb"(?<=\d)\.(?=\d)", b",", text)


def thousand_separators(text):
    return re.sub(rb"\b(\d)(\d{3})(?=\.\d)", rb"\1,\2", text)


def in_scientific_notation(text):
    return re.sub(rb"-?\d+\.\d{3,}", lambda found: (b"%.6E" % float(found[0])).replace(b".", b","), text)


def in_rounded_cells(text):
    return re.sub(rb"-?\d+\.\d+", lambda found: b"########" if len(found[0]) > 9 else found[0], text)


def of_whole(change):
    return lambda data: change(data) if change(data) != data else None


# Of any text.
WHOLE = {
    "utf-16-big-endian": lambda data: b"\xfe\xff" + data.decode("latin-1").encode("utf-16-be"),
    "utf-16-unmarked": lambda data: data.decode("latin-1").encode("utf-16-le"),
    "gzip": lambda data: gzip.compress(data, mtime=0),
    "two-marks": lambda data: UTF_8_MARK + UTF_8_MARK + data,
    "line-ends-lost": lambda data: data.replace(b"\r\n", b" ").replace(b"\n", b" "),
    "line-ends-mixed": lambda data: mixed_line_ends(data),
    "returns-in-the-middle": lambda data: returns_in_the_middle(data),
    "ctrl-z-at-the-end": lambda data: data + b"\x1a",
    "nuls-at-the-end": lambda data: data + bytes(512),
    "a-block-of-nuls": lambda data: data[:len(data) // 2] + bytes(512) + data[len(data) // 2 + 512:],
    "a-block-lost": lambda data: data[:len(data) // 2] + data[len(data) // 2 + 512:],
    "a-block-twice": lambda data: data[:len(data) // 2] + data[len(data) // 2 - 512:],
    "cut-in-a-number": lambda data: cut_in_a_number(data),
    "cut-behind-a-line": lambda data: b"".join(lines_of(data)[:len(lines_of(data)) * 2 // 3]),
    "joined-with-itself": lambda data: data + data,
    "mail-quoted": lambda data: each_line(data, lambda text: b"> " + text),
    "mail-wrapped": lambda data: each_line(data, wrapped),
    "quoted-printable": lambda data: each_line(data, lambda text: text.replace(b"\t", b"=09")),
    "transfer-as-text-of-base64": lambda data: base64_lines(data),
    "blank-lines-between": lambda data: each_line(data, lambda text: text + b"\r\n"),
    "lines-quoted": lambda data: each_line(data, lambda text: b'"' + text + b'"'),
    "trailing-blanks": lambda data: each_line(data, lambda text: text + b"  "),
    "leading-blanks": lambda data: each_line(data, lambda text: b"  " + text),
    "trailing-tabs": lambda data: each_line(data, lambda text: text + b"\t\t"),
    "leading-tabs": lambda data: each_line(data, lambda text: b"\t" + text),
    "tabs-to-eight-blanks": lambda data: each_line(data, lambda text: text.expandtabs(8)),
    "tabs-to-one-blank": of_whole(lambda data: data.replace(b"\t", b" ")),
    "tabs-to-commas": of_whole(lambda data: data.replace(b"\t", b",")),
    "tabs-to-semicolons": of_whole(lambda data: data.replace(b"\t", b";")),
    "tabs-doubled": of_whole(lambda data: data.replace(b"\t", b"\t\t")),
    "cells-quoted": lambda data: each_line(
        data, lambda text: b"\t".join(b'"' + cell + b'"' if cell else cell
                                      for cell in text.split(b"\t"))),
    "cells-with-blanks": lambda data: each_line(
        data, lambda text: b"\t".join(cell + b" " if cell else cell for cell in text.split(b"\t"))),
    "decimal-commas": of_whole(decimal_commas),
    "decimal-commas-and-semicolons": of_whole(
        lambda data: decimal_commas(data.replace(b"\t", b";"))),
    "thousand-separators": of_whole(thousand_separators),
    "scientific-with-commas": of_whole(in_scientific_notation),
    "rounded-to-hashes": of_whole(in_rounded_cells),
    "unicode-minus": of_whole(lambda data: re.sub(rb"(?<=[\t ])-(?=\d)", "−".encode(), data)),
    "no-break-spaces": of_whole(lambda data: data.replace(b"\t", b"\xc2\xa0")),
}


def mixed_line_ends(data):
    lines = lines_of(data)
    return b"".join(line.rstrip(b"\r\n") + (b"\n" if index % 2 else b"\r\n")
                    for index, line in enumerate(lines))


def returns_in_the_middle(data):
    """Every tenth line ends with a carriage return alone."""
    lines = lines_of(data)
    return b"".join(line.rstrip(b"\r\n") + b"\r" if index % 10 == 9 else line
                    for index, line in enumerate(lines))


def cut_in_a_number(data):
    digits = [found.end() for found in re.finditer(rb"\d+\.\d{2}", data)]
    return data[:digits[len(digits) * 4 // 5] - 1] if digits else None


def wrapped(text):
    return b"\r\n".join(text[at:at + 76] for at in range(0, max(len(text), 1), 76))


def base64_lines(data):
    return base64.encodebytes(data)


# Marker files

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


def plus(count):
    return lambda cell: b"%d" % (int(cell) + count)


def frames_moved(move):
    """`move` gets the lines of the frames, and returns them as they shall stand."""

    def damage(data):
        lines, frames = lines_of(data), frames_of(data)
        first, behind = frames[0], frames[-1] + 1
        return b"".join(lines[:first] + move(lines[first:behind]) + lines[behind:])

    return damage


def swapped(frames):
    at = len(frames) // 2
    return frames[:at] + [frames[at + 1], frames[at]] + frames[at + 2:]


def doubled(frames):
    at = len(frames) // 2
    return frames[:at] + [frames[at]] + frames[at:]


def numbered_again(frames):
    at = len(frames) // 2
    number = int(frames[0].split(b"\t")[0])
    return frames[:at] + [b"%d\t%s" % (number + index, line.split(b"\t", 1)[1])
                          for index, line in enumerate(frames[at:])]


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


def sorted_as_text(frames):
    return sorted(frames, key=lambda line: line.split(b"\t")[0])


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
    "unit-of-another-file": header_value(4, lambda cell: b"mm" if cell.strip() == b"m" else b"in"),
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


# Motion files

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

MAPPING = {
    "latin-1-name": lambda data: cells_edited(data, 3, with_cell(1, lambda cell: cell + b"\xe9")),
    "columns-swapped": lambda data: each_line(
        data, lambda text: b"\t".join(text.split(b"\t")[1::-1])),
    "entry-lost": lambda data: b"".join(lines_of(data)[:3] + lines_of(data)[4:]),
    "headline": lambda data: b"Standard\tCapture\t\r\n" + data,
    "other-case": lambda data: each_line(
        data, lambda text: b"\t".join([text.split(b"\t")[0], text.split(b"\t")[1].lower()])),
    "subject-lost": of_whole(lambda data: re.sub(rb"\t[^\t:\r\n]+:", b"\t", data)),
    "equals-for-tabs": of_whole(lambda data: data.replace(b"\t", b"=", 1000)),
}

BY_KIND = {".trc": MARKERS, ".htr": MOTION, ".mnm": MAPPING}


def damages_of(kind):
    """By name, those of a kind of file, which is its extension."""
    return {**WHOLE, **BY_KIND[kind]}
