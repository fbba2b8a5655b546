"""Runs programs and tells what each run took."""

import json
import os
import statistics
import subprocess
import sys
import typing

SHORTEST = 1e-6  # seconds; what no clock tells


class Run(typing.NamedTuple):
    processor: float  # seconds, of the program and of the system for it
    peak: int  # bytes


def run(command):
    """One run, which has to succeed."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        sys.exit(f"bench: {' '.join(command)} ended with {process.returncode}")
    return Run(max(usage.ru_utime + usage.ru_stime, SHORTEST), usage.ru_maxrss * 1024)


def run_benchmark(program, name):
    """The benchmark of that name, of a program of benchmarks in milliseconds; the peak is not known."""
    flags = [f"--benchmark_filter=^{name}$", "--benchmark_format=json", "--benchmark_min_time=0.2"]
    result = subprocess.run([program, *flags], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    measured, = json.loads(result.stdout)["benchmarks"]
    return Run(max(measured["cpu_time"] / 1e3, SHORTEST), 0)


class Pairs:
    """Runs of one job and of another in turn, so that what else the machine does falls on both alike."""

    def __init__(self, first, second, count):
        """Both are functions that return a Run."""
        first(), second()  # what they read and write is known to the system from here on
        self.runs = [(first(), second()) for _ in range(count)]

    def processor(self, side):
        """Median seconds of the first job (0) or of the second (1)."""
        return statistics.median(pair[side].processor for pair in self.runs)

    def peak(self, side):
        return max(pair[side].peak for pair in self.runs)

    def ratios(self, scale=1.0):
        """Median, least and largest of the first over the second, times `scale`."""
        ratios = [scale * a.processor / b.processor for a, b in self.runs]
        return statistics.median(ratios), min(ratios), max(ratios)


def ratio_cells(ratios):
    return " ".join(f"{ratio:7.2f}" for ratio in ratios)
