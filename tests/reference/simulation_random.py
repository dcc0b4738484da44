"""Random numbers and the draw of alleles from a representative sample."""

from reference_tables import Catalogue, single


class Generator:
    """A linear-congruential generator of values from 0 to 32767.

    The same seed gives the same simulation on every machine.
    """

    def __init__(self, seed):
        self.state = seed % 2 ** 32

    def value(self):
        self.state = (self.state * 214013 + 2531011) % 2 ** 32
        return (self.state >> 16) & 0x7FFF


class SampleCatalogue(Catalogue):
    """The sizes of a sample in order of first appearance.

    Sorting would move the sizes away from their counts, so it is left out here.
    """

    def _sort(self):
        pass


class Sample:
    """A representative sample: it stands for the allele frequencies of a population."""

    def __init__(self, individuals, loci):
        self.sizes, self.cumulative = {}, {}
        for locus in loci:
            catalogue = SampleCatalogue(individuals, locus)
            self.sizes[locus] = catalogue.listed
            self.cumulative[locus] = cumulative_frequencies(
                catalogue.counts[:len(catalogue.listed)], len(individuals))


def cumulative_frequencies(counts, individual_count):
    """Running sums of the frequencies, each kept in single precision.

    A missing genotype is counted on the first listed size, so the last sum is
    about one.
    """
    entries, running = [], 0.0
    for count in counts:
        running += count / (2.0 * individual_count)
        entries.append(single(running))
    return entries


def grid_draw(generator, modulus):
    """A number from 0 up to but not including 1, as fine as an allele has digits."""
    return generator.value() % modulus / modulus


def first_reaching(draw, cumulative):
    """Slot of the first cumulative frequency that reaches the draw.

    Rounding may leave the last one a hair below a draw close to one; the last
    size is taken then.
    """
    for slot, entry in enumerate(cumulative):
        if draw <= entry:
            return slot
    return len(cumulative) - 1


def draw_genotypes(generator, sample, locus_count, modulus):
    """The genotype of one simulated parent: two independent alleles per locus.

    A locus that is not in use takes its two draws all the same, so that the
    choice of loci does not change what is drawn at the others.
    """
    genotypes = []
    for locus in range(locus_count):
        draws = [grid_draw(generator, modulus) for _ in (0, 1)]
        if locus in sample.sizes:
            genotypes.append(tuple(
                sample.sizes[locus][first_reaching(draw, sample.cumulative[locus])]
                for draw in draws))
        else:
            genotypes.append((0, 0))
    return genotypes


def transmit(row, own, draw):
    """Column of the allele received, walking the parent's row of the matrix.

    Leading zeros are skipped even by a draw of 0. A step that would leave the
    ladder is not in the row; what is left stays the parent's own allele.
    """
    total = 0.0
    for column, probability in enumerate(row):
        total += probability
        if total != 0.0 and draw <= total:
            return column
    return own
