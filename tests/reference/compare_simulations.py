#!/usr/bin/env python3
"""Compare the simulations of the program with those of the slow reference, byte for byte.

    compare_simulations.py KALDO [--seed S] [--sets N] [--only I] [--keep DIR]
    compare_simulations.py KALDO --faults
    compare_simulations.py --self-test [--seed S] [--sets N]
"""

import argparse
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is

from compare_allocations import (ALLOWED_BESIDE, OLD_CONTENT, TIME_LIMIT, first_difference,
                                 write_files)
from simulation_coverage import SimulationCoverage
from simulation_faults import check_simulation_fault_table, compare_simulation_faults
from simulation_hand_worked import check_hand_worked
from simulation_reference import FILES, SAVED_LOCI, parse_simulation, simulate, write_simulation
from simulation_sets import make_simulation_set

DEFAULT_SETS = 96


def compare_files(folder, run, completed):
    """None, or what is wrong with the files and the output of the program."""
    errors = completed.stderr.decode("utf-8", "replace")
    if completed.returncode != 0:
        return f"exit code {completed.returncode}\n  {errors.strip()}"
    project = run.settings.project
    names = [f"{project}/{name}" for name in FILES[run.settings.sexed].all_names] + [SAVED_LOCI]
    for name in names:
        texts = [path.read_bytes() if path.exists() else None
                 for path in (folder / "reference" / name, folder / "program" / name)]
        difference = first_difference(name, *texts)
        if difference:
            return difference
    known = set(FILES[run.settings.sexed].all_names) | ALLOWED_BESIDE
    beside = {path.name for path in (folder / "program" / project).iterdir()} - known
    if beside:
        return f"unexpected files in the project folder: {sorted(beside)}"
    lines = completed.stdout.decode("utf-8", "replace").splitlines()
    if lines[-len(run.closing):] != run.closing:
        return f"standard output does not end with {run.closing}"
    if run.warning and run.warning not in errors.splitlines():
        return f"standard error lacks the line {run.warning!r}"
    return None


def compare_set(binary, input_set, folder, coverage):
    """Run both programs on one set, each in a folder of its own."""
    settings = parse_simulation(input_set.options)
    for side in ("reference", "program"):
        write_files(input_set.files, folder / side)
        if input_set.stale:
            old = {name: OLD_CONTENT for name in FILES[settings.sexed].all_names}
            write_files(old, folder / side / settings.project)
            write_files({SAVED_LOCI: OLD_CONTENT}, folder / side)
    run = simulate(settings, folder / "reference")
    write_simulation(run, folder / "reference")
    coverage.add(input_set, run)
    if binary is None:
        return None
    command = [binary, "simulate", *input_set.options, *input_set.threads]
    try:
        completed = subprocess.run(command, cwd=folder / "program", capture_output=True,
                                   timeout=TIME_LIMIT, check=False)
    except subprocess.TimeoutExpired:
        return f"no end after {TIME_LIMIT} seconds\n  {shlex.join(command)}"
    difference = compare_files(folder, run, completed)
    return difference and f"{difference}\n  in {folder / 'program'}: {shlex.join(command)}"


def compare_sets(binary, options, folder):
    """Compare all sets of the seed; returns the number of failures."""
    coverage, failures = SimulationCoverage(), 0
    chosen = [options.only] if options.only is not None else range(options.sets)
    for index in chosen:
        input_set = make_simulation_set(options.seed, index)
        difference = compare_set(binary, input_set, folder / f"set_{index:04d}", coverage)
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
    print(f"{len(chosen)} settings {compared}, "
          + ("all identical" if binary and not failures else f"{failures} failures"))
    return failures


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("binary", nargs="?", help="the program to test")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sets", type=int, default=DEFAULT_SETS)
    parser.add_argument("--only", type=int, help="run the set of this number alone")
    parser.add_argument("--keep", type=Path, help="keep inputs and files in this new folder")
    parser.add_argument("--faults", action="store_true", help="compare refused settings instead")
    parser.add_argument("--self-test", action="store_true", help="test the reference alone")
    options = parser.parse_args()
    if options.self_test == (options.binary is not None):
        parser.error("give either a program or --self-test")
    binary = options.binary and str(Path(options.binary).resolve())

    with tempfile.TemporaryDirectory(prefix="simulations_") as temporary:
        folder = (options.keep or Path(temporary)).resolve()
        if options.faults:
            return 1 if compare_simulation_faults(binary, folder) else 0
        failures = 0
        if options.self_test:
            failures += check_hand_worked(folder / "hand_worked")
            failures += check_simulation_fault_table(folder / "faults")
        failures += compare_sets(binary, options, folder)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
