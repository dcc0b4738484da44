"""Settings and input files of an allocation, for the reference.

Text is held as "byte text" everywhere: files are decoded as Latin-1, so that
one character is one byte, widths and name prefixes count bytes, and a name in
any encoding comes out exactly as it went in.

Only sound input comes here: what the program refuses has tests of its own.
"""

import argparse
import os
from dataclasses import dataclass
from pathlib import Path


@dataclass
class ErrorModel:
    """How often an allele is read as another one in the offspring."""
    kind: str                                            # "none", "uniform" or "nonuniform"
    epsilon: float = 0.0                                 # uniform
    values: tuple = (0.002, 0.008, 0.980, 0.008, 0.002)  # -2, -1, same, +1, +2 steps


@dataclass
class Individual:
    """One slot of the genotype table: a name and one pair of alleles per locus."""
    name: str
    genotypes: list
    separator: bool = False


@dataclass
class Inputs:
    """The files of an allocation."""
    locus_names: list
    in_use: list            # positions of the loci in use, in file order
    digits: int             # digits of one genotype field
    parent_files: list      # one list of Individual, or two: males, females
    offspring: list

    @property
    def slots(self):
        """All individuals in the order in which the alleles are catalogued."""
        return [one for file in self.parent_files for one in file] + self.offspring


# ---------------------------------------------------------------- command line

def parse_error_model(text):
    kind, _, values = text.partition("=")
    if kind == "uniform":
        return ErrorModel(kind, epsilon=float(values))
    if values:
        return ErrorModel(kind, values=tuple(float(value) for value in values.split(",")))
    return ErrorModel(kind)


def parse_sequence(text):
    return [int(index) for index in text.split(",")]


def common_parser():
    """The options that allocations and simulations share."""
    parser = argparse.ArgumentParser(allow_abbrev=False)
    for name in ("project", "loci"):
        parser.add_argument("--" + name)
    parser.add_argument("--tolerance", type=int, default=1)
    parser.add_argument("--error", type=parse_error_model, default=ErrorModel("uniform", epsilon=0.01))
    parser.add_argument("--use", type=lambda text: text.split(","))
    return parser


def parse_allocation(arguments):
    """The settings; sequence is None without one, [] for file order, else one index per locus."""
    parser = common_parser()
    for name in ("offspring", "parents", "males", "females"):
        parser.add_argument("--" + name)
    parser.add_argument("--sequence", type=parse_sequence, nargs="?", const=[])
    settings = parser.parse_args(arguments)
    settings.sexed = settings.parents is None
    return settings


# ----------------------------------------------------------------------- files

def byte_text(text):
    """Turn a typed text or a French label into byte text."""
    return os.fsencode(text).decode("latin-1")


def read_tokens(path):
    """The blank-separated words of a file, without a leading byte-order mark."""
    data = Path(path).read_bytes().removeprefix(b"\xef\xbb\xbf")
    return [token.decode("latin-1") for token in data.split()]


def is_separator(name):
    return name.startswith("*")


def loci_in_use(names, use):
    """Positions of the loci in use in file order, whatever order they were typed in."""
    typed = names if use is None else [byte_text(name) for name in use]
    return [position for position, name in enumerate(names) if name in typed]


def field_digits(tokens):
    """Digits of a field: those of the first genotype of the first parents file."""
    first = next(place for place, token in enumerate(tokens) if not is_separator(token))
    return len(tokens[first + 1])


def read_individuals(tokens, locus_count, in_use, digits, separators_allowed):
    """Split the words of a genotype file into individuals.

    The order of the two alleles is that of the file; a locus that is not in use
    is empty whatever the file holds there.
    """
    individuals, words = [], iter(tokens)
    for name in words:
        if separators_allowed and is_separator(name):
            individuals.append(Individual(name, [(0, 0)] * locus_count, separator=True))
            continue
        fields = [next(words) for _ in range(locus_count)]
        individuals.append(Individual(name, [
            divmod(int(field), 10 ** (digits // 2)) if locus in in_use else (0, 0)
            for locus, field in enumerate(fields)]))
    return individuals


def read_allocation(settings, folder):
    """The files of an allocation, found in a folder."""
    names = read_tokens(folder / settings.loci)
    in_use = loci_in_use(names, settings.use)
    parents = [settings.males, settings.females] if settings.sexed else [settings.parents]
    *parent_tokens, offspring = [read_tokens(folder / file)
                                 for file in [*parents, settings.offspring]]
    digits = field_digits(parent_tokens[0])
    return Inputs(names, in_use, digits,
                  [read_individuals(tokens, len(names), in_use, digits, True)
                   for tokens in parent_tokens],
                  read_individuals(offspring, len(names), in_use, digits, False))
