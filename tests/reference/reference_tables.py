"""Allele catalogue, unit distance, stepping condition and transmission matrices."""

import struct

CAPACITY = 100   # sizes per locus; as a look-up result it means "not listed"


def single(value):
    """Round a number to single precision, in which the counts are held."""
    return struct.unpack("f", struct.pack("f", value))[0]


class Catalogue:
    """The distinct allele sizes of one locus with their counts."""

    def __init__(self, slots, locus):
        """List the first alleles of all slots, then the second ones, then sort.

        A missing allele is counted on the first listed size, so the counts always
        add up to twice the number of individuals.
        """
        self.sizes = [0] * CAPACITY
        self.counts = [0.0] * CAPACITY
        listed = 0
        for which in (0, 1):
            for individual in slots:
                size = individual.genotypes[locus][which]
                slot = self.look_up(size)
                if slot == CAPACITY:
                    slot = listed
                    self.sizes[slot] = size
                    listed += 1
                self.counts[slot] += 1
        self._sort()
        self.unit = self._unit_distance()

    def look_up(self, size):
        """Slot of a size, 0 for a missing allele, CAPACITY for an unlisted size."""
        if size == self.sizes[0]:
            return 0
        slot = 0
        while slot < CAPACITY and size != 0:
            slot += 1
            if slot < CAPACITY and self.sizes[slot] == size:
                break
        return slot

    @property
    def listed(self):
        """The listed sizes; ascending once the catalogue is sorted."""
        return [size for size in self.sizes if size != 0]

    def _sort(self):
        """Sort the sizes and leave the counts where they are.

        The count in a slot stays that of the size that appeared there first.
        """
        length = max(1, len(self.listed))
        for _ in range(length):
            for slot in range(min(length, CAPACITY - 1)):
                here, following = self.sizes[slot], self.sizes[slot + 1]
                if following != 0 and following < here:
                    self.sizes[slot], self.sizes[slot + 1] = following, here

    def _unit_distance(self):
        """The smallest step between neighbouring sizes.

        With a single size there is no step; the result is then negative and is
        reported as it is.
        """
        sizes = self.sizes
        unit = sizes[1] - sizes[0]
        for k in range(2, len(self.listed)):
            step = sizes[k] - sizes[k - 1]
            if 1 <= step <= unit - 1:
                unit = step
        return unit


def unit_note(unit):
    """The note on the repeat length that the reports write beside a locus."""
    names = {2: "Di", 3: "Tri", 4: "Tetra"}
    if unit in names:
        return f"(Unit distance = {unit}    <=>  {names[unit]})"
    return f"(Unit distance = {unit} )"


def allele_distances(catalogue):
    """Steps between neighbouring listed sizes."""
    sizes = catalogue.listed
    return [abs(after - before) for before, after in zip(sizes, sizes[1:])]


def is_out_of_step(catalogue):
    """True when the sizes of a locus cannot all differ by whole repeats.

    A step of one base pair is suspect whatever the others are.
    """
    distances = allele_distances(catalogue)
    if not catalogue.listed:
        return False
    smallest = min([abs(catalogue.sizes[1] - catalogue.sizes[0])] + distances)
    return any(step == 1 or step % smallest != 0 for step in distances)


def stepping_report(names, in_use, catalogues):
    """Text of the stepping error file and whether any locus is out of step."""
    text = ("STEPPING ERROR FILE :\n\n"
            "Stepping condition :\t\t"
            "Within each locus, the smallest allelic distance (difference in nbp)\n"
            "\t\thas to be larger than one and all other distances have to be multiples\n"
            "\t\t(of the smallest allelic distance).\n\n"
            "The following loci do not satisfy the stepping condition :\n\n")
    out_of_step = False
    for locus in in_use:
        catalogue = catalogues[locus]
        if is_out_of_step(catalogue):
            out_of_step = True
            text += f"Locus {names[locus]} :\n\tAlleles : "
            text += "".join(f"{size} " for size in catalogue.listed)
            text += "\n\tAllelic distances : "
            text += "".join(f"{step}  " for step in allele_distances(catalogue) if step != 0)
            text += "\n\n"
    return text, out_of_step


def allele_listing(names, in_use, catalogues, individual_count):
    """Sizes and frequencies of the loci in use, with the counts in order of first appearance."""
    text = "LIST OF ALLELES FOR EACH LOCUS\n\n"
    for locus in in_use:
        catalogue = catalogues[locus]
        frequencies = [catalogue.counts[slot] / (2 * individual_count)
                       for slot, size in enumerate(catalogue.sizes) if size != 0]
        total = 0.0
        for frequency in frequencies:
            total += frequency
        text += names[locus] + "\t" + "".join(f"{size}\t" for size in catalogue.listed) + "\n"
        text += "frequency\t" + "".join(f"{value:g}\t" for value in frequencies) + "\n"
        text += f"sum total\t{total:g}\n\n"
    return text


def transmission_matrix(model, catalogue):
    """Probability that a parent's allele (row) is read as another one (column)."""
    sizes = catalogue.listed
    return [[transmission(model, catalogue.unit, sizes, row, column)
             for column in range(len(sizes))] for row in range(len(sizes))]


def transmission(model, unit, sizes, row, column):
    """One cell of the matrix."""
    if model.kind == "none":
        return 1.0 if row == column else 0.0
    if model.kind == "uniform":
        if len(sizes) == 1:
            return 1.0
        return 1.0 - model.epsilon if row == column else model.epsilon / (len(sizes) - 1)
    minus2, minus1, focal, plus1, plus2 = model.values
    if row == column:
        return focal
    shorter = column < row
    distance = abs(sizes[row] - sizes[column])
    if distance == unit:
        return minus1 if shorter else plus1
    if distance == 2 * unit:
        return minus2 if shorter else plus2
    return 0.0
