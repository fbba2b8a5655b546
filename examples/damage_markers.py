#!/usr/bin/env python3
"""Makes a folder of damaged marker and mapping files out of walk.trc and walk.mnm, to see what
`orvane check` says of them.

    examples/damage_markers.py FOLDER

Every file has one damage. FOLDER/damages.tsv and FOLDER/mappings.tsv list them: the file, the line,
and the code that `orvane check` has for it. docs/formats/trc.md and docs/formats/mnm.md explain the
codes.
"""

import pathlib

import damages
from damages import add_at_end, both, change, insert_before

MARKERS = pathlib.Path(__file__).with_name("walk.trc")
MAPPING = pathlib.Path(__file__).with_name("walk.mnm")

FILE_TYPE, VALUES, NAMES, HEADINGS = 0, 2, 3, 4
FIRST_FRAME = 6


def change_field(line, field, text):
    """The field of that line, both counted from 0, becomes `text`, or goes when that is None."""

    def edit(lines):
        fields = lines[line].split(b"\t")
        fields[field:field + 1] = [] if text is None else [text]
        lines[line] = b"\t".join(fields)
        return line

    return edit


def change_line(line, changed):
    """The line becomes what `changed` makes of it."""

    def edit(lines):
        lines[line] = changed(lines[line])
        return line

    return edit


def insert_line(line, text):
    def edit(lines):
        lines.insert(line, text)
        return line

    return edit


def delete_lines(first, last, shows_at):
    def edit(lines):
        del lines[first:last]
        return shows_at

    return edit


def name_field(marker):
    return 2 + 3 * marker


def with_sample(marker, frames, cell):
    """The marker, counted from 0, has `cell` for X, Y and Z in these frames."""

    def edit(lines):
        for frame in frames:
            fields = lines[FIRST_FRAME + frame].split(b"\t")
            fields[name_field(marker):name_field(marker) + 3] = [cell] * 3
            lines[FIRST_FRAME + frame] = b"\t".join(fields)
        return FIRST_FRAME + frames[0]

    return edit


def without_sample(marker, frames):
    """The marker drops out."""
    return with_sample(marker, frames, b"")


def shows_at(line, edit):
    def shown(lines):
        edit(lines)
        return line

    return shown


def change_all(changed):
    def edit(lines):
        lines[:] = [changed(line) for line in lines]
        return 0

    return edit


def change_all_frames(changed):
    def edit(lines):
        lines[FIRST_FRAME:] = [changed(line) for line in lines[FIRST_FRAME:]]
        return FIRST_FRAME

    return edit


def lay_down(lines):
    """Every sample changes its Y and its Z."""
    for frame in range(FIRST_FRAME, len(lines)):
        fields = lines[frame].split(b"\t")
        for y in range(3, len(fields), 3):
            fields[y:y + 2] = fields[y:y + 2][::-1]
        lines[frame] = b"\t".join(fields)
    return FIRST_FRAME


