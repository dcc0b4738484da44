"""What differs between the two flows: parental groups, origin classes, their sizes.

The parents of an iteration stand in one table, group after group. Non-sexed:
0 collected, 1 uncollected. Sexed: 0 collected males, 1 collected females,
2 uncollected males, 3 uncollected females.
"""

from dataclasses import dataclass

MALE, FEMALE = "male", "female"


@dataclass(frozen=True)
class Row:
    """One kind of decision: what was allocated and how much of it was right."""
    allocated: str
    correct: str
    weight: int      # right sides of two, as the frequency of correct decisions counts them


@dataclass(frozen=True)
class Origin:
    """Pseudo-offspring whose true parents come from the same two groups."""
    label: str
    groups: tuple         # groups of the first and of the second true parent
    uncollected: tuple    # sexed: sides whose true parent is uncollected; else their number
    rows: tuple


def rows_of(*triples):
    return tuple(Row(*triple) for triple in triples)


BOTH = "male, female"

SEXED_ORIGINS = (
    Origin("MC x FC", (0, 1), (), rows_of(
        (BOTH, BOTH, 2), (BOTH, MALE, 1), (BOTH, FEMALE, 1), (BOTH, "none", 0),
        (MALE, MALE, 1), (MALE, "none", 0), (FEMALE, FEMALE, 1), (FEMALE, "none", 0),
        ("none", "none", 0))),
    Origin("MC x FU", (0, 3), (FEMALE,), rows_of(
        (BOTH, MALE, 1), (BOTH, "none", 0), (MALE, MALE, 2), (MALE, "none", 1),
        (FEMALE, "none", 1), ("none", "none", 1))),
    Origin("MU x FC", (2, 1), (MALE,), rows_of(
        (BOTH, FEMALE, 1), (BOTH, "none", 0), (MALE, "none", 1), (FEMALE, FEMALE, 2),
        (FEMALE, "none", 1), ("none", "none", 1))),
    Origin("MU x FU", (2, 3), (MALE, FEMALE), rows_of(
        (BOTH, "none", 0), (MALE, "none", 1), (FEMALE, "none", 1), ("none", "none", 2))),
)

NON_SEXED_ORIGINS = (
    Origin("C X C :", (0, 0), (), rows_of(
        ("2 C", "2", 2), ("2 C", "1", 1), ("2 C", "0", 0),
        ("C + UC", "1", 1), ("C + UC", "0", 0), ("2 UC", "0", 0))),
    Origin("C X U :", (0, 1), ("one",), rows_of(
        ("2 C", "1", 1), ("2 C", "0", 0), ("C + UC", "1", 2), ("C + UC", "0", 1),
        ("2 UC", "0", 1))),
    Origin("U X U :", (1, 1), ("one", "other"), rows_of(
        ("2 C", "0", 0), ("C + UC", "0", 1), ("2 UC", "0", 2))),
)


def origins_of(sexed):
    return SEXED_ORIGINS if sexed else NON_SEXED_ORIGINS


@dataclass(frozen=True)
class Proportions:
    """Class sizes and weights of a run."""
    shares: tuple      # the proportion(s) of collected parents
    sizes: tuple       # pseudo-offspring per class and iteration
    weights: tuple     # expected share of each class in the population


def non_sexed_proportions(count, collected, uncollected):
    """Each class is cut down to whole offspring; the rest is not produced."""
    total = float(collected) + uncollected
    p, q = collected / total, uncollected / total
    sizes = (int(count * p * p), int(2 * count * p * q), int(count * q * q))
    return Proportions((p,), sizes, (p * p, 2 * p * (1 - p), (1 - p) * (1 - p)))


def sexed_proportions(count, males, missed_males, females, missed_females):
    """As above with one proportion per sex."""
    pm = males / (males + missed_males)
    pf = females / (females + missed_females)
    sizes = (int(count * pf * pm), int((1 - pf) * count * pm),
             int((1 - pm) * count * pf), int((1 - pm) * (1 - pf) * count))
    weights = (pm * pf, pm * (1 - pf), (1 - pm) * pf, (1 - pm) * (1 - pf))
    return Proportions((pm, pf), sizes, weights)


def proportions_of(settings, collected_count):
    """Proportions of a run; collected_count is that of the file or as typed."""
    count = settings.offspring_per_iteration
    if not settings.sexed:
        return non_sexed_proportions(count, collected_count, settings.uncollected)
    return sexed_proportions(
        count, settings.estimated_collected_males, settings.estimated_uncollected_males,
        settings.estimated_collected_females, settings.estimated_uncollected_females)
