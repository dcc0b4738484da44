"""Checks and reading of the files of a simulation."""

import math
from dataclasses import dataclass
from itertools import combinations
from pathlib import Path

from reference_input import (MAX_ALLELES, PARENTS_ODD, PARENTS_UNDEFINED, InputFault,
                             check_loci, check_sequence, counted_records, has_odd_field,
                             loci_in_use, read_individuals, read_tokens, require,
                             undefined_halves, MAX_DIGITS)
from simulation_flows import origins_of, proportions_of

HALF_DEFINED = ("{}oci should contain totally defined alleles(no string of 0s) "
                "or totally undefined alleles (two strings of 0s)!")
SAMPLE_HALF = HALF_DEFINED.format("L")
MALE_HALF = HALF_DEFINED.format("Male l")
FEMALE_HALF = HALF_DEFINED.format("Femele l")
MOST_ITERATIONS = 1000
MOST_SUBSETS = 2 ** 20


@dataclass
class GroupFile:
    """One parental group: its file as typed and what to draw from it."""
    path: str
    half_sentence: str    # sentence when exactly one allele of a locus is missing
    collected: bool       # real parents, read as they are; else a sample to draw from
    count: float | None   # simulated parents to draw
    empty_sentence: str = "File name is missing!"
    tokens: list = None
    individuals: list = None


@dataclass
class SimulationInputs:
    """The files of a run after every check has passed."""
    locus_names: list
    in_use: list
    digits: int
    groups: list          # GroupFile per parental group, in the order of the parent table
    proportions: object
    subsets: list         # per subset, its loci in the order in which they entered


def group_files(settings):
    """The parental groups in the order in which they are drawn and stand in the table."""
    if not settings.sexed:
        if settings.parental:
            first = GroupFile(settings.collected_parents, "", True, None,
                              "Parent file name is missing!")
        else:
            # An offspring of two collected parents needs two of them.
            first = GroupFile(settings.pseudo_collected_sample, SAMPLE_HALF, False,
                              max(2, settings.pseudo_collected))
        return [first, GroupFile(settings.uncollected_sample, SAMPLE_HALF, False,
                                 settings.uncollected)]
    groups = []
    for sex, sentence in (("male", MALE_HALF), ("female", FEMALE_HALF)):
        if settings.parental:
            groups.append(GroupFile(getattr(settings, f"collected_{sex}s"), sentence, True, None,
                                    "Parent file name is missing!"))
        else:
            groups.append(GroupFile(getattr(settings, f"pseudo_collected_{sex}_sample"), sentence,
                                    False, getattr(settings, f"pseudo_collected_{sex}s")))
    for sex, sentence in (("male", MALE_HALF), ("female", FEMALE_HALF)):
        groups.append(GroupFile(getattr(settings, f"uncollected_{sex}_sample"), sentence, False,
                                getattr(settings, f"uncollected_{sex}s")))
    return groups


# ---------------------------------------------------------------- fixed checks

def check_numbers(settings):
    """Limits of the counts, in the order in which a user meets them."""
    require(settings.tolerance >= 0, "Enter a positive number")
    if not settings.sexed:
        require(settings.iterations < MOST_ITERATIONS,
                "Number of iterations must be inferior to 1000")
    require(0 <= settings.criterion <= 1, "Enter number between 0 and 1")
    require(settings.start_with >= 1, "The minimum number of loci to start with is 1")
    require(settings.iterations > 0, "No iteration!")
    require(settings.offspring_per_iteration > 0, "No pseudo-offspring!")
    if settings.sexed:
        collected = [settings.pseudo_collected_males, settings.pseudo_collected_females]
        uncollected = [settings.uncollected_males, settings.uncollected_females]
        estimated = [settings.estimated_collected_males, settings.estimated_uncollected_males,
                     settings.estimated_collected_females, settings.estimated_uncollected_females]
        for value in estimated:
            require(math.isfinite(value) and value >= 0, "An estimate is below 0!")
        require(estimated[0] + estimated[1] > 0 and estimated[2] + estimated[3] > 0,
                "No parent is estimated!")
    else:
        collected, uncollected = [settings.pseudo_collected], [settings.uncollected]
    require(all(one is None or one > 0 for one in collected), "No pseudo-collected parent!")
    require(all(math.isfinite(one) and one >= 0 for one in uncollected),
            "A number of uncollected parents is below 0!")


