#!/usr/bin/env python3
"""Write the two example data sets of KALDO into examples/.

The animal, the places and every genotype are made up. The script is the whole history of the data:
run it again and the same bytes come out, on every machine (Python 3.10 or later).

    scripts/make-examples.py [FOLDER]        (default: examples/ beside scripts/)

Non-sexed set: one lake, adults whose sex could not be told, 9 loci.
Sexed set:     two ponds, males and females known, 8 loci; "*" lines separate the ponds.

How a set comes about:
1. Every locus gets a ladder of allele sizes, one unit distance apart, with bell-shaped frequencies.
2. Adults draw both alleles of each locus from these frequencies.
3. Families are formed among all adults of a place, and each offspring takes one allele of each
   parent at each locus.
4. Some offspring alleles are misread by one or two unit distances, and some loci stay undefined.
5. Part of the adults is left out of the parents files: these are the uncollected parents.
6. For the sexed set, a catch of the year before is drawn from the same frequencies. It is the sample
   that simulations draw their parents from; none of its fish is a parent of the offspring.
"""

import pathlib
import random
import sys

# name, unit distance in base pairs, shortest allele, number of sizes on the ladder
LAKE_LOCI = [
    ("Mir03Di", 2, 118, 11),
    ("Mir08Di", 2, 152, 12),
    ("Mir14Di", 2, 96, 9),
    ("Mir21Di", 2, 203, 10),
    ("Mir27Di", 2, 177, 12),
    ("Mir05Tet", 4, 140, 11),
    ("Mir11Tet", 4, 228, 12),
    ("Mir19Tet", 4, 185, 10),
    ("Mir30Tet", 4, 264, 13),
]
POND_LOCI = LAKE_LOCI[:4] + LAKE_LOCI[5:]

LAKE_SEED = 20
POND_SEED = 11
POND_SAMPLE_SEED = 5

MISREAD_RATE = 0.015  # per offspring allele
TWO_UNITS_SHARE = 0.2  # of the misread alleles
UNDEFINED_RATE = 0.015  # per offspring locus


class Dice:
    """Draws from random() alone, the one draw whose stream Python promises never to change."""

    def __init__(self, seed):
        self._generator = random.Random(seed)

    def chance(self, probability):
        return self._generator.random() < probability

    def below(self, limit):
        return int(self._generator.random() * limit)

    def pick(self, items):
        return items[self.below(len(items))]

    def pick_weighted(self, items, weights):
        rest = self._generator.random() * sum(weights)
        for item, weight in zip(items, weights):
            rest -= weight
            if rest < 0:
                return item
        return items[-1]

    def sample(self, items, count):
        pool = list(items)
        return [pool.pop(self.below(len(pool))) for _ in range(count)]


class Locus:
    """A ladder of sizes with frequencies that are high in the middle and uneven."""

    def __init__(self, name, unit, shortest, steps, dice):
        self.name = name
        self.unit = unit
        self.sizes = [shortest + unit * step for step in range(steps)]
        middle = (steps - 1) / 2
        self.weights = [
            (1 + middle - abs(step - middle)) * (0.5 + dice.below(100) / 100)
            for step in range(steps)
        ]

    def draw_genotype(self, dice):
        return tuple(dice.pick_weighted(self.sizes, self.weights) for _ in range(2))


class Adult:
    def __init__(self, name, loci, dice):
        self.name = name
        self.collected = True
        self.genotypes = [locus.draw_genotype(dice) for locus in loci]


class Offspring:
    """A child of two adults, as the laboratory read it."""

    def __init__(self, parent1, parent2, loci, dice):
        self.name = ""
        self.parents = (parent1, parent2)
        self.remarks = []
        self.genotypes = []
        for index, locus in enumerate(loci):
            if dice.chance(UNDEFINED_RATE):
                self.genotypes.append((0, 0))
                self.remarks.append(f"{locus.name} undefined")
                continue
            alleles = [dice.pick(parent.genotypes[index]) for parent in self.parents]
            self.genotypes.append(tuple(self._read(a, locus, dice) for a in alleles))

    def _read(self, true_size, locus, dice):
        if not dice.chance(MISREAD_RATE):
            return true_size
        units = 2 if dice.chance(TWO_UNITS_SHARE) else 1
        read_size = true_size + locus.unit * units * dice.pick([-1, 1])
        self.remarks.append(f"{locus.name} {true_size} read as {read_size}")
        return read_size


def make_loci(descriptions, dice):
    return [Locus(*description, dice) for description in descriptions]


def make_adults(prefix, count, first, loci, dice):
    return [Adult(f"{prefix}{first + k:02d}", loci, dice) for k in range(count)]


def leave_out(adults, count, dice):
    for adult in dice.sample(adults, count):
        adult.collected = False


def raise_families(couples, offspring_wanted, loci, dice):
    """Give every couple one offspring, then the rest to couples drawn at random."""
    chosen = list(couples) + [dice.pick(couples) for _ in range(offspring_wanted - len(couples))]
    return [Offspring(parent1, parent2, loci, dice) for parent1, parent2 in chosen]


