"""The settings and the files of a simulation. Only sound input comes here."""

from dataclasses import dataclass
from itertools import combinations

from reference_input import (common_parser, loci_in_use, parse_sequence, read_individuals,
                             read_tokens)
from simulation_flows import proportions_of

STRATEGIES = ("choice", "all", "minimal", "cumulative")
KEEPABLE = ("parents", "offspring", "matrices")
SEXES = ("male", "female")


def group_options():
    """Options of the parental groups: name -> kind of value, for both flows."""
    options = {"collected-parents": str, "pseudo-collected-sample": str, "pseudo-collected": int,
               "uncollected-sample": str, "uncollected": float}
    for sex in SEXES:
        options |= {f"collected-{sex}s": str, f"pseudo-collected-{sex}-sample": str,
                    f"pseudo-collected-{sex}s": int, f"uncollected-{sex}-sample": str,
                    f"uncollected-{sex}s": int, f"estimated-collected-{sex}s": float,
                    f"estimated-uncollected-{sex}s": float}
    return options


def parse_simulation(arguments):
    """The settings of a simulation, by the names of the options."""
    parser = common_parser()
    for name in ("iterations", "offspring-per-iteration", "seed"):
        parser.add_argument("--" + name, type=int)
    parser.add_argument("--strategy", choices=STRATEGIES, default="choice")
    parser.add_argument("--criterion", type=float, default=0.95)
    parser.add_argument("--start-with", type=int, default=1)
    parser.add_argument("--sequence", type=parse_sequence, default=[])
    parser.add_argument("--keep")
    for name in ("print-iterations", "print-subset-statistics", "sexed"):
        parser.add_argument("--" + name, action="store_true")
    for name, kind in group_options().items():
        parser.add_argument("--" + name, type=kind)
    settings = parser.parse_args(arguments)
    settings.parental = (settings.collected_males if settings.sexed
                         else settings.collected_parents) is not None
    settings.several_subsets = settings.strategy != "choice"
    by_default = "none" if settings.sexed else "parents,offspring"
    kept = settings.keep or by_default
    settings.keep = KEEPABLE if kept == "all" else tuple(kept.split(","))
    return settings


@dataclass
class Group:
    """One parental group: real parents, or a sample and how many parents to draw from it."""
    individuals: list
    count: float | None     # None: the individuals are the parents

    @property
    def collected(self):
        return self.count is None


@dataclass
class SimulationInputs:
    """The files of a simulation."""
    locus_names: list
    in_use: list
    digits: int
    groups: list          # in the order of the parent table
    proportions: object
    subsets: list         # per subset, its loci in the order in which they entered


def group_files(settings):
    """(file, parents to draw or None) per group, in the order of the parent table."""
    if not settings.sexed:
        # An offspring of two collected parents needs two of them.
        first = (settings.collected_parents, None) if settings.parental else \
            (settings.pseudo_collected_sample, max(2, settings.pseudo_collected))
        return [first, (settings.uncollected_sample, settings.uncollected)]
    typed = vars(settings)
    collected = [(typed[f"collected_{sex}s"], None) if settings.parental else
                 (typed[f"pseudo_collected_{sex}_sample"], typed[f"pseudo_collected_{sex}s"])
                 for sex in SEXES]
    return collected + [(typed[f"uncollected_{sex}_sample"], typed[f"uncollected_{sex}s"])
                        for sex in SEXES]


def subsets_of(settings, in_use):
    """The subsets of loci in the order in which they run."""
    count, start = len(in_use), settings.start_with
    if settings.strategy == "choice":
        return [in_use]
    if settings.strategy == "cumulative":
        order = sorted(in_use, key=lambda locus: settings.sequence[locus]) \
            if settings.sequence else in_use
        return [order[:size] for size in range(start, count + 1)]
    return [list(loci) for size in range(start, count + 1)
            for loci in combinations(in_use, size)]


def read_simulation(settings, folder):
    """The files of a simulation, found in a folder."""
    names = read_tokens(folder / settings.loci)
    in_use = loci_in_use(names, settings.use)
    files = [(read_tokens(folder / path), count) for path, count in group_files(settings)]
    digits = len(files[0][0][1])
    groups = [Group(read_individuals(tokens, len(names), in_use, digits, False), count)
              for tokens, count in files]
    collected = len(groups[0].individuals) if settings.parental else settings.pseudo_collected
    return SimulationInputs(names, in_use, digits, groups, proportions_of(settings, collected),
                            subsets_of(settings, in_use))
