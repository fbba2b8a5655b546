"""How the package is built: by scikit-build-core, whose archives of sources get those of C++ too.

In the repository they lie above this folder, where an archive cannot reach.
"""

from __future__ import annotations

import pathlib
import shutil

import scikit_build_core.build
from scikit_build_core.build import (build_editable, build_wheel, get_requires_for_build_editable,
                                     get_requires_for_build_sdist, get_requires_for_build_wheel,
                                     prepare_metadata_for_build_editable,
                                     prepare_metadata_for_build_wheel)

__all__ = [
    "build_editable",
    "build_sdist",
    "build_wheel",
    "get_requires_for_build_editable",
    "get_requires_for_build_sdist",
    "get_requires_for_build_wheel",
    "prepare_metadata_for_build_editable",
    "prepare_metadata_for_build_wheel",
]

HERE = pathlib.Path(__file__).resolve().parent.parent

# All that CMake reads for the package, within the repository.
SOURCES = ("CMakeLists.txt", "LICENSE", "cli", "cmake", "decimal", "examples", "formats", "host",
           "inspect", "packaging", "platform", "plugin", "python/CMakeLists.txt", "python/binding",
           "sdk")


def build_sdist(sdist_directory, config_settings=None):
    """Returns the name of the archive, which lies in ``sdist_directory``."""
    copies = HERE / "sources"
    if (HERE / "PKG-INFO").exists():  # this is an archive, unpacked
        return scikit_build_core.build.build_sdist(sdist_directory, config_settings)
    shutil.rmtree(copies, ignore_errors=True)
    try:
        for name in SOURCES:
            copy(HERE.parent / name, copies / name)
        return scikit_build_core.build.build_sdist(sdist_directory, config_settings)
    finally:
        shutil.rmtree(copies, ignore_errors=True)


def copy(original, place):
    place.parent.mkdir(parents=True, exist_ok=True)
    if original.is_dir():
        shutil.copytree(original, place)
    else:
        shutil.copy2(original, place)