def shuffle_and_name(offspring, prefix, dice):
    mixed = dice.sample(offspring, len(offspring))
    for number, child in enumerate(mixed, 1):
        child.name = f"{prefix}{number:02d}"
    return mixed


def field(genotype):
    """Both sizes side by side, three digits each, the shorter one first."""
    return "".join(f"{size:03d}" for size in sorted(genotype))


def record(individual):
    return " ".join([individual.name] + [field(genotype) for genotype in individual.genotypes])


def write_lines(path, lines):
    path.write_text("".join(line + "\n" for line in lines), encoding="utf-8", newline="\n")


def write_groups(path, groups):
    """The collected adults of each group, a "*" line between two groups."""
    lines = []
    for number, adults in enumerate(groups):
        if number > 0:
            lines.append("*")
        lines += [record(adult) for adult in adults if adult.collected]
    write_lines(path, lines)


def write_truth(path, offspring):
    def status(adult):
        return "collected" if adult.collected else "uncollected"

    lines = ["OFFSPRING\tTRUE PARENT 1\tSTATUS 1\tTRUE PARENT 2\tSTATUS 2\tREMARKS"]
    for child in offspring:
        parent1, parent2 = child.parents
        lines.append(
            "\t".join(
                [
                    child.name,
                    parent1.name,
                    status(parent1),
                    parent2.name,
                    status(parent2),
                    "; ".join(child.remarks) or "-",
                ]
            )
        )
    write_lines(path, lines)


def check(loci, adults, offspring):
    """Stop when a set would break a rule that users are told to keep."""
    names = [individual.name for individual in adults + offspring]
    assert all(len(name) <= 15 for name in names)
    assert len({name[:10] for name in names}) == len(names)
    assert all(len(locus.name) <= 14 for locus in loci)
    collected = [adult for adult in adults if adult.collected]
    for index, locus in enumerate(loci):
        seen = sorted({s for who in collected + offspring for s in who.genotypes[index]} - {0})
        distances = [longer - shorter for shorter, longer in zip(seen, seen[1:])]
        assert min(distances) == locus.unit
        assert all(distance % locus.unit == 0 for distance in distances)
        assert 0 < seen[0] and seen[-1] < 1000


def make_non_sexed(folder):
    dice = Dice(LAKE_SEED)
    loci = make_loci(LAKE_LOCI, dice)
    adults = make_adults("Adult", 46, 1, loci, dice)
    order = dice.sample(adults, len(adults))
    couples = list(zip(order[0::2], order[1::2]))[:20]
    breeders = [adult for couple in couples for adult in couple]
    leave_out(breeders, 10, dice)
    offspring = shuffle_and_name(raise_families(couples, 50, loci, dice), "Young", dice)
    check(loci, adults, offspring)

    folder.mkdir(parents=True, exist_ok=True)
    write_lines(folder / "loci.txt", [locus.name for locus in loci])
    write_groups(folder / "parents.txt", [adults])
    write_lines(folder / "offspring.txt", [record(child) for child in offspring])
    write_truth(folder / "truth.txt", offspring)


def make_sexed(folder):
    dice = Dice(POND_SEED)
    loci = make_loci(POND_LOCI, dice)
    males, females, offspring = [], [], []
    for pond, (pond_males, pond_females, young) in enumerate([(11, 10, 30), (9, 10, 24)]):
        first = 1 + sum(len(group) for group in males)
        males.append(make_adults("Male", pond_males, first, loci, dice))
        first = 1 + sum(len(group) for group in females)
        females.append(make_adults("Female", pond_females, first, loci, dice))
        # Every female breeds once or twice, each time with a male of her own pond.
        mothers = females[pond] + dice.sample(females[pond], 3)
        couples = [(dice.pick(males[pond]), mother) for mother in mothers]
        leave_out(males[pond], 2, dice)
        leave_out(females[pond], 2, dice)
        offspring += raise_families(couples, young, loci, dice)
    offspring = shuffle_and_name(offspring, "Young", dice)
    check(loci, [adult for group in males + females for adult in group], offspring)

    folder.mkdir(parents=True, exist_ok=True)
    write_lines(folder / "loci.txt", [locus.name for locus in loci])
    write_groups(folder / "males.txt", males)
    write_groups(folder / "females.txt", females)
    write_lines(folder / "offspring.txt", [record(child) for child in offspring])
    write_truth(folder / "truth.txt", offspring)

    dice = Dice(POND_SAMPLE_SEED)
    for sex in ["Male", "Female"]:
        sample = make_adults(f"Early{sex[0]}", 30, 1, loci, dice)
        write_groups(folder / f"sample-{sex.lower()}s.txt", [sample])


def main():
    default_folder = pathlib.Path(__file__).resolve().parent.parent / "examples"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default_folder
    make_non_sexed(folder / "non-sexed")
    make_sexed(folder / "sexed")


if __name__ == "__main__":
    main()
