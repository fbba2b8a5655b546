"""Files into files."""

from __future__ import annotations

import pathlib

import orvane
import pytest


def test_a_file_is_made_of_another(folder):
    orvane.rewrite("walk.htr", "meters.htr", unit="m", warn=False)
    assert orvane.read("meters.htr").unit == "m"
    assert orvane.compare("walk.htr", "meters.htr")


def test_one_that_is_there_stays_unless_it_is_meant(folder):
    pathlib.Path("mine.trc").write_text("mine")
    with pytest.raises(orvane.FileError) as refusal:
        orvane.rewrite("walk.trc", "mine.trc", warn=False)
    assert refusal.value.path == "mine.trc"
    assert pathlib.Path("mine.trc").read_text() == "mine"
    orvane.rewrite("walk.trc", "mine.trc", force=True, warn=False)
    assert orvane.compare("walk.trc", "mine.trc")


def test_names_are_lists_and_mappings(folder):
    orvane.rewrite("walk.trc", "two.trc", select=["walker:C7", "walker:LFHD"],
                   rename={"walker:C7": "C7", "walker:LFHD": "LFHD"}, warn=False)
    assert set(orvane.read("two.trc").names) == {"C7", "LFHD"}


def test_an_option_that_there_is_not_is_an_error(folder):
    with pytest.raises(TypeError, match="cutt"):
        orvane.rewrite("walk.trc", "part.trc", cutt=(1, 2))
