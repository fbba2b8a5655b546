"""What goes wrong with files, and what is odd in them."""

from __future__ import annotations

from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from orvane.findings import Finding


class FileError(Exception):
    """A file cannot be read, written or used; nothing has been made of it.

    ``path`` is the file as it was named, ``line`` and ``column`` (counted from 1, in bytes) say
    where in it, and are ``None`` where that is no place in the file. ``code`` is the one that
    ``orvane check`` and docs/findings.md have for it, or one of ``file-missing``,
    ``file-unreadable``, ``file-refused``, ``file-misread``, ``array-too-large``, ``file-exists``,
    ``file-unwritable`` and ``refused``. ``findings`` is what the program had found until then.

    >>> import orvane
    >>> try:
    ...     orvane.read(b"nothing of the kind", format="htr")
    ... except orvane.FileError as error:
    ...     print(error.path, error.code)
    <bytes> htr-segments-missing
    """

    def __init__(self, path: str, message: str, line: int = 0, column: int = 0,
                 code: str = "refused", findings: tuple[Finding, ...] = ()) -> None:
        super().__init__(path, message, line, column, code, findings)
        self.path = path
        self.message = message
        self.line = line or None
        self.column = column or None
        self.code = code
        self.findings = findings

    def __str__(self) -> str:
        place = f":{self.line}:{self.column}" if self.line else ""
        return f"{self.path}{place}: {self.message} [{self.code}]"


class MissingFileError(FileError, FileNotFoundError):
    """There is no such file."""


class FindingWarning(UserWarning):
    """Something in a file is lost, or taken for other than it seems to be.

    Python prints it unless it is told otherwise: ``warnings.simplefilter("error",
    orvane.FindingWarning)`` makes an exception of it, and ``orvane.read(path, warn=False)`` is for
    whoever looks at the findings of the take.
    """
