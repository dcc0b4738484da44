"""Which situations the compared simulations met, so that a tame generator is noticed."""

from allocation_reference import OUT_OF_STEP
from simulation_flows import NON_SEXED_ORIGINS, SEXED_ORIGINS, origins_of
from simulation_random import SampleCatalogue, cumulative_frequencies
from simulation_scoring import BEST_KEYS
from simulation_sets import STRATEGIES
from situation_counter import SituationCounter

FLOWS = {False: "non-sexed", True: "sexed"}
NEAR = 1e-6     # closer than this a frequency lies on the grid of the draws


def row_name(origin, row):
    return f"{origin.label} {row.allocated} / {row.correct}"


def possible_rows():
    """Without misread alleles in the allocation, both or none of the parents are accepted."""
    rows = [(origin, row) for origin in SEXED_ORIGINS for row in origin.rows]
    rows += [(origin, row) for origin in NON_SEXED_ORIGINS for row in origin.rows
             if row.allocated != "C + UC"]
    return [row_name(origin, row) for origin, row in rows]


REQUIRED = (
    [f"{flow} {procedure}" for flow in FLOWS.values() for procedure in ("parental", "preparental")]
    + [f"{flow} {strategy}" for flow in FLOWS.values() for strategy in STRATEGIES]
    + [f"{flow} error model {kind}" for flow in FLOWS.values()
       for kind in ("none", "uniform", "nonuniform")]
    + [f"{flow} tolerance {tolerance}" for flow in FLOWS.values() for tolerance in range(4)]
    + [f"fields of {digits} digits" for digits in (2, 4, 6, 8)]
    + possible_rows()
    + [f"{flow} best pair: {key}" for flow, keys in
       (("sexed", BEST_KEYS[True]), ("non-sexed", BEST_KEYS[False])) for key in keys]
    + [f"empty class {origin.label}" for origin in SEXED_ORIGINS + NON_SEXED_ORIGINS]
    + ["no pseudo-offspring at all", "more than five pairs", "single better pair after the flag",
       "no uncollected parents", "fraction of an uncollected parent",
       "one pseudo-collected parent typed, two drawn", "no uncollected males or females",
       "parents drawn again", "allele misread", "transmission draw of zero",
       "transmission draw beyond the row", "frequency on the grid of the draws",
       "frequency a hair below the grid", "missing genotype in a sample",
       "sample that starts with a missing genotype", "one-allele locus", "loci not in use",
       "locus outside the subset", "criterion reached at once", "criterion reached later",
       "criterion never reached", "subsets from two loci on", "sequence by index",
       "sequence with repeated indices", "locus out of step", "one iteration",
       "more than 1000 iterations", "parent beyond the hundredth", "ratio of nothing",
       "deviation that is not a number", "older files present"]
    + [f"{flow} keeps {kind}" for flow in FLOWS.values()
       for kind in ("parents", "offspring", "matrices", "nothing")]
    + [f"{flow} prints {kind}" for flow in FLOWS.values()
       for kind in ("iterations", "subset statistics", "little")])


