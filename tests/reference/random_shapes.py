"""The shapes of the random input sets: who is collected and who is bred from whom."""

from random_layout import name_giver

MISREAD = 0.25   # share of the alleles of a bred offspring that are misread


class Draft:
    """A set while it is being shaped."""

    def __init__(self, rng, turn, sexed):
        self.rng = rng
        self.turn = turn                   # how often this shape was made before
        self.sexed = sexed
        self.half = rng.choice([1, 2, 3, 3, 3, 4])
        self.ladders = []                  # per locus, the sizes to draw from
        self.first, self.second = [], []   # collected parents or males; females
        self.offspring = []
        self.error = None
        self.groupable = True              # separators may go anywhere
        self.sequence = False              # a cumulative sequence is wanted
        self.missing = rng.choice([0.0, 0.0, 0.15, 0.5])
        self.name = name_giver(rng)

    @property
    def limit(self):
        return 10 ** self.half - 1

    def make_loci(self, alleles, count=None, regular=None, one_allele=0.15):
        """Draw 1 to 6 loci with at most the given number of sizes each."""
        for _ in range(count or self.rng.randint(1, 6)):
            wanted = 1 if self.rng.random() < one_allele else self.rng.randint(2, alleles)
            even = self.rng.random() < 0.7 if regular is None else regular
            self.ladders.append(self.ladder(wanted, even))

    def ladder(self, count, regular):
        rng = self.rng
        widest = max(1, (self.limit - 1) // max(1, count - 1))
        step = min(widest, rng.choice([1, 2, 2, 2, 3, 4, 4, 5]))
        steps = [step if regular else min(widest, rng.randint(1, 6)) for _ in range(count - 1)]
        base = rng.randint(1, self.limit - sum(steps)) if rng.random() < 0.3 else \
            min(self.limit - sum(steps), 150)
        return [base + sum(steps[:k]) for k in range(count)]

    def draw(self, homozygous=0.3):
        """A random multilocus genotype."""
        genotypes = []
        for sizes in self.ladders:
            first = self.rng.choice(sizes)
            same = self.rng.random() < homozygous
            genotypes.append((first, first if same else self.rng.choice(sizes)))
        return genotypes

    def add_first(self, genotypes, name=None):
        self.first.append((name or self.name(), genotypes))

    def add_second(self, genotypes, name=None):
        """A female, or one more collected parent when the sex is unknown."""
        (self.second if self.sexed else self.first).append((name or self.name(), genotypes))

    def add_parents(self, fewest=2, most=10):
        for _ in range(self.rng.randint(fewest, most) // 2 + 1):
            self.add_first(self.draw())
            self.add_second(self.draw())

    def add_child(self, genotypes):
        """An offspring with some loci missing."""
        rng = self.rng
        lost = 1.0 if rng.random() < 0.06 else self.missing
        name = "*" + self.name()[:14] if rng.random() < 0.05 else self.name()
        self.offspring.append(
            (name, [(0, 0) if rng.random() < lost else pair for pair in genotypes]))

    def breed(self, parent1, parent2, misread=MISREAD):
        """One allele of each parent per locus, some of them misread by a few steps."""
        rng, child = self.rng, []
        for locus, sizes in enumerate(self.ladders):
            pair = [rng.choice(parent1[locus]), rng.choice(parent2[locus])]
            for side in (0, 1):
                if rng.random() < misread:
                    step = sizes[1] - sizes[0] if len(sizes) > 1 else 2
                    shift = step * rng.choice([-3, -2, -1, 1, 2, 3]) + rng.choice([0, 0, 0, 1])
                    pair[side] = max(1, min(self.limit, pair[side] + shift))
            rng.shuffle(pair)
            child.append(tuple(pair))
        return child


# ---------------------------------------------------------------------- shapes

def shape_bred(draft):
    """Offspring of two collected parents, with typing errors."""
    draft.make_loci(6)
    draft.add_parents(2, 12)
    for _ in range(draft.rng.randint(2, 8)):
        one = draft.rng.choice(draft.first)[1]
        two = draft.rng.choice(draft.second or draft.first)[1]
        draft.add_child(draft.breed(one, two))


def shape_plain(draft):
    """Parents and offspring drawn alike: many are not related."""
    draft.make_loci(5)
    draft.add_parents()
    for _ in range(draft.rng.randint(1, 8)):
        draft.add_child(draft.draw())


# Steps of a ladder: child, the parent that explains it, the parent that is measured.
MEASURED = [((0, 3), (0, 6), (2, 4)), ((0, 3), (0, 0), (2, 5)), ((0, 3), (0, 5), (2, 2)),
            ((3, 3), (3, 6), (2, 4)), ((3, 3), (3, 1), (2, 5)), ((3, 3), (3, 3), (2, 2)),
            ((1, 5), (1, 5), (2, 3)), ((1, 5), (1, 5), (2, 4)), ((1, 5), (1, 5), (2, 2)),
            ((1, 5), (1, 5), (3, 3))]


def shape_measured(draft):
    """One couple; at each locus one parent explains the child, the other is some steps off."""
    rng = draft.rng
    draft.half = rng.choice([2, 3, 3, 4])
    draft.error, draft.missing, draft.groupable = "uniform=0.05", 0.0, False
    parents, child = ([], []), []
    for locus in range(6):
        sizes = draft.ladder(7, True)
        draft.ladders.append(sizes)
        count = 6 * draft.turn + locus
        *sides, young = (tuple(sizes[step] for step in pair[::rng.choice([1, -1])])
                         for pair in reversed(MEASURED[count % len(MEASURED)]))
        explaining = (count // len(MEASURED) + count) % 2
        for side, pair in enumerate(sides):
            parents[(side + explaining) % 2].append(pair)
        child.append(young)
    draft.add_first(parents[0])
    draft.add_second(parents[1])
    for _ in range(rng.randint(3, 6)):
        draft.add_child([pair[::rng.choice([1, -1])] for pair in child])


def shape_tied(draft):
    """One parent and 2 to 7 identical partners: as many equally likely pairs."""
    draft.half = max(2, draft.half)
    draft.make_loci(5, regular=True, one_allele=0.0)
    draft.name = name_giver(draft.rng, "short")
    draft.error = draft.rng.choice(["none", "uniform=0.02", "nonuniform"])
    draft.groupable = False
    one = [(sizes[0], sizes[0]) for sizes in draft.ladders]
    two = [(sizes[1], sizes[1]) for sizes in draft.ladders]
    draft.add_first(one)
    for _ in range(2 + draft.turn % 6):
        draft.add_second(two)
    draft.rng.shuffle(draft.first)
    for _ in range(draft.rng.randint(1, 3)):
        draft.add_child(draft.breed(one, two, 0.0))


def shape_permuted(draft):
    """Partners with the same misfits at other loci: equal but for the last rounding."""
    rng = draft.rng
    draft.half, draft.missing, draft.groupable = 3, 0.0, False
    draft.name = name_giver(rng, "short")
    draft.error = rng.choice(["uniform=0.03", "nonuniform"])
    draft.ladders = [draft.ladder(3, True) for _ in range(6)]
    low, high = ([(sizes[k], sizes[k]) for sizes in draft.ladders] for k in (0, 2))
    draft.add_first(low)
    for _ in range(rng.randint(4, 8)):
        misfits = [(2, 2), (2, 2), (1, 2), (1, 2), (1, 1), (1, 1)]
        rng.shuffle(misfits)
        draft.add_second([(sizes[a], sizes[b]) for sizes, (a, b) in zip(draft.ladders, misfits)])
    rng.shuffle(draft.first)
    for _ in range(rng.randint(1, 3)):
        draft.add_child(draft.breed(low, high, 0.0))


def shape_better_later(draft):
    """Six equally likely pairs early in the files, the true couple at their end."""
    draft.half = max(2, draft.half)
    for _ in range(draft.rng.randint(1, 4)):
        draft.ladders.append(draft.ladder(3, True))
    draft.name = name_giver(draft.rng, "short")
    draft.error = draft.rng.choice([None, "uniform=0.08", "nonuniform"])
    if draft.error is None:
        draft.error = "nonuniform=0.001,0.009,0.98,0.009,0.001"
    draft.groupable = False
    draft.missing = 0.0
    low, between, high = ([(sizes[k], sizes[k]) for sizes in draft.ladders] for k in range(3))
    for _ in range(draft.rng.randint(6, 8)):
        draft.add_second(between)
    for _ in range(2 if draft.sexed else 0):
        draft.add_first(between)
    draft.add_first(low)
    draft.add_second(high)
    for _ in range(draft.rng.randint(1, 3)):
        draft.add_child(draft.breed(low, high, 0.0))


def shape_clones(draft):
    """Partners sampled twice under names that share their first ten bytes."""
    draft.half = max(2, draft.half)
    draft.make_loci(4, regular=True, one_allele=0.0)
    draft.groupable = False
    prefix = draft.rng.choice(["Pond-East-", "Génitrice", "0123456789"])
    one = [(sizes[0], sizes[0]) for sizes in draft.ladders]
    two = [(sizes[1], sizes[1]) for sizes in draft.ladders]
    draft.add_first(one)
    for number in range(draft.rng.randint(2, 6)):
        draft.add_second(two, f"{prefix}{'A' if number % 3 else 'B'}{number}")
    draft.add_second(two)
    draft.rng.shuffle(draft.first)
    for _ in range(draft.rng.randint(1, 4)):
        draft.add_child(draft.breed(one, two, draft.rng.choice([0.0, 0.1])))


def shape_namesakes(draft):
    """Males and females of the same names and genotypes."""
    draft.sexed = True
    draft.groupable = False
    draft.make_loci(3)
    same = draft.draw()
    for name in ["Ax", "Bx", "Cx"][:draft.rng.randint(2, 3)]:
        draft.add_first(same, name)
        draft.add_second(same, name)
    for _ in range(draft.rng.randint(1, 3)):
        draft.add_child(draft.breed(same, same, 0.1))


def shape_incompatible(draft):
    """Without typing errors in the model, unrelated offspring have no pair."""
    draft.error = "none"
    shape_plain(draft)


def shape_lonely(draft):
    """Not a single candidate pair: one parent, or one in each group."""
    draft.make_loci(4)
    draft.add_first(draft.draw())
    draft.first.append(None)
    if draft.sexed:
        draft.second.append(None)
    if draft.sexed or draft.rng.random() < 0.5:
        draft.add_second(draft.draw())
    draft.groupable = False
    for _ in range(draft.rng.randint(1, 4)):
        draft.add_child(draft.draw())


def shape_uneven(draft):
    """Irregular steps: sizes out of step and distances that leave a remainder."""
    rng = draft.rng
    draft.half = rng.choice([2, 3, 4])
    draft.error = rng.choice(["uniform=0.03", "uniform=0.1", None])
    for _ in range(rng.randint(2, 5)):
        start = rng.randint(3, 60)
        draft.ladders.append([start, start + 3, start + 7, start + 12, start + 19, start + 22])
    draft.add_parents(2, 6)
    for _ in range(rng.randint(2, 8)):
        draft.add_child(draft.draw())


def shape_counted(draft):
    """Twenty-nine individuals with an allele seen 33 times: its frequency, printed with six
    digits, shows whether it was computed in single precision."""
    rng = draft.rng
    draft.half, draft.missing, draft.groupable, draft.sequence = 3, 0.0, False, True
    draft.ladders = [draft.ladder(2, True) for _ in range(rng.randint(1, 3))]
    drawn = []
    for sizes in draft.ladders:
        alleles = [sizes[0]] * 33 + [sizes[1]] * 25
        rng.shuffle(alleles)
        drawn.append(list(zip(alleles[::2], alleles[1::2])))
    for position, genotypes in enumerate(map(list, zip(*drawn))):
        if position < 14:
            (draft.add_second if position % 2 else draft.add_first)(genotypes)
        else:
            draft.offspring.append((draft.name(), genotypes))


def shape_many(draft):
    """More parents than a run scans one by one: it has to find the same with its bounds."""
    draft.make_loci(6)
    draft.add_parents(40, 50)
    for _ in range(draft.rng.randint(1, 3)):
        draft.add_child(draft.draw())


SHAPES = [shape_bred, shape_plain, shape_tied, shape_permuted, shape_better_later, shape_clones,
          shape_bred, shape_measured, shape_incompatible, shape_lonely, shape_uneven, shape_counted,
          shape_namesakes, shape_measured, shape_many]
