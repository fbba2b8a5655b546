"""What other programs do to marker, motion and mapping files on their way: spreadsheets, mail,
transfers and editors. Each damage is a function from the bytes of a file to those of the damaged
one, or to nothing where the file has not what it damages. They work on any file of their kind, and
are others than those of examples/damage_*.py.

Not among them is what no program can see in the file alone: a position that is moved to where it
might be, markers whose names are swapped or changed to other sound names, a rate that is doubled,
frames that are swapped and numbered anew, a marker taken out with its columns and its count, radians
that are called degrees, which a quiet take may be, and a unit beside the right one that leaves a
body the size of a child or a hand, or that few markers are in.
"""

import base64
import gzip
import re

from file_edits import (lines_of, cells_edited, with_cell, each_line, swapped, doubled)
from marker_damages import MARKERS
from motion_damages import MOTION

UTF_8_MARK = b"\xef\xbb\xbf"


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
