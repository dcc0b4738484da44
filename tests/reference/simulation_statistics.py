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
    """A frequency, that of an empty class is 0; also the ratio of two figures."""
    return count / size if size else 0.0


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

def right_sides(origin, counts):
    return sum(row.weight * count for row, count in zip(origin.rows, counts.rows))


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


def sexed_columns(counts):
    """Columns of the table of a class."""
    both, male, female, none, nulls, ambiguous = (
        share(counts.best[key], counts.size)
        for key in ("both", "male", "female", "none", "nulls", "ambiguous"))
    return [both, male + female + none, both + male, female + none,
            both + female, male + none, ambiguous, nulls]


def sexed_ratios(values):
    """Share of the assigned pairs and parents that are right or wrong."""
    assigned = values[0] + values[1]
    return [share(value, assigned) for value in values[:6]]


def non_sexed_columns(counts):
    return [share(counts.best[key], counts.size) for key in ("2", "1", "0", "ambiguous", "nulls")]


def non_sexed_ratios(values):
    assigned = values[0] + values[1] + values[2]
    return [share(value, assigned) for value in values[:3]]


def first_pair_figures(all_counts):
    """Verdicts on the pair found first, whatever its offsets, by class and combined."""
    pairs, singles, none = all_counts
    right = (2 * pairs.first_correct[2] + singles.first_correct[1]
             + pairs.first_correct[1]) * 0.5
    return [[share(count, pairs.size) for count in reversed(pairs.first_correct)],
            [share(count, singles.size) for count in reversed(singles.first_correct[:2])],
            [share(none.size, none.size)],
            [share(right, sum(counts.size for counts in all_counts))]]


# ---------------------------------------------------------- figures of a subset

class SubsetFigures:
    """All figures of one subset of loci, per iteration, until a report averages them."""

    def __init__(self, settings, proportions, loci, iterations):
        self.sexed, self.loci = settings.sexed, loci
        self.weights, self.sizes = proportions.weights, proportions.sizes
        self.origins = origins_of(self.sexed)
        classes = range(len(self.origins))
        self.rows = [[] for _ in classes]            # class -> iteration -> row frequencies
        self.correct = [[] for _ in classes]         # class -> iteration
        self.tables = [[] for _ in [*classes, None]]       # class, global -> iteration -> columns
        self.first_pairs = [[] for _ in [*classes, None]]  # the same
        self.global_rows, self.global_correct = [], []
        self.figures = {}                            # name -> iteration -> class
        for iteration in iterations:
            self._add(iteration.counts)

    def _add(self, all_counts):
        count_sides, columns_of, ratios_of = \
            (sexed_side_counts, sexed_columns, sexed_ratios) if self.sexed else \
            (non_sexed_side_counts, non_sexed_columns, non_sexed_ratios)
        sides, tables = [], []
        for index, (origin, counts) in enumerate(zip(self.origins, all_counts)):
            self.rows[index].append([share(count, counts.size) for count in counts.rows])
            self.correct[index].append(share(right_sides(origin, counts) / 2, counts.size))
            sides.append(count_sides(origin, counts))
            table = columns_of(counts)
            tables.append(table)
            self.tables[index].append(table if self.sexed else table + ratios_of(table))
        for name in sides[0]:
            self.figures.setdefault(name, []).append([side[name] for side in sides])
        self.figures.setdefault("ANY", []).append([values[-1] for values in self.correct])
        table = [weighted(self.weights, values) for values in columns(tables)]
        self.tables[-1].append(table + ratios_of(table))
        if self.sexed:
            self._add_pooled(all_counts)
        else:
            self._add_weighted()
            for series, values in zip(self.first_pairs, first_pair_figures(all_counts)):
                series.append(values)

    def _rows_like(self, head, values_of_classes):
        """Per class, the value of the row with these labels, 0 where it has none."""
        return [next((value for row, value in zip(origin.rows, values)
                      if (row.allocated, row.correct) == (head.allocated, head.correct)), 0)
                for origin, values in zip(self.origins, values_of_classes)]

    def _add_pooled(self, all_counts):
        """Sexed: the global rows are those of all pseudo-offspring produced."""
        everyone = sum(counts.size for counts in all_counts)
        counted = [counts.rows for counts in all_counts]
        self.global_rows.append([share(sum(self._rows_like(head, counted)), everyone)
                                 for head in self.origins[0].rows])
        right = sum(right_sides(origin, counts)
                    for origin, counts in zip(self.origins, all_counts))
        self.global_correct.append(share(right / 2, everyone))

    def _add_weighted(self):
        """Non-sexed: the global rows weigh the classes as the population would."""
        latest = [rows[-1] for rows in self.rows]
        self.global_rows.append([weighted(self.weights, self._rows_like(head, latest))
                                 for head in self.origins[0].rows])
        self.global_correct.append(weighted(self.weights, self.figures["ANY"][-1]))

    def average(self, name, weights=None):
        """A weighted figure over all iterations; of two names, the ratio of their averages."""
        weights = weights or self.weights
        if isinstance(name, tuple):
            return share(self.average(name[0], weights), self.average(name[1], weights))
        if self.sexed:  # the classes are averaged before they are weighed
            return weighted(weights,
                            [step_mean(values) for values in columns(self.figures[name])])
        return plain_mean([weighted(weights, values) for values in self.figures[name]])
