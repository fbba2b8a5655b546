"""What the package holds beside its modules."""

from __future__ import annotations

import importlib.metadata
import importlib.resources

import orvane


def test_its_version_is_that_of_the_binding():
    assert importlib.metadata.version("orvane") == orvane.__version__


def test_types_libraries_and_licences_come_with_it():
    held = {each.name for each in importlib.resources.files(orvane).iterdir()}
    assert held >= {"py.typed", "_orvane.pyi", "libskelder.so", "OrvaneFileIO.so", "LICENSE"}


def test_the_notices_name_whose_code_is_linked_in():
    notices = importlib.resources.files(orvane).joinpath("THIRD-PARTY-NOTICES")
    if notices.is_file():  # where Debian's packages are, of which they are made
        text = notices.read_text(encoding="utf-8")
        for holder in ("Niels Lohmann", "University of Cincinnati", "Wenzel Jakob", "SQLite"):
            assert holder in text
