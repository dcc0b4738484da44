"""Figures of an iteration, their means and their deviations over the iterations."""

import math

from simulation_flows import BOTH, FEMALE, MALE, origins_of

# ------------------------------------------------------------------ arithmetic


def total(values):
    """Plain sum from the left; the six printed digits depend on the order."""
    result = 0.0
    for value in values:
        result += value
    return result


def plain_mean(values):
    return total(values) / len(values)


def step_mean(values):
    """Mean formed by adding each value already divided."""
    return total(value / len(values) for value in values)


def root(value):
    """Rounding may leave a radicand below zero; the result is then no number."""
    return math.sqrt(value) if value >= 0 else math.nan


def deviation_about_mean(values):
    """Population form, from the distances to the mean."""
    mean = plain_mean(values)
    return root(total((value - mean) * (value - mean) for value in values) / len(values))


def deviation_from_squares(values, mean):
    """Population form, from the mean of the squares."""
    return root(total(value * value for value in values) / len(values) - mean * mean)


def table_deviation(values):
    return deviation_from_squares(values, plain_mean(values))


def step_deviation(values):
    return deviation_from_squares(values, step_mean(values))


def share(count, size):
    """A frequency; that of an empty class is 0."""
    return count / size if size else 0.0


def ratio(numerator, denominator):
    return numerator / denominator if denominator != 0 else 0.0


def weighted(weights, values):
    """Sum over the classes from the left."""
    result = weights[0] * values[0]
    for weight, value in zip(weights[1:], values[1:]):
        result += weight * value
    return result


def columns(rows):
    """The values of each column over the iterations."""
    return [list(column) for column in zip(*rows)]


# ------------------------------------------------------ figures of one iteration

def class_correct(origin, counts):
    """Frequency of correct decisions of a class."""
    return share(total(row.weight * count for row, count in zip(origin.rows, counts.rows)) / 2,
                 counts.size)


def sexed_side_counts(origin, counts):
    """Counts of sides by what was allocated and whether it was right."""
    found = dict.fromkeys(("MF", "MU", "UF", "UU", "M", "F", "CM", "CF", "UC", "CUC"), 0)
    kinds = {BOTH: "MF", MALE: "MU", FEMALE: "UF", "none": "UU"}
    for row, count in zip(origin.rows, counts.rows):
        found[kinds[row.allocated]] += count
        allocated = {MALE, FEMALE} if row.allocated == BOTH else {row.allocated} - {"none"}
        right = {MALE, FEMALE} if row.correct == BOTH else {row.correct} - {"none"}
        missed = {MALE, FEMALE} - allocated
        found["M"] += count * (MALE in allocated)
        found["F"] += count * (FEMALE in allocated)
        found["CM"] += count * (MALE in right)
        found["CF"] += count * (FEMALE in right)
        found["UC"] += count * len(missed)
        found["CUC"] += count * len(missed & set(origin.uncollected))
    return {name: share(count, counts.size) for name, count in found.items()}


def non_sexed_side_counts(origin, counts):
    """As above without sexes; an uncollected side is right as long as a parent is missing."""
    pairs = dict.fromkeys(("2 C", "C + UC", "2 UC"), 0)
    sides = dict.fromkeys(("COLL", "UNCOLL", "RCOLL", "RUNCOLL"), 0)
    for row, count in zip(origin.rows, counts.rows):
        allocated = {"2 C": 2, "C + UC": 1, "2 UC": 0}[row.allocated]
        pairs[row.allocated] += count
        sides["COLL"] += count * allocated
        sides["UNCOLL"] += count * (2 - allocated)
        sides["RCOLL"] += count * int(row.correct)
        sides["RUNCOLL"] += count * min(2 - allocated, len(origin.uncollected))
    figures = {name: share(count, counts.size) for name, count in pairs.items()}
    return figures | {name: share(count, 2 * counts.size) for name, count in sides.items()}


def sexed_table(counts):
    """Columns of the per-iteration table of a class."""
    both, male, female, none, nulls, ambiguous = (
        share(counts.best[key], counts.size)
        for key in ("both", "male", "female", "none", "nulls", "ambiguous"))
    return [both, male + female + none, both + male, female + none,
            both + female, male + none, ambiguous, nulls]


def sexed_ratios(values):
    """Share of the assigned pairs and parents that are right or wrong."""
    assigned = values[0] + values[1]
    return [ratio(value, assigned) for value in values[:6]]


def non_sexed_table(counts):
    return [share(counts.best[key], counts.size) for key in ("2", "1", "0", "ambiguous", "nulls")]


