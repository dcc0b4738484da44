"""Small random input sets, some of them shaped on purpose to meet rare situations.

Every set is made from (seed, index) alone, so any of them can be made again.
"""

import random
from dataclasses import dataclass

from random_layout import option, render, separated, write_options
from random_shapes import SHAPES, Draft


@dataclass
class InputSet:
    """Files and options of one comparison; file names are relative to its folder."""
    index: int
    shape: str
    files: dict          # name -> bytes
    options: list        # options that both understand
    threads: list        # options for the fast program only
    stale: bool          # an earlier run left all report files behind


ERRORS = ["none", "uniform=0.02", "uniform=0.1", "uniform=0", "uniform=-0.01", "uniform=5e-3",
          "nonuniform", "nonuniform", "nonuniform=0.01,0.02,0.94,0.02,0.01",
          "nonuniform=0,0.03125,0.9375,0.03125,0", "nonuniform=0.05,0.0,0.95,0.0,0.0", None]


# --------------------------------------------------------------------- assembly

def index_list(rng, count):
    """Cumulative indices that pass the test by sum: shuffled, repeated or negative."""
    indices = list(range(1, count + 1))
    rng.shuffle(indices)
    for _ in range(rng.choice([0, 0, 1, 2, 4])):
        up, down = rng.randrange(count), rng.randrange(count)
        if up != down and indices[up] < count and indices[down] > 1:
            indices[up] += 1
            indices[down] -= 1
    if count >= 4 and rng.random() < 0.3:
        rest = sum(range(1, count + 1)) + 1
        indices = [-1] + [1] * (count - 1)
        for position in range(1, count):
            indices[position] = min(count, rest - (count - 1 - position))
            rest -= indices[position]
    return ",".join(map(str, indices))


def make_set(seed, index):
    """The input set of a seed and an index."""
    rng = random.Random(f"{seed}/{index}")
    shape = SHAPES[index % len(SHAPES)]
    turn = index // len(SHAPES)
    draft = Draft(rng, turn, sexed=(index + turn) % 2 == 1)
    shape(draft)

    names = [f"{rng.choice(['Loc', 'Pm-', 'µsat', 'L_'])}{number}"
             for number in range(1, len(draft.ladders) + 1)]
    names[-1] = rng.choice([names[-1], "FourteenBytes_"])
    files, options = {}, [["--project", "results"]]

    def add_file(which, words):
        folder = rng.choice(["", "", "./", "données/"])
        path = folder + rng.choice([which, which + " file"]) + rng.choice([".txt", ".dat"])
        files[path] = render(rng, words)
        options.append(option(rng, "--" + which, path))

    first, second = separated(rng, draft)
    add_file("loci", [[name] for name in names])
    add_file("offspring", fields_of(draft, draft.offspring))
    if draft.sexed:
        add_file("males", fields_of(draft, first))
        add_file("females", fields_of(draft, second))
    else:
        add_file("parents", fields_of(draft, first))
    error = draft.error if draft.error is not None else rng.choice(ERRORS)
    if error is not None:
        options.append(option(rng, "--error", error))
    if rng.random() < 0.9:
        options.append(option(rng, "--tolerance", str(rng.choice([0, 0, 1, 1, 2, 3]))))
    if len(names) > 1 and rng.random() < 0.3:
        used = rng.sample(names, rng.randint(1, len(names)))
        options.append(option(rng, "--use", ",".join(used)))
    if draft.sequence or rng.random() < 0.45:
        indices = index_list(rng, len(names))
        options.append(["--sequence"] if rng.random() < 0.2
                       else option(rng, "--sequence", indices))
    threads = rng.choice([[], ["--threads", "1"], ["--threads", "2"], ["--threads", "3"]])
    return InputSet(index, shape.__name__.removeprefix("shape_"), files,
                    write_options(rng, options), threads, rng.random() < 0.4)


def fields_of(draft, individuals):
    """The words of each record; a separator is a record of one word."""
    records = []
    for one in individuals:
        if isinstance(one, str):
            records.append([one])
        else:
            name, genotypes = one
            records.append([name] + [f"{a:0{draft.half}d}{b:0{draft.half}d}"
                                     for a, b in genotypes])
    return records
