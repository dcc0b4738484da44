#!/usr/bin/env python3
"""Runs the program for clusters under the MPI launcher, against the program for one machine.

    cluster_test.py MPIEXEC KALDO_MPI KALDO KEEPING_MPI KEEPING [unittest options]

The last two programs keep what is done at once.

Process 0 alone runs in the folder of the study: the others start in an empty one, where none of the
relative paths leads to a file.
"""

import os
import shutil
import signal
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import (GENEROUS, RUN_RECORD, SOURCE, STOPPED, ProgramTest, files_of, wait_until,
                      write_files)

MPIEXEC, KALDO_MPI, KALDO, KEEPING_MPI, KEEPING = programs.arguments(
    ["MPIEXEC", "KALDO_MPI", "KALDO", "KEEPING_MPI", "KEEPING"], __doc__)
DIED = ("Process {} of 3 has ended unexpectedly, and with it the run. "
        "The results of earlier runs are as they were.\n")
# Test machines have few cores and often only the superuser; containers forbid one process to copy
# from the memory of another. Open MPI minds all three unless told. The rest spares it the search
# for networks and batch systems.
ENVIRONMENT = os.environ | {"OMPI_ALLOW_RUN_AS_ROOT": "1", "OMPI_ALLOW_RUN_AS_ROOT_CONFIRM": "1",
                            "OMPI_MCA_btl_vader_single_copy_mechanism": "none",
                            "OMPI_MCA_rmaps_base_oversubscribe": "1",
                            "OMPI_MCA_hwloc_base_binding_policy": "none",
                            "OMPI_MCA_orte_execute_quiet": "1",
                            "OMPI_MCA_pml": "ob1", "OMPI_MCA_btl": "self,vader",
                            "OMPI_MCA_plm": "isolated",
                            # Open MPI keeps memory to its end; that is no leak of ours.
                            "ASAN_OPTIONS": "detect_leaks=0"}

NON_SEXED = ["--loci", "data/loci.txt", "--parents", "data/parents.txt",
             "--offspring", "data/offspring.txt"]
SEXED = ["--loci", "data/loci.txt", "--males", "data/males.txt", "--females", "data/females.txt",
         "--offspring", "data/offspring.txt"]
PARENTAL = ["--collected-parents", "data/parents.txt",
            "--uncollected-sample", "data/parents.txt", "--uncollected", "10.5"]
PRE_PARENTAL = ["--pseudo-collected-sample", "data/parents.txt", "--pseudo-collected", "30",
                "--uncollected-sample", "data/parents.txt", "--uncollected", "10"]
# Other pairs than the most likely ones of all.
KNOWN = {"mothers.txt": b"Young01 Female01\n", "groups.txt": b"Young03 2\n",
         "candidates.txt": b"Young02 Male01 Male02 Female01 Female03\n"}
OF_KNOWN = ["--known-mother", "data/mothers.txt", "--candidates", "data/candidates.txt",
            "--offspring-groups", "data/groups.txt"]
STRATEGIES = {
    "choice": ["--undefined", "0.1", "--scan-uncollected", "3,9"],
    "all": ["--strategy", "all", "--use", "{0},{1},{2},{3}", "--print-subset-statistics"],
    # Reached after some subsets, so that later ones are begun in vain.
    "minimal": ["--strategy", "minimal", "--criterion", "{criterion}", "--start-with", "2"],
    "cumulative": ["--strategy", "cumulative", "--start-with", "2", "--print-subset-statistics"],
    # Some subsets end before all iterations.
    "exact": ["--strategy", "cumulative", "--until-se", "0.01", "--random", "modern"],
}


def sexed_sets(collected, sample, estimates=("10", "7.5")):
    options = []
    for sex in ("male", "female"):
        options += [f"--{collected.format(sex)}", f"data/sample-{sex}s.txt",
                    f"--uncollected-{sex}-sample", f"data/sample-{sex}s.txt",
                    f"--uncollected-{sex}s", "6",
                    f"--estimated-collected-{sex}s", estimates[0],
                    f"--estimated-uncollected-{sex}s", estimates[1]]
        if sample:
            options += [f"--pseudo-collected-{sex}s", "12"]
    return options