def check_simulated_error(model):
    """At most one transmitted allele in ten may be misread."""
    if model.kind == "uniform":
        require(model.epsilon <= 0.1, "Espilon should be between 0 and 0.1")
    if model.kind == "nonuniform":
        minus2, minus1, focal, plus1, plus2 = model.values
        require(0.9 <= focal <= 1.0, "Focal allele must be between 0.9 and 1.0")
        require(plus2 + plus1 + minus1 + minus2 + focal == 1.0, "Sum of probabilities must be 1")


def check_group_contents(group, locus_count):
    """Collected parents are typed everywhere; in a sample a locus may be missing as a whole."""
    records, expected = counted_records(group.tokens, locus_count, False)
    require(not has_odd_field(records, expected), PARENTS_ODD)
    halves = [undefined_halves(field) for fields in records for field in fields]
    if group.half_sentence:
        require(1 not in halves, group.half_sentence)
    if group.collected:
        require(not any(halves), PARENTS_UNDEFINED)


# -------------------------------------------------- stricter checks and reading

def read_group(group, locus_count, in_use, digits):
    group.individuals = read_individuals(group.tokens, locus_count, in_use, digits, False)
    require(group.individuals, "A file of parents is empty!")
    require(not any(one.name.startswith("*") for one in group.individuals),
            "Separators have no place in a simulation!")
    for locus in in_use:
        sizes = {size for one in group.individuals for size in one.genotypes[locus]} - {0}
        require(sizes, "A sample has no allele at a locus in use!")
        require(len(sizes) <= MAX_ALLELES, "Too many alleles at a locus!")


def group_size(group):
    """Parents that a group holds in an iteration; a fraction counts as one more."""
    return len(group.individuals) if group.collected else math.ceil(group.count)


def check_group_sizes(groups, sizes, sexed):
    """A class with offspring needs its parents, and two different ones of one group."""
    for origin, size in zip(origins_of(sexed), sizes):
        first, second = origin.groups
        needed = 2 if first == second else 1
        if size > 0:
            require(group_size(groups[first]) >= needed and group_size(groups[second]) >= needed,
                    "A class of pseudo-offspring lacks its parents!")


def subsets_of(settings, in_use):
    """The subsets of loci in the order in which they run."""
    count, start = len(in_use), settings.start_with
    if settings.strategy == "choice":
        return [in_use]
    require(start <= count, "Too few loci in use to start with!")
    if settings.strategy == "cumulative":
        order = sorted(in_use, key=lambda locus: settings.sequence[locus]) \
            if settings.sequence else in_use
        return [order[:size] for size in range(start, count + 1)]
    number = sum(math.comb(count, size) for size in range(start, count + 1))
    require(number <= MOST_SUBSETS, f"{number} subsets are too many!")
    return [list(loci) for size in range(start, count + 1)
            for loci in combinations(in_use, size)]


def check_and_read_simulation(settings, folder="."):
    """Run every check, then return the inputs; nothing is written here."""
    folder = Path(folder)
    require(settings.project, "Please enter name of project!")
    require(settings.loci, "Names of loci file name is missing!")
    groups = group_files(settings)
    for group in groups:
        require(group.path, group.empty_sentence)
    texts = []
    for path in [settings.loci] + [group.path for group in groups]:
        try:
            texts.append(read_tokens(folder / path))
        except OSError:
            raise InputFault(f'Cannot open file "{path}"!') from None
    locus_names = texts[0]
    for group, tokens in zip(groups, texts[1:]):
        group.tokens = tokens
    check_numbers(settings)
    for group in groups:
        check_group_contents(group, len(locus_names))
    check_simulated_error(settings.error)
    check_sequence(settings.sequence, len(locus_names))

    check_loci(locus_names)
    in_use = loci_in_use(locus_names, settings.use)
    require(len(groups[0].tokens) > 1, "No parent!")
    digits = len(groups[0].tokens[1])
    require(digits <= MAX_DIGITS, "A genotype has too many digits!")
    for group in groups:
        read_group(group, len(locus_names), in_use, digits)
    collected = len(groups[0].individuals) if settings.parental else settings.pseudo_collected
    proportions = proportions_of(settings, collected)
    check_group_sizes(groups, proportions.sizes, settings.sexed)
    return SimulationInputs(locus_names, in_use, digits, groups, proportions,
                            subsets_of(settings, in_use))


def saved_loci(names):
    """The loci-save file: the names on one line, each followed by a blank."""
    return "".join(name + " " for name in names)
