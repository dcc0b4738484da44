"""Small cases worked out by hand; the simulation reference is tested against them."""

import math

from simulation_flows import (NON_SEXED_ORIGINS, SEXED_ORIGINS, non_sexed_proportions,
                              sexed_proportions)
from simulation_random import (Generator, SampleCatalogue, cumulative_frequencies,
                               first_reaching, transmit)
from simulation_reference import simulate
from simulation_scoring import BEST_KEYS, ClassCounts
from simulation_settings import parse_simulation
from simulation_statistics import (class_correct, deviation_about_mean, non_sexed_side_counts,
                                   sexed_side_counts, step_deviation, step_mean, weighted)
from reference_input import Individual

# The first values after seed 1, each (214013 state + 2531011) mod 2^32 shifted by 16.
SEED_ONE = [41, 18467, 6334, 26500, 19169, 15724, 11478, 29358, 26962, 24464]


def generator_values():
    generator = Generator(1)
    return [generator.value() for _ in SEED_ONE], SEED_ONE


def class_sizes():
    found = [non_sexed_proportions(100, 2, 6).sizes, non_sexed_proportions(10, 2, 6).sizes,
             non_sexed_proportions(10, 4, 4).sizes, non_sexed_proportions(20, 7, 0).sizes,
             sexed_proportions(10, 1, 1, 2, 2).sizes, sexed_proportions(8, 3, 0, 5, 0).sizes,
             sexed_proportions(16, 3, 1, 1, 3).sizes]
    return found, [(6, 37, 56), (0, 3, 5), (2, 5, 2), (20, 0, 0),
                   (2, 2, 2, 2), (8, 0, 0, 0), (3, 9, 1, 3)]


def sample_frequencies():
    """First alleles 0, 156, 152, then second alleles 0, 152, 156: the missing pair is on 156."""
    sample = [Individual("a", [(0, 0)]), Individual("b", [(156, 152)]),
              Individual("c", [(152, 156)])]
    catalogue = SampleCatalogue(sample, 0)
    return ([catalogue.listed, catalogue.counts[:2]], [[156, 152], [4.0, 2.0]])


def draws_of_classes():
    """0.7 in single precision lies below 0.7, and 0.3 above 0.3."""
    cumulative = cumulative_frequencies([3.0, 4.0, 3.0], 5)
    draws = (0.0, 0.299, 0.3, 0.301, 0.699, 0.7, 0.999)
    return ([first_reaching(draw, cumulative) for draw in draws], [0, 0, 0, 1, 1, 2, 2])


def transmissions():
    row = [0.0, 0.25, 0.5, 0.125]
    draws = (0.0, 0.25, 0.251, 0.75, 0.875, 0.876)
    return ([transmit(row, draw) for draw in draws], [1, 1, 2, 2, 3, 3])


def scoring_weights():
    """One pseudo-offspring per row: right sides, with the mild judgement of classes 2 and 3."""
    found = []
    for origins, sexed in ((SEXED_ORIGINS, True), (NON_SEXED_ORIGINS, False)):
        for origin in origins:
            count = len(origin.rows)
            counts = ClassCounts(count, [1] * count, dict.fromkeys(BEST_KEYS[sexed], 0))
            found.append(class_correct(origin, counts) * 2 * count)
    return [round(value, 9) for value in found], [6, 6, 6, 4, 4, 5, 3]


def side_figures():
    """Class 2, offspring 3 only male and right, 1 only female, 2 nothing, 2 both with him."""
    sexed = sexed_side_counts(SEXED_ORIGINS[1], ClassCounts(8, [2, 0, 3, 0, 1, 2], {}))
    single = non_sexed_side_counts(NON_SEXED_ORIGINS[1], ClassCounts(4, [1, 0, 1, 0, 2], {}))
    return ([sexed[name] for name in ("M", "CM", "F", "CF", "UC", "CUC")]
            + [single[name] for name in ("COLL", "RCOLL", "UNCOLL", "RUNCOLL")],
            [5 / 8, 5 / 8, 3 / 8, 0, 1, 5 / 8, 3 / 8, 2 / 8, 5 / 8, 3 / 8])


def right_sides_are_the_weights():
    """Non-sexed, the weight of a row counts the right sides of both kinds."""
    found, wanted = [], []
    for origin in NON_SEXED_ORIGINS:
        for place, row in enumerate(origin.rows):
            counts = ClassCounts(1, [int(k == place) for k in range(len(origin.rows))], {})
            sides = non_sexed_side_counts(origin, counts)
            found.append(2 * (sides["RCOLL"] + sides["RUNCOLL"]))
            wanted.append(row.weight)
    return found, wanted


def means_and_deviations():
    found = [step_mean([1.0, 2.0, 6.0]), deviation_about_mean([1.0, 3.0]),
             step_deviation([2.0, 4.0]), weighted([0.25, 0.75], [1.0, 2.0])]
    # Ten times 0.1 leaves a radicand below zero: the deviation is not a number.
    return found + [math.isnan(step_deviation([0.1] * 10)) or step_deviation([0.1] * 10) < 1e-8], \
        [3.0, 1.0, 1.0, 1.75, True]


# One locus, sizes 150 (a quarter of the sample) and 152. With seed 1 the draws of the two
# parents are .041 .467 .334 .500: 150 152 and 152 152. The parents of the offspring are
# 19169 % 2 = 1 and 15724 % 2 = 0; 11478 and 29358 are even, so both pass on their first
# allele, and without errors 152 and 150 arrive.
WHOLE_FILES = {"loci": "Loc1\n", "sample": "A 150152\nB 152152\n"}
WHOLE_OPTIONS = ["--project", "out", "--loci", "loci", "--iterations", "1", "--seed", "1",
                 "--offspring-per-iteration", "1", "--pseudo-collected-sample", "sample",
                 "--pseudo-collected", "2", "--uncollected-sample", "sample",
                 "--uncollected", "0", "--error", "none"]


def whole_run(folder):
    folder.mkdir(parents=True, exist_ok=True)
    for name, text in WHOLE_FILES.items():
        (folder / name).write_text(text, encoding="utf-8")
    files = simulate(parse_simulation(WHOLE_OPTIONS), folder).files
    names = ("pseudo-collected parents.txt", "pseudo-offspring.txt", "uncollected parents.txt")
    last_rows = files["Iterations - results_2collpar.xls"].splitlines()[-3]
    return ([files.get(name) for name in names] + [last_rows],
            ["unnamed 150152 \nunnamed 152152 \n", "1   0   152150 \n", None,
             "1\t1\t0\t0\t0\t0\t\t1\t0\t0"])


def check_hand_worked(folder):
    """Compare every case; returns the number of failures."""
    cases = [generator_values, class_sizes, sample_frequencies, draws_of_classes, transmissions,
             scoring_weights, side_figures, right_sides_are_the_weights, means_and_deviations]
    failures = 0
    for check in cases + [lambda: whole_run(folder)]:
        found, wanted = check()
        if found != wanted:
            failures += 1
            print(f"by hand, {check.__name__}: wanted {wanted}, got {found}")
    print(f"{len(cases) + 1} cases worked out by hand, {failures} failures")
    return failures
