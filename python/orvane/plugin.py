"""What the plug-in makes of files, through its own dialogs, as the program does."""

from __future__ import annotations

import json
import os
import re
from dataclasses import dataclass
from typing import Any

from orvane.common import Path
from orvane.findings import Finding, warn_of
from orvane.program import arguments_of, require_good, run


@dataclass(frozen=True)
class Conversion:
    """A marker file that has become a BVK file."""

    path: str
    output: str
    frames: int
    markers_kept: int
    markers_dropped: int
    dropouts: int
    findings: tuple[Finding, ...]


class Scene:
    """A scene that the plug-in makes of a file when it is saved. ``to_scene`` makes one."""

    def __init__(self, path: str, arguments: list[str]) -> None:
        self.path = path
        self._arguments = arguments

    def save(self, path: Path, *, force: bool = False, warn: bool = True) -> tuple[Finding, ...]:
        """Makes the scene and writes it: binary to a name in ``.glb``, text to one in ``.gltf``.

        ``force`` replaces a file that is there. The file appears whole or not at all. Returns what
        is odd in the file and in what was made of it; each of that which is no note is a
        FindingWarning unless ``warn`` is false. Raises a FileError when nothing comes of it.
        """
        arguments = [*self._arguments, "--output=" + os.fspath(path), *["--force"][:force]]
        findings = run("import", self.path, arguments).findings
        if warn:
            warn_of(self.path, findings, stacklevel=2)
        return findings

    def __repr__(self) -> str:
        return f"<Scene of {self.path!r}>"


# Numbers that the plug-in's dialog reads from what is typed into it; what is none it takes for 0.
FACTORS = ("segment_size", "size", "scale")
NUMBER = re.compile(r"[+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?")


def _require_factors(options: dict[str, Any]) -> None:
    for name in FACTORS:
        value = options.get(name)
        found = NUMBER.match(str(value))
        if value is not None and not (found and float(found[0])):
            raise ValueError(f"{name} is {value!r}; it is a number that is not 0, such as 1.5")


def to_scene(path: Path, **options: Any) -> Scene:
    """A scene of a motion or marker file, made by the plug-in's own dialog when it is saved.

    The options are the flags of ``orvane import``, with underscores: ``segment_size=2`` is
    ``--segment-size 2``, ``end_effectors=True`` and ``False`` are ``--end-effectors`` and
    ``--no-end-effectors``, ``range=(10, 60)`` is ``--range 10:60``. Raises a TypeError for an option
    that there is not, and a ValueError for a value that it does not take.

    >>> import orvane
    >>> scene = orvane.to_scene("walk.htr", segment_size=2, end_effectors=True)
    >>> findings = scene.save("made.glb", force=True)
    """
    arguments = arguments_of("import", options)
    _require_factors(options)
    file = os.fspath(path)
    require_good(["import", *arguments, "--output=scene.glb", "--", file])
    return Scene(file, arguments)


def convert(path: Path, output: Path | None = None, *, mapping: Path | None = None,
            warn: bool = True, **options: Any) -> Conversion:
    """Has the plug-in make a BVK file of a marker file.

    It lies beside the file unless ``output`` names another. ``mapping`` is a file of marker names:
    those that it lists are renamed, others dropped. The other options are the flags of ``orvane
    convert``, as in ``to_scene``. Each finding that is no note is a FindingWarning unless ``warn``
    is false. Raises a FileError when nothing comes of it.

    >>> import orvane
    >>> orvane.convert("walk.trc", "made.bvk", mapping="walk.mnm", force=True).markers_kept
    39
    """
    options = {"output": output, "mapping": mapping, **options}
    arguments = [*arguments_of("convert", options), "--jobs=1", "--json"]
    file = os.fspath(path)
    require_good(["convert", *arguments, "--", file])
    made = run("convert", file, arguments)
    told = json.loads(made.output)["files"][0]
    if warn:
        warn_of(file, made.findings, stacklevel=2)
    return Conversion(file, told["output"], told["frames"], told["markers_kept"],
                      told["markers_dropped"], told["dropouts"], made.findings)
