"""Settings, input files and their checks, for the allocation reference.

Text is held as "byte text" everywhere: files are decoded as Latin-1, so that
one character is one byte, widths and name prefixes count bytes, and a name in
any encoding comes out exactly as it went in.
"""

import os
from dataclasses import dataclass
from pathlib import Path

BYTE_ORDER_MARK = b"\xef\xbb\xbf"
MAX_LOCI = 50
MAX_INDIVIDUALS = 50_000
MAX_ALLELES = 100
MAX_NAME = 15
MAX_LOCUS_NAME = 14
MAX_DIGITS = 8

PARENTS_ODD = "Some parental loci are represented with an odd number of digits!"
PARENTS_UNDEFINED = (
    "Parental loci should not contain undefined alleles i.e. represented by a string of 0s!")
MALES_ODD = "Some male parental loci are represented with an odd number of digits!"
MALES_UNDEFINED = (
    "Male parental loci should not contain undefined alleles i.e. represented by a string of 0s!")
FEMALES_ODD = "Some female parental loci are represented with an odd number of digits!"
FEMALES_UNDEFINED = (
    "Female parental loci should not contain undefined alleles i.e. represented by a string of 0s!")
OFFSPRING_ODD = "Some offspring loci are represented with an odd number of digits!"
OFFSPRING_HALF_DEFINED = (
    "Offspring loci should contain totally defined alleles(no string of 0s) "
    "or totally undefined alleles (two strings of 0s)!")


class InputFault(Exception):
    """The input or a setting is refused; the text is the sentence the user reads."""


@dataclass
class ErrorModel:
    """How often an allele is read as another one in the offspring."""
    kind: str                                            # "none", "uniform" or "nonuniform"
    epsilon: float = 0.0                                 # uniform
    values: tuple = (0.002, 0.008, 0.980, 0.008, 0.002)  # -2, -1, same, +1, +2 steps


@dataclass
class Settings:
    """Everything the user chooses for one allocation, file names as typed."""
    project: str
    loci: str
    offspring: str
    parents: str | None
    males: str | None
    females: str | None
    tolerance: int
    error: ErrorModel
    use: list | None        # names of the loci in use, None for all
    sequence: list | None   # None: no sequence; []: file order; else one index per locus

    @property
    def sexed(self):
        return self.parents is None


@dataclass
class Individual:
    """One slot of the genotype table: a name and one pair of alleles per locus."""
    name: str
    genotypes: list
    separator: bool = False


@dataclass
class Inputs:
    """The files of a run after every check has passed."""
    locus_names: list
    in_use: list            # positions of the loci in use, in file order
    digits: int             # digits of one genotype field
    parent_files: list      # one list of Individual, or two: males, females
    offspring: list

    @property
    def slots(self):
        """All individuals in the order in which the alleles are catalogued."""
        return [one for file in self.parent_files for one in file] + self.offspring


def byte_text(text):
    """Turn a typed text or a French label into byte text."""
    return os.fsencode(text).decode("latin-1")


def read_tokens(path):
    """The blank-separated words of a file, without a leading byte-order mark."""
    data = Path(path).read_bytes().removeprefix(BYTE_ORDER_MARK)
    return [token.decode("latin-1") for token in data.split()]


def is_separator(name):
    return name.startswith("*")


# ---------------------------------------------------------------- fixed checks

def counted_records(tokens, locus_count, separators_allowed):
    """The field lists of a file, found by counting words and not by reading lines.

    The number of records follows from the number of words, so a missing or a
    surplus field shifts every later record and is told as an odd field.
    """
    separators = sum(map(is_separator, tokens)) if separators_allowed else 0
    record_count = separators + (len(tokens) - separators) // (locus_count + 1)
    records, position = [], 0
    for _ in range(record_count):
        if position >= len(tokens):
            break
        name = tokens[position]
        position += 1
        if separators_allowed and is_separator(name):
            continue
        records.append(tokens[position:position + locus_count])
        position += locus_count
    expected_fields = ((len(tokens) - separators) * locus_count) // (locus_count + 1)
    return records, expected_fields


