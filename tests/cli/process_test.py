#!/usr/bin/env python3
"""Tests the program as its users start it: exit codes, streams, Ctrl-C, terminals.

    process_test.py KALDO [unittest options]
"""

import os
import pty
import random
import select
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is

KALDO = None             # the program, an absolute path
GENEROUS = 120           # seconds: against a hang only, nothing waits so long when all is well
RUN_RECORD = "Run record.toml"


def write_study(folder, parents, offspring, loci, seed):
    """Random unrelated genotypes: a search without any shortcut by kinship."""
    source = random.Random(seed)

    def field():
        return "".join(f"{source.randrange(100, 140, 2):03}" for _ in range(2))

    def lines(letter, count):
        return "".join(f"{letter}{k} {' '.join(field() for _ in range(loci))}\n"
                       for k in range(count))
    (folder / "loci.txt").write_text("".join(f"L{k}\n" for k in range(loci)))
    (folder / "parents.txt").write_text(lines("P", parents))
    (folder / "offspring.txt").write_text(lines("O", offspring))


def arguments(project, *more):
    return [KALDO, "allocate", "--project", project, "--loci", "loci.txt", "--parents",
            "parents.txt", "--offspring", "offspring.txt", *more]


def long_run(project, threads="1"):
    """A simulation of a minute or more: the search is quick, but 40 million allocations are not."""
    command = [KALDO, "simulate", "--sexed", "--project", project, "--loci", "loci.txt",
               "--collected-males", "parents.txt", "--collected-females", "offspring.txt",
               "--iterations", "1000", "--offspring-per-iteration", "40000",
               "--seed", "1", "--threads", threads]
    for sex in ("male", "female"):
        command += [f"--uncollected-{sex}-sample", "parents.txt", f"--uncollected-{sex}s", "20",
                    f"--estimated-collected-{sex}s", "1", f"--estimated-uncollected-{sex}s", "1"]
    return command


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}


def wait_until(condition, what):
    """Waits until condition() is true."""
    end = time.monotonic() + GENEROUS
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {GENEROUS} s")
        time.sleep(0.01)


class Processes(unittest.TestCase):
    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = Path(place.name)

    def run_program(self, command, **streams):
        streams = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE} | streams
        return subprocess.run(command, cwd=self.folder, timeout=GENEROUS, check=False, **streams)

    def start(self, command, **streams):
        """Starts a program that is gone with the test, whatever happens."""
        process = subprocess.Popen(command, cwd=self.folder, **streams)

        def end():
            if process.poll() is None:
                process.kill()
            process.communicate()
        self.addCleanup(end)
        return process

    def write_long_study(self):
        write_study(self.folder, parents=40, offspring=40, loci=15, seed=1)


class ExitCodes(Processes):
    def setUp(self):
        super().setUp()
        write_study(self.folder, parents=6, offspring=4, loci=3, seed=2)

    def test_done(self):
        done = self.run_program(arguments("project"))
        self.assertEqual(done.returncode, 0)
        self.assertTrue(done.stdout.endswith(b"\nCalculations completed!\n"), done.stdout)
        self.assertEqual(done.stderr, b"")
        self.assertEqual(self.run_program([KALDO, "--version"]).returncode, 0)

    def test_bad_input_and_usage(self):
        for command in ([KALDO], [KALDO, "--nonsense"], arguments(""),
                        arguments("project", "--tolerance", "-1")):
            refused = self.run_program(command)
            self.assertEqual(refused.returncode, 2, command)
            self.assertEqual(refused.stdout, b"")
            self.assertNotEqual(refused.stderr, b"")
        self.assertFalse((self.folder / "project").exists())

    def test_failures_while_running(self):
        in_the_way = self.run_program(arguments("loci.txt/project"))
        self.assertEqual(in_the_way.returncode, 1)
        self.assertIn(b"Cannot make the folder", in_the_way.stderr)

        with open("/dev/full", "wb") as full:
            for command in (arguments("project"), [KALDO, "--help"]):
                unheard = self.run_program(command, stdout=full)
                self.assertEqual(unheard.returncode, 1, command)
                self.assertIn(b"Cannot write to standard output", unheard.stderr)

    def test_a_reader_that_has_gone(self):
        # kaldo ... | head: no crash, no half report.
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as pipe:
            cut = self.run_program(arguments("project"), stdout=pipe)
        self.assertIn(cut.returncode, (1, -signal.SIGPIPE))
        self.assertFalse(list((self.folder / "project").glob("*.part")))

    def test_threads_change_nothing(self):
        for more in ([], ["--sequence"]):
            results = []
            for threads in ("1", "2", "5"):
                done = self.run_program(arguments("project", "--threads", threads, *more))
                self.assertEqual(done.returncode, 0)
                files = contents(self.folder / "project")
                self.assertIn(RUN_RECORD, files)
                del files[RUN_RECORD]
                results.append((done.stdout, files))
            self.assertEqual(results[0], results[1])
            self.assertEqual(results[0], results[2])

    def test_rerun_counts_paths_from_the_working_folder(self):
        self.assertEqual(self.run_program(arguments("project")).returncode, 0)
        record = str(self.folder / "project" / RUN_RECORD)
        self.assertEqual(self.run_program([KALDO, "rerun", record]).returncode, 0)
        elsewhere = subprocess.run([KALDO, "rerun", record], cwd=self.folder / "project",
                                   capture_output=True, timeout=GENEROUS, check=False)
        self.assertEqual(elsewhere.returncode, 2)
        self.assertIn(b'Cannot open file "parents.txt"!', elsewhere.stderr)
        self.assertIn(os.fsencode(os.path.realpath(self.folder)), elsewhere.stderr)


