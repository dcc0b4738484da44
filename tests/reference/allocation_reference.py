"""A slow, plain allocation of offspring to collected parents.

It exists to be compared with the fast program: the same options, the same report
files, written without any thought for speed.
"""

from confidence_reference import Posteriors, confidence_fault, loci_fault
from reference_input import parse_allocation, read_allocation
from reference_reports import (max_like_block, non_sexed_results, result_line,
                               sequence_results, sexed_results, transmission_block)
from reference_search import judge_first_pair, search_pairs
from reference_tables import (Catalogue, allele_listing, is_out_of_step, stepping_report,
                              transmission_matrix)

RESULTS = "Allocation results.xls"
MAX_LIKE = "Max like pairs.txt"
MATRICES = "Transmision matrices.xls"
STEPPING = "Stepping error file.xls"
SEQUENCE = "Sequence results.xls"
SERVICE = "Service file.xls"
CONFIDENCE = "Confidence.tsv"
LOCI = "Loci.tsv"
REPORT_NAMES = (RESULTS, MAX_LIKE, MATRICES, STEPPING, SEQUENCE, SERVICE)

COMPLETED = "Calculations completed!"
OUT_OF_STEP = ("Some allelic distances not in step with the smallest difference. "
               "Please read the stepping error file !")


def combinations_of(settings, in_use):
    """Growing sets of loci: by index, equal indices in file order."""
    if settings.sequence is None:
        return [in_use]
    order = in_use
    if settings.sequence:
        order = sorted(in_use, key=lambda locus: settings.sequence[locus])
    return [order[:count] for count in range(1, len(order) + 1)]


def allocate(arguments, folder):
    """Allocate the files found in folder.

    The reports by name, the closing sentence, and for each table a function that says what is wrong
    with it.
    """
    settings = parse_allocation(arguments)
    inputs = read_allocation(settings, folder)
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
    posteriors = Posteriors(settings, inputs, loci, catalogues, matrices)
    odd = {locus for locus in loci if is_out_of_step(catalogues[locus])}
    tables = {CONFIDENCE: lambda text: confidence_fault(text, posteriors, last),
              LOCI: lambda text: loci_fault(text, posteriors, names, odd)}
    return reports, OUT_OF_STEP if out_of_step else COMPLETED, tables
