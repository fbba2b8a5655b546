"""Motion-capture files as arrays: TRC, HTR and what the plug-in for Skelder makes of them.

>>> import orvane
>>> orvane.read("walk.trc").points.shape
(120, 41, 3)

Lengths are in the unit of the take, angles are radians, the Y axis is up as in the files. Frames
are numbered as in the file, and counted from 0 in arrays. Reading, writing, checking and comparing
may be done from any thread at once; ``convert`` and ``to_scene`` go one at a time.
"""

from orvane import _orvane
from orvane.checked import CheckedFile
from orvane.comparing import Comparison, Difference, Spread, compare
from orvane.errors import FileError, FindingWarning, MissingFileError
from orvane.findings import Finding
from orvane.motion import BasePose, Motion
from orvane.plugin import Conversion, Scene, convert, to_scene
from orvane.reading import check, read
from orvane.rewriting import rewrite
from orvane.tables import from_pandas
from orvane.take import Take
from orvane.writing import write

__version__ = _orvane.version

__all__ = [
    "BasePose",
    "CheckedFile",
    "Comparison",
    "Conversion",
    "Difference",
    "FileError",
    "Finding",
    "FindingWarning",
    "MissingFileError",
    "Motion",
    "Scene",
    "Spread",
    "Take",
    "__version__",
    "check",
    "compare",
    "convert",
    "from_pandas",
    "read",
    "rewrite",
    "to_scene",
    "write",
]