def has_odd_field(records, expected_fields):
    """True when the even-length fields do not add up to the number expected."""
    even = sum(1 for fields in records for field in fields
               if len(field) % 2 == 0 and len(field) <= 1000)
    return even != expected_fields


def undefined_halves(field):
    """How many halves of a field (0, 1 or 2) consist of zeros only."""
    half = len(field) // 2
    return (field[:half].count("0") == half) + (field[half:].count("0") == half)


def parents_fault(tokens, locus_count, odd_sentence, undefined_sentence):
    """A parent must be typed at every locus; returns the sentence or None."""
    records, expected = counted_records(tokens, locus_count, True)
    if has_odd_field(records, expected):
        return odd_sentence
    if any(undefined_halves(field) for fields in records for field in fields):
        return undefined_sentence
    return None


def offspring_fault(tokens, locus_count):
    """An offspring locus is either typed or missing as a whole."""
    records, expected = counted_records(tokens, locus_count, False)
    if has_odd_field(records, expected):
        return OFFSPRING_ODD
    if any(undefined_halves(field) == 1 for fields in records for field in fields):
        return OFFSPRING_HALF_DEFINED
    return None


def file_names(settings):
    """(typed name, sentence when it is empty) in the order in which they are checked."""
    if settings.sexed:
        parents = [(settings.males, "Male parent file name is missing!"),
                   (settings.females, "Female parent file name is missing!")]
    else:
        parents = [(settings.parents, "Parent file name is missing!")]
    return parents + [(settings.offspring, "Offspring file name is missing!"),
                      (settings.loci, "Names of loci file name is missing!")]


def check_contents(settings, parent_tokens, offspring_tokens, locus_count):
    """A fault found later hides an earlier one: the user reads the last sentence."""
    sentence = None
    if settings.sexed:
        separator_counts = {sum(map(is_separator, tokens)) for tokens in parent_tokens}
        if len(separator_counts) > 1:
            sentence = "Male and female files have different numbers of separators!"
        faults = [parents_fault(parent_tokens[0], locus_count, MALES_ODD, MALES_UNDEFINED),
                  parents_fault(parent_tokens[1], locus_count, FEMALES_ODD, FEMALES_UNDEFINED)]
    else:
        faults = [parents_fault(parent_tokens[0], locus_count, PARENTS_ODD, PARENTS_UNDEFINED)]
    faults.append(offspring_fault(offspring_tokens, locus_count))
    for fault in faults:
        sentence = fault or sentence
    if sentence:
        raise InputFault(sentence)


def check_error_model(model):
    """At most one allele in ten may be misread, and probabilities add up to one."""
    if model.kind == "uniform" and not model.epsilon <= 0.1:
        raise InputFault("Espilon should be between 0 and 0.1")
    if model.kind == "nonuniform":
        minus2, minus1, focal, plus1, plus2 = model.values
        if minus2 + minus1 + focal + plus1 + plus2 != 1.0:
            raise InputFault("Sum of probability must be 1 ! ")
        if not 0.9 <= focal <= 1.0:
            raise InputFault("Error sum should not exceed 0.1!")


def check_sequence(sequence, locus_count):
    """Only zero, the upper bound and the sum are tested: indices may repeat."""
    if not sequence:
        return
    if len(sequence) != locus_count:
        raise InputFault("The sequence needs one index per locus!")
    if 0 in sequence:
        raise InputFault("Set of indices has to run from 1 to the total number of loci. "
                         "No zero! Only integers!")
    if max(sequence) > locus_count:
        raise InputFault("Set of indices has to run from 1 to the total number of loci. "
                         "Not farther!")
    if sum(sequence) != sum(range(1, locus_count + 1)):
        raise InputFault("Set of indices has to run from 1 to the total number of loci.")


