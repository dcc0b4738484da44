#!/usr/bin/env python3
"""Tests the program as its users start it: exit codes, streams, Ctrl-C, terminals.

    process_test.py KALDO [unittest options]
"""

import contextlib
import fcntl
import json
import os
import pty
import random
import select
import signal
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import GENEROUS, RUN_RECORD, STOPPED, ProgramTest, files_of, wait_until, write_files

KALDO, = programs.arguments(["KALDO"], __doc__)


def study(parents, offspring, loci, seed):
    """Random unrelated genotypes: a search without any shortcut by kinship."""
    source = random.Random(seed)

    def field():
        return "".join(f"{source.randrange(100, 140, 2):03}" for _ in range(2))

    def lines(letter, count):
        return "".join(f"{letter}{k} {' '.join(field() for _ in range(loci))}\n"
                       for k in range(count)).encode()
    return {"loci.txt": "".join(f"L{k}\n" for k in range(loci)).encode(),
            "parents.txt": lines("P", parents), "offspring.txt": lines("O", offspring)}


def allocation(project, *more):
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


class ExitCodes(ProgramTest):
    def setUp(self):
        super().setUp()
        write_files(study(parents=6, offspring=4, loci=3, seed=2), self.folder)

    def run_program(self, command, **streams):
        return programs.run(command, self.folder, **streams)

    def test_bad_input_and_usage(self):
        for command in ([KALDO], [KALDO, "--nonsense"], allocation(""),
                        allocation("project", "--tolerance", "-1")):
            refused = self.run_program(command)
            self.assertEqual(refused.returncode, 2, command)
            self.assertEqual(refused.stdout, b"")
            self.assertNotEqual(refused.stderr, b"")
        self.assertFalse((self.folder / "project").exists())

    def test_failures_while_running(self):
        in_the_way = self.run_program(allocation("loci.txt/project"))
        self.assertEqual(in_the_way.returncode, 1)
        self.assertIn(b"Cannot make the folder", in_the_way.stderr)

        with open("/dev/full", "wb") as full:
            for command in (allocation("project"), [KALDO, "--help"]):
                unheard = self.run_program(command, stdout=full)
                self.assertEqual(unheard.returncode, 1, command)
                self.assertIn(b"Cannot write to standard output", unheard.stderr)

    def test_a_reader_that_has_gone(self):
        # kaldo ... | head: no crash, no half report.
        reading, writing = os.pipe()
        os.close(reading)
        with os.fdopen(writing, "wb") as pipe:
            cut = self.run_program(allocation("project"), stdout=pipe)
        self.assertIn(cut.returncode, (1, -signal.SIGPIPE))
        self.assertFalse(list((self.folder / "project").glob(".*")))

    def test_a_limit_on_the_size_of_files(self):
        run = self.run_program(["sh", "-c", 'ulimit -f 1; exec "$@"', "sh", *allocation("project")])
        self.assertEqual(run.returncode, 1)
        self.assertRegex(run.stderr, rb"^Cannot write \"project/[^\n]*: File too large\n$")
        self.assertFalse((self.folder / "project").exists())

    def test_two_runs_at_once(self):
        for _ in range(10):
            runs = [self.start(allocation("project"), stdout=subprocess.DEVNULL,
                               stderr=subprocess.PIPE) for _ in range(2)]
            for run in runs:
                text = run.communicate(timeout=GENEROUS)[1]
                if run.returncode != 0:
                    self.assertEqual(run.returncode, 1, text)
                    self.assertIn(b'Another run is at work in "project"', text)
            self.assertIn(0, [run.returncode for run in runs])
            self.assertFalse(list((self.folder / "project").glob(".*")))

    def test_rerun_finds_the_files_of_a_study_that_was_moved(self):
        self.assertEqual(self.run_program(allocation("a/project")).returncode, 0)
        moved = self.folder / "moved"
        moved.mkdir()
        for path in list(self.folder.iterdir()):
            if path != moved:
                path.rename(moved / path.name)
        record = moved / "a" / "project" / RUN_RECORD
        elsewhere = programs.run([KALDO, "rerun", str(record)], self.folder)
        self.assertEqual((elsewhere.returncode, elsewhere.stdout), (0, b"identical, 6 of 6 files\n"))
        self.assertIn(b"Note: collected parents is read from", elsewhere.stderr)
        (moved / "parents.txt").unlink()
        missing = programs.run([KALDO, "rerun", str(record)], moved / "a")
        self.assertEqual(missing.returncode, 2)
        self.assertIn(b'Cannot open file "parents.txt"!', missing.stderr)
        self.assertIn(os.fsencode(self.folder), missing.stderr)

    def test_records_that_would_end_a_parser(self):
        for text in ("a." * 40000 + "a = 1", "a = " + "[" * 100000, "a = " + "{a=" * 40000,
                     'a = ["""x" """, ' + "[" * 100000, "[" + "a." * 40000 + "a]", "x" * 2000000):
            (self.folder / "record").write_text(f'program = "KALDO"\n{text}\n')
            refused = self.run_program([KALDO, "rerun", "record"])
            self.assertEqual(refused.returncode, 2, text[:20])


