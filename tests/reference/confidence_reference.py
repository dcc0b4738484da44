"""How sure each allocation is, the slow way: every pair of every offspring.

The tables of the program are read as a statistics program reads them, and every figure in them is
compared with the plain sums. Who stands in a table need not be who comes first here: where two
candidates are equally probable, either will do.
"""

import csv
import io
import math
from collections import defaultdict
from itertools import combinations

from reference_search import groups_of, pair_likelihood, transmission_scores

TOLERANCE = 3e-6   # of probabilities: pairs left out weigh a millionth
LEVEL, SURE = 0.8, 0.95


def near(text, value, tolerance=TOLERANCE):
    """Whether a cell holds a number, or NA for None."""
    if value is None or text == "NA":
        return value is None and text == "NA"
    return abs(float(text) - value) <= tolerance * max(1.0, abs(value))


class Posteriors:
    """The posterior probabilities of all offspring; meaningful is False for negative ones."""

    def __init__(self, settings, inputs, loci, catalogues, matrices):
        self.sexed, self.loci, self.catalogues = settings.sexed, loci, catalogues
        self.files, self.offspring = inputs.parent_files, inputs.offspring
        self.parents = [one for file in self.files for one in file]
        error = settings.error
        free = 0.0 if error.kind == "uniform" and error.epsilon != 0 else 0.01
        self.matrices = {locus: [[1.0] if len(matrix) == 1 else
                                 [(1 - free) * cell + free / len(matrix) for cell in row]
                                 for row in matrix] for locus, matrix in matrices.items()}
        self.meaningful = all(cell >= 0 for matrix in self.matrices.values()
                              for row in matrix for cell in row)
        self.copies = {locus: self.count_copies(locus) for locus in loci}
        if self.meaningful:
            self.ways = [self.all_ways(child) for child in self.offspring]
            self.estimate_shares()

    def count_copies(self, locus):
        sizes = [size for one in self.parents for size in one.genotypes[locus] if size != 0]
        return [sizes.count(size) for size in self.catalogues[locus].listed]

    def scores_of_stranger(self, child):
        scores = []
        for locus in self.loci:
            if child.genotypes[locus] == (0, 0):
                scores.append((1.0, 0.5))
                continue
            copies = [count + 0.5 for count in self.copies[locus]]
            scores.append(tuple(
                sum(2 * count / sum(copies) * row[self.catalogues[locus].look_up(size)]
                    for count, row in zip(copies, self.matrices[locus]))
                for size in child.genotypes[locus]))
        return scores

    def all_ways(self, child):
        """(explanation, parents, likelihood over that of two strangers)."""
        stranger = self.scores_of_stranger(child)
        factors = [pair_likelihood([one], [one]) for one in stranger]

        def likelihood(*pair):
            return math.prod(pair_likelihood([a], [b]) / factor
                             for a, b, factor in zip(*pair, factors))

        scores = [None if one.separator else
                  transmission_scores(one, child, self.loci, self.catalogues, self.matrices)
                  for one in self.parents]
        ways = [("none", (None, None), 1.0)]
        males = len(self.files[0])
        groups = [groups_of(file) for file in self.files]
        for k, first in enumerate(groups[0]):
            second = [males + place for place in groups[1][k]] if self.sexed else []
            pairs = ([(i, j) for i in first for j in second] if self.sexed
                     else combinations(first, 2))
            ways += [("both", (i, j), likelihood(scores[i], scores[j])) for i, j in pairs]
            only = "father" if self.sexed else "one"
            ways += [(only, (i, None), likelihood(scores[i], stranger)) for i in first]
            ways += [("mother", (None, j), likelihood(stranger, scores[j])) for j in second]
        return ways

    def estimate_shares(self):
        counts = defaultdict(int)
        for explanation, _, _ in self.ways[0]:
            counts[explanation] += 1
        self.counts = counts
        means = []
        for ways in self.ways:
            sums = dict.fromkeys(counts, 0.0)
            for explanation, _, likelihood in ways:
                sums[explanation] += likelihood / counts[explanation]
            means.append(sums)
        informative = [mean for mean, child in zip(means, self.offspring)
                       if any(child.genotypes[locus] != (0, 0) for locus in self.loci)]
        start = 1 / len(counts)
        theta, change = dict.fromkeys(counts, start), 1.0
        while change >= 1e-10:
            sums = dict.fromkeys(counts, start)
            for mean in informative:
                total = sum(theta[k] * mean[k] for k in counts)
                for k in counts:
                    sums[k] += theta[k] * mean[k] / total
            new = {k: sums[k] / (len(informative) + 1) for k in counts}
            change = sum(abs(new[k] - theta[k]) for k in counts)
            theta = new
        self.theta = theta
        self.totals = [sum(theta[k] * mean[k] for k in counts) for mean in means]

    def probabilities(self, number):
        """((explanation, parents), probability) of every way."""
        return {(k, pair): self.theta[k] * likelihood / self.counts[k] / self.totals[number]
                for k, pair, likelihood in self.ways[number]}

    def candidates(self, probabilities, side):
        """The probability of every candidate: of a side, or of any."""
        places = (range(len(self.files[0])), range(len(self.files[0]), len(self.parents)))
        sums = {place: 0.0 for place in (places[side] if self.sexed else range(len(self.parents)))
                if not self.parents[place].separator}
        for (_, pair), probability in probabilities.items():
            for parent in pair:
                if parent in sums:
                    sums[parent] += probability
        return sums


