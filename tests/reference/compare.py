#!/usr/bin/env python3
"""Compare the files of the program with those of the slow reference, byte for byte.

    compare.py allocations KALDO [--seed S] [--sets N] [--only I] [--keep DIR]
    compare.py simulations KALDO [...]
"""

import argparse
import shlex
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

from allocation_reference import REPORT_NAMES, allocate
from programs import RUN_RECORD, SAVED_LOCI, files_of, run, write_files
from random_sets import make_set
from simulation_reference import simulate
from simulation_sets import make_simulation_set
from situations import ALLOCATIONS, SIMULATIONS, Situations, decisions, decisions_met

OLD_CONTENT = b"left by an earlier run\n"


def first_difference(name, ours, theirs):
    """The first line that differs between the reference (ours) and the program (theirs)."""
    if ours is None or theirs is None:
        side = "the program" if ours is None else "the reference"
        return f'"{name}" is written by {side} only'
    mine, other = ours.split(b"\n"), theirs.split(b"\n")
    number = next((k for k, (a, b) in enumerate(zip(mine, other)) if a != b),
                  min(len(mine), len(other)))
    lines = [repr(each[number]) if number < len(each) else "(end of file)"
             for each in (mine, other)]
    return (f'"{name}" differs in line {number + 1}\n'
            f"  reference: {lines[0]}\n  program:   {lines[1]}")


class Allocations:
    """Random allocations; enough of them to meet every situation."""

    subcommand, sets, make_set = "allocate", 150, staticmethod(make_set)

    def __init__(self):
        self.situations = Situations(ALLOCATIONS)

    def expected(self, options, folder):
        """All files but the inputs, None for one that must not be, the last lines told, and what
        says what is wrong with a table.
        """
        reports, closing, tables = allocate(options, folder)
        return ({f"results/{name}": reports.get(name) for name in REPORT_NAMES}, [closing], "",
                {f"results/{name}": fault for name, fault in tables.items()})


class Simulations:
    """Random simulations."""

    subcommand, sets, make_set = "simulate", 96, staticmethod(make_simulation_set)

    def __init__(self):
        self.situations = Situations(SIMULATIONS, decisions(False) + decisions(True))

    def expected(self, options, folder):
        done = simulate(options, folder)
        for situation in decisions_met(done):
            self.situations.counts[situation] += 1
        files = {f"{done.settings.project}/{name}": text for name, text in done.files.items()}
        return files | {SAVED_LOCI: done.saved_loci}, done.closing, done.warning, {}


def compare_set(kind, binary, input_set, folder):
    """Run both on one set; None, or what is wrong with the files and the output of the program."""
    write_files(input_set.files, folder)
    files, closing, warning, tables = kind.expected(input_set.options, folder)
    old = {name: OLD_CONTENT for name in [*files, *tables] if input_set.stale}
    write_files(old, folder)
    kind.situations.see(input_set.options, [data.decode("latin-1") for data in
                                            [*input_set.files.values(), *old.values()]],
                        filter(None, files.values()))
    expected = input_set.files | {name: text.encode("latin-1")
                                  for name, text in files.items() if text is not None}
    command = [binary, kind.subcommand, *input_set.options, *input_set.threads]
    done = run(command, folder)
    found = files_of(folder)
    written = {name: found.pop(name, None) for name in tables}
    fault = judge(done, closing, warning, expected, found)
    for name, fault_of in tables.items():
        text = written[name] and written[name].decode("latin-1")
        fault = fault or (what := fault_of(text)) and f"{name}: {what}"
    return fault and f"{fault}\n  in {folder}: {shlex.join(command)}"


def judge(done, closing, warning, expected, found):
    errors = done.stderr.decode("utf-8", "replace")
    if done.returncode != 0:
        return f"exit code {done.returncode}\n  {errors.strip()}"
    found = {str(Path(name)): data for name, data in found.items() if Path(name).name != RUN_RECORD}
    expected = {str(Path(name)): data for name, data in expected.items()}
    for name in sorted(expected.keys() | found.keys()):
        if expected.get(name) != found.get(name):
            return first_difference(name, expected.get(name), found.get(name))
    lines = done.stdout.decode("utf-8", "replace").splitlines()
    if lines[-len(closing):] != closing:
        return f"standard output does not end with {closing}"
    # What the program thinks of names and genotypes has its own tests.
    told = [line for line in errors.splitlines() if not line.startswith("Warning: ")]
    if told != [warning] * bool(warning):
        return f"standard error is not {warning!r}: {errors}"
    return None


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("kind", choices=("allocations", "simulations"))
    parser.add_argument("binary", help="the program to test")
    parser.add_argument("--seed", type=int, default=2)
    parser.add_argument("--sets", type=int, help="how many sets are compared")
    parser.add_argument("--only", type=int, help="run the set of this number alone")
    parser.add_argument("--keep", type=Path, help="keep inputs and files in this new folder")
    options = parser.parse_args()
    kind = Allocations() if options.kind == "allocations" else Simulations()
    binary = str(Path(options.binary).resolve())
    failures = 0
    with tempfile.TemporaryDirectory(prefix="comparison_") as temporary:
        folder = (options.keep or Path(temporary)).resolve()
        chosen = [options.only] if options.only is not None else range(options.sets or kind.sets)
        for index in chosen:
            input_set = kind.make_set(options.seed, index)
            set_folder = folder / f"set_{index:04d}"
            set_folder.mkdir(parents=True, exist_ok=True)
            difference = compare_set(kind, binary, input_set, set_folder)
            if difference:
                failures += 1
                print(f"set {index} ({input_set.shape}): {difference}\n  again with: "
                      f"compare.py {options.kind} {binary} --seed {options.seed} "
                      f"--only {index} --keep DIR")
    missing = kind.situations.never_met()
    if len(chosen) >= kind.sets and missing:
        failures += 1
        print("never met: " + "; ".join(missing))
    print(f"{len(chosen)} sets compared, {failures or 'no'} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
