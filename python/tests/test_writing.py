"""Takes into files, and what is made of takes."""

from __future__ import annotations

import pathlib
import re
from fractions import Fraction

import numpy as np
import orvane
import pytest


@pytest.mark.parametrize("name", ["walk.trc", "walk.htr"])
def test_what_is_written_is_read_back_to_the_bit(folder, name):
    take = orvane.read(name)
    take.write("back" + name[-4:])
    back = orvane.read("back" + name[-4:])
    assert back.names == take.names and back.rate == take.rate and back.unit == take.unit
    if name == "walk.trc":
        np.testing.assert_array_equal(back.points, take.points)
    else:
        np.testing.assert_array_equal(back.rotations, take.rotations)
        np.testing.assert_array_equal(back.translations, take.translations)
        np.testing.assert_array_equal(back.world_positions(), take.world_positions())


def test_the_fraction_of_the_rate_stays():
    take = orvane.Take.from_points(np.zeros((2, 1, 3)), ["A"], rate="59.94")
    back = orvane.read(take.to_bytes(), format="trc", warn=False)
    assert back.rate == Fraction("59.94")


def test_a_file_that_is_there_stays_unless_it_is_meant(folder):
    take = orvane.read("walk.trc")
    pathlib.Path("mine.trc").write_text("mine")
    with pytest.raises(orvane.FileError) as refusal:
        orvane.write("mine.trc", take)
    assert (refusal.value.path, refusal.value.code) == ("mine.trc", "file-exists")
    assert pathlib.Path("mine.trc").read_text() == "mine"
    orvane.write("mine.trc", take, force=True)
    assert orvane.compare("mine.trc", take)


def test_a_folder_that_is_not_there_is_an_error(folder):
    with pytest.raises(orvane.FileError, match="could not be written"):
        orvane.read("walk.trc").write("nowhere/walk.trc")


def test_another_extension_is_an_error(folder):
    with pytest.raises(ValueError, match=r"\.trc"):
        orvane.write("walk.htr", orvane.read("walk.trc"), force=True)


def test_what_no_file_can_hold_is_an_error(folder):
    take = orvane.Take.from_points(np.zeros((1, 1, 3)), ["a\tb"], rate=60)
    with pytest.raises(ValueError, match="tab"):
        take.write("tab.trc")
    assert not pathlib.Path("tab.trc").exists()


def test_decimals_are_as_many_as_are_asked_for():
    take = orvane.Take.from_points(np.full((1, 1, 3), 1 / 3), ["A"], rate=60)
    assert b"\t0.33\t0.33\t0.33" in take.to_bytes(decimals=2)
    with pytest.raises(ValueError, match="decimals"):
        take.to_bytes(decimals=99)


def test_a_cut_keeps_the_numbers_of_its_frames(folder):
    for name in ("walk.trc", "walk.htr"):
        part = orvane.read(name).cut(11, 20)
        assert (part.first_frame, part.last_frame, part.frame_count) == (11, 20, 10)
        with pytest.raises(ValueError, match="1 to 120"):
            orvane.read(name).cut(100, 121)
    take = orvane.read("walk.trc")
    np.testing.assert_array_equal(take.cut(11, 20).points, take.points[10:20])
    np.testing.assert_array_equal(take.cut(first=111).points, take.points[110:])
    np.testing.assert_array_equal(take.cut(last=10).points, take.points[:10])
    assert take.cut().frame_count == 120
    with pytest.raises(ValueError, match="frames 121 to the last are .* holds 1 to 120"):
        take.cut(first=121)
    with pytest.raises(ValueError, match="frames the first to 0 are .* holds 1 to 120"):
        take.cut(last=0)


@pytest.mark.parametrize("rate", [b"DataFrameRate 60\n", b"DataFrameRate sixty\n", b""])
def test_a_cut_keeps_the_times_of_its_frames_whatever_the_text_says_of_its_rate(folder, rate):
    text = pathlib.Path("walk.htr").read_bytes().replace(b"\r\n", b"\n")
    motion = orvane.read(re.sub(rb"DataFrameRate.*\n", rate, text), format="htr", warn=False)
    np.testing.assert_allclose(motion.cut(31, 60).times, motion.times[30:60], rtol=1e-12)


def test_a_name_of_another_subject_is_told(folder):
    with pytest.raises(KeyError, match="'LFHD'; did you mean 'walker:LFHD'"):
        orvane.read("walk.trc").select("LFHD")
    with pytest.raises(KeyError, match=r"no segment 'nobody'\""):
        orvane.read("walk.htr").index("nobody")


def test_a_selection_holds_what_is_named(folder):
    take = orvane.read("walk.trc")
    some = take.select(["walker:RFWT", "walker:LFHD"])
    assert some.names == ("walker:LFHD", "walker:RFWT")
    np.testing.assert_array_equal(some["walker:RFWT"], take["walker:RFWT"])
    with pytest.raises(KeyError, match="nobody"):
        take.select(["nobody"])
    with pytest.raises(ValueError, match="none"):
        take.select([])


def test_names_change_all_at_once(folder):
    motion = orvane.read("walk.htr")
    swapped = motion.rename({"LeftHand": "RightHand", "RightHand": "LeftHand"})
    np.testing.assert_array_equal(swapped.world_positions()[:, swapped.index("LeftHand")],
                                  motion.world_positions()[:, motion.index("RightHand")])
    with pytest.raises(ValueError, match="Hips"):
        motion.rename({"Neck": "Hips"})
    with pytest.raises(KeyError, match="nobody"):
        motion.rename({"nobody": "somebody"})


def test_lengths_are_converted_and_gaps_stay(folder):
    take = orvane.read("walk.trc")
    meters = take.to_unit("m")
    np.testing.assert_allclose(meters.points, take.points / 1000)
    assert meters.gaps == take.gaps and meters.unit == "m"
    assert take.unit == "mm"


def test_heights_along_z_are_turned():
    take = orvane.Take.from_points([[[1.0, 2.0, 3.0]]], ["A"], rate=60).turn_z_up()
    assert take.points[0, 0].tolist() == [1.0, 3.0, -2.0]


def test_another_rate_takes_every_other_frame(folder):
    take = orvane.read("walk.trc")
    half = take.resample(30)
    assert take.resample(np.float64(30)).rate == 30
    assert take.resample(np.float32(59.94)).rate == Fraction("59.94")
    assert take.resample(np.int64(30)).rate == 30
    np.testing.assert_array_equal(half.points, take.points[::2])
    assert half.rate == 30
    motion = orvane.read("walk.htr").resample(90, rotations="linear")
    assert (motion.rate, motion.frame_count) == (90, 179)
