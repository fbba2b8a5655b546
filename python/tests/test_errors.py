"""What goes wrong with files, and what is odd in them."""

from __future__ import annotations

import os
import pathlib
import warnings

import orvane
import pytest
from conftest import htr_text, trc_text

GOOD = [["1", "2", "3"]]


def test_a_refusal_has_path_line_column_and_code(folder):
    text = pathlib.Path("walk.trc").read_text().replace("(X/Y/Z)", "(Y/X/Z)")
    pathlib.Path("bad.trc").write_text(text)
    with pytest.raises(orvane.FileError) as refusal:
        orvane.read("bad.trc")
    error = refusal.value
    assert (error.path, error.line, error.column) == ("bad.trc", 1, 16)
    assert error.code == "trc-coordinates-refused"
    assert str(error).startswith("bad.trc:1:16: ")


def test_a_refusal_is_the_same_without_a_check():
    data = trc_text(GOOD, names=("A",)).replace("(X/Y/Z)", "(Y/X/Z)").encode()
    with pytest.raises(orvane.FileError) as refusal:
        orvane.read(data, format="trc", check=False)
    assert (refusal.value.line, refusal.value.code) == (1, "trc-coordinates-refused")


def test_a_file_that_is_missing_is_missing_to_python_too():
    with pytest.raises(FileNotFoundError) as missing:
        orvane.read("nowhere.trc")
    assert isinstance(missing.value, orvane.FileError)
    assert (missing.value.path, missing.value.code) == ("nowhere.trc", "file-missing")
    assert missing.value.line is None


def test_a_folder_is_no_file(folder):
    with pytest.raises(orvane.FileError, match="file-unreadable"):
        orvane.read(folder)


def test_bytes_that_show_no_format_are_an_error():
    with pytest.raises(orvane.FileError, match="format="):
        orvane.read(b"\1\2\3")


@pytest.mark.parametrize("text", ["", "\n\n\n"])
def test_a_file_that_holds_nothing_is_an_error(text):
    for kind in ("trc", "htr"):
        with pytest.raises(orvane.FileError):
            orvane.read(text.encode(), format=kind)


def test_findings_are_objects():
    data = trc_text([["1,5", "2", "3"]], names=("A",)).encode()
    take = orvane.read(data, format="trc", warn=False)
    finding = take.findings[0]
    assert (finding.severity, finding.line, finding.column) == ("warning", 7, 12)
    assert finding.code in ("trc-number-unreadable", "trc-decimal-commas")
    assert finding.code in str(finding)


def test_findings_that_are_no_notes_are_warnings_of_python():
    data = trc_text([["1,5", "2", "3"]], names=("A",)).encode()
    with pytest.warns(orvane.FindingWarning, match="<bytes>: ") as told:
        orvane.read(data, format="trc")
    assert told[0].filename == __file__


def test_notes_are_no_warnings(folder):
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        assert [each.severity for each in orvane.read("walk.trc").findings] == ["note"]


def test_nothing_is_looked_for_without_a_check(folder):
    assert orvane.read("walk.trc", check=False).findings is None


def test_an_array_out_of_proportion_is_refused_with_both_numbers():
    names = [f"M{at}" for at in range(1000)]
    text = trc_text([["1", "2", "3"], *[[]] * 24_999], names=names)
    with pytest.raises(orvane.FileError) as refusal:
        orvane.read(text.encode(), format="trc", warn=False)
    assert refusal.value.code == "array-too-large"
    assert "600 MB" in str(refusal.value)
    assert f"{len(text) / 1e6:.3f} MB" in str(refusal.value)


def test_a_check_tells_what_an_action_makes_of_a_file(folder):
    checked = orvane.check("walk.trc", action="convert")
    assert (checked.format, checked.contents) == ("trc", "41 markers, 120 frames")
    assert "DROPOUT" in checked.findings[0].consequence
    assert not checked.is_refused


def test_a_check_of_a_refused_file_is_no_error():
    checked = orvane.check(htr_text([[]]).replace("FileType htr", "FileType x").encode(),
                           format="htr")
    assert checked.is_refused


def test_a_mapping_is_checked(folder):
    assert orvane.check("walk.mnm").format == "mnm"
    with pytest.raises(ValueError, match="import"):
        orvane.check("walk.mnm", action="import")


def test_a_named_pipe_is_read(folder):
    os.mkfifo("pipe.trc")
    data = pathlib.Path("walk.trc").read_bytes()
    if os.fork() == 0:
        pathlib.Path("pipe.trc").write_bytes(data)
        os._exit(0)
    assert orvane.read("pipe.trc").frame_count == 120
    os.wait()
