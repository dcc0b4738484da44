"""The settings of a simulation and its command line."""

import argparse
from dataclasses import dataclass

from reference_input import ErrorModel
from allocation_reference import parse_error_model, parse_sequence

STRATEGIES = ("choice", "all", "minimal", "cumulative")
KEEPABLE = ("parents", "offspring", "matrices")

FILE_OPTIONS = ("collected_parents", "pseudo_collected_sample", "uncollected_sample",
                "collected_males", "collected_females", "pseudo_collected_male_sample",
                "pseudo_collected_female_sample", "uncollected_male_sample",
                "uncollected_female_sample")
COUNT_OPTIONS = ("pseudo_collected", "pseudo_collected_males", "pseudo_collected_females",
                 "uncollected_males", "uncollected_females")
REAL_OPTIONS = ("uncollected", "estimated_collected_males", "estimated_uncollected_males",
                "estimated_collected_females", "estimated_uncollected_females")
GROUP_OPTIONS = FILE_OPTIONS + COUNT_OPTIONS + REAL_OPTIONS


@dataclass
class SimulationSettings:
    """Everything the user chooses for one simulation, file names as typed."""
    project: str
    loci: str
    iterations: int
    offspring_per_iteration: int
    tolerance: int
    error: ErrorModel
    use: list | None
    seed: int
    strategy: str
    criterion: float
    start_with: int
    sequence: list
    print_iterations: bool
    print_subset_statistics: bool
    keep: tuple
    sexed: bool
    collected_parents: str | None
    pseudo_collected_sample: str | None
    pseudo_collected: int | None
    uncollected_sample: str | None
    uncollected: float | None
    collected_males: str | None
    collected_females: str | None
    pseudo_collected_male_sample: str | None
    pseudo_collected_males: int | None
    pseudo_collected_female_sample: str | None
    pseudo_collected_females: int | None
    uncollected_male_sample: str | None
    uncollected_males: int | None
    uncollected_female_sample: str | None
    uncollected_females: int | None
    estimated_collected_males: float | None
    estimated_uncollected_males: float | None
    estimated_collected_females: float | None
    estimated_uncollected_females: float | None

    @property
    def parental(self):
        """True when the collected parents are real ones, read from a file."""
        return self.collected_males is not None if self.sexed \
            else self.collected_parents is not None

    @property
    def several_subsets(self):
        """True when the strategy goes through subsets of the loci."""
        return self.strategy != "choice"


def parse_keep(text, sexed):
    """Which generated files to keep; by default those a non-sexed user expects."""
    if text is None:
        return () if sexed else ("parents", "offspring")
    if text in ("all", "none"):
        return KEEPABLE if text == "all" else ()
    kept = tuple(text.split(","))
    if any(one not in KEEPABLE for one in kept):
        raise ValueError(text)
    return kept


def make_parser():
    parser = argparse.ArgumentParser(allow_abbrev=False)
    for name in ("project", "loci"):
        parser.add_argument("--" + name, required=True)
    for name in ("iterations", "offspring-per-iteration"):
        parser.add_argument("--" + name, required=True, type=int)
    parser.add_argument("--tolerance", type=int, default=1)
    parser.add_argument("--error", type=parse_error_model, default=ErrorModel("nonuniform"))
    parser.add_argument("--use", type=lambda text: text.split(","))
    parser.add_argument("--seed", type=int, required=True)
    parser.add_argument("--strategy", choices=STRATEGIES, default="choice")
    parser.add_argument("--criterion", type=float, default=0.95)
    parser.add_argument("--start-with", type=int, default=1)
    parser.add_argument("--sequence", type=parse_sequence, default=[])
    parser.add_argument("--print-iterations", action="store_true")
    parser.add_argument("--print-subset-statistics", action="store_true")
    parser.add_argument("--keep")
    parser.add_argument("--sexed", action="store_true")
    for names, kind in ((FILE_OPTIONS, str), (COUNT_OPTIONS, int), (REAL_OPTIONS, float)):
        for name in names:
            parser.add_argument("--" + name.replace("_", "-"), type=kind)
    return parser


def needed_options(settings):
    """Names that the chosen flow and procedure need; any other one is out of place."""
    if not settings.sexed:
        procedure = ["collected_parents"] if settings.parental else \
            ["pseudo_collected_sample", "pseudo_collected"]
        return procedure + ["uncollected_sample", "uncollected"]
    sexes = ("male", "female")
    procedure = [f"collected_{sex}s" for sex in sexes]
    if not settings.parental:
        procedure = [f"pseudo_collected_{sex}_sample" for sex in sexes] + \
            [f"pseudo_collected_{sex}s" for sex in sexes]
    return procedure + [f"uncollected_{sex}_sample" for sex in sexes] + \
        [f"uncollected_{sex}s" for sex in sexes] + \
        [f"estimated_{which}_{sex}s" for which in ("collected", "uncollected") for sex in sexes]


def parse_simulation(arguments):
    """Settings from the command line; a usage fault ends the program with 2."""
    parser = make_parser()
    typed = parser.parse_args(arguments)
    try:
        typed.keep = parse_keep(typed.keep, typed.sexed)
    except ValueError:
        parser.error("--keep: unknown kind of file")
    settings = SimulationSettings(**vars(typed))
    missing = [name for name in needed_options(settings) if getattr(settings, name) is None]
    if missing:
        parser.error("missing: " + " ".join(missing))
    out_of_place = [name for name in GROUP_OPTIONS if name not in needed_options(settings)
                    and getattr(settings, name) is not None]
    if out_of_place:
        parser.error("out of place: " + " ".join(out_of_place))
    return settings
