#!/usr/bin/env python3
"""Has every change that a run makes to its project folder fail once, and kills the run before each.

    failing_disk_test.py KALDO FAILING_DISK KALDO_KEEPING [unittest options]

FAILING_DISK is the library of tests/support/failing_disk.cpp, KALDO_KEEPING the program that keeps
what is done at once. Whatever happens, the folder then holds
the results of the earlier run or those of the new one, whole, and nothing else.
"""

import itertools
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

KALDO = None
LIBRARY = None
KEEPING = None
GENEROUS = 120           # seconds: against a hang only
RECORD = "Run record.toml"
PROJECT = "p"            # of every run, in a working folder of its own

FILES = ["--loci", "../loci.txt"]
NON_SEXED = ["--parents", "../a.txt", "--offspring", "../b.txt"]
SEXED = ["--males", "../a.txt", "--females", "../b.txt", "--offspring", "../b.txt"]
NUMBERS = ["--iterations", "2", "--offspring-per-iteration", "6"]
SIMULATION = ["--collected-parents", "../a.txt", "--uncollected-sample", "../b.txt",
              "--uncollected", "3", *NUMBERS]
SEXED_SIMULATION = ["--sexed", "--collected-males", "../a.txt", "--collected-females", "../b.txt",
                    "--uncollected-male-sample", "../a.txt", "--uncollected-female-sample",
                    "../b.txt", "--uncollected-males", "2", "--uncollected-females", "2",
                    "--estimated-collected-males", "3", "--estimated-collected-females", "3",
                    "--estimated-uncollected-males", "2", "--estimated-uncollected-females", "2",
                    *NUMBERS]

# Per flow the earlier run and the new one: each leaves files that the other does not.
RUNS = {
    "allocation, non-sexed": (["allocate", *NON_SEXED, "--sequence"],
                              ["allocate", *NON_SEXED, "--tolerance", "2"]),
    "allocation, sexed": (["allocate", *SEXED], ["allocate", *SEXED, "--sequence"]),
    "simulation, non-sexed": (["simulate", *SIMULATION, "--seed", "1"],
                              ["simulate", *SIMULATION, "--seed", "2", "--print-iterations",
                               "--keep", "matrices"]),
    "simulation, sexed": (["simulate", *SEXED_SIMULATION, "--seed", "1", "--keep", "all"],
                          ["simulate", *SEXED_SIMULATION, "--seed", "2", "--strategy",
                           "cumulative", "--sequence", "2,1"]),
}


def command(arguments, program):
    threads = [] if "--threads" in arguments else ["--threads", "1"]
    return [program or KALDO, arguments[0], "--project", PROJECT, *threads, *FILES, *arguments[1:]]


CHECK = ["check", *NON_SEXED, "--replace"]


def run(folder, arguments, program=None, **disk):
    environment = os.environ | {"LD_PRELOAD": LIBRARY} | {
        f"KALDO_DISK_{name.upper()}": str(value) for name, value in disk.items()}
    return subprocess.run(command(arguments, program), cwd=folder, env=environment, capture_output=True,
                          text=True, timeout=GENEROUS, check=False)


def contents(folder):
    """Every file below the project folder, without what differs from run to run."""
    found = {}
    for path in sorted((folder / PROJECT).rglob("*")):
        text = path.read_bytes() if path.is_file() else b"a folder"
        if path.name == RECORD:
            text = re.sub(rb"(?m)^(date|duration_seconds|folder) = .*$", b"", text)
        found[str(path.relative_to(folder / PROJECT))] = text
    return found