class Checks(ProgramTest):
    """What `kaldo check` tells, on a study small enough to be worked out by hand."""

    STUDY = {"loci.txt": b"A B\n",
             "parents.txt": b"P1 100102 200200\nP2 104104 200200\n*\nP3 100106 200200\n",
             "young.txt": b"O1 100100 200201\nO2 000000 000000\nMAR1 100102 200200\n"}

    def check(self, *more):
        done = programs.run([KALDO, "check", "--format", "json", "--loci", "loci.txt",
                             "--parents", "parents.txt", "--offspring", "young.txt", *more],
                            self.folder)
        told = json.loads(done.stdout)
        self.assertEqual(done.returncode, 0 if told["sound"] else 2)
        return told

    def test_what_is_in_sound_files(self):
        write_files(self.STUDY, self.folder)
        told = self.check("--use", "B")
        self.assertTrue(told["sound"])
        self.assertEqual((told["flow"], told["project"]), ("allocation, non-sexed", None))
        first, second = told["loci"]
        self.assertEqual([(each["size"], each["copies"]) for each in first["alleles"]],
                         [(100, 5), (102, 2), (104, 2), (106, 1)])
        self.assertEqual((first["unit_distance"], first["in_step"], first["in_use"],
                          first["individuals"], first["undefined_genotypes"]),
                         (2, True, False, 6, 1))
        self.assertAlmostEqual(first["observed_heterozygosity"], 3 / 5)
        self.assertAlmostEqual(first["expected_heterozygosity"],
                               10 / 9 * (1 - (25 + 4 + 4 + 1) / 100))
        self.assertEqual((second["unit_distance"], second["in_step"], second["in_use"]),
                         (1, False, True))
        self.assertIn({"sentence": "A spreadsheet would change a name.", "file": "young.txt",
                       "line": 3, "record": 3, "individual": "MAR1",
                       "found": '"MAR1" becomes a date; open reports with its column as text'},
                      told["warnings"])

    def test_every_fault_of_files_and_choices(self):
        rows = b"".join(b"X%d 100102 0000\n" % k for k in range(25))
        write_files(self.STUDY | {
            "parents.txt": b"P1 100102 200200\nP2 104104 200\nP3 100106 000200\nP4 100106\n"
                           b"P5 100106 200200\nNA 100106 200200\nP6 100106 200200\n",
            "young.txt": b"O1 100102 200200\n" * 26 + rows}, self.folder)
        told = self.check("--tolerance", "-1", "--use", "B,C,D", "--threads", "0",
                          "--project", "loci.txt/results")
        places = [(each.get("file"), each.get("line")) for each in told["faults"]]
        self.assertEqual(sorted(line for file, line in places if file == "parents.txt"),
                         [2, 3, 4, 6])
        self.assertEqual([line for file, line in places if file == "young.txt"],
                         list(range(27, 52)))
        sentences = [each["sentence"] for each in told["faults"]]
        self.assertEqual(sentences.count("There is no locus of that name!"), 2)
        self.assertIn("Enter a positive number", sentences)
        self.assertEqual(sentences[0], "That number of threads is not possible!")
        self.assertEqual([each["sentence"] for each in told["project"]["obstacles"]],
                         ['Cannot make the folder "loci.txt/results": "loci.txt" is a file'])
        as_text = programs.run([KALDO, "check", "--loci", "loci.txt", "--parents", "parents.txt",
                                "--offspring", "young.txt"], self.folder).stderr
        self.assertEqual(as_text.count(b"young.txt, line"), 20)
        self.assertIn(b"\n... and 5 more\n", as_text)

    def test_every_fault_of_what_is_known_of_offspring(self):
        write_files(self.STUDY | {
            "young.txt": b"".join(b"O%d 100102 200200\n" % k for k in range(1, 9)),
            "known.txt": b"O1 P1 X1 P2 X2\nO9 P1\nO2 *\nO2 P1 P2\nO3\nO4 P1\nO5 P1 P2\n",
            "groups.txt": b"O1 7\nO6 1 1\n"}, self.folder)
        told = self.check("--candidates", "known.txt", "--offspring-groups", "groups.txt")
        self.assertEqual([(each["file"], each["line"], each["found"].split()[0])
                          for each in told["faults"]],
                         [("known.txt", 1, '"X1"'), ("known.txt", 1, '"X2"'),
                          ("known.txt", 2, '"O9"'), ("known.txt", 4, '"O2"'),
                          ("known.txt", 5, "no"), ("groups.txt", 1, '"7";'),
                          ("groups.txt", 2, "2"), ("known.txt", 6, "no")])

    def test_a_fault_of_choices_by_name(self):
        write_files(self.STUDY, self.folder)
        for options, found in ((["--drop", "Q"], "Q"), (["--sequence", "B,Q"], "Q"),
                               (["--settings", "loci.txt"], "loci.txt")):
            told = self.check(*options)
            self.assertEqual(told["flow"], "allocation, non-sexed")
            self.assertEqual(len(told["faults"]), 1)
            self.assertIn(found, str(told["faults"][0]))

    def test_the_project_folder(self):
        write_files(self.STUDY, self.folder)
        lake = self.folder / "lake"
        self.assertFalse(self.check("--project", "lake")["project"]["exists"])
        run = [KALDO, "allocate", "--project", "lake", "--loci", "loci.txt",
               "--parents", "parents.txt", "--offspring", "young.txt"]
        self.assertEqual(programs.run(run, self.folder).returncode, 0)
        self.assertEqual(self.check("--project", "lake")["project"]["holds"]["flow"],
                         "allocation, non-sexed")
        record = (lake / RUN_RECORD).read_text()
        (lake / RUN_RECORD).write_text(record.replace("allocation, non-sexed", "simulation, sexed"))
        before = files_of(lake)
        self.assertFalse(self.check("--project", "lake")["sound"])
        self.assertTrue(self.check("--project", "lake", "--replace")["sound"])
        with open(lake / ".kaldo-lock", "w", encoding="utf-8") as lock:
            lock.write("process 1 on node07")
            lock.flush()
            fcntl.flock(lock, fcntl.LOCK_EX)
            told = self.check("--project", "lake", "--replace")["project"]["obstacles"]
            self.assertRegex(told[0]["sentence"], r"^Another run is at work .* on node07\)")
        self.assertTrue(self.check("--project", "lake", "--replace")["sound"])
        (lake / ".kaldo-lock").unlink()
        (lake / "Max like pairs.txt").unlink()
        (lake / "Max like pairs.txt").symlink_to(self.folder / "parents.txt")
        self.assertIn("The run would destroy one of its own input files!",
                      [each["sentence"] for each in
                       self.check("--project", "lake", "--replace")["project"]["obstacles"]])
        (lake / "Max like pairs.txt").unlink()
        (lake / "Max like pairs.txt").write_bytes(before["Max like pairs.txt"])
        self.assertEqual(files_of(lake), before)


