"""Reading in process of a build for Windows, by Wine, beside the same of a build for this system."""

import functools
import shutil
import subprocess

from runs import Pairs, Run, SHORTEST, ratio_cells

READINGS = 5  # of which the fastest counts
WINE = shutil.which("wine64") or "/usr/lib/wine/wine64"  # where Debian has it


def read_in_process(command, path):
    result = subprocess.run([*command, path, str(READINGS)], stdout=subprocess.PIPE, text=True, check=True)
    return Run(max(float(result.stdout), SHORTEST), 0)


def print_windows_rows(files, windows_build, motion_size, marker_size, count):
    ours = [str(files.programs / "read_in_process")]
    windows = [WINE, str(windows_build / "bin" / "read_in_process.exe")]
    print(f"{'Windows':14} {'ms':>9} {'Linux ms':>9} {'median':>7} {'min':>7} {'max':>7}   "
          f"Windows over Linux, {count} pairs")
    for name, path in (("reading H", files.motion(*motion_size)), ("reading T", files.markers(*marker_size))):
        pairs = Pairs(functools.partial(read_in_process, windows, path),
                      functools.partial(read_in_process, ours, path), count)
        print(f"{name:14} {pairs.processor(0) * 1e3:9.1f} {pairs.processor(1) * 1e3:9.1f} "
              f"{ratio_cells(pairs.ratios())}", flush=True)