class Clusters(ProgramTest):
    def setUp(self):
        super().setUp()
        self.elsewhere = self.folder / "elsewhere"
        self.elsewhere.mkdir()

    def study(self, flow, name="study"):
        folder = self.folder / name
        shutil.copytree(SOURCE / "examples" / flow, folder / "data")
        write_files(KNOWN, folder / "data")
        return folder

    def launch(self, processes, arguments, program=KALDO_MPI):
        command = [MPIEXEC, "-n", "1", program, *arguments]
        if processes > 1:
            command += [":", "-n", str(processes - 1), "-wdir", str(self.elsewhere), program]
        return command

    def run_in(self, folder, command):
        return programs.run(command, folder, env=ENVIRONMENT, text=True)


class SameFiles(Clusters):
    def compare(self, flow, arguments, processes=(1, 2, 3, 4)):
        alone = self.study(flow, "alone")
        done = self.run_in(alone, [KALDO, *arguments])
        self.assertEqual(done.returncode, 0, done.stderr)
        expected = files_of(alone)
        self.assertGreater(len(expected), 3)
        for number in processes:
            folder = self.study(flow, f"cluster{number}")
            run = self.run_in(folder, self.launch(number, arguments))
            which = f"{number} processes: {arguments}"
            self.assertEqual((run.returncode, run.stderr), (0, ""), which)
            self.assertEqual(run.stdout, done.stdout, which)
            found = files_of(folder)
            self.assertEqual(found.keys(), expected.keys(), which)
            for name, data in expected.items():
                self.assertTrue(found[name] == data, f"{name} with {which}")
            shutil.rmtree(folder)
        shutil.rmtree(alone)
        self.assertEqual(list(self.elsewhere.iterdir()), [])
        return done.stdout

    def test_allocations(self):
        for flow, files in (("non-sexed", NON_SEXED), ("sexed", SEXED)):
            for more in ([], ["--sequence", "--error", "uniform=0.02"]):
                self.compare(flow, ["allocate", "--project", "lake", *files, *more])
        # Threads within processes, and a run repeated from its record.
        known = ["allocate", "--project", "lake", *SEXED, *OF_KNOWN]
        self.compare("sexed", [*known, "--threads", "3"], [2])
        folder = self.study("sexed")
        self.run_in(folder, [KALDO, *known])
        first = files_of(folder)
        shutil.move(folder / "lake" / RUN_RECORD, folder / RUN_RECORD)
        shutil.rmtree(folder / "lake")
        again = self.run_in(folder, self.launch(2, ["rerun", RUN_RECORD, "--threads", "2", "--project", "lake"]))
        self.assertEqual((again.returncode, again.stderr), (0, ""))
        (folder / RUN_RECORD).unlink()
        self.assertEqual(files_of(folder), first)

    def simulations(self, flow, sets, criterion):
        loci = (SOURCE / "examples" / flow / "loci.txt").read_text().split()
        for number, (strategy, more) in enumerate(STRATEGIES.items()):
            options = [each.format(*loci, criterion=criterion) for each in more]
            keep = ["--keep", "all", "--print-iterations"] if number % 2 else ["--threads", "2", "--confidence"]
            told = self.compare(flow, ["simulate", "--project", "trial", "--loci", "data/loci.txt",
                                       *sets[number % 2], "--iterations", "23",
                                       "--offspring-per-iteration", "40", "--seed", "7",
                                       *options, *keep])
            self.assertIn("calculations completed!", told.lower(), strategy)

    def test_non_sexed_simulations(self):
        self.simulations("non-sexed", [PARENTAL, PRE_PARENTAL], 0.5)

    def test_sexed_simulations(self):
        sets = [["--sexed", *sexed_sets("collected-{}s", sample=False)],
                ["--sexed", *sexed_sets("pseudo-collected-{}-sample", sample=True)]]
        self.simulations("sexed", sets, 0.8)


