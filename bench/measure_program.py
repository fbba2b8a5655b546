#!/usr/bin/env python3
"""Measures the program as a whole on a long motion: seconds, rate and peak memory.

Usage: measure_program.py BUILD_FOLDER
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time


def measure(command):
    """Seconds and peak memory in bytes of one run, which has to succeed."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    seconds = time.perf_counter() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"measure_program: {' '.join(command)} ended with {process.returncode}")
    return seconds, usage.ru_maxrss * 1024


def main(build):
    program = str(build / "bin" / "orvane")
    with tempfile.TemporaryDirectory() as folder:
        motion = os.path.join(folder, "motion.htr")
        subprocess.run([str(build / "bench" / "write_motion"), motion], check=True)
        size = os.path.getsize(motion)
        print(f"60 segments, 10000 frames, {size / 1e6:.1f} MB")
        print(f"{'':10} {'seconds':>8} {'MB/s':>7} {'peak MB':>8}")
        for name, command in [
                ("info", [program, "info", motion]),
                ("import", [program, "import", motion, "-o", os.path.join(folder, "out.glb")])]:
            seconds, peak = measure(command)
            print(f"{name:10} {seconds:8.2f} {size / 1e6 / seconds:7.1f} {peak / 1e6:8.1f}")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