class FailingDisk(unittest.TestCase):
    def setUp(self):
        # In memory where there is such a folder: the runs wait for the disk again and again.
        memory = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
        place = tempfile.TemporaryDirectory(dir=memory)
        self.addCleanup(place.cleanup)
        self.place = Path(place.name).resolve()
        self.numbers = itertools.count()
        (self.place / "loci.txt").write_text("A\nB\n")
        source = random.Random(3)
        for name in ("a", "b"):
            (self.place / f"{name}.txt").write_text("".join(
                f"{name}{k}" + "".join(f" {source.randrange(100, 120, 2)}{source.randrange(100, 120, 2)}"
                                       for _ in range(2)) + "\n" for k in range(4)))

    def folder(self, earlier=None):
        """A working folder with the results of an earlier run."""
        folder = self.place / str(next(self.numbers))
        folder.mkdir()
        if earlier:
            shutil.copytree(earlier / PROJECT, folder / PROJECT)
        return folder

    def finished(self, arguments, earlier=None, **disk):
        folder = self.folder(earlier)
        done = run(folder, arguments, **disk)
        self.assertEqual(done.returncode, 0, done.stderr)
        return folder, done

    def expect_failure(self, earlier, new, arguments, at, error):
        folder = self.folder(earlier)
        failed = run(folder, arguments, below=folder / PROJECT, at=at, event=error)
        what = f"change {at} failed with {error}: {failed.stderr!r}"
        if failed.returncode == 0:       # nothing that the results need
            self.assertEqual(contents(folder), new, what)
            self.assertRegex(failed.stderr, r"^Note: [^\n]*\n(Warning: [^\n]*\n)*$", what)
        else:
            self.assertEqual(failed.returncode, 1, what)
            self.assertEqual(contents(folder), contents(earlier), what)
            self.assertRegex(failed.stderr, r"^Cannot [^\n]*\n$", what)
        shutil.rmtree(folder)
        return failed.returncode

    def expect_recovery(self, earlier, new, arguments, at):
        folder = self.folder(earlier)
        killed = run(folder, arguments, below=folder / PROJECT, at=at, event="kill")
        what = f"killed before change {at}"
        self.assertEqual(killed.returncode, -signal.SIGKILL, what)
        checked = run(folder, CHECK)
        self.assertEqual((checked.returncode, checked.stdout[-4:]), (0, "\nok\n"), what)
        now = contents(folder)
        now.pop(".kaldo-lock", None)     # locks nobody out; the next run takes it over
        self.assertIn(now, (contents(earlier), new), what)
        told = checked.stderr.startswith("An earlier run ended while it replaced the results")
        after = self.folder(folder)
        again = run(after, arguments)
        self.assertEqual((again.returncode, contents(after)), (0, new), what)
        shutil.rmtree(folder)
        shutil.rmtree(after)
        return now == new, told

    def each_change(self, flow):
        before, after = RUNS[flow]
        earlier, _ = self.finished(before)
        log = self.place / "log"
        folder, _ = self.finished(after, earlier)
        new = contents(folder)
        self.assertNotEqual(new.keys(), contents(earlier).keys())
        folder = self.folder(earlier)
        self.assertEqual(run(folder, after, log=log, below=folder / PROJECT).returncode, 0)
        changes = log.read_text().splitlines()
        self.assertGreaterEqual({line.split()[0] for line in changes},
                                {"open", "write", "fsync", "rename", "unlink", "mkdir"})
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            errors = ["ENOSPC", "EIO", "EACCES"]
            codes = list(pool.map(
                lambda at: self.expect_failure(earlier, new, after, at, errors[at % 3]),
                range(1, len(changes) + 1)))
            # After a change is the same as before the next one: nothing else reaches the disk.
            ends = list(pool.map(lambda at: self.expect_recovery(earlier, new, after, at),
                                 range(1, len(changes) + 1)))
        self.assertIn(1, codes)
        self.assertEqual({end for end, _ in ends}, {False, True})
        self.assertIn((True, True), ends, "no exchange was finished by the recovery")

    def test_non_sexed_allocation(self):
        self.each_change("allocation, non-sexed")

    def test_sexed_allocation(self):
        self.each_change("allocation, sexed")

    def test_non_sexed_simulation(self):
        self.each_change("simulation, non-sexed")

    def test_sexed_simulation(self):
        self.each_change("simulation, sexed")

    def test_another_flow_goes_whole(self):
        flows = list(RUNS)
        for before, after in itertools.permutations(flows, 2):
            earlier, _ = self.finished(RUNS[before][0])
            refused = run(self.folder(earlier), RUNS[after][0])
            self.assertEqual(refused.returncode, 2)
            self.assertRegex(refused.stderr, rf"^[^\n]*another flow \({before}, [^\n]*--replace\.\n$")
            alone, _ = self.finished(RUNS[after][0])
            folder, _ = self.finished([*RUNS[after][0], "--replace"], earlier)
            self.assertEqual(contents(folder), contents(alone), (before, after))

    def expect_resumption(self, earlier, new, arguments, at, event):
        folder = self.folder(earlier)
        first = run(folder, arguments, KEEPING, below=folder / PROJECT, at=at, event=event)
        left = contents(folder)
        kept = left.pop(".kaldo-unfinished", None)
        what = f"{event} at change {at}: {first.stderr!r}"
        if event != "kill":
            self.assertEqual(left, new if first.returncode == 0 else contents(earlier), what)
            self.assertEqual("--resume goes on" in first.stderr, kept is not None, what)
        again = run(folder, [*arguments, "--resume"], KEEPING)
        self.assertEqual((again.returncode, contents(folder)), (0, new), what)
        shutil.rmtree(folder)
        return " were done by the unfinished run" in again.stderr

    def test_what_was_done_is_not_done_again(self):
        for flow in ("allocation, sexed", "simulation, non-sexed"):
            before, arguments = RUNS[flow]
            earlier, _ = self.finished(before)
            new = contents(self.finished(arguments, earlier)[0])
            log = self.place / "log"
            log.unlink(missing_ok=True)
            folder = self.folder(earlier)
            run(folder, arguments, KEEPING, log=log, below=folder / PROJECT)
            self.assertEqual(contents(folder), new)
            changes = len(log.read_text().splitlines())
            events = ["kill", "ENOSPC", "kill", "EIO"]
            with ThreadPoolExecutor(os.cpu_count()) as pool:
                resumed = list(pool.map(lambda at: self.expect_resumption(
                    earlier, new, arguments, at, events[at % 4]), range(1, changes + 1)))
            self.assertEqual(set(resumed), {False, True})

    def test_without_locks_and_threads(self):
        arguments = RUNS["simulation, non-sexed"][0]
        plain, _ = self.finished(arguments)
        for disk in ({"locks": "none"}, {"threads": "none"}):
            folder, done = self.finished([*arguments, "--threads", "4"], **disk)
            record = contents(folder)[RECORD].replace(b"threads = 4", b"threads = 1")
            self.assertEqual(contents(folder) | {RECORD: record}, contents(plain))
            self.assertEqual("has no locks" in done.stderr, "locks" in disk)


if __name__ == "__main__":
    KALDO, LIBRARY, KEEPING = (os.path.abspath(path) for path in sys.argv[1:4])
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