class Resumed(Clusters):
    def test_a_run_whose_leading_process_dies_again_and_again(self):
        arguments = ["simulate", "--project", "trial", "--loci", "data/loci.txt", *PARENTAL,
                     "--iterations", "200", "--offspring-per-iteration", "800", "--seed", "1",
                     "--strategy", "cumulative", "--keep", "all"]
        folder = self.study("non-sexed")
        whole = self.run_in(folder, [KALDO, *arguments])
        self.assertEqual(whole.returncode, 0, whole.stderr)
        expected = files_of(folder)
        shutil.rmtree(folder / "trial")
        unfinished = folder / "trial" / ".kaldo-unfinished"
        for processes in (3, 1, 2):
            # With one process the program without a launcher.
            process = self.start(self.launch(processes, [*arguments, "--resume"], KEEPING_MPI)
                                 if processes > 1 else [KEEPING, *arguments, "--resume"],
                                 folder, env=ENVIRONMENT, stdout=subprocess.DEVNULL,
                                 stderr=subprocess.DEVNULL)
            before = unfinished.stat().st_size if unfinished.exists() else 0
            wait_until(lambda: process.poll() is not None or
                       unfinished.exists() and unfinished.stat().st_size > before + 50000,
                       "results being kept")
            self.assertIsNone(process.poll(), "the run ended before it could be killed")
            os.kill(ranks_below(process.pid)[0] if processes > 1 else process.pid, signal.SIGKILL)
            self.assertNotEqual(process.wait(timeout=GENEROUS), 0)
            wait_until(lambda: not ranks_below(process.pid), "the other processes' end")
        last = self.run_in(folder, self.launch(2, [*arguments, "--resume"]))
        self.assertEqual((last.returncode, last.stdout), (0, whole.stdout), last.stderr)
        self.assertIn(" were done by the unfinished run.", last.stderr)
        self.assertEqual(files_of(folder), expected)