DAMAGES = [
    # The whole file
    ("c3d", "trc-other-kind", damages.of_bytes(lambda text: b"\x02\x50" + bytes(510))),
    ("empty-file", "trc-empty", damages.empty),
    ("utf-16", "trc-encoding", damages.encode("utf-16")),
    ("quoted", "trc-cells-quoted",
     change_all(lambda line: b"\t".join(b'"' + cell + b'"' for cell in line.split(b"\t")))),
    ("returns-alone", "trc-line-ends", damages.end_lines_with_returns),
    # Lines
    ("byte-order-mark", "trc-byte-order-mark",
     change_line(FILE_TYPE, lambda line: b"\xef\xbb\xbf" + line)),
    ("nul", "trc-nul", change_field(FIRST_FRAME, 40, b"1\0")),
    ("long-line", "trc-line-cut", change_field(FIRST_FRAME, 40, b" " * 10300 + b"1")),
    ("carriage-return", "trc-carriage-return", change_field(FIRST_FRAME, 40, b"1\r2")),
    ("doubled-returns", "trc-carriage-return-spare",
     change_all(lambda line: line + b"\r")),
    ("no-line-end", "trc-end-unfinished", damages.cut_last_line_end),
    ("comment", "trc-comment", insert_line(FILE_TYPE, b"# captured on a Monday")),
    ("comment-in-data", "trc-comment", insert_line(FIRST_FRAME + 5, b"# the second take")),
    # Header
    ("other-file-type", "trc-file-type-unknown", change_field(FILE_TYPE, 0, b"Trajectories")),
    ("other-path-type", "trc-path-type-unknown", change_field(FILE_TYPE, 1, b"5")),
    ("blanks-for-tabs", "trc-tabs-missing",
     change_line(FILE_TYPE, lambda line: line.replace(b"\t", b" "))),
    ("commas", "trc-tabs-missing", change_all(lambda line: line.replace(b"\t", b","))),
    ("other-coordinates", "trc-coordinates-refused", change_field(FILE_TYPE, 2, b"(X/Z/Y)")),
    ("rate-with-fraction", "trc-rate-cut", change_field(VALUES, 0, b"59.94")),
    ("rate-between-ticks", "trc-rate-inexact", change_field(VALUES, 0, b"250")),
    ("rate-zero", "trc-rate-out-of-range", change_field(VALUES, 0, b"0")),
    ("rate-too-high", "trc-rate-out-of-range", change_field(VALUES, 0, b"10000")),
    ("camera-rate-with-fraction", "trc-camera-rate-cut", change_field(VALUES, 1, b"119.88")),
    ("camera-rate-zero", "trc-camera-rate", change_field(VALUES, 1, b"0")),
    ("unknown-unit", "trc-unit-unknown", change_field(VALUES, 4, b"Mm")),
    ("unit-with-blank", "trc-unit-blanks", change_field(VALUES, 4, b"mm ")),
    ("unit-at-the-end", "trc-unit-ends-line",
     change_line(VALUES, lambda line: b"\t".join(line.split(b"\t")[:5]))),
    # Columns
    ("names-two-tabs-apart", "trc-names-misplaced",
     change_line(NAMES, lambda line: line.replace(b"\t\t\t", b"\t\t"))),
    ("last-name-lost", "trc-name-lost", change_line(NAMES, lambda line: line.rstrip(b"\t"))),
    ("empty-name", "trc-name-empty", change_field(NAMES, name_field(3), b"")),
    ("name-with-blank", "trc-name-with-blank", change_field(NAMES, name_field(3), b"left hip")),
    ("unnamed-column", "trc-column-unnamed", change_field(NAMES, name_field(3), b"Unnamed 4")),
    ("repeated-column", "trc-column-repeated", change_field(NAMES, name_field(3), b"walker:LFHD")),
    ("headings-for-names", "trc-names-headings",
     change_line(NAMES, lambda line: b"Frame#\tTime" + b"\tX1\tY1\tZ1" + line[12:] + b"\t\t\t")),
    ("other-encoding", "trc-name-encoding", change_field(NAMES, name_field(3), b"t\xeate")),
    ("repeated-column-without-values", "trc-column-repeated-blank",
     change_line(NAMES, lambda line: line.rstrip(b"\t") + b"\t\t\twalker:LFHD\t\t\t")),
    ("no-names", "trc-markers-missing",
     both(change_line(NAMES, lambda line: b"Frame#\tTime"), delete_lines(7, None, 7))),
    ("marker-count", "trc-marker-count", change_field(VALUES, 3, b"40")),
    ("time-lost", "trc-columns-misfit",
     change_all_frames(lambda line: b"\t".join(line.split(b"\t")[:1] + line.split(b"\t")[2:]))),
    ("name-lost", "trc-columns-misfit",
     shows_at(FIRST_FRAME, change_line(NAMES, lambda line: line.replace(b"walker:RFHD\t\t\t", b"")))),
    ("no-headings", "trc-sub-header-missing", delete_lines(HEADINGS, HEADINGS + 2, HEADINGS)),
    # Numbers
    ("y-missing", "trc-number-missing", change_field(FIRST_FRAME + 3, 6, b"")),
    ("not-a-number", "trc-number-unreadable", change_field(FIRST_FRAME + 3, 5, b"NaN")),
    ("decimal-comma", "trc-decimal-commas", change_field(FIRST_FRAME + 3, 5, b"170,5")),
    ("count-in-words", "trc-number-unreadable", change_field(VALUES, 2, b"many")),
    ("frame-with-fraction", "trc-number-cut", change_field(FIRST_FRAME + 3, 0, b"4.5")),
    ("huge-frame-number", "trc-number-out-of-range",
     change_field(FIRST_FRAME + 3, 0, b"99999999999")),
    ("huge-number", "trc-number-infinite", change_field(FIRST_FRAME + 3, 5, b"1e999")),
    # Frames
    ("tabs-for-the-blank-line", "trc-blank-line-tabs",
     change_line(FIRST_FRAME - 1, lambda line: b"\t" * 124)),
    ("blank-frame", "trc-frame-blank", change_line(FIRST_FRAME + 9, lambda line: b"")),
    ("blank-line-at-the-end", "trc-lines-at-end", add_at_end(b"")),
    ("columns-lost", "trc-frame-short",
     change_line(FIRST_FRAME + 9, lambda line: b"\t".join(line.split(b"\t")[:-6]))),
    ("cells-lost", "trc-frame-narrow",
     both(change_all_frames(lambda line: line + b"\t\t\t"),
          change_line(FIRST_FRAME + 9, lambda line: line.replace(b"\t", b"", 3)))),
    ("columns-too-many", "trc-value-extra",
     change_line(FIRST_FRAME + 9, lambda line: line + b"\t1\t2\t3")),
    ("columns-shifted", "trc-value-extra",
     change_line(FIRST_FRAME, lambda line: line.replace(b"\t", b"\t0\t", 1))),
    ("x-missing", "trc-sample-without-x", change_field(FIRST_FRAME + 3, 5, b"")),
    ("other-first-frame", "trc-first-frame", shows_at(FIRST_FRAME, change_field(VALUES, 6, b"101"))),
    ("frame-left-out", "trc-frame-number",
     delete_lines(FIRST_FRAME + 9, FIRST_FRAME + 10, FIRST_FRAME + 9)),
    ("frame-number-repeated", "trc-frame-number", change_field(FIRST_FRAME + 9, 0, b"9")),
    ("other-times", "trc-time-differs", shows_at(FIRST_FRAME + 3, change_field(VALUES, 0, b"30"))),
    ("time-code", "trc-time-unreadable", change_field(FIRST_FRAME, 1, b"10:22:07:05")),
    ("more-announced", "trc-frame-count", change_field(VALUES, 2, b"900")),
    ("fewer-announced", "trc-frame-count", change_field(VALUES, 2, b"100")),
    ("none-announced", "trc-frames-unannounced", change_field(VALUES, 2, b"0")),
    ("too-many-announced", "trc-frames-too-many", change_field(VALUES, 2, b"2000000000")),
    ("gap", "trc-marker-gaps", without_sample(0, range(30, 60))),
    ("never-seen", "trc-marker-never-seen", shows_at(NAMES, without_sample(2, range(120)))),
    # What moves
    ("zeros-for-gaps", "trc-position-zero", with_sample(0, range(30, 60), b"0.000")),
    ("nines-for-gaps", "trc-position-stand-in", with_sample(0, range(30, 60), b"9999.99")),
    ("nines", "trc-position-far", change_field(FIRST_FRAME + 3, 5, b"9999999")),
    ("inches", "trc-size", change_field(VALUES, 4, b"in")),
    ("heights-along-z", "trc-up-axis", lay_down),
]

