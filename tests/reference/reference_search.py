"""Likelihood of parental pairs, the search, and the verdict on the chosen pair."""

from dataclasses import dataclass, field

MOST_PAIRS = 5
NAME_PREFIX = 10   # bytes of a name by which two individuals count as the same


@dataclass
class Comparison:
    """One offspring locus against the chosen pair."""
    offset1: int
    offset2: int
    record: str     # fragment of the transmission matrices report


@dataclass
class Outcome:
    """What the search and the verdict found for one offspring."""
    pairs: list = field(default_factory=list)   # (parent 1, parent 2) as slots of the parents
    more_than_five: bool = False
    best: float = 0.0
    comparisons: list = field(default_factory=list)
    uncollected: tuple = (False, False)
    errors: tuple = (0, 0)

    def offsets(self, side):
        return [c.offset1 if side == 0 else c.offset2 for c in self.comparisons]


LABELS = ["Erreur", "cond_aucun", "cond_complet", "cond_un_a_chacun",
          "cond_RR_par1_seul", "cond_RR_par2_seul", "cond_RJ_R_par1", "cond_RJ_R_par2",
          "cond_RJ_J_par1", "cond_RJ_J_par2", "cond_RJ_RJ_par1", "cond_RJ_RJ_par2"]


# --------------------------------------------------------- one locus of one pair

def classify(child, parent1, parent2):
    """Which of the child's alleles R and J each parent carries exactly.

    Later rules overwrite earlier ones.
    """
    r, j = child
    r1, j1, r2, j2 = r in parent1, j in parent1, r in parent2, j in parent2
    condition = 0
    if not (r1 or j1 or r2 or j2):
        condition = 1
    if (r1 and j2) or (j1 and r2):
        condition = 2
    if r != j:
        carried = (r1, j1, r2, j2)
        if carried in ((True, False, True, False), (False, True, False, True)):
            condition = 3
        if carried == (False, True, False, False):
            condition = 8
        if carried == (False, False, False, True):
            condition = 9
        if carried == (True, False, False, False):
            condition = 6
        if carried == (False, False, True, False):
            condition = 7
        if carried == (True, True, False, False):
            condition = 10
        if carried == (False, False, True, True):
            condition = 11
    if r == j and r1 and not r2:
        condition = 4
    if r == j and r2 and not r1:
        condition = 5
    return condition


def measure_one(allele, parent):
    """Distance of a parent to the one child allele it must have given, and its notation."""
    first, second = (abs(allele - size) for size in parent)
    distance = min(first, second)
    if first == second and parent[0] != parent[1]:
        return distance, f"[dm={distance},{allele}]"
    nearest = parent[0] if first <= second else parent[1]
    return distance, f"[{nearest},{allele}]"


def measure_both(child, parent):
    """Distance of a parent to the nearer of both child alleles, and its notation."""
    sizes = parent[:1] if parent[0] == parent[1] else parent
    couples = [(abs(allele - size), size, allele) for allele in child for size in sizes]
    distance = min(couple[0] for couple in couples)
    nearest = [couple for couple in couples if couple[0] == distance]
    if len(nearest) > 1:
        return distance, f"[dm={distance}]"
    return distance, f"[{nearest[0][1]},{nearest[0][2]}]"


def compare_locus(child, parent1, parent2, unit):
    """Classify one locus and measure the parent that does not explain the child.

    An offset is the distance in whole repeats, the remainder dropped.
    """
    condition = classify(child, parent1, parent2)
    r, j = child
    offset1 = offset2 = 0
    distances, offsets = "[0,0]", None
    if condition == 1 and child == (0, 0):
        notation = distances = offsets = "[*,*]"
    elif condition == 1:
        d1 = min(abs(allele - size) for allele in child for size in parent1)
        d2 = min(abs(allele - size) for allele in child for size in parent2)
        offset1, offset2 = d1 // unit, d2 // unit
        notation, distances = f"[[dm={d1}],[dm={d2}]]", f"[{d1},{d2}]"
    elif condition == 2:
        notation = "[[],[]]"
    elif condition == 3:
        notation, distances = "[['#'],['#']]", "[#,#]"
    else:
        first_measured = condition in (5, 7, 9, 11)
        parent = parent1 if first_measured else parent2
        if condition in (10, 11):
            distance, part = measure_both(child, parent)
        else:
            distance, part = measure_one(j if condition in (6, 7) else r, parent)
        if first_measured:
            offset1 = distance // unit
            notation, distances = f"[{part},[]]", f"[{distance},0]"
        else:
            offset2 = distance // unit
            notation, distances = f"[[],{part}]", f"[0,{distance}]"
    offsets = offsets or f"[{offset1},{offset2}]"
    return Comparison(offset1, offset2,
                      f"{LABELS[condition]}\t\t{notation}\t\t{distances}\t/ {unit}\t{offsets}")


