"""Many threads at once."""

from __future__ import annotations

from concurrent.futures import ThreadPoolExecutor

import numpy as np
import orvane


def test_files_are_read_checked_and_written_from_any_thread(folder):
    expected = orvane.read("walk.trc").points.copy()

    def work(number):
        take = orvane.read("walk.trc")
        take.write(f"copy{number}.trc")
        assert orvane.check(f"copy{number}.trc").contents == "41 markers, 120 frames"
        return orvane.read(f"copy{number}.trc").points

    with ThreadPoolExecutor(8) as pool:
        for points in pool.map(work, range(32)):
            np.testing.assert_array_equal(points, expected)


def test_one_motion_is_asked_from_many_threads(folder):
    motion = orvane.read("walk.htr")
    expected = motion.world_positions()

    def work(number):
        assert motion.cut(1, 10 + number).frame_count == 10 + number
        return motion.world_positions()

    with ThreadPoolExecutor(8) as pool:
        for positions in pool.map(work, range(32)):
            np.testing.assert_array_equal(positions, expected)