MAPPING_DAMAGES = [
    ("bvk", "mnm-other-kind", damages.of_bytes(lambda text: b"$Comments\tof a BVK file\r\n")),
    ("utf-16", "mnm-encoding", damages.encode("utf-16-be")),
    ("returns-alone", "mnm-line-ends", damages.end_lines_with_returns),
    ("marked", "mnm-byte-order-mark", change_line(0, lambda line: b"\xef\xbb\xbf" + line)),
    ("nul", "mnm-nul", change(b"C7\t", b"C7\twalker:C7\0\t")),
    ("long-line", "mnm-line-cut", change(b"C7\t", b"C7\twalker:C7" + b" " * 1100 + b"x")),
    ("blank-line", "mnm-line-blank", insert_before(b"C7\t", b"")),
    ("one-word", "mnm-name-missing", change(b"C7\t", b"C7")),
    ("other-encoding", "mnm-name-encoding", change(b"C7\t", b"C7\twalker:C7\xe9")),
    ("name-with-blank", "mnm-rest-ignored", change(b"C7\t", b"C7\twalker C7")),
    ("empty", "mnm-entries-missing", damages.empty),
    ("lower-case", "mnm-standard-unknown", change(b"C7\t", b"c7\twalker:C7")),
    ("columns-swapped", "mnm-standard-unknown", change(b"C7\t", b"walker:C7\tC7")),
    ("name-twice", "mnm-standard-twice", change(b"CLAV\t", b"C7\twalker:CLAV")),
    ("entry-twice", "mnm-entry-doubled", add_at_end(b"LFHD\twalker:LFHD\t")),
    ("shadowed", "mnm-entry-shadowed", change(b"CLAV\t", b"CLAV\twalker:C7")),
]

if __name__ == "__main__":
    target = damages.folder_argument(__doc__)
    damages.write(target, MARKERS, ".trc", DAMAGES, "damages.tsv")
    damages.write(target, MAPPING, ".mnm", MAPPING_DAMAGES, "mappings.tsv")
