"""Allocation of the pseudo-offspring and comparison with their true parents."""

from dataclasses import dataclass, field

from reference_input import ErrorModel
from reference_search import judge_first_pair, search_pairs
from reference_tables import transmission_matrix
from simulation_flows import FEMALE, MALE, origins_of

BEST_KEYS = {True: ("both", "male", "female", "none", "nulls", "ambiguous"),
             False: ("2", "1", "0", "nulls", "ambiguous")}


@dataclass
class ClassCounts:
    """What became of the pseudo-offspring of one origin class in one iteration."""
    size: int
    rows: list                       # per row of the class, how many
    best: dict                       # the best pair before the decision
    first_correct: list = field(default_factory=lambda: [0, 0, 0])
    # non-sexed: pseudo-offspring with 0, 1, 2 true parents in the first pair


@dataclass
class Iteration:
    """Counts and, for the reports, the offspring with their outcomes."""
    counts: list
    population: object
    outcomes: list


def sides_label(male, female):
    if male and female:
        return "male, female"
    if male:
        return MALE
    return FEMALE if female else "none"


def decision_labels(child, outcome, sexed):
    """What was allocated after the tolerance, and how much of it is right."""
    accepted = [bool(outcome.pairs) and not rejected for rejected in outcome.uncollected]
    pair = outcome.pairs[0] if outcome.pairs else (None, None)
    truth = (child.first, child.second)
    if sexed:
        right = [taken and one == true for taken, one, true in zip(accepted, pair, truth)]
        return sides_label(*accepted), sides_label(*right)
    right = sum(taken and one in truth for taken, one in zip(accepted, pair))
    return ("2 UC", "C + UC", "2 C")[sum(accepted)], str(right)


def best_pair_key(child, outcome, sexed):
    """Verdict on the best pair itself, whatever its offsets.

    Several equally likely pairs are ambiguous, and so is an offspring that once
    had more than five of them, also when a better pair came later.
    """
    if not outcome.pairs:
        return "nulls"
    if outcome.more_than_five or len(outcome.pairs) > 1:
        return "ambiguous"
    pair, truth = outcome.pairs[0], (child.first, child.second)
    if sexed:
        right = (pair[0] == truth[0], pair[1] == truth[1])
        return {(True, True): "both", (True, False): "male",
                (False, True): "female", (False, False): "none"}[right]
    return str(sum(one in truth for one in pair))


def score_population(settings, population):
    """Allocate every pseudo-offspring to the collected parents and count.

    Without known sexes the allocation assumes that no allele is misread; with
    known sexes it assumes the errors that were simulated.
    """
    sexed = settings.sexed
    model = settings.error if sexed else ErrorModel("none")
    catalogues = population.catalogues
    loci = sorted(catalogues)
    matrices = {locus: transmission_matrix(model, catalogues[locus]) for locus in loci}
    candidate_files = population.groups[:2] if sexed else population.groups[:1]
    candidates = [one for file in candidate_files for one in file]
    iteration = Iteration([], population, [])
    for origin, produced in zip(origins_of(sexed), population.classes):
        labels = [(row.allocated, row.correct) for row in origin.rows]
        counts = ClassCounts(len(produced), [0] * len(labels), dict.fromkeys(BEST_KEYS[sexed], 0))
        for child in produced:
            outcome = search_pairs(child, candidate_files, loci, catalogues, matrices)
            judge_first_pair(outcome, child, candidates, loci, catalogues, settings.tolerance)
            counts.rows[labels.index(decision_labels(child, outcome, sexed))] += 1
            counts.best[best_pair_key(child, outcome, sexed)] += 1
            pair = outcome.pairs[0] if outcome.pairs else ()
            counts.first_correct[sum(one in (child.first, child.second) for one in pair)] += 1
            iteration.outcomes.append(outcome)
        iteration.counts.append(counts)
    return iteration
