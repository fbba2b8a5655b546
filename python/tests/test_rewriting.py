"""Files into files."""

from __future__ import annotations

import json
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


def test_a_cut_may_have_an_open_end(folder):
    orvane.rewrite("walk.trc", "end.trc", cut=(111, None), warn=False)
    end = orvane.read("end.trc", warn=False)
    assert (end.first_frame, end.last_frame) == (111, 120)
    orvane.rewrite("walk.trc", "all.trc", cut=(None, None), warn=False)
    assert orvane.compare("walk.trc", "all.trc")


def test_an_option_that_there_is_not_is_an_error(folder):
    with pytest.raises(TypeError, match="cutt"):
        orvane.rewrite("walk.trc", "part.trc", cutt=(1, 2))


def test_true_is_no_choice(folder):
    with pytest.raises(ValueError, match="--resample: True is not one of linear, slerp"):
        orvane.rewrite("walk.trc", "fast.trc", rate=90, resample=True)


def test_a_refusal_tells_of_the_file_and_what_was_found(folder):
    with pytest.raises(orvane.FileError) as refusal:
        orvane.rewrite("walk.trc", "two.trc", rename={"nobody": "A"}, strict=True)
    assert refusal.value.path == "walk.trc"
    assert "rewrite-rename-unknown" in [each.code for each in refusal.value.findings]
    with pytest.raises(orvane.FileError, match="'walker:C8'"):
        orvane.rewrite("walk.trc", "two.trc", select=["walker:C8"])
    assert not pathlib.Path("two.trc").exists()


def test_advice_is_that_of_python(folder):
    pathlib.Path("mine.trc").write_text("mine")
    with pytest.raises(orvane.FileError, match="force=True replaces it"):
        orvane.rewrite("walk.trc", "mine.trc", warn=False)


def test_standard_output_is_the_programs(folder):
    with pytest.raises(ValueError, match="standard output"):
        orvane.rewrite("walk.trc", "-")


def test_a_report_goes_where_it_is_wanted(folder):
    findings = orvane.rewrite("walk.trc", "new.trc", report="told.json", warn=False)
    told = json.loads(pathlib.Path("told.json").read_text())["files"][0]["findings"]
    assert [each["code"] for each in told] == [each.code for each in findings]
