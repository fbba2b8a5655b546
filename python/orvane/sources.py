"""What can be read: a path, bytes, or an open binary file."""

from __future__ import annotations

import os
import stat
from dataclasses import dataclass
from typing import Protocol, Union

from orvane import _orvane
from orvane.errors import FileError, MissingFileError


class BinaryFile(Protocol):
    """An open file that gives bytes."""

    def read(self, size: int = -1, /) -> bytes: ...


Source = Union[str, "os.PathLike[str]", bytes, bytearray, memoryview, BinaryFile]


@dataclass(frozen=True)
class Input:
    """What the binding reads: the file of that name, or ``data``, which is called so."""

    name: str
    data: bytes | None

    @property
    def encoded_name(self) -> bytes:
        return os.fsencode(self.name)


def open_input(source: Source) -> Input:
    """What ``source`` is. Raises a FileError for a file that cannot be opened."""
    if isinstance(source, bytes):
        return Input("<bytes>", source)
    if isinstance(source, (bytearray, memoryview)):
        return Input("<bytes>", bytes(source))
    if isinstance(source, (str, os.PathLike)):
        return _open_path(os.fspath(source))
    return _read_file(source)


def _open_path(path: str) -> Input:
    try:
        with open(path, "rb") as file:
            is_plain = stat.S_ISREG(os.fstat(file.fileno()).st_mode)
            return Input(path, None if is_plain else file.read())
    except FileNotFoundError as error:
        raise MissingFileError(path, "No such file or directory", code="file-missing") from error
    except OSError as error:
        reason = error.strerror or str(error)
        raise FileError(path, reason, code="file-unreadable") from error


def _read_file(file: BinaryFile) -> Input:
    name = getattr(file, "name", "<file>")
    data = file.read()
    if not isinstance(data, bytes):
        raise TypeError(f"{name} is open for text; open it in binary mode: open(path, \"rb\")")
    return Input(name if isinstance(name, str) else "<file>", data)


def format_of(source: Input, format: str | None, known: tuple[str, ...]) -> str:
    """``format``, or else what the name of the file says, or else its bytes.

    A file with an extension that says nothing is a motion file, as it is to the program.
    """
    if format is not None:
        if format not in known:
            raise ValueError(f"format is {format!r}; it is one of {', '.join(map(repr, known))}")
        return format
    extension = os.path.splitext(source.name)[1].lower().lstrip(".")
    if extension in known:
        return extension
    shown = None if source.data is None else _orvane.format_of(source.data)
    if shown in known:
        return str(shown)
    if source.data is None:
        return "htr"
    raise FileError(source.name, "The bytes do not show what they are; format= says it",
                    code="file-refused")
