#!/usr/bin/env python3
"""Makes a folder of damaged motion files out of walk.htr, to see what `orvane check` says of them.

    examples/damage_walk.py FOLDER

Every file has one damage. FOLDER/damages.tsv lists them: the file, the line, and the code that
`orvane check` has for it. docs/formats/htr.md explains the codes.
"""

import pathlib

import damages
from damages import add_at_end, both, change, find, insert_before, remove

WALK = pathlib.Path(__file__).with_name("walk.htr")
SEGMENTS = 21


def remove_end(lines):
    del lines[find(lines, b"[EndOfFile]"):]
    return len(lines)  # the file ends where the next line would start


def cut_behind(start, count, shows_at):
    """The file ends `count` lines behind the one that starts with `start`."""

    def edit(lines):
        del lines[find(lines, start) + count + 1:]
        return find(lines, shows_at)

    return edit


def change_cell(section, row, column, cell):
    """The cell in that row and column, both counted from 0, of the section becomes `cell`."""

    def edit(lines):
        index = find(lines, section)
        data = [at for at in range(index + 1, len(lines)) if not lines[at].startswith(b"#")]
        cells = lines[data[row]].split(b"\t")
        cells[column:column + 1] = [cell] if cell is not None else []
        lines[data[row]] = b"\t".join(cells)
        return data[row]

    return edit


def remove_section(name, shows_at):
    def edit(lines):
        first = find(lines, name)
        last = first + 1
        while not lines[last].startswith(b"["):
            last += 1
        del lines[first:last]
        return find(lines, shows_at)

    return edit


def move_section(name, before):
    def edit(lines):
        first = find(lines, name)
        last = first + 1
        while not lines[last].startswith(b"["):
            last += 1
        section = lines[first:last]
        del lines[first:last]
        at = find(lines, before)
        lines[at:at] = section
        return at

    return edit


def rename_segment(old, new):
    """Everywhere; the damage shows where the hierarchy names it."""

    def edit(lines):
        for index, line in enumerate(lines):
            cells = line.split(b"\t")
            if b"[" + old + b"]" == line:
                lines[index] = b"[" + new + b"]"
            elif old in cells:
                lines[index] = b"\t".join(new if cell == old else cell for cell in cells)
        return find(lines, new + b"\t")

    return edit


def late_segment(lines):
    """The last segment stands in a hierarchy section of its own, behind the base position."""
    lines.remove(next(line for line in lines if line.startswith(b"RightToe\t0")))
    lines.remove(b"RightToe\tRightFoot")
    change(b"NumSegments", b"NumSegments 20")(lines)
    hierarchy = [b"[SegmentNames&Hierarchy]", b"RightToe\tRightFoot"]
    return insert_before(b"[Hips]", *hierarchy)(lines) + 1


def base_position_over_and_over(lines):
    """More sections than the reader takes links from."""
    at = find(lines, b"[BasePosition]")
    lines[at:at] = [b"[BasePosition]"] * 70000
    size = sum(len(line) + 2 for line in lines)
    return at + max(1 << 20, size) // SEGMENTS


def commas_for_tabs(lines):
    lines[:] = [line.replace(b"\t", b",") for line in lines]
    return find(lines, b"Hips")


def lay_down(lines):
    """The skeleton hangs from a root that is turned about X, and moves in the place of its hips."""
    change(b"NumSegments", b"NumSegments 22")(lines)
    change(b"Hips\tGLOBAL", b"Hips\tWorld")(lines)
    insert_before(b"Hips\tWorld", b"World\tGLOBAL")(lines)
    insert_before(b"Hips\t0", b"World\t0\t0\t0\t90\t0\t0\t0")(lines)
    world = []
    first = find(lines, b"[Hips]") + 1
    for index in range(first, find(lines, b"[Spine]")):
        cells = lines[index].split(b"\t")
        if len(cells) == 8:
            turned = [cells[1], b"%.6f" % -float(cells[3]), cells[2]]
            world.append(b"\t".join([cells[0], *turned, *[b"0"] * 3, b"1"]))
            lines[index] = b"\t".join([cells[0], *[b"0"] * 3, *cells[4:]])
    return insert_before(b"[Hips]", b"[World]", *world)(lines)