class Row:
    """One row of Confidence.tsv beside the posteriors of its offspring."""

    def __init__(self, posteriors, number, outcome, cells):
        self.all, self.number, self.cells = posteriors, number, cells
        self.probabilities = posteriors.probabilities(number)
        self.reported = self.reported_sides(outcome)
        self.sides = ("father", "mother") if posteriors.sexed else ("parent1", "parent2")

    def reported_sides(self, outcome):
        if not outcome.pairs:
            return [None, None]
        sides = [None if rejected else parent
                 for parent, rejected in zip(outcome.pairs[0], outcome.uncollected)]
        return sides if self.all.sexed or sides[0] is not None else sides[::-1]

    def explained(self, *explanations):
        return sum(p for (k, _), p in self.probabilities.items() if k in explanations)

    def is_one_of(self, name, wanted, probabilities):
        """Whether some candidate of that name has that probability."""
        if wanted is None or name == "NA":
            return wanted is None and name == "NA"
        return any(self.all.parents[place].name == name and abs(p - wanted) <= TOLERANCE
                   for place, p in probabilities.items())

    def typed(self, individual):
        return sum(individual.genotypes[locus] != (0, 0) for locus in self.all.loci)

    def faults(self):
        """The columns that are wrong."""
        child, cells = self.all.offspring[self.number], self.cells
        right = {"offspring": cells["offspring"] == child.name,
                 "loci_typed": cells["loci_typed"] == str(self.typed(child))}
        for side in (0, 1):
            right |= self.judge_side(side)
        right |= self.judge_assignment() | self.judge_best_pair()
        assert right.keys() == cells.keys(), right.keys() ^ cells.keys()
        return [column for column, is_right in right.items() if not is_right]

    def uncollected(self, side):
        if self.all.sexed:
            return self.explained("none", ("mother", "father")[side])
        return self.explained("none", "one") if side else self.explained("none")

    def judge_side(self, side):
        x, cells, sexed = self.sides[side], self.cells, self.all.sexed
        candidates = self.all.candidates(self.probabilities, side)
        ranked = sorted(candidates.values(), reverse=True) + [None] * 3
        best, next_one = ranked[0 if sexed else side], ranked[1 if sexed else 2]
        gone = self.uncollected(side)
        verdict = "named" if (best or 0) >= LEVEL else "uncollected" if gone >= LEVEL else "open"
        is_close = min(abs((best or 0) - LEVEL), abs(gone - LEVEL)) <= TOLERANCE
        reported = self.reported[side]
        if reported is not None:
            p_reported = candidates[reported]
        else:
            p_reported = self.uncollected(side if sexed or self.reported[1 - side] is None else 1)
        name = "UC" if reported is None else self.all.parents[reported].name
        typed = [str(self.typed(one)) for one in self.all.parents if one.name == cells[x]]
        return {x: self.is_one_of(cells[x], best, candidates),
                f"p_{x}": near(cells[f"p_{x}"], best),
                f"{x}_verdict": cells[f"{x}_verdict"] == verdict or is_close,
                f"{x}_runner_up": self.is_one_of(cells[f"{x}_runner_up"], next_one, candidates),
                f"p_{x}_runner_up": near(cells[f"p_{x}_runner_up"], next_one),
                f"p_{x}_uncollected": near(cells[f"p_{x}_uncollected"], gone),
                f"{x}_reported": cells[f"{x}_reported"] == name,
                f"p_{x}_reported": near(cells[f"p_{x}_reported"], p_reported),
                f"{x}_loci_typed": cells[f"{x}_loci_typed"] in (typed or ["NA"])}

    def judge_assignment(self):
        best = max(self.probabilities.values())
        named = [self.cells[f"best_{x}"] for x in self.sides]
        found = any(abs(p - best) <= TOLERANCE and k == self.cells["explanation"] and
                    [self.name_of(one) for one in pair] == named
                    for (k, pair), p in self.probabilities.items())
        return {"explanation": found, "p_explanation": near(self.cells["p_explanation"], best),
                **{f"best_{x}": found for x in self.sides}}

    def name_of(self, place):
        return "NA" if place is None else self.all.parents[place].name

    def judge_best_pair(self):
        ways = {pair: likelihood for _, pair, likelihood in self.all.ways[self.number]}
        pairs = sorted(((value, pair) for pair, value in ways.items() if None not in pair),
                       reverse=True)
        ties = [pair for value, pair in pairs if value >= pairs[0][0] * (1 - 1e-12)]
        second = math.log(pairs[0][0] / pairs[1][0]) if len(pairs) > 1 else None
        partners = [(None, 1), (0, None)]
        right = {"ln_best_second": near(self.cells["ln_best_second"], second),
                 "tied_pairs": min(len(ties), 1) <= int(self.cells["tied_pairs"]) <= len(ties)}
        for x, places in zip(self.sides, partners):
            column = f"ln_pair_unknown_{x}"
            right[column] = not ties and self.cells[column] == "NA"
            for tie in ties:
                others = [tuple(None if place is None else tie[place] for place in places)]
                others += [] if self.all.sexed else [others[0][::-1]]
                against = next(ways[one] for one in others if one in ways)
                right[column] |= near(self.cells[column], math.log(pairs[0][0] / against))
        return right


