"""What all comparisons of the program with the slow reference share: files, sets, faults, options."""

import argparse
import shlex
import subprocess
import sys
import tempfile
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

TIME_LIMIT = 120         # seconds for one run of the program, against a hang only
ALLOWED_BESIDE = {"Run record.toml"}
OLD_CONTENT = b"left by an earlier run\n"


@dataclass
class Comparison:
    """What is compared, and how."""

    description: str
    sets: int                   # compared unless told otherwise; enough to meet every situation
    new_coverage: Callable      # ()
    make_set: Callable          # (seed, index)
    compare_set: Callable       # (binary or None, set, folder, coverage): None or a difference
    check_alone: Callable       # (folder): failures of the reference in cases worked out by hand
    compare_faults: Callable    # (binary, folder): failures


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


def compare_files(names, reference, program):
    """None, or the first difference between the files of these names in two folders."""
    for name in names:
        texts = [path.read_bytes() if path.exists() else None
                 for path in (reference / name, program / name)]
        difference = first_difference(name, *texts)
        if difference:
            return difference
    return None


def compare_run(command, folder, judge):
    """Runs the program; None, or what `judge(completed)` found wrong with it."""
    try:
        completed = subprocess.run(command, cwd=folder, capture_output=True,
                                   timeout=TIME_LIMIT, check=False)
    except subprocess.TimeoutExpired:
        return f"no end after {TIME_LIMIT} seconds\n  {shlex.join(command)}"
    difference = judge(completed)
    return difference and f"{difference}\n  in {folder}: {shlex.join(command)}"


def compare_sets(comparison, binary, options, folder):
    """Compare all sets of the seed; returns the number of failures."""
    coverage, failures = comparison.new_coverage(), 0
    chosen = [options.only] if options.only is not None else range(options.sets)
    for index in chosen:
        input_set = comparison.make_set(options.seed, index)
        set_folder = folder / f"set_{index:04d}"
        set_folder.mkdir(parents=True, exist_ok=True)
        difference = comparison.compare_set(binary, input_set, set_folder, coverage)
        if difference:
            failures += 1
            print(f"set {index} ({input_set.shape}): {difference}\n  again with: "
                  f"{Path(sys.argv[0]).name} {binary} --seed {options.seed} "
                  f"--only {index} --keep DIR")
    print("situations met:")
    print(coverage.report())
    missing = coverage.missing()
    if options.only is None and options.sets >= comparison.sets and missing:
        failures += 1
        print("never met: " + "; ".join(missing))
    compared = "run by the reference" if binary is None else "compared"
    print(f"{len(chosen)} sets {compared}, "
          + ("all identical" if binary and not failures else f"{failures} failures"))
    return failures


def main(comparison):
    parser = argparse.ArgumentParser(description=comparison.description,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("binary", nargs="?", help="the program to test")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--sets", type=int, default=comparison.sets)
    parser.add_argument("--only", type=int, help="run the set of this number alone")
    parser.add_argument("--keep", type=Path, help="keep inputs and files in this new folder")
    parser.add_argument("--faults", action="store_true", help="compare refused inputs instead")
    parser.add_argument("--self-test", action="store_true", help="test the reference alone")
    options = parser.parse_args()
    if options.self_test == (options.binary is not None):
        parser.error("give either a program or --self-test")
    binary = options.binary and str(Path(options.binary).resolve())

    with tempfile.TemporaryDirectory(prefix="comparison_") as temporary:
        folder = (options.keep or Path(temporary)).resolve()
        if options.faults:
            return 1 if comparison.compare_faults(binary, folder) else 0
        failures = comparison.check_alone(folder) if options.self_test else 0
        failures += compare_sets(comparison, binary, options, folder)
    return 1 if failures else 0