DAMAGES = [
    # The whole file
    ("bvh", "htr-other-kind", damages.of_bytes(lambda text: b"HIERARCHY\nROOT Hips\n")),
    ("empty", "htr-empty", damages.empty),
    ("utf-16", "htr-encoding", damages.encode("utf-16-le")),
    ("returns-alone", "htr-line-ends", damages.end_lines_with_returns),
    ("marked-section", "htr-first-section-lost",
     both(remove(b"# A walk", b"[Header]"), change(b"[Header]", b"\xef\xbb\xbf[Header]"))),
    # Lines
    ("byte-order-mark", "htr-byte-order-mark", change(b"# A walk", b"\xef\xbb\xbf# A walk")),
    ("nul", "htr-nul", change(b"FileType", b"FileType htr\0 and more")),
    ("long-line", "htr-line-cut",
     change(b"Hips\t0", b"Hips" + b" " * 10300 + b"0 980 0 0 0 0 100")),
    ("carriage-return", "htr-carriage-return",
     change(b"CalibrationUnits", b"CalibrationUnits mm\rRotationUnits Degrees")),
    ("comment-in-word", "htr-comment-in-word", change(b"Head\tNeck", b"Head\tNeck#2")),
    ("before-header", "htr-line-before-section", insert_before(b"[Header]", b"captured on a Monday")),
    ("after-end", "htr-after-end", add_at_end(b"[Hips]")),
    ("too-many-cells", "htr-cells-extra", change_cell(b"[Hips]", 3, 7, b"1.000000\tslow")),
    ("too-many-numbers", "htr-numbers-extra", change_cell(b"[Hips]", 3, 2, b"0.5\t980")),
    ("no-end", "htr-end-missing", remove_end),
    # Section lines
    ("indented-section", "htr-section-indented", change(b"[Neck]", b"  [Neck]")),
    ("unclosed-section", "htr-section-unclosed", change(b"[Neck]", b"[Neck")),
    ("text-behind-section", "htr-section-text", change(b"[Neck]", b"[Neck] of the body")),
    ("misspelt-end", "htr-section-misspelt", change(b"[EndOfFile]", b"[EndOFFile]")),
    ("misspelt-base-position", "htr-section-misspelt",
     change(b"[BasePosition]", b"[Baseposition]")),
    ("unknown-section", "htr-section-unknown", change(b"[LeftHand]", b"[LeftPaw]")),
    # Header
    ("no-header", "htr-header-missing", remove(b"[Header]", b"# A walk", 14)),
    ("late-header", "htr-header-late",
     insert_before(b"[Hips]", b"[Header]", b"FileType htr")),
    ("misspelt-keyword", "htr-keyword-misspelt", change(b"NumFrames", b"Numframes 120")),
    ("unknown-keyword", "htr-keyword-unknown", insert_before(b"NumFrames", b"Studio 5")),
    ("repeated-keyword", "htr-keyword-repeated", insert_before(b"BoneLengthAxis", b"NumFrames 60")),
    ("no-frame-count", "htr-keyword-missing", remove(b"NumFrames", b"[Header]")),
    ("no-file-type", "htr-keyword-left-out", remove(b"FileType", b"[Header]")),
    ("two-values", "htr-value-extra", change(b"RotationUnits", b"RotationUnits are Degrees")),
    ("other-version", "htr-value-refused", change(b"FileVersion", b"FileVersion 2")),
    ("gravity-along-x", "htr-value-refused", change(b"GlobalAxis", b"GlobalAxisofGravity X")),
    ("unknown-length-unit", "htr-length-unit-unknown",
     change(b"CalibrationUnits", b"CalibrationUnits Mm")),
    ("unknown-angle-unit", "htr-angle-unit-unknown",
     change(b"RotationUnits", b"RotationUnits RADIAN")),
    ("unknown-axis", "htr-axis-unknown", change(b"GlobalAxis", b"GlobalAxisofGravity up")),
    ("rate-with-fraction", "htr-rate-cut", change(b"DataFrameRate", b"DataFrameRate 59.94")),
    ("gravity-along-z", "htr-axis-ignored", change(b"GlobalAxis", b"GlobalAxisofGravity Z")),
    ("rate-between-ticks", "htr-rate-inexact", change(b"DataFrameRate", b"DataFrameRate 250")),
    ("rate-zero", "htr-rate-out-of-range", change(b"DataFrameRate", b"DataFrameRate 0")),
    ("scale-factor", "htr-scale-factor", change(b"ScaleFactor", b"ScaleFactor 2.54")),
    # Numbers
    ("empty-cell", "htr-cell-empty", change_cell(b"[Spine]", 10, 4, b"")),
    ("missing-cell", "htr-number-missing", change_cell(b"[Spine]", 10, 7, None)),
    ("word-for-number", "htr-number-unreadable", change_cell(b"[Spine]", 10, 4, b"nan")),
    ("decimal-comma", "htr-decimal-commas", change_cell(b"[BasePosition]", 2, 2, b"170,5")),
    ("frame-with-fraction", "htr-number-cut", change_cell(b"[Spine]", 10, 0, b"11.5")),
    ("huge-factor", "htr-number-out-of-range", change(b"ScaleFactor", b"ScaleFactor 1e999")),
    ("huge-number", "htr-number-infinite", change_cell(b"[Spine]", 10, 1, b"1e999")),
    # Hierarchy
    ("no-segments", "htr-segments-missing", cut_behind(b"[SegmentNames", 0, b"[SegmentNames")),
    ("commas", "htr-tabs-missing", commas_for_tabs),
    ("other-encoding", "htr-name-encoding", rename_segment(b"Head", b"T\xeate")),
    ("repeated-name", "htr-name-taken", change(b"RightHand\tRight", b"LeftHand\tRightForeArm")),
    ("name-with-blank", "htr-name-in-words", change(b"Head\tNeck", b"Head of Neck")),
    ("name-with-bracket", "htr-name-unusable", rename_segment(b"Head", b"Head]1")),
    ("name-of-a-section", "htr-name-unusable", rename_segment(b"Head", b"Header")),
    ("unknown-parent", "htr-parent-unknown", change(b"LeftLeg\t", b"LeftLeg\tLeftThigh")),
    ("no-parent", "htr-parent-unknown", change(b"LeftLeg\t", b"LeftLeg")),
    ("circle", "htr-parent-circle", change(b"LeftUpLeg\t", b"LeftUpLeg\tLeftToe")),
    ("no-root", "htr-root-missing",
     both(change(b"Hips\tGLOBAL", b"Hips\tWorld"), lambda lines: find(lines, b"[SegmentNames"))),
    ("second-root", "htr-root-second", change(b"RightUpLeg\t", b"RightUpLeg\tGLOBAL")),
    ("late-hierarchy", "htr-segment-unlinked", late_segment),
    # Base position
    ("no-base-position", "htr-base-missing", remove_section(b"[BasePosition]", b"[Hips]")),
    ("late-base-position", "htr-base-late", move_section(b"[BasePosition]", b"[Spine]")),
    ("repeated-base-position", "htr-base-repeated",
     insert_before(b"[Hips]", b"[BasePosition]")),
    ("base-position-over-and-over", "htr-base-links-stopped", base_position_over_and_over),
    ("unknown-base-position", "htr-base-name-unknown",
     change(b"Neck\t0", b"Nack\t0\t220\t0\t0\t0\t0\t90")),
    ("repeated-base-line", "htr-base-line-repeated",
     change(b"Neck\t0", b"Chest\t0\t220\t0\t0\t0\t0\t90")),
    ("missing-base-line", "htr-base-line-missing",
     remove(b"Neck\t0", b"Neck\tChest")),
    # Counts and motion
    ("segment-count", "htr-segment-count", change(b"NumSegments", b"NumSegments 22")),
    ("hierarchy-count", "htr-hierarchy-count",
     both(remove(b"LeftToe\t0", b"NumSegments"), change(b"NumSegments", b"NumSegments 20"))),
    ("cut-short", "htr-frame-count",
     cut_behind(b"[RightToe]", 60, b"[RightToe]")),
    ("none-announced", "htr-frames-unannounced", change(b"NumFrames", b"NumFrames 0")),
    ("too-many-announced", "htr-frames-too-many", change(b"NumFrames", b"NumFrames 2000000000")),
    ("frame-left-out", "htr-frame-number",
     change_cell(b"[Spine]", 50, 0, b"52")),
    ("no-motion", "htr-motion-missing", remove_section(b"[Neck]", b"Neck\tChest")),
    ("repeated-motion", "htr-motion-repeated", change(b"[Neck]", b"[Chest]")),
    # What moves
    ("nines", "htr-position-far", both(change_cell(b"[Spine]", 10, 1, b"9999999"),
                                       lambda lines: find(lines, b"[Spine]"))),
    ("radians", "htr-angles-large", change(b"RotationUnits", b"RotationUnits Radians")),
    ("inches", "htr-size", change(b"CalibrationUnits", b"CalibrationUnits in")),
    ("heights-along-z", "htr-up-axis", lay_down),
]


if __name__ == "__main__":
    damages.write(damages.folder_argument(__doc__), WALK, ".htr", DAMAGES, "damages.tsv")