class LongRuns(ProgramTest):
    def setUp(self):
        super().setUp()
        write_files(study(parents=40, offspring=40, loci=15, seed=1), self.folder)

    def stop(self, sent):
        project = self.folder / "project"
        write_files({"Summary.xls": b"of an earlier run\n", RUN_RECORD: b"# of an earlier run\n",
                     "Sequence results.xls": b"of an earlier run\n"}, project)
        earlier = files_of(project)
        process = self.start(long_run("project", threads="2"),
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        wait_until(lambda: list(project.glob(".kaldo-*/new/*")) or process.poll() is not None,
                   "reports being written")
        self.assertIsNone(process.poll(), "the run ended before it could be stopped")
        process.send_signal(sent)
        out, err = process.communicate(timeout=GENEROUS)
        self.assertEqual((process.returncode, out, err), (130, b"", STOPPED.encode()))
        self.assertEqual(files_of(project), earlier)

    def test_ctrl_c(self):
        self.stop(signal.SIGINT)

    def test_termination_by_a_batch_system(self):
        self.stop(signal.SIGTERM)

    def test_a_terminal_that_is_closed(self):
        self.stop(signal.SIGHUP)

    def test_signals_that_were_ignored_before_stay_ignored(self):
        run = self.start(["sh", "-c", 'trap "" HUP INT; exec "$@"', "sh", *long_run("project")],
                         stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        project = self.folder / "project"
        wait_until(lambda: list(project.glob(".kaldo-*/new/*")), "reports being written")
        for ignored in (signal.SIGHUP, signal.SIGINT, signal.SIGINT):
            run.send_signal(ignored)
            time.sleep(0.2)
        self.assertIsNone(run.poll())
        run.send_signal(signal.SIGTERM)
        self.assertEqual(run.wait(GENEROUS), 130)

    def test_a_second_ctrl_c_ends_what_the_first_cannot(self):
        """Nobody reads what the run has to say: it cannot tell that it stopped, and hangs."""
        reader, writer = os.pipe()
        self.addCleanup(os.close, reader)
        os.set_blocking(writer, False)
        with contextlib.suppress(BlockingIOError):
            while os.write(writer, b" "):
                pass
        os.set_blocking(writer, True)
        run = self.start(long_run("project"), stdout=subprocess.DEVNULL, stderr=writer)
        os.close(writer)
        project = self.folder / "project"
        wait_until(lambda: list(project.glob(".kaldo-*/new/*")), "reports being written")
        run.send_signal(signal.SIGINT)
        wait_until(lambda: not list(project.glob(".kaldo-*/new/*")), "the run being stopped")
        time.sleep(0.2)
        self.assertIsNone(run.poll(), "the first one was enough")
        run.send_signal(signal.SIGINT)
        self.assertEqual(run.wait(GENEROUS), -signal.SIGINT)

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
        process, controller = self.start_on_terminal(long_run("project"))
        seen = self.read_until(controller, b" left")
        self.assertRegex(seen, rb"\r\x1b\[KSimulating \[[#.]{24}\] +\d+ %  \d+ of 1000")
        process.send_signal(signal.SIGINT)
        seen += self.read_until(controller, None)
        self.assertEqual(process.wait(GENEROUS), 130)
        # The bar is wiped out before the messages; a slow machine has something to go on with by then.
        self.assertRegex(seen, rb"\r\x1b\[K(Note: [^\x1b]*)?Stopped\. [^\x1b]*\r\n$")

    def test_a_short_run_shows_none(self):
        write_files(study(parents=6, offspring=4, loci=3, seed=2), self.folder)
        process, controller = self.start_on_terminal(allocation("project"))
        self.assertEqual(self.read_until(controller, None), b"")
        self.assertEqual(process.wait(GENEROUS), 0)

    def test_no_terminal_no_bar(self):
        messages = self.folder / "messages"
        with open(messages, "wb") as stream:
            silent = self.start(long_run("silent"), stdout=subprocess.DEVNULL,
                                stderr=stream)
        wait_until(lambda: list((self.folder / "silent").glob(".kaldo-*/new/*")), "reports being written")
        # A run that began later, on a terminal, is the clock: it has drawn its bar three times.
        shown, controller = self.start_on_terminal(long_run("shown"))
        for _ in range(3):
            self.read_until(controller, b" left")
        shown.kill()
        self.assertIsNone(silent.poll(), "the run was too short to tell")
        self.assertEqual(messages.read_bytes(), b"")
        silent.send_signal(signal.SIGINT)
        self.assertEqual(silent.wait(GENEROUS), 130)
        self.assertRegex(messages.read_bytes(), rb"^(Note: What was done [^\n]*\n)?Stopped\. ")


if __name__ == "__main__":
    unittest.main()