class StoppedRuns(Processes):
    def stop(self, sent):
        self.write_long_study()
        project = self.folder / "project"
        project.mkdir()
        earlier = {"Summary.xls": b"of an earlier run\n",
                   "Sequence results.xls": b"of an earlier run\n",
                   RUN_RECORD: b"# of an earlier run\n"}
        for name, data in earlier.items():
            (project / name).write_bytes(data)
        process = self.start(long_run("project", threads="2"),
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        wait_until(lambda: list(project.glob("*.part")) or process.poll() is not None,
                   "reports being written")
        self.assertIsNone(process.poll(), "the run ended before it could be stopped")
        process.send_signal(sent)
        out, err = process.communicate(timeout=GENEROUS)
        self.assertEqual(process.returncode, 130)
        self.assertEqual(out, b"")
        self.assertEqual(err, b"Stopped. The results of earlier runs are as they were.\n")
        self.assertEqual(contents(project), earlier)

    def test_ctrl_c(self):
        self.stop(signal.SIGINT)

    def test_termination_by_a_batch_system(self):
        self.stop(signal.SIGTERM)


class Terminals(Processes):
    def start_on_terminal(self, command):
        controller, terminal = pty.openpty()
        self.addCleanup(os.close, controller)
        process = self.start(command, stdout=subprocess.PIPE, stderr=terminal)
        os.close(terminal)
        return process, controller

    @staticmethod
    def read_until(controller, wanted):
        """Reads the terminal until the text shows, or to its end when that is None."""
        seen = b""
        end = time.monotonic() + GENEROUS
        while wanted is None or wanted not in seen:
            if not select.select([controller], [], [], max(0, end - time.monotonic()))[0]:
                raise AssertionError(f"{wanted!r} not within {GENEROUS} s; seen: {seen!r}")
            try:
                read = os.read(controller, 4096)
            except OSError:      # Linux: the program has closed the terminal
                read = b""
            if not read:
                break
            seen += read
        return seen

    def test_a_long_run_shows_its_progress(self):
        self.write_long_study()
        process, controller = self.start_on_terminal(long_run("project"))
        seen = self.read_until(controller, b" left")
        self.assertRegex(seen, rb"\r\x1b\[KSimulating \[[#.]{24}\] +\d+ %  \d+ of 1000")
        process.send_signal(signal.SIGINT)
        seen += self.read_until(controller, None)
        self.assertEqual(process.wait(GENEROUS), 130)
        # The bar is wiped out before the message.
        self.assertRegex(seen, rb"\r\x1b\[KStopped\. [^\x1b]*\r\n$")

    def test_a_short_run_shows_none(self):
        write_study(self.folder, parents=6, offspring=4, loci=3, seed=2)
        process, controller = self.start_on_terminal(arguments("project"))
        self.assertEqual(self.read_until(controller, None), b"")
        self.assertEqual(process.wait(GENEROUS), 0)

    def test_no_terminal_no_bar(self):
        self.write_long_study()
        messages = self.folder / "messages"
        with open(messages, "wb") as stream:
            silent = self.start(long_run("silent"), stdout=subprocess.DEVNULL,
                                stderr=stream)
        wait_until(lambda: list((self.folder / "silent").glob("*.part")), "reports being written")
        # A run that began later, on a terminal, is the clock: it has drawn its bar three times.
        shown, controller = self.start_on_terminal(long_run("shown"))
        for _ in range(3):
            self.read_until(controller, b" left")
        shown.kill()
        self.assertIsNone(silent.poll(), "the run was too short to tell")
        self.assertEqual(messages.read_bytes(), b"")
        silent.send_signal(signal.SIGINT)
        self.assertEqual(silent.wait(GENEROUS), 130)
        self.assertTrue(messages.read_bytes().startswith(b"Stopped. "))


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    KALDO = os.path.abspath(sys.argv.pop(1))
    unittest.main()