# ------------------------------------------------------------ likelihood, search

def transmission_scores(parent, child, loci, catalogues, matrices):
    """Per locus, the scores of a parent for the child's first and second allele.

    A missing child locus gets scores that multiply to exactly one in a pair.
    """
    scores = []
    for locus in loci:
        if child.genotypes[locus] == (0, 0):
            scores.append((1.0, 0.5))
            continue
        look_up, matrix = catalogues[locus].look_up, matrices[locus]
        p1, p2 = (look_up(size) for size in parent.genotypes[locus])
        r, j = (look_up(size) for size in child.genotypes[locus])
        scores.append((matrix[p1][r] + matrix[p2][r], matrix[p1][j] + matrix[p2][j]))
    return scores


def pair_likelihood(scores1, scores2):
    """Product over the loci; the first locus starts it."""
    product = None
    for (r1, j1), (r2, j2) in zip(scores1, scores2):
        term = r1 * j2 + j1 * r2
        product = term if product is None else product * term
    return product


def groups_of(individuals):
    """Positions of the parents between the separators; a group may be empty."""
    groups = [[]]
    for position, individual in enumerate(individuals):
        if individual.separator:
            groups.append([])
        else:
            groups[-1].append(position)
    return groups


def candidate_rows(parent_files):
    """(first parent, its possible partners) in search order, as slots of the parents.

    Only parents of one group (a pond, a site) can have met.
    """
    if len(parent_files) == 1:
        for group in groups_of(parent_files[0]):
            for position, first in enumerate(group):
                yield first, group[position + 1:]
    else:
        males, females = parent_files
        for male_group, female_group in zip(groups_of(males), groups_of(females)):
            for male in male_group:
                yield male, [len(males) + female for female in female_group]


def is_repeated(pair, stored, names, sexed):
    """True when the pair repeats a stored one by name.

    The same individual sampled twice must not count as two pairs. Two parents of
    unknown sex are the same pair in either order.
    """
    first, second = (names[one][:NAME_PREFIX] for one in pair)
    stored1, stored2 = (names[one][:NAME_PREFIX] for one in stored)
    crosswise = not sexed and (first, second) == (stored2, stored1)
    return (first, second) == (stored1, stored2) or crosswise


def search_pairs(child, parent_files, loci, catalogues, matrices):
    """Keep the first five of the most likely pairs of collected parents.

    Once a sixth one is met the partners left in that row are not looked at; the
    mark stays even when a more likely pair turns up later.
    """
    outcome = Outcome()
    parents = [one for file in parent_files for one in file]
    names = [one.name for one in parents]
    scores = [None if one.separator else
              transmission_scores(one, child, loci, catalogues, matrices) for one in parents]
    for first, partners in candidate_rows(parent_files):
        for second in partners:
            pair = (first, second)
            likelihood = pair_likelihood(scores[first], scores[second])
            if likelihood > outcome.best:
                outcome.pairs, outcome.best = [pair], likelihood
            elif likelihood == outcome.best and likelihood != 0 and not any(
                    is_repeated(pair, stored, names, len(parent_files) == 2)
                    for stored in outcome.pairs):
                if len(outcome.pairs) == MOST_PAIRS:
                    outcome.more_than_five = True
                    break
                outcome.pairs.append(pair)
    return outcome


def judge_first_pair(outcome, child, parents, loci, catalogues, tolerance):
    """Compare the child with its first pair and decide which parent is uncollected.

    One locus beyond the tolerance is enough to reject a parent; an offset within
    it is accepted as a typing error and counted.
    """
    if not outcome.pairs:
        return
    first, second = (parents[one] for one in outcome.pairs[0])
    outcome.comparisons = [
        compare_locus(child.genotypes[locus], first.genotypes[locus],
                      second.genotypes[locus], catalogues[locus].unit) for locus in loci]
    sides = [outcome.offsets(0), outcome.offsets(1)]
    outcome.uncollected = tuple(any(o > tolerance for o in offsets) for offsets in sides)
    outcome.errors = tuple(sum(o != 0 for o in offsets) for offsets in sides)
