#!/usr/bin/env python3
"""Compare the simulations of the program with those of the slow reference, byte for byte.

    compare_simulations.py KALDO [--seed S] [--sets N] [--only I] [--keep DIR]
    compare_simulations.py KALDO --faults
    compare_simulations.py --self-test [--seed S] [--sets N]
"""

import sys

sys.dont_write_bytecode = True   # leave the source folder as it is

from comparison import (ALLOWED_BESIDE, OLD_CONTENT, Comparison, compare_files, compare_run, main,
                        write_files)
from simulation_coverage import SimulationCoverage
from simulation_faults import SIMULATION_FAULTS, check_sound_sets
from simulation_hand_worked import check_hand_worked
from simulation_reference import FILES, SAVED_LOCI, parse_simulation, simulate, write_simulation
from simulation_sets import make_simulation_set


def compare_simulation(folder, run, completed):
    """None, or what is wrong with the files and the output of the program."""
    errors = completed.stderr.decode("utf-8", "replace")
    if completed.returncode != 0:
        return f"exit code {completed.returncode}\n  {errors.strip()}"
    project = run.settings.project
    names = [f"{project}/{name}" for name in FILES[run.settings.sexed].all_names] + [SAVED_LOCI]
    difference = compare_files(names, folder / "reference", folder / "program")
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
    return compare_run([binary, "simulate", *input_set.options, *input_set.threads],
                       folder / "program",
                       lambda completed: compare_simulation(folder, run, completed))


def check_alone(folder):
    return (check_hand_worked(folder / "hand_worked")
            + check_sound_sets(folder)
            + SIMULATION_FAULTS.check(folder / "faults"))


if __name__ == "__main__":
    sys.exit(main(Comparison(__doc__, 96, SimulationCoverage, make_simulation_set, compare_set,
                             check_alone, SIMULATION_FAULTS.compare)))
