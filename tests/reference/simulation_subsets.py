"""The table of all subsets of loci that were run, the best one first."""

import math

from simulation_statistics import plain_mean, share, weighted

# Column of a kind of allocation -> figures of the right ones and of all made; every
# pseudo-offspring has any.
KINDS = {False: {"any": ("ANY", None), "collected": ("RCOLL", "COLL"),
                 "uncollected": ("RUNCOLL", "UNCOLL")},
         True: {"any": ("ANY", None), "male": ("CM", "M"), "female": ("CF", "F"),
                "uncollected": ("CUC", "UC")}}
CLASSES = {False: ("CxC", "CxU", "UxU"), True: ("MCxFC", "MCxFU", "MUxFC", "MUxFU")}
ROUNDING = 1e-12


def scopes_of(figures):
    """Columns and weights of the pseudo-offspring to which estimates apply."""
    everyone, classes = sum(figures.sizes), CLASSES[figures.sexed]
    yield "population", figures.weights, everyone
    yield "pooled", [share(size, everyone) for size in figures.sizes], everyone
    for place, name in enumerate(classes):
        yield name, [float(place == other) for other in range(len(classes))], figures.sizes[place]


def estimate(figures, names, weights, offspring):
    """Value, deviation of an iteration and standard error; nothing where nothing was made."""
    right, made = names
    rights = [weighted(weights, values) for values in figures.figures[right]]
    mades = [weighted(weights, values) for values in figures.figures[made]] if made else \
        [float(offspring > 0)] * len(rights)
    if not sum(mades) > 0:
        return [None] * 3
    value = figures.average((right, made) if made else right, weights)
    mean_made = plain_mean(mades)
    squares = sum(((r - value * m) / mean_made) ** 2 for r, m in zip(rights, mades))
    deviation = math.sqrt(squares / len(rights))
    deviation = 0.0 if deviation < ROUNDING else deviation
    return [value, deviation,
            deviation / math.sqrt(len(rights) - 1) if len(rights) > 1 else None]


def subsets_table(names, statistics):
    """Rank, place in the run, loci, iterations, and the estimates of every scope and kind."""
    kinds = KINDS[statistics[0].sexed]
    heads = ["rank", "run", "size", "loci", "iterations"]
    for scope, _, _ in scopes_of(statistics[0]):
        heads += [f"{scope}_{kind}{end}" for kind in kinds for end in ("", "_sd", "_se")]
    order = sorted(range(len(statistics)),
                   key=lambda run: (-statistics[run].average("ANY"), len(statistics[run].loci)))
    lines = [heads]
    for rank, run in enumerate(order, start=1):
        figures = statistics[run]
        joined = " ".join(names[locus] for locus in figures.loci)
        if '"' in joined:
            joined = '"' + joined.replace('"', '""') + '"'
        cells = [str(rank), str(run + 1), str(len(figures.loci)), joined,
                 str(len(figures.figures["ANY"]))]
        for _, weights, offspring in scopes_of(figures):
            for kind in kinds.values():
                cells += ["NA" if number is None else f"{number:.8g}"
                          for number in estimate(figures, kind, weights, offspring)]
        lines.append(cells)
    return "".join("\t".join(line) + "\n" for line in lines)