def rows_of(text):
    return list(csv.DictReader(io.StringIO(text), delimiter="\t"))


def confidence_fault(text, posteriors, outcomes):
    """What is wrong with Confidence.tsv, or None; it is None itself where it must not be."""
    if text is None or not posteriors.meaningful:
        return None if text is None and not posteriors.meaningful else "there, or not there"
    rows = rows_of(text)
    if len(rows) != len(outcomes):
        return f"{len(rows)} rows for {len(outcomes)} offspring"
    for number, (cells, outcome) in enumerate(zip(rows, outcomes)):
        faults = Row(posteriors, number, outcome, cells).faults()
        if faults:
            return f"offspring {number + 1}: {faults} of {cells}"
    return None


def exclusions(copies):
    """How often random individuals are seen to be no parents, by what they carry."""
    shares = [count / sum(copies) for count in copies if count]
    carries = [1 - (1 - p) ** 2 for p in shares]
    alone = second = pair = 0.0
    for x, p in enumerate(shares):
        for y, q in enumerate(shares):   # the child got x and y
            alone += p * q * (1 - p - (q if x != y else 0)) ** 2
            both = 2 * carries[x] * carries[y] - (2 * p * q) ** 2 if x != y else carries[x] ** 2
            pair += p * q * (1 - both)
            for z, r in enumerate(shares):   # the known parent has x and z, and gave x
                possible = {y} | ({x} if y == z else set())
                second += p * q * r * (1 - sum(shares[allele] for allele in possible)) ** 2
    return alone, second, pair


