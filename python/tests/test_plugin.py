"""What goes through the plug-in."""

from __future__ import annotations

import pathlib
import signal
import subprocess
import sys
import threading

import numpy
import orvane
import pytest


def test_a_motion_becomes_a_scene(folder):
    scene = orvane.to_scene("walk.htr", segment_size=2, end_effectors=True)
    assert scene.save("walk.glb") == ()
    assert pathlib.Path("walk.glb").read_bytes().startswith(b"glTF")


def test_options_are_those_of_the_dialog(folder):
    orvane.to_scene("walk.htr", end_effectors=True).save("with.gltf")
    orvane.to_scene("walk.htr", end_effectors=False).save("without.gltf")
    assert pathlib.Path("with.gltf").stat().st_size > pathlib.Path("without.gltf").stat().st_size


def test_a_scene_that_is_there_is_replaced_when_that_is_meant(folder):
    pathlib.Path("walk.glb").write_bytes(b"mine")
    scene = orvane.to_scene(pathlib.Path("walk.trc"), size=40)
    with pytest.raises(orvane.FileError, match="walk.glb") as refusal:
        scene.save("walk.glb")
    assert refusal.value.code == "file-exists"
    assert pathlib.Path("walk.glb").read_bytes() == b"mine"
    scene.save("walk.glb", force=True, warn=False)
    assert pathlib.Path("walk.glb").read_bytes() != b"mine"


def test_findings_come_with_the_scene(folder):
    text = pathlib.Path("walk.trc").read_text().replace("\t82.431", "\t82,431", 1)
    pathlib.Path("odd.trc").write_text(text)
    with pytest.warns(orvane.FindingWarning):
        findings = orvane.to_scene("odd.trc").save("odd.glb")
    assert any(finding.severity == "warning" for finding in findings)


@pytest.mark.parametrize(("options", "kind", "what"), [
    ({"segmentsize": 2}, TypeError, "segmentsize"),
    ({"gaps": "filled"}, ValueError, "gaps"),
    ({"euler": True, "tcb": True}, ValueError, "tcb"),
    ({"gaps": True}, ValueError, "--gaps: True is not one of"),
    ({"segment_size": "a"}, ValueError, "segment_size is 'a'; it is a number that is not 0"),
    ({"segment_size": True}, ValueError, "segment_size is True"),
    ({"size": 0}, ValueError, "size is 0"),
    ({"scale": ""}, ValueError, "scale is ''"),
])
def test_wrong_options_are_told_at_once(options, kind, what):
    with pytest.raises(kind, match=what):
        orvane.to_scene("nowhere.htr", **options)


def test_sizes_are_numbers_and_may_have_a_unit(folder):
    for size in (2, 1.5, "25mm", "2 cm", ".5", numpy.float64(3)):
        orvane.to_scene("walk.trc", size=size).save("markers.glb", force=True)


def test_a_missing_file_is_missing(folder):
    with pytest.raises(FileNotFoundError):
        orvane.to_scene("nowhere.htr").save("walk.glb")


def test_a_refusal_has_its_place(folder):
    text = pathlib.Path("walk.trc").read_text().replace("(X/Y/Z)", "(Y/X/Z)")
    pathlib.Path("bad.trc").write_text(text)
    for make in (lambda: orvane.to_scene("bad.trc").save("bad.glb"),
                 lambda: orvane.convert("bad.trc")):
        with pytest.raises(orvane.FileError) as refusal:
            make()
        assert (refusal.value.path, refusal.value.line) == ("bad.trc", 1)
        assert refusal.value.code == "trc-coordinates-refused"
    assert not pathlib.Path("bad.glb").exists()


def test_markers_become_a_bvk_file(folder):
    made = orvane.convert("walk.trc", mapping="walk.mnm")
    assert (made.output, made.markers_kept, made.markers_dropped) == ("walk.bvk", 39, 2)
    assert pathlib.Path("walk.bvk").exists()
    assert {finding.code for finding in made.findings} == {"mnm-marker-unmapped", "trc-marker-gaps"}


def test_what_one_frame_range_and_an_offset_mean(folder):
    made = orvane.convert("walk.trc", "part.bvk", cut=(10, 19), offset=(1, 2.5, 3))
    assert made.frames == 10


def test_threads_take_turns(folder):
    names = [f"folder{at}/walk.glb" for at in range(4)]
    errors = []

    def save(name):
        pathlib.Path(name).parent.mkdir()
        try:
            orvane.to_scene("walk.htr").save(name)
        except Exception as error:  # the test tells
            errors.append(error)

    threads = [threading.Thread(target=save, args=(name,)) for name in names]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not errors
    assert len({pathlib.Path(name).read_bytes() for name in names}) == 1


def test_ctrl_c_is_python_s_again_afterwards(folder, request):
    # A shell's job may ignore it.
    request.addfinalizer(lambda former=signal.getsignal(signal.SIGINT):
                         signal.signal(signal.SIGINT, former))
    signal.signal(signal.SIGINT, signal.default_int_handler)
    before = signal.getsignal(signal.SIGINT)
    orvane.to_scene("walk.htr").save("walk.glb")
    assert signal.getsignal(signal.SIGINT) is before
    with pytest.raises(KeyboardInterrupt):
        signal.raise_signal(signal.SIGINT)


def test_nothing_is_printed(folder):
    code = "import orvane; orvane.convert('walk.trc', mapping='walk.mnm')"
    told = subprocess.run([sys.executable, "-P", "-c", code], capture_output=True, check=True)
    assert (told.stdout, told.stderr) == (b"", b"")
