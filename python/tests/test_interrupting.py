"""Ctrl-C while files are read."""

from __future__ import annotations

import io
import signal
import subprocess
import sys

import orvane
from conftest import trc_text

# Takes far longer to read than to start.
READ_FOR_LONG = """
import signal, sys, orvane
data = sys.stdin.buffer.read()
signal.signal(signal.SIGINT, signal.default_int_handler)  # a shell's job may ignore it
try:
    print("reading", flush=True)
    while True:
        orvane.read(data, format="trc", warn=False)
except KeyboardInterrupt:
    print("stopped")
"""


def test_reading_is_interrupted():
    data = trc_text([["1.25", "2.5", "3"] * 2] * 400_000).encode()
    reader = subprocess.Popen([sys.executable, "-P", "-c", READ_FOR_LONG], stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE)
    with reader:
        reader.stdin.write(data)
        reader.stdin.close()
        assert reader.stdout.readline() == b"reading\n"
        reader.send_signal(signal.SIGINT)
        assert reader.stdout.readline() == b"stopped\n"


def test_a_file_that_fails_is_python_s_own_error():
    class Broken(io.RawIOBase):
        def read(self, size=-1):
            raise OSError("the disk is gone")

    try:
        orvane.read(Broken(), format="trc")
    except OSError as error:
        assert "the disk is gone" in str(error)
    else:
        raise AssertionError("nothing was told")
