"""Small random settings of simulations, some shaped on purpose to meet rare situations.

Every set is made from (seed, index) alone, so any of them can be made again.
"""

import math
import random

from random_layout import option, render, write_options
from random_sets import InputSet, index_list
from simulation_input import STRATEGIES
from simulation_flows import non_sexed_proportions, sexed_proportions

ERRORS = ("none", "none", "uniform=0.02", "uniform=0.1", "uniform=0", "nonuniform", None,
          "nonuniform=0,0.03125,0.9375,0.03125,0", "nonuniform=0.05,0,0.95,0,0",
          "nonuniform=0.025,0.025,0.9,0.025,0.025", "uniform=-0.01")
DOUBTS = ("uniform=0.1",) * 10   # with several loci, one side is often rejected
KEEPS = (None, "none", "all", "parents", "offspring", "matrices", "offspring,parents",
         "matrices,offspring")
SHAPES = ("plain", "empty classes", "doubtful", "tied", "scarce", "plain", "uneven", "doubtful")
# set number -> shape
SPECIAL = {7: "crowd", 22: "long", 38: "nothing", 45: "nothing", 61: "constant", 77: "constant"}
LONG = 1001


class SimulationDraft:
    """A set while it is being shaped."""

    def __init__(self, rng, index):
        self.rng, self.index = rng, index
        self.sexed = index % 2 == 1
        self.parental = index // 2 % 2 == 0
        self.strategy = STRATEGIES[index // 4 % 4]
        self.shape = SPECIAL.get(index, SHAPES[(index + index // 16) % len(SHAPES)])
        if self.shape == "long":
            self.sexed, self.strategy = True, "choice"
        if self.shape == "crowd":
            self.strategy = "choice"
        self.half = rng.choice([1, 2, 2, 3, 3, 3, 4])
        if self.shape == "uneven":
            self.half = rng.choice([2, 3])
        self.locus_count = {"crowd": 2, "long": 1, "constant": 1, "tied": rng.randint(1, 2),
                            "doubtful": rng.randint(3, 4)}.get(
            self.shape, rng.randint(1, 4 if self.subsets else 5))
        self.names = [f"{rng.choice(['Loc', 'Pm-', 'µsat'])}{k}"
                      for k in range(1, self.locus_count + 1)]
        self.ladders = [self._ladder() for _ in self.names]
        self.error = rng.choice(ERRORS if self.shape != "doubtful" else ERRORS + DOUBTS)
        self.iterations = self._iterations()
        self.offspring = self._offspring()
        self.files, self.options = {}, []

    @property
    def subsets(self):
        return self.strategy != "choice"

    def _iterations(self):
        if self.shape == "long":
            return LONG
        if self.shape == "constant":
            return self.rng.choice([6, 7])
        return self.rng.choice([1, 2, 3] if self.subsets else [1, 2, 3, 4])

    def _offspring(self):
        if self.shape == "nothing":
            return 1
        if self.shape == "long":
            return 2
        most = 8 if self.shape == "crowd" else 14 if self.subsets else 40
        return self.rng.randint(most // 2 if self.shape == "doubtful" else 5, most)

    def _ladder(self):
        """The sizes of one locus, evenly spaced or, in the uneven shape, out of step."""
        rng = self.rng
        if self.shape == "uneven":
            start = rng.randint(3, 60)
            return [start, start + 3, start + 7, start + 12, start + 13][:rng.randint(3, 5)]
        count = {"tied": 2, "constant": 1, "doubtful": rng.choice([4, 6, 8])}.get(
            self.shape, rng.choice([1, 2, 3, 4, 6, 8]))
        step = min(rng.choice([1, 2, 2, 3, 4]), (10 ** self.half - 2) // count)
        base = rng.randint(1, min(150, 10 ** self.half - 1 - step * (count - 1)))
        return [base + step * k for k in range(count)]

    def genotype(self, ladder, skew):
        """Small ones are frequent in one population, large ones in another."""
        place = [self.rng.random() ** skew for _ in (0, 1)]
        return tuple(ladder[int(p * len(ladder))] for p in place)

    def sample(self, count, missing):
        """Genotype records of a sample or of collected parents."""
        skew = self.rng.choice([0.4, 1.0, 1.0, 2.5])
        records = [[self.genotype(ladder, skew) for ladder in self.ladders]
                   for _ in range(count)]
        for locus in range(self.locus_count):
            for record in records:
                if self.rng.random() < missing:
                    record[locus] = (0, 0)
            if all(record[locus] == (0, 0) for record in records):
                records[-1][locus] = self.genotype(self.ladders[locus], skew)
        return [[f"S{k}"] + [f"{a:0{self.half}d}{b:0{self.half}d}" for a, b in record]
                for k, record in enumerate(records)]

    def add(self, name, value):
        self.options.append(option(self.rng, "--" + name, str(value)))

    def add_file(self, name, words):
        folder = self.rng.choice(["", "", "./", "données/"])
        path = folder + name + self.rng.choice([".txt", ".dat", " 1.txt"])
        self.files[path] = render(self.rng, words)
        self.add(name, path)

    def add_sample(self, name):
        rng = self.rng
        self.add_file(name, self.sample(rng.choice([1, 3, 5, 5, 10, 10]),
                                        rng.choice([0, 0, 0.2, 0.6])))

    # ------------------------------------------------------------------ groups

    def collected_count(self):
        if self.shape == "crowd":
            return 112
        return {"scarce": self.rng.randint(1, 3), "tied": 8}.get(
            self.shape, self.rng.randint(2, 8))

    def add_non_sexed_groups(self):
        """Numbers of parents that leave no class without the parents it needs."""
        rng = self.rng
        while True:
            collected = self.collected_count()
            uncollected = rng.choice([0, 0.5, 1.5, 10.5, 2, 3.25, rng.randint(1, 8)])
            if self.shape == "empty classes":
                uncollected = rng.choice([0, 0.1, 0.5])
                if not self.parental and rng.random() < 0.5:
                    collected, uncollected = 1, 11
            if self.shape == "nothing":
                collected = uncollected = 3
            present = collected if self.parental else max(2, collected)
            sizes = non_sexed_proportions(self.offspring, collected, uncollected).sizes
            written = math.ceil(uncollected)
            if (sizes[0] == 0 or present >= 2) and (sizes[2] == 0 or written >= 2):
                break
        if self.parental:
            self.add_file("collected-parents", self.sample(collected, 0))
        else:
            self.add_sample("pseudo-collected-sample")
            self.add("pseudo-collected", collected)
        self.add_sample("uncollected-sample")
        self.add("uncollected", uncollected)

    def _shares(self):
        rng = self.rng
        if self.shape == "empty classes":
            return rng.choice([(4, 0), (0, 3.5), (1, 30)])
        if self.shape in ("nothing", "long"):
            return (2, 2) if self.shape == "nothing" else (3, 0)
        if self.shape == "constant":
            return rng.choice([(5.5, 1.5), (1, 4), (3, 4)])
        return rng.choice([(2, 2), (5.5, 1.5), (1, 4), (7, 1), (3, 4), (4, 0)])

    def add_sexed_groups(self):
        rng = self.rng
        while True:
            collected = [self.collected_count(), self.collected_count()]
            if self.shape == "crowd":
                collected = [3, 112]
            if self.shape in ("long", "constant"):
                collected = [1, 2 if self.shape == "long" else 1]
            if self.shape == "doubtful":
                collected = [rng.randint(2, 4), rng.randint(2, 4)]
            uncollected = [rng.choice([0, 1, 2, 3, 5]) for _ in (0, 1)]
            estimates = [self._shares(), self._shares()]
            sizes = sexed_proportions(self.offspring, *estimates[0], *estimates[1]).sizes
            males_missed, females_missed = sizes[2] + sizes[3], sizes[1] + sizes[3]
            if (uncollected[0] or not males_missed) and (uncollected[1] or not females_missed):
                break
        for sex, count in zip(("male", "female"), collected):
            if self.parental:
                self.add_file(f"collected-{sex}s", self.sample(count, 0))
            else:
                self.add_sample(f"pseudo-collected-{sex}-sample")
                self.add(f"pseudo-collected-{sex}s", count)
        for sex, count, (found, missed) in zip(("male", "female"), uncollected, estimates):
            self.add_sample(f"uncollected-{sex}-sample")
            self.add(f"uncollected-{sex}s", count)
            self.add(f"estimated-collected-{sex}s", found)
            self.add(f"estimated-uncollected-{sex}s", missed)
        self.options.append(["--sexed"])

    # ----------------------------------------------------------------- choices

    def add_choices(self):
        rng = self.rng
        used = self.locus_count
        if self.locus_count > 1 and rng.random() < 0.5:
            used = rng.randint(1, self.locus_count)
            self.add("use", ",".join(rng.sample(self.names, used)))
        if self.subsets or rng.random() < 0.2:
            self.add("strategy", self.strategy)
        if self.strategy == "minimal":
            self.add("criterion", rng.choice([0, 0.5, 0.55, 0.6, 0.6, 0.7, 0.7, 0.8, 0.95, 1]))
        if self.subsets and rng.random() < 0.6:
            self.add("start-with", rng.randint(1, min(2, used)))
        if self.strategy == "cumulative" and rng.random() < 0.85:
            self.add("sequence", index_list(rng, self.locus_count))
        if self.error is not None:
            self.add("error", self.error)
        if rng.random() < 0.8:
            self.add("tolerance", rng.choice([0, 0, 1, 2, 3]))
        keep = rng.choice(KEEPS) if self.shape != "crowd" else "all"
        if keep is not None and self.shape != "long":
            self.add("keep", keep)
        for name in ("print-iterations", "print-subset-statistics"):
            if rng.random() < 0.5:
                self.options.append(["--" + name])


def make_simulation_set(seed, index):
    """The settings and files of a seed and an index."""
    rng = random.Random(f"simulation/{seed}/{index}")
    draft = SimulationDraft(rng, index)
    draft.add_file("loci", [[name] for name in draft.names])
    if draft.sexed:
        draft.add_sexed_groups()
    else:
        draft.add_non_sexed_groups()
    draft.add("iterations", draft.iterations)
    draft.add("offspring-per-iteration", draft.offspring)
    draft.add("seed", rng.choice([0, 1, 2 ** 32 - 1, rng.randrange(2 ** 32),
                                  rng.randrange(2 ** 32), 1_700_000_000 + index]))
    draft.add("project", rng.choice(["results", "results", "étude 1"]))
    draft.add_choices()
    threads = rng.choice([[], ["--threads", "1"], ["--threads", "2"], ["--threads", "3"]])
    return InputSet(index, draft.shape, draft.files, write_options(rng, draft.options), threads,
                    rng.random() < 0.4)
