"""Takes that are copied, pickled and checked."""

from __future__ import annotations

import copy
import multiprocessing
import pickle
from fractions import Fraction

import numpy as np
import orvane
import pytest

FILES = ["walk.trc", "walk.htr"]


def again(thing):
    return pickle.loads(pickle.dumps(thing))


@pytest.mark.parametrize("name", FILES)
def test_a_copy_is_the_take_itself_as_nothing_of_it_changes(folder, name):
    take = orvane.read(name)
    assert copy.copy(take) is take and copy.deepcopy([take])[0] is take


@pytest.mark.parametrize("name", FILES)
def test_a_pickle_comes_back_as_it_was(folder, name):
    take = orvane.read(name).cut(31, 60)
    take.names, take.index(take.names[0])  # which it remembers
    back = again(take)
    assert (back.path, back.names, back.first_frame) == (name, take.names, 31)
    assert (back.rate, back.rate_taken, back.unit) == (take.rate, take.rate_taken, take.unit)
    assert back.findings == take.findings
    np.testing.assert_array_equal(back.times, take.times)
    assert back.to_bytes() == take.to_bytes()


def test_a_pickle_holds_the_rate_that_no_text_says():
    take = orvane.Take.from_points(np.zeros((2, 1, 3)), ["A"], rate=Fraction(30000, 1001))
    assert again(take).rate == Fraction(30000, 1001)
    assert again(take).findings is None


def test_what_no_file_can_hold_is_not_pickled():
    take = orvane.Take.from_points(np.zeros((1, 1, 3)), ["a\tb"], rate=60)
    with pytest.raises(ValueError, match="tab"):
        pickle.dumps(take)


def mean_height(take):
    return float(np.nanmean(take.points[:, :, 1]))


def test_takes_go_to_other_processes(folder):
    take = orvane.read("walk.trc")
    with multiprocessing.get_context("spawn").Pool(1) as pool:
        assert pool.map(mean_height, [take]) == [mean_height(take)]


def test_what_is_told_of_takes_can_be_pickled(folder):
    comparison = orvane.compare("walk.trc", "walk.trc")
    assert again(comparison) == comparison
    with pytest.raises(orvane.FileError) as refusal:
        orvane.read(b"nothing of the kind", format="htr")
    assert str(again(refusal.value)) == str(refusal.value)


@pytest.mark.parametrize("change", [
    lambda take: take.cut(31, 60), lambda take: take.select("walker:LFHD"),
    lambda take: take.rename({"walker:LFHD": "A"}), lambda take: take.to_unit("m"),
    lambda take: take.resample(30), lambda take: take.turn_z_up(),
])
def test_what_is_made_of_a_take_keeps_the_findings_of_the_file(folder, change):
    take = orvane.read("walk.trc")
    assert [each.code for each in take.findings] == ["trc-marker-gaps"]
    assert change(take).findings == take.findings
    assert change(orvane.read("walk.trc", check=False)).findings is None


def test_a_take_is_checked_as_it_is_now(folder):
    take = orvane.read("walk.trc")
    assert orvane.check(take) == orvane.check("walk.trc")
    part = orvane.check(take.select(["walker:LBWT", "walker:LFHD"]).cut(40, 60), action="convert")
    assert (part.path, part.format, part.contents) == ("walk.trc", "trc", "2 markers, 21 frames")
    assert [(each.code, each.names) for each in part.findings] == [
        ("trc-marker-gaps", ("walker:LBWT",))]


def test_a_motion_is_checked(folder):
    motion = orvane.read("walk.htr")
    assert orvane.check(motion).findings == orvane.check("walk.htr").findings
    with pytest.raises(ValueError, match="'trc'"):
        orvane.check(motion, format="trc")


def test_what_no_file_can_hold_is_not_checked():
    with pytest.raises(ValueError, match="tab"):
        orvane.check(orvane.Take.from_points(np.zeros((1, 1, 3)), ["a\tb"], rate=60))
