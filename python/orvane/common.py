"""What takes of markers and of motion have in common."""

from __future__ import annotations

import os
from abc import abstractmethod
from collections.abc import Iterable, Iterator, Mapping
from fractions import Fraction
from typing import ClassVar, Generic, Literal, Self, TypeVar, Union, cast

import numpy as np
from numpy.typing import NDArray

from orvane import _orvane
from orvane.findings import Finding, findings_of
from orvane.rates import rate_pair, rate_text

Floats = NDArray[np.float64]
Path = Union[str, "os.PathLike[str]"]
Rate = Union[Fraction, float, str]
Unit = Literal["mm", "cm", "m", "in", "ft", "yd"]
# Path, bytes of the file, rate, time of the first frame, findings.
State = tuple[str, bytes, Union[tuple[int, int], None], float, Union[tuple[Finding, ...], None]]

H = TypeVar("H", _orvane.Markers, _orvane.Motion)


class FramedTake(Generic[H]):
    """Frames at a rate, counted by numbers, with lengths in one unit. Nothing of it changes.

    So ``copy.copy`` and ``copy.deepcopy`` give the very take. A pickle holds the bytes of its file,
    and fails with a ValueError where no file can hold the take; what comes of it has the same
    numbers, but for angles made of arrays, of which the last bit may be another.
    """

    path: str
    """The file that it comes from, as it was named."""

    extension: ClassVar[str]
    """Of the files that hold it."""

    _held: H

    def __init__(self, path: str, held: H) -> None:
        self.path = path
        self._held = held
        self._findings = findings_of(held.findings)

    @property
    @abstractmethod
    def names(self) -> tuple[str, ...]:
        """Of the markers or segments, in the order of the file."""

    @property
    def frame_count(self) -> int:
        """Frames that the file holds, as opposed to those that its header announces."""
        return self._held.frame_count

    @property
    def frames_announced(self) -> int:
        """Frames as the header announces them."""
        return self._held.frames_announced

    @property
    def first_frame(self) -> int:
        """The number of the first frame."""
        return self._held.first_frame

    @property
    def last_frame(self) -> int:
        """The number of the last frame."""
        return self.first_frame + self.frame_count - 1

    @property
    def unit(self) -> str:
        """Of all lengths: ``"mm"``, ``"cm"``, ``"m"``, ``"in"``, ``"ft"`` or ``"yd"``."""
        return self._held.unit

    @property
    def rate(self) -> Fraction:
        """Frames per second as the file's text says them: ``Fraction("59.94")``.

        Where the text says none, it is ``rate_taken``.
        """
        written = self._held.rate
        return Fraction(self.rate_taken) if written is None else Fraction(*written)

    @property
    def rate_taken(self) -> int:
        """Frames per second as the plug-in takes them: of 59.94 it is 59."""
        return self._held.rate_taken

    @property
    def times(self) -> Floats:
        """Seconds of each frame: (frames,).

        They go by ``rate`` from the time of the first row of a TRC file, or from 0 where no number
        of seconds stands there (the finding trc-time-unreadable), and from 0 of an HTR file, which
        holds no times; a take that is cut keeps those of its frames.

        >>> import orvane
        >>> orvane.read("walk.trc").cut(31, 60).times[:2].round(4).tolist()
        [0.5, 0.5167]
        """
        if self.rate <= 0:
            return np.full(self.frame_count, np.nan)
        step = self.rate.denominator / self.rate.numerator
        return self._held.first_time + np.arange(self.frame_count, dtype=np.float64) * step

    @property
    def findings(self) -> tuple[Finding, ...] | None:
        """What is odd in the file at ``path`` as it was read, the worst first.

        ``None`` when nobody has looked for it: of a take made of arrays, or read with
        ``check=False``. What is made of a take, such as its ``cut``, keeps the findings of the file
        that both come from; ``orvane.check`` tells what is odd in a take as it is now.

        >>> import orvane
        >>> part = orvane.read("walk.trc").select("walker:LFHD")
        >>> [finding.code for finding in part.findings], orvane.check(part).findings
        (['trc-marker-gaps'], ())
        """
        return self._findings

    def cut(self, first: int | None = None, last: int | None = None) -> Self:
        """The frames from number ``first`` to ``last`` alone, which keep their numbers.

        Without one of them they go from the first frame, or to the last. Raises a ValueError when
        the take does not hold all of these.

        >>> import orvane
        >>> orvane.read("walk.trc").cut(10, 19).points.shape
        (10, 41, 3)
        >>> orvane.read("walk.trc").cut(first=10).points.shape
        (111, 41, 3)
        """
        begin = self.first_frame if first is None else first
        end = self.last_frame if last is None else last
        if first is not None and last is not None and first > last:
            raise ValueError(f"frames {first} to {last} are none: the first comes behind the last")
        if not self.first_frame <= begin <= end <= self.last_frame:
            asked = (f"{'the first' if first is None else first} to "
                     f"{'the last' if last is None else last}")
            raise ValueError(f"frames {asked} are asked for, and {self.path} holds "
                             f"{self.first_frame} to {self.last_frame}")
        place = begin - self.first_frame
        return self._made(_orvane.cut(self._held, place, end - self.first_frame + 1,
                                      float(self.times[place])))

    def select(self, names: Iterable[str] | str) -> Self:
        """Those of these names alone, in the order of the file; of segments with all they hang from.

        Raises a KeyError for a name that nothing has, and a ValueError for none at all.

        >>> import orvane
        >>> orvane.read("walk.htr").select(["Neck"]).names
        ('Hips', 'Spine', 'Chest', 'Neck')
        """
        wanted = [names] if isinstance(names, str) else list(names)
        for name in wanted:
            self.index(name)
        if not wanted:
            raise ValueError("names are none")
        return self._made(_orvane.select(self._held, wanted))

    def rename(self, names: Mapping[str, str]) -> Self:
        """The same with other names: those of the keys become their values, all at once.

        Raises a KeyError for a name that nothing has, and a ValueError when two would have one name
        or a file could not hold one.
        """
        for name in names:
            self.index(name)
        return self._made(_orvane.rename(self._held, list(names.items())))

    def to_unit(self, unit: Unit) -> Self:
        """The same with all lengths in ``unit``; gaps stay gaps.

        >>> import orvane
        >>> orvane.read("walk.htr").to_unit("m").base.translations[0].tolist()
        [0.0, 0.98, 0.0]
        """
        return self._made(_orvane.convert_lengths(self._held, unit))

    def turn_z_up(self) -> Self:
        """The same of a file whose heights lie along Z, with heights along Y: (x, z, -y)."""
        return self._made(_orvane.turn_z_up(self._held))

    def to_bytes(self, *, decimals: int | None = None) -> bytes:
        """The bytes of a file, TRC or HTR.

        Numbers are the shortest text that reads back to the same; ``decimals`` gives all of them so
        many digits behind the point. Raises a ValueError for what no file can hold.
        """
        rate = rate_text(self.rate)
        if isinstance(self._held, _orvane.Markers):
            return _orvane.print_markers(self._held, decimals, rate, os.path.basename(self.path))
        return _orvane.print_motion(self._held, decimals, rate)

    def write(self, path: Path, *, decimals: int | None = None, force: bool = False) -> None:
        """Writes the file, as ``orvane.write`` does."""
        file = os.fspath(path)
        if os.path.splitext(file)[1].lower() != self.extension:
            kind = type(self).__name__
            raise ValueError(f"{file}: a {kind} is written to a name in {self.extension}, of which "
                             "orvane.rewrite makes files of other formats")
        _orvane.write_file(os.fsencode(file), self.to_bytes(decimals=decimals), force)

    def __contains__(self, name: object) -> bool:
        return name in self.names

    def __iter__(self) -> Iterator[str]:
        """Of the names, as those of a mapping."""
        return iter(self.names)

    @abstractmethod
    def index(self, name: str) -> int:
        """Which is called so; raises a KeyError when none is."""

    def __copy__(self) -> Self:
        """Itself, as nothing of it changes."""
        return self

    def __deepcopy__(self, memo: object) -> Self:
        return self

    def __getstate__(self) -> State:
        """What pickles hold: the bytes of its file, and what they do not say."""
        return self.path, self.to_bytes(), self._held.rate, self._held.first_time, self._findings

    def __setstate__(self, state: State) -> None:
        self.path, data, rate, first_time, self._findings = state
        read = _orvane.read_markers if self.extension == ".trc" else _orvane.read_motion
        self._held = cast(H, read(os.fsencode(self.path), data, False, None))
        self._held.set_times(rate, first_time)

    def _unknown(self, thing: str, name: str) -> KeyError:
        similar = _orvane.similar_to(name, self.names) if isinstance(name, str) else None
        question = "" if similar is None else f"; did you mean {similar!r}?"
        return KeyError(f"{self.path} has no {thing} {name!r}{question}")

    def _made(self, held: H) -> Self:
        made = type(self)(self.path, held)
        made._findings = self._findings
        return made

    def _step_to(self, rate: Rate) -> tuple[tuple[int, int], tuple[int, int]]:
        """How many frames lie between two at ``rate``, and that, as fractions."""
        new = Fraction(*rate_pair(rate))
        step = self.rate / new
        return (step.numerator, step.denominator), (new.numerator, new.denominator)

    def _summary(self, things: str) -> str:
        kind = type(self).__name__
        rate = float(self.rate)
        return (f"<{kind} {self.path!r}: {len(self.names)} {things}, {self.frame_count} frames "
                f"at {rate:g} per second, {self.unit}>")