class SimulationCoverage(SituationCounter):
    """The situations of simulations."""

    def __init__(self):
        super().__init__(REQUIRED)

    def met(self, situation, holds=True):
        if holds:
            self.counts[situation] += 1

    def add(self, input_set, run):
        """Count what one set met."""
        flow = FLOWS[run.settings.sexed]
        self.met("older files present", input_set.stale)
        self.met("locus out of step", OUT_OF_STEP in run.closing)
        self._add_settings(run, flow)
        self._add_numbers_of_parents(run)
        self._add_samples(run)
        self._add_strategy(run)
        self.met("deviation that is not a number",
                 any("\tnan" in text for text in run.files.values()))
        for figures in run.figures:
            self.met("ratio of nothing", any(0 in figures.figures[name] for name in
                                             ("UNCOLL", "UC") if name in figures.figures))
        for iteration in run.iterations:
            self._add_iteration(run, iteration, flow)

    def _add_settings(self, run, flow):
        settings = run.settings
        self.met(f"{flow} {'parental' if settings.parental else 'preparental'}")
        self.met(f"{flow} {settings.strategy}")
        self.met(f"{flow} error model {settings.error.kind}")
        self.met(f"{flow} tolerance {settings.tolerance}")
        self.met(f"fields of {run.inputs.digits} digits")
        for kind in settings.keep:
            self.met(f"{flow} keeps {kind}")
        self.met(f"{flow} keeps nothing", not settings.keep)
        self.met(f"{flow} prints iterations", settings.print_iterations)
        self.met(f"{flow} prints subset statistics", settings.print_subset_statistics)
        self.met(f"{flow} prints little",
                 not settings.print_iterations and not settings.print_subset_statistics)
        self.met("one iteration", settings.iterations == 1)
        self.met("more than 1000 iterations", settings.iterations > 1000)
        self.met("loci not in use", len(run.inputs.in_use) < len(run.inputs.locus_names))

    def _add_numbers_of_parents(self, run):
        settings, sizes = run.settings, run.inputs.proportions.sizes
        for origin, size in zip(origins_of(settings.sexed), sizes):
            self.met(f"empty class {origin.label}", size == 0)
        self.met("no pseudo-offspring at all", sum(sizes) == 0)
        if settings.sexed:
            self.met("no uncollected males or females",
                     0 in (settings.uncollected_males, settings.uncollected_females))
        else:
            self.met("no uncollected parents", settings.uncollected == 0)
            self.met("fraction of an uncollected parent", settings.uncollected % 1 != 0)
            self.met("one pseudo-collected parent typed, two drawn",
                     settings.pseudo_collected == 1)

    def _add_samples(self, run):
        grid = 10 ** (run.inputs.digits // 2)
        for group in run.inputs.groups:
            for locus in run.inputs.in_use if not group.collected else []:
                catalogue = SampleCatalogue(group.individuals, locus)
                counts = catalogue.counts[:len(catalogue.listed)]
                for entry in cumulative_frequencies(counts, len(group.individuals))[:-1]:
                    below = round(entry * grid) / grid
                    self.met("frequency on the grid of the draws", abs(entry - below) < NEAR)
                    self.met("frequency a hair below the grid", 0 < below - entry < NEAR)
                missing = [one.genotypes[locus] == (0, 0) for one in group.individuals]
                self.met("missing genotype in a sample", any(missing))
                self.met("sample that starts with a missing genotype", missing[0])

    def _add_strategy(self, run):
        settings = run.settings
        if settings.strategy == "choice":
            return
        self.met("subsets from two loci on", settings.start_with == 2)
        self.met("locus outside the subset",
                 any(len(each.loci) < len(run.inputs.in_use) for each in run.figures))
        if settings.strategy == "minimal":
            where = "at once" if len(run.figures) == 1 else "later"
            self.met("criterion reached " + where if run.reached else "criterion never reached")
        if settings.sequence:
            self.met("sequence by index")
            self.met("sequence with repeated indices",
                     len(set(settings.sequence)) < len(settings.sequence))

    def _add_iteration(self, run, iteration, flow):
        for origin, counts in zip(origins_of(run.settings.sexed), iteration.counts):
            for row, count in zip(origin.rows, counts.rows):
                if count:
                    self.counts[row_name(origin, row)] += count
            for key, count in counts.best.items():
                if count:
                    self.counts[f"{flow} best pair: {key}"] += count
        for catalogue in iteration.population.catalogues.values():
            self.met("one-allele locus", len(catalogue.listed) == 1)
        for child, outcome in zip(iteration.population.offspring, iteration.outcomes):
            for event in child.events:
                self.met(event)
            self.met("parent beyond the hundredth", max(child.first, child.second) >= 100)
            self.met("more than five pairs", outcome.more_than_five)
            self.met("single better pair after the flag",
                     outcome.more_than_five and len(outcome.pairs) == 1)
