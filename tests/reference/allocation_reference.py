#!/usr/bin/env python3
"""A slow, plain allocation of offspring to collected parents.

It exists to be compared with the fast program: the same options, the same report
files, written without any thought for speed. Run it with --help for the options.
"""

import argparse
import sys
from dataclasses import dataclass
from pathlib import Path

from reference_input import ErrorModel, InputFault, Settings, byte_text, check_and_read
from reference_reports import (max_like_block, non_sexed_results, result_line,
                               sequence_results, sexed_results, transmission_block)
from reference_search import judge_first_pair, search_pairs
from reference_tables import Catalogue, allele_listing, stepping_report, transmission_matrix

RESULTS = "Allocation results.xls"
MAX_LIKE = "Max like pairs.txt"
MATRICES = "Transmision matrices.xls"
STEPPING = "Stepping error file.xls"
SEQUENCE = "Sequence results.xls"
SERVICE = "Service file.xls"
REPORT_NAMES = (RESULTS, MAX_LIKE, MATRICES, STEPPING, SEQUENCE, SERVICE)

COMPLETED = "Calculations completed!"
OUT_OF_STEP = ("Some allelic distances not in step with the smallest difference. "
               "Please read the stepping error file !")


@dataclass
class Run:
    """All that a run found, kept for the tests beside the text of its reports."""
    settings: Settings
    inputs: object
    catalogues: dict
    combinations: list    # per combination, its loci in the order in which they entered
    outcomes: list        # per combination, one Outcome per offspring
    reports: dict         # file name -> byte text
    closing: str


def combinations_of(settings, in_use):
    """Growing sets of loci: by index, equal indices in file order."""
    if settings.sequence is None:
        return [in_use]
    order = in_use
    if settings.sequence:
        order = sorted(in_use, key=lambda locus: settings.sequence[locus])
    return [order[:count] for count in range(1, len(order) + 1)]


def allocate(settings, folder="."):
    """Check and read the files found in folder, allocate, and compose the reports."""
    inputs = check_and_read(settings, folder)
    names, in_use, slots = inputs.locus_names, inputs.in_use, inputs.slots
    parents = [one for file in inputs.parent_files for one in file]
    male_count = len(inputs.parent_files[0]) if settings.sexed else None

    catalogues = {locus: Catalogue(slots, locus) for locus in in_use}
    matrices = {locus: transmission_matrix(settings.error, catalogues[locus])
                for locus in in_use}
    stepping_text, out_of_step = stepping_report(names, in_use, catalogues)

    combinations = combinations_of(settings, in_use)
    outcomes_of_each = []
    for combination in combinations:
        loci = sorted(combination)
        outcomes = []
        for child in inputs.offspring:
            outcome = search_pairs(child, inputs.parent_files, loci, catalogues, matrices)
            judge_first_pair(outcome, child, parents, loci, catalogues, settings.tolerance)
            outcomes.append(outcome)
        outcomes_of_each.append(outcomes)

    last, loci = outcomes_of_each[-1], sorted(combinations[-1])
    found = list(zip(inputs.offspring, last))
    lines = [result_line(child, outcome, parents, male_count) for child, outcome in found]
    compose = sexed_results if settings.sexed else non_sexed_results
    reports = {
        RESULTS: compose(settings, inputs, catalogues, lines, last),
        MAX_LIKE: "".join(max_like_block(child, outcome, parents, loci, inputs.digits)
                          for child, outcome in found),
        MATRICES: "".join(transmission_block(child, outcome, parents, loci, inputs.digits,
                                             settings.tolerance, settings.sexed)
                          for child, outcome in found),
        STEPPING: stepping_text,
    }
    if settings.sequence is not None:
        reports[SEQUENCE] = sequence_results(settings, inputs, combinations, outcomes_of_each)
        reports[SERVICE] = allele_listing(names, in_use, catalogues, len(slots))
    closing = OUT_OF_STEP if out_of_step else COMPLETED
    return Run(settings, inputs, catalogues, combinations, outcomes_of_each, reports, closing)


def write_reports(run, folder="."):
    """Write the reports into the project folder and remove those without content."""
    project = Path(folder) / run.settings.project
    project.mkdir(exist_ok=True)
    for name in REPORT_NAMES:
        if name in run.reports:
            (project / name).write_bytes(run.reports[name].encode("latin-1"))
        else:
            (project / name).unlink(missing_ok=True)


# ---------------------------------------------------------------- command line

def parse_error_model(text):
    kind, equals, values = text.partition("=")
    if kind == "none" and not equals:
        return ErrorModel("none")
    if kind == "uniform" and equals:
        return ErrorModel("uniform", epsilon=float(values))
    if kind == "nonuniform" and not equals:
        return ErrorModel("nonuniform")
    if kind == "nonuniform":
        numbers = tuple(float(value) for value in values.split(","))
        if len(numbers) == 5:
            return ErrorModel("nonuniform", values=numbers)
    raise ValueError(text)


def parse_sequence(text):
    return [int(index) for index in text.split(",")] if text else []


def parse_arguments(arguments):
    """Settings from the command line; a usage fault ends the program with 2."""
    parser = argparse.ArgumentParser(description=__doc__, allow_abbrev=False)
    parser.add_argument("--project", required=True)
    parser.add_argument("--loci", required=True)
    parser.add_argument("--offspring", required=True)
    parser.add_argument("--parents")
    parser.add_argument("--males")
    parser.add_argument("--females")
    parser.add_argument("--tolerance", type=int, default=1)
    parser.add_argument("--error", type=parse_error_model, default=ErrorModel("nonuniform"))
    parser.add_argument("--use", type=lambda text: text.split(","))
    parser.add_argument("--sequence", type=parse_sequence, nargs="?", const=[], default=None)
    typed = parser.parse_args(arguments)
    sexes = [typed.males is not None, typed.females is not None]
    if (typed.parents is not None) == any(sexes) or any(sexes) != all(sexes):
        parser.error("give either --parents or both --males and --females")
    return Settings(**vars(typed))


def main(arguments):
    settings = parse_arguments(arguments)
    try:
        run = allocate(settings)
    except InputFault as fault:
        sys.stderr.buffer.write(byte_text(str(fault)).encode("latin-1") + b"\n")
        return 2
    write_reports(run)
    print(run.closing)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
