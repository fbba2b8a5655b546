#!/usr/bin/env python3
"""Draws about.bmp, the picture of the About dialog: a walking figure with its markers.

Usage: draw_about_bitmap.py about.bmp

The drawing is kept beside this script, so that building needs no Python. It has 16 colours: a
ramp from the background to the bones and one to the markers, for smooth edges.
"""

import math
import struct
import sys

SIZE = 64
BACKGROUND, BONE, MARKER = (28, 44, 66), (214, 224, 236), (255, 150, 40)
RAMP = 7  # palette entries of each ramp above the background

JOINTS = {
    "head": (33, 10), "neck": (32, 18), "hip": (30, 36),
    "left_elbow": (40, 26), "left_hand": (47, 20),
    "right_elbow": (22, 27), "right_hand": (19, 36),
    "left_knee": (38, 46), "left_foot": (45, 57),
    "right_knee": (27, 48), "right_foot": (16, 56),
}
BONES = [
    ("head", "neck"), ("neck", "hip"),
    ("neck", "left_elbow"), ("left_elbow", "left_hand"),
    ("neck", "right_elbow"), ("right_elbow", "right_hand"),
    ("hip", "left_knee"), ("left_knee", "left_foot"),
    ("hip", "right_knee"), ("right_knee", "right_foot"),
]


def distance_to_bone(point, start, end):
    along = (end[0] - start[0], end[1] - start[1])
    offset = (point[0] - start[0], point[1] - start[1])
    length = along[0] ** 2 + along[1] ** 2
    part = max(0.0, min(1.0, (offset[0] * along[0] + offset[1] * along[1]) / length))
    return math.hypot(offset[0] - part * along[0], offset[1] - part * along[1])


def coverage(distance, radius):
    return max(0.0, min(1.0, radius + 0.5 - distance))


def colour_index(point):
    """0 is the background, 1 to RAMP the bones' ramp, RAMP + 1 to 2 RAMP the markers'."""
    marker = max(coverage(math.dist(point, joint), 2.4) for joint in JOINTS.values())
    if round(marker * RAMP) > 0:
        return RAMP + round(marker * RAMP)
    bone = max(coverage(distance_to_bone(point, JOINTS[a], JOINTS[b]), 1.1) for a, b in BONES)
    return round(bone * RAMP)


def palette():
    ramps = [BACKGROUND]
    for target in (BONE, MARKER):
        for step in range(1, RAMP + 1):
            ramps.append(tuple(round(b + (t - b) * step / RAMP) for b, t in zip(BACKGROUND, target)))
    ramps.append((0, 0, 0))  # unused: 16 entries in all
    return b"".join(struct.pack("<BBBB", blue, green, red, 0) for red, green, blue in ramps)


def pixels():
    """Rows from the bottom up, two pixels a byte."""
    rows = bytearray()
    for y in reversed(range(SIZE)):
        row = [colour_index((x + 0.5, y + 0.5)) for x in range(SIZE)]
        rows += bytes(high << 4 | low for high, low in zip(row[0::2], row[1::2]))
    return bytes(rows)


def bitmap():
    colours, data = palette(), pixels()
    start = 14 + 40 + len(colours)
    header = struct.pack("<2sIHHI", b"BM", start + len(data), 0, 0, start)
    info = struct.pack("<IiiHHIIiiII", 40, SIZE, SIZE, 1, 4, 0, len(data), 2835, 2835, 16, 0)
    return header + info + colours + data


if __name__ == "__main__":
    with open(sys.argv[1], "wb") as file:
        file.write(bitmap())
