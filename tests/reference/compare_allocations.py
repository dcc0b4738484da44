#!/usr/bin/env python3
"""Compare the reports of the program with those of the slow reference, byte for byte.

    compare_allocations.py KALDO [--seed S] [--sets N] [--only I] [--keep DIR]
    compare_allocations.py KALDO --faults
    compare_allocations.py --self-test [--seed S] [--sets N]
"""

import sys

sys.dont_write_bytecode = True   # leave the source folder as it is

import hand_worked
from allocation_reference import REPORT_NAMES, allocate, parse_arguments, write_reports
from comparison import (ALLOWED_BESIDE, OLD_CONTENT, Comparison, compare_files, compare_run, main,
                        write_files)
from coverage import Coverage
from fault_cases import ALLOCATION_FAULTS
from random_sets import make_set


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
    difference = compare_files(REPORT_NAMES, folder / "reference", folder / "program")
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
    return compare_run(command, folder,
                       lambda completed: compare_reports(folder, run.closing, completed))


def check_alone(folder):
    return hand_worked.check(folder / "hand_worked") + ALLOCATION_FAULTS.check(folder / "faults")


if __name__ == "__main__":
    sys.exit(main(Comparison(__doc__, 150, Coverage, make_set, compare_set, check_alone,
                             ALLOCATION_FAULTS.compare)))