def mismatches_at(posteriors, locus):
    """Mismatches of homozygotes, the fewest and the most: a probability may be near the limit."""
    counts = [0, 0]
    for number, child in enumerate(posteriors.offspring):
        probabilities = posteriors.probabilities(number)
        for side in (0, 1) if posteriors.sexed else (0,):
            for place, p in posteriors.candidates(probabilities, side).items():
                sizes = {child.genotypes[locus], posteriors.parents[place].genotypes[locus]}
                if (0, 0) not in sizes and len(sizes) == 2 and all(a == b for a, b in sizes):
                    counts[0] += p >= SURE + TOLERANCE
                    counts[1] += p >= SURE - TOLERANCE
    return counts


def figures_of(posteriors, locus):
    """The figures of a locus by column."""
    catalogue, copies = posteriors.catalogues[locus], posteriors.copies[locus]
    typed = [one.genotypes[locus] for one in posteriors.parents if one.genotypes[locus] != (0, 0)]
    genes = sum(copies)
    observed = sum(a != b for a, b in typed) / len(typed)
    expected = sum(count * (genes - count) for count in copies) / (genes * (genes - 1))
    content = sum(2 * a * b / genes ** 2 * (1 - a * b / genes ** 2)
                  for a, b in combinations(copies, 2))
    one, second, pair = exclusions(copies)
    return {"alleles": len(copies), "unit_distance": catalogue.unit if len(copies) > 1 else None,
            "typed_parents": len(typed),
            "typed_offspring": sum(one.genotypes[locus] != (0, 0) for one in posteriors.offspring),
            "observed_heterozygosity": observed, "expected_heterozygosity": expected,
            "pic": content, "exclusion_one_parent": one, "exclusion_second_parent": second,
            "exclusion_pair": pair, "null_allele_frequency": (expected - observed) / (1 + expected)}


def loci_fault(text, posteriors, names, out_of_step):
    """What is wrong with Loci.tsv, or None."""
    *rows, last = rows_of(text)
    loci = sorted(posteriors.loci)
    if [row["locus"] for row in rows] + [last["locus"]] != [names[k] for k in loci] + ["ALL"]:
        return "other loci"
    columns = defaultdict(list)
    for row, locus in zip(rows, loci):
        for column, value in figures_of(posteriors, locus).items():
            columns[column].append(value)
            if not near(row[column], value, 1e-7):
                return f"{column} of {names[locus]} is {row[column]}, not {value}"
        if row["in_step"] != ("FALSE" if locus in out_of_step else "TRUE"):
            return f"in_step of {names[locus]}"
        found = row["homozygote_mismatches"]
        fewest, most = mismatches_at(posteriors, locus) if posteriors.meaningful else (0, 0)
        if (found != "NA" and not fewest <= int(found) <= most) or (
                (found == "NA") == posteriors.meaningful):
            return f"{found} mismatches at {names[locus]}, not {fewest}"
    for column, values in columns.items():
        if column.startswith("exclusion"):
            wanted = 1 - math.prod(1 - value for value in values)
        else:
            wanted = None if column == "unit_distance" else sum(values) / len(values)
        if not near(last[column], wanted, 1e-7):
            return f"{column} of all loci is {last[column]}, not {wanted}"
    return None
