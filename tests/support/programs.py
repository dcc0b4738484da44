"""What the tests that start programs share: folders of their own, runs, and the files they leave.

A test script names this folder in sys.path before it imports from here.
"""

import os
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[2]
GENEROUS = 120           # seconds: against a hang only, nothing waits so long when all is well
RUN_RECORD = "Run record.toml"
SAVED_LOCI = "SAUVLOCUSTULM.txt"
STOPPED = "Stopped. The results of earlier runs are as they were.\n"


def run(command, folder, **more):
    """A program run to its end; its output is kept unless told otherwise."""
    more = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE} | more
    return subprocess.run(command, cwd=folder, timeout=GENEROUS, check=False, **more)


def write_files(files, folder):
    for name, data in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def files_of(folder):
    """All files below, by name; of a run record what tells of the run, not of the machine."""
    files = {}
    for path in sorted(folder.rglob("*")):
        if path.is_file():
            data = path.read_bytes()
            if path.name == RUN_RECORD:
                data = b"".join(line for line in data.splitlines(True) if not line.startswith(
                    (b"date =", b"threads =", b"duration_seconds =", b"folder =")))
            files[str(path.relative_to(folder))] = data
    return files


def wait_until(condition, what):
    """Waits until condition() is true."""
    end = time.monotonic() + GENEROUS
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {GENEROUS} s")
        time.sleep(0.01)


class ProgramTest(unittest.TestCase):
    """Tests that run programs in a folder of their own, gone with them."""

    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = Path(place.name).resolve()

    def start(self, command, folder=None, **streams):
        """Starts a program that is gone with the test, whatever happens."""
        process = subprocess.Popen(command, cwd=folder or self.folder, **streams)

        def end():
            if process.poll() is None:
                process.terminate()
            process.communicate(timeout=GENEROUS)
        self.addCleanup(end)
        return process


def arguments(names, usage):
    """The paths given to a test script before the options of unittest."""
    if len(sys.argv) <= len(names):
        sys.exit(usage)
    given = [os.path.abspath(one) for one in sys.argv[1:len(names) + 1]]
    del sys.argv[1:len(names) + 1]
    return given