class Ends(Clusters):
    def test_wrong_input_is_told_once(self):
        folder = self.study("non-sexed")
        for arguments, code in ((["allocate", "--project", "lake", *NON_SEXED[2:]], 2),
                                (["simulate", "--nonsense"], 2),
                                (["allocate", "--project", "data/loci.txt/x", *NON_SEXED], 1)):
            alone = self.run_in(folder, [KALDO, *arguments])
            run = self.run_in(folder, self.launch(3, arguments))
            self.assertEqual(alone.returncode, code, arguments)
            self.assertEqual((run.returncode, run.stdout, run.stderr),
                             (code, alone.stdout, alone.stderr), arguments)
        self.assertEqual([path.name for path in folder.iterdir()], ["data"])

    def start_long_run(self):
        """A simulation of minutes in a folder with earlier results, once its processes compute."""
        folder = self.study("sexed")
        project = folder / "trial"
        write_files(dict.fromkeys(("Summary.xls", "Sequence results.xls", RUN_RECORD),
                                  b"of an earlier run\n"), project)
        estimates = sexed_sets("collected-{}s", sample=False, estimates=("1", "1"))
        process = self.start(
            self.launch(3, ["simulate", "--sexed", "--project", "trial", "--loci", "data/loci.txt",
                            *estimates, "--iterations", "999", "--offspring-per-iteration",
                            "40000", "--seed", "1"]),
            folder, env=ENVIRONMENT, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        earlier = files_of(project)

        def computing():
            self.assertIsNone(process.poll(), "the run ended before it could be disturbed")
            ranks = ranks_below(process.pid)
            return len(ranks) == 3 and all(has_computed(pid) for pid in ranks.values())
        wait_until(computing, "processes that compute")
        return process, ranks_below(process.pid), project, earlier

    def disturb(self, pick, sent):
        """The exit code, what was said, and the project folder then and before."""
        process, ranks, project, earlier = self.start_long_run()
        os.kill(pick(process, ranks), sent)
        out, err = process.communicate(timeout=GENEROUS)
        self.assertEqual(out, "")
        now = files_of(project)
        if now.pop(".kaldo-unfinished", None):      # on a machine that is very slow
            err = "".join(line for line in err.splitlines(True) if "--resume" not in line)
        return process.returncode, err, now, earlier

    def test_a_process_that_dies(self):
        code, err, now, earlier = self.disturb(lambda _, ranks: ranks[2], signal.SIGKILL)
        self.assertNotEqual(code, 0)
        self.assertEqual(err.count(DIED.format(2)), 1, err)
        self.assertNotIn("Stopped", err)
        self.assertEqual(now, earlier)

    def test_the_leading_process_dies(self):
        code, err, now, earlier = self.disturb(lambda _, ranks: ranks[0], signal.SIGKILL)
        self.assertNotEqual(code, 0)
        self.assertEqual(err.count(DIED.format(0)), 1, err)
        self.assertEqual({name: now[name] for name in earlier}, earlier)
        self.assertTrue(all(name.startswith(".kaldo-") for name in now.keys() - earlier.keys()))

    def test_a_user_who_stops_the_run(self):
        code, err, now, earlier = self.disturb(lambda process, _: process.pid, signal.SIGINT)
        self.assertNotEqual(code, 0)
        self.assertEqual(err.count(STOPPED), 1, err)
        self.assertEqual(now, earlier)

    def test_a_batch_system_that_stops_the_leading_process(self):
        code, err, now, earlier = self.disturb(lambda _, ranks: ranks[0], signal.SIGTERM)
        self.assertEqual((code, err), (130, STOPPED))
        self.assertEqual(now, earlier)


    def test_a_batch_system_that_stops_another_process(self):
        code, err, now, earlier = self.disturb(lambda _, ranks: ranks[2], signal.SIGTERM)
        self.assertEqual(code, 1)
        self.assertRegex(err, "^Process 2 of 3 on [^ \n]+ was told to stop, and the run ends with it. ")
        self.assertEqual(now, earlier)

    def test_answers_without_a_launcher(self):
        for words in (["--version"], ["allocate", "--help"]):
            answer = subprocess.run([KALDO_MPI, *words], env={"PATH": "/nowhere"},
                                    capture_output=True, check=False, timeout=GENEROUS)
            self.assertEqual((answer.returncode, answer.stderr), (0, b""))
            self.assertEqual(answer.stdout, subprocess.check_output([KALDO, *words]))


def ranks_below(launcher):
    """The processes that the launcher started, by rank."""
    ranks = {}
    for entry in Path("/proc").iterdir():
        try:
            if not entry.name.isdigit() or status_of(entry)[1] != str(launcher):
                continue
            for variable in (entry / "environ").read_bytes().split(b"\0"):
                name, _, value = variable.partition(b"=")
                if name == b"OMPI_COMM_WORLD_RANK":
                    ranks[int(value)] = int(entry.name)
        except (OSError, IndexError):
            continue            # it has just ended
    return ranks


def status_of(entry):
    """The fields of a process behind its name."""
    return (entry / "stat").read_text().rpartition(")")[2].split()


def has_computed(pid):
    try:
        status = status_of(Path("/proc") / str(pid))
    except OSError:
        return False
    return int(status[11]) > 0.3 * os.sysconf("SC_CLK_TCK")


if __name__ == "__main__":
    version = subprocess.run([MPIEXEC, "--version"], capture_output=True, text=True, check=False)
    if "Open MPI" not in version.stdout and "OpenRTE" not in version.stdout:
        print("Skipped: the tests know the launcher of Open MPI alone")
        sys.exit(77)
    probe = subprocess.run([MPIEXEC, "-n", "2", "true"], env=ENVIRONMENT, capture_output=True,
                           text=True, check=False, timeout=GENEROUS)
    if probe.returncode != 0:
        print("Skipped: the launcher of Open MPI cannot start any program on this machine:\n"
              + probe.stdout + probe.stderr)
        sys.exit(77)
    unittest.main()