def non_sexed_ratios(values):
    assigned = values[0] + values[1] + values[2]
    return [ratio(value, assigned) for value in values[:3]]


def first_pair_figures(index, counts):
    """Verdict on the pair found first, whatever its offsets, by class."""
    zero, one, two = (share(count, counts.size) for count in counts.first_correct)
    if index == 0:
        return [two, one, zero]
    if index == 1:
        return [one, zero]
    return [share(counts.size, counts.size)]


def combined(all_counts):
    """Right collected parents of the first pairs, in couples, over all pseudo-offspring."""
    pairs, singles, _ = all_counts
    value = (2 * pairs.first_correct[2] + singles.first_correct[1]
             + pairs.first_correct[1]) * 0.5
    return share(value, sum(counts.size for counts in all_counts))


# ---------------------------------------------------------- figures of a subset

class SubsetFigures:
    """All figures of one subset of loci, per iteration, until a report averages them."""

    def __init__(self, settings, proportions, loci, iterations):
        self.sexed, self.loci = settings.sexed, loci
        self.weights, self.sizes = proportions.weights, proportions.sizes
        self.origins = origins_of(self.sexed)
        self.rows = [[] for _ in self.origins]      # class -> iteration -> row frequencies
        self.correct = [[] for _ in self.origins]   # class -> iteration
        self.tables = [[] for _ in self.origins]    # class -> iteration -> columns
        self.first_pairs = [[] for _ in self.origins]
        self.global_rows, self.global_correct, self.global_table = [], [], []
        self.combined = []
        self.figures = {}                           # name -> iteration, weighted
        for iteration in iterations:
            self._add(iteration.counts)

    def _add(self, all_counts):
        sides = []
        for index, (origin, counts) in enumerate(zip(self.origins, all_counts)):
            self.rows[index].append([share(count, counts.size) for count in counts.rows])
            self.correct[index].append(class_correct(origin, counts))
            sides.append((sexed_side_counts if self.sexed else non_sexed_side_counts)(
                origin, counts))
            if self.sexed:
                self.tables[index].append(sexed_table(counts))
            else:
                table = non_sexed_table(counts)
                self.tables[index].append(table + non_sexed_ratios(table))
                self.first_pairs[index].append(first_pair_figures(index, counts))
        for name in sides[0]:
            self.figures.setdefault(name, []).append(
                weighted(self.weights, [side[name] for side in sides]))
        self.figures.setdefault("ANY", []).append(
            weighted(self.weights, [values[-1] for values in self.correct]))
        if self.sexed:
            self._add_realised(all_counts)
        else:
            self._add_weighted(all_counts)
        plain = 8 if self.sexed else 5
        table = [weighted(self.weights, [rows[-1][column] for rows in self.tables])
                 for column in range(plain)]
        ratios = (sexed_ratios if self.sexed else non_sexed_ratios)(table)
        self.global_table.append(table + ratios)

    def _add_realised(self, all_counts):
        """Sexed: the global rows are those of all pseudo-offspring produced."""
        everyone = sum(counts.size for counts in all_counts)
        weight_sum, rows = 0, []
        for head in self.origins[0].rows:
            rows.append(share(sum(
                count for origin, counts in zip(self.origins, all_counts)
                for row, count in zip(origin.rows, counts.rows)
                if (row.allocated, row.correct) == (head.allocated, head.correct)), everyone))
        for origin, counts in zip(self.origins, all_counts):
            weight_sum += sum(row.weight * count for row, count in zip(origin.rows, counts.rows))
        self.global_rows.append(rows)
        self.global_correct.append(share(weight_sum / 2, everyone))

    def _add_weighted(self, all_counts):
        """Non-sexed: the global rows weigh the classes as the population would."""
        rows = []
        for head in self.origins[0].rows:
            values = []
            for index, origin in enumerate(self.origins):
                labels = [(row.allocated, row.correct) for row in origin.rows]
                label = (head.allocated, head.correct)
                values.append(self.rows[index][-1][labels.index(label)]
                              if label in labels else 0.0)
            rows.append(weighted(self.weights, values))
        self.global_rows.append(rows)
        self.global_correct.append(self.figures["ANY"][-1])
        self.combined.append(combined(all_counts))

    def average(self, name):
        """A weighted figure over all iterations."""
        return plain_mean(self.figures[name])

    def average_ratio(self, numerator, denominator):
        return ratio(self.average(numerator), self.average(denominator))
