#!/usr/bin/env python3
"""Compare the reports of the program with those of the slow reference, byte for byte.

    compare_allocations.py KALDO [--seed S] [--sets N] [--only I] [--keep DIR]
    compare_allocations.py KALDO --faults
    compare_allocations.py --self-test [--seed S] [--sets N]
"""

import argparse
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is

import hand_worked
from allocation_reference import REPORT_NAMES, allocate, parse_arguments, write_reports
from coverage import Coverage
from fault_cases import check_fault_table, compare_faults
from random_sets import make_set

DEFAULT_SETS = 150
TIME_LIMIT = 120         # seconds for one run of the program, against a hang only
ALLOWED_BESIDE = {"Run record.toml"}
OLD_CONTENT = b"left by an earlier run\n"


def write_files(files, folder):
    for name, data in files.items():
        path = folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


def first_difference(name, ours, theirs):
    """The first line that differs between the reference (ours) and the program (theirs)."""
    if ours == theirs:
        return None
    if ours is None or theirs is None:
        side = "the program" if ours is None else "the reference"
        return f'"{name}" is written by {side} only'
    mine, other = ours.split(b"\n"), theirs.split(b"\n")
    number = next((k for k, (a, b) in enumerate(zip(mine, other)) if a != b),
                  min(len(mine), len(other)))

    def line(lines):
        return repr(lines[number]) if number < len(lines) else "(end of file)"
    return (f'"{name}" differs in line {number + 1}\n'
            f"  reference: {line(mine)}\n  program:   {line(other)}")


def run_reference(input_set, folder):
    """Let the reference write its reports into folder/reference."""
    run = allocate(parse_arguments(["--project", "reference"] + input_set.options), folder)
    write_reports(run, folder)
    return run


def compare_reports(folder, closing, completed):
    """None, or what is wrong with the reports and the output of the program."""
    if completed.returncode != 0:
        return (f"exit code {completed.returncode}\n  "
                + completed.stderr.decode("utf-8", "replace").strip())
    for name in REPORT_NAMES:
        texts = [path.read_bytes() if path.exists() else None
                 for path in (folder / "reference" / name, folder / "program" / name)]
        difference = first_difference(name, *texts)
        if difference:
            return difference
    beside = {path.name for path in (folder / "program").iterdir()}
    beside -= set(REPORT_NAMES) | ALLOWED_BESIDE
    if beside:
        return f"unexpected files in the project folder: {sorted(beside)}"
    if closing not in completed.stdout.decode("utf-8", "replace").splitlines():
        return f"standard output lacks the closing line {closing!r}"
    return None


def compare_set(binary, input_set, folder, coverage):
    """Run both programs on one set; returns None or a description of the difference."""
    write_files(input_set.files, folder)
    if input_set.stale:
        for project in ("reference", "program"):
            write_files({name: OLD_CONTENT for name in REPORT_NAMES}, folder / project)
    run = run_reference(input_set, folder)
    coverage.add(input_set, run)
    if binary is None:
        return None
    command = [binary, "allocate", "--project", "program", *input_set.options,
               *input_set.threads]
    try:
        completed = subprocess.run(command, cwd=folder, capture_output=True,
                                   timeout=TIME_LIMIT, check=False)
    except subprocess.TimeoutExpired:
        return f"no end after {TIME_LIMIT} seconds\n  {shlex.join(command)}"
    difference = compare_reports(folder, run.closing, completed)
    return difference and f"{difference}\n  in {folder}: {shlex.join(command)}"


def compare_sets(binary, options, folder):
    """Compare all sets of the seed; returns the number of failures."""
    coverage, failures = Coverage(), 0
    chosen = [options.only] if options.only is not None else range(options.sets)
    for index in chosen:
        input_set = make_set(options.seed, index)
        set_folder = folder / f"set_{index:04d}"
        set_folder.mkdir(parents=True, exist_ok=True)
        difference = compare_set(binary, input_set, set_folder, coverage)
        if difference:
            failures += 1
            print(f"set {index} ({input_set.shape}): {difference}\n  again with: "
                  f"{Path(sys.argv[0]).name} {binary} --seed {options.seed} "
                  f"--only {index} --keep DIR")
    print("situations met:")
    print(coverage.report())
    missing = coverage.missing()
    if options.only is None and options.sets >= DEFAULT_SETS and missing:
        failures += 1
        print("never met: " + "; ".join(missing))
    compared = "run by the reference" if binary is None else "compared"
    print(f"{len(chosen)} sets {compared}, "
          + ("all identical" if binary and not failures else f"{failures} failures"))
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("binary", nargs="?", help="the program to test")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sets", type=int, default=DEFAULT_SETS)
    parser.add_argument("--only", type=int, help="run the set of this number alone")
    parser.add_argument("--keep", type=Path, help="keep inputs and reports in this new folder")
    parser.add_argument("--faults", action="store_true", help="compare refused inputs instead")
    parser.add_argument("--self-test", action="store_true", help="test the reference alone")
    options = parser.parse_args()
    if options.self_test == (options.binary is not None):
        parser.error("give either a program or --self-test")
    binary = options.binary and str(Path(options.binary).resolve())

    with tempfile.TemporaryDirectory(prefix="allocations_") as temporary:
        folder = (options.keep or Path(temporary)).resolve()
        if options.faults:
            return 1 if compare_faults(binary, folder) else 0
        failures = 0
        if options.self_test:
            failures += hand_worked.check(folder / "hand_worked")
            failures += check_fault_table(folder / "faults")
        failures += compare_sets(binary, options, folder)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