# -------------------------------------------------- stricter checks and reading

def require(condition, sentence):
    if not condition:
        raise InputFault(sentence)


def check_loci(names):
    require(names, "No locus!")
    require(len(names) <= MAX_LOCI, "Too many loci!")
    require(len(set(names)) == len(names), "A locus name occurs twice!")
    require(all(len(name) <= MAX_LOCUS_NAME for name in names), "A locus name is too long!")


def loci_in_use(names, use):
    """Positions of the loci in use in file order, whatever order they were typed in."""
    if use is None:
        return list(range(len(names)))
    typed = [byte_text(name) for name in use]
    require(all(name in names for name in typed), "A locus in use is not in the names of loci!")
    return [position for position, name in enumerate(names) if name in typed]


def field_digits(tokens):
    """Digits of a field: those of the first genotype of the first parents file."""
    names = [position for position, token in enumerate(tokens) if not is_separator(token)]
    require(len(names) > 0, "No parent!")
    require(names[0] + 1 < len(tokens), "A record has a wrong number of fields!")
    digits = len(tokens[names[0] + 1])
    require(digits <= MAX_DIGITS, "A genotype has too many digits!")
    return digits


def read_individuals(tokens, locus_count, in_use, digits, separators_allowed):
    """Split the words of a genotype file into individuals.

    The order of the two alleles is that of the file; a locus that is not in use
    is empty whatever the file holds there.
    """
    divisor = 10 ** (digits // 2)
    individuals, position = [], 0
    while position < len(tokens):
        name = tokens[position]
        position += 1
        require(len(name) <= MAX_NAME, "A name is too long!")
        if separators_allowed and is_separator(name):
            individuals.append(Individual(name, [(0, 0)] * locus_count, separator=True))
            continue
        fields = tokens[position:position + locus_count]
        position += locus_count
        require(len(fields) == locus_count, "A record has a wrong number of fields!")
        for field in fields:
            require(field.isascii() and field.isdigit(), "A genotype is not a number!")
            require(len(field) == digits, "A genotype has a wrong number of digits!")
        genotypes = [divmod(int(field), divisor) if locus in in_use else (0, 0)
                     for locus, field in enumerate(fields)]
        individuals.append(Individual(name, genotypes))
    return individuals


def check_and_read(settings, folder="."):
    """Run every check in its order, then return the Inputs; nothing is written here."""
    folder = Path(folder)
    require(settings.project, "Please enter name of project!")
    names = file_names(settings)
    for typed, sentence in names:
        require(typed, sentence)
    files = []
    for typed, _ in names:
        try:
            files.append(read_tokens(folder / typed))
        except OSError:
            raise InputFault(f'Cannot open file "{typed}"!') from None
    require(settings.tolerance >= 0, "Enter a positive number")

    *parent_tokens, offspring_tokens, locus_names = files
    check_contents(settings, parent_tokens, offspring_tokens, len(locus_names))
    check_error_model(settings.error)
    check_sequence(settings.sequence, len(locus_names))

    check_loci(locus_names)
    in_use = loci_in_use(locus_names, settings.use)
    digits = field_digits(parent_tokens[0])
    parent_files = [read_individuals(tokens, len(locus_names), in_use, digits, True)
                    for tokens in parent_tokens]
    offspring = read_individuals(offspring_tokens, len(locus_names), in_use, digits, False)
    require(all(any(not one.separator for one in file) for file in parent_files), "No parent!")
    require(offspring, "No offspring!")
    inputs = Inputs(locus_names, in_use, digits, parent_files, offspring)
    require(len(inputs.slots) <= MAX_INDIVIDUALS, "Too many individuals!")
    for locus in in_use:
        sizes = {size for one in inputs.slots for size in one.genotypes[locus]} - {0}
        require(len(sizes) <= MAX_ALLELES, "Too many alleles at a locus!")
    return inputs
