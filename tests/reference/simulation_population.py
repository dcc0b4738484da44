"""One iteration: the parents, the pseudo-offspring and their text in the files."""

from dataclasses import dataclass

from reference_input import Individual
from reference_tables import Catalogue, transmission_matrix
from simulation_flows import origins_of
from simulation_random import Sample, draw_genotypes, grid_draw, transmit


@dataclass
class PseudoOffspring:
    """A simulated offspring and the places of its true parents in the parent table."""
    genotypes: list
    first: int
    second: int


@dataclass
class Population:
    """Parents and pseudo-offspring of one iteration."""
    groups: list        # lists of Individual in the order of the parent table
    classes: list       # per origin class, its pseudo-offspring
    catalogues: dict    # per locus of the subset, over parents and pseudo-offspring

    @property
    def parents(self):
        return [one for group in self.groups for one in group]

    @property
    def offspring(self):
        return [child for produced in self.classes for child in produced]


def masked(genotypes, loci):
    """A genotype without the loci that are not in use."""
    return [pair if locus in loci else (0, 0) for locus, pair in enumerate(genotypes)]


class Producer:
    """Makes the populations of one subset of loci, iteration after iteration."""

    def __init__(self, settings, inputs, loci, generator):
        self.settings, self.inputs, self.generator = settings, inputs, generator
        self.loci = sorted(loci)
        self.locus_count = len(inputs.locus_names)
        self.modulus = 10 ** (inputs.digits // 2)
        self.origins = origins_of(settings.sexed)
        self.samples = [None if group.collected else Sample(group.individuals, self.loci)
                        for group in inputs.groups]

    def next_population(self):
        """Draw the groups in table order, then the classes in their order."""
        groups, place = [], 0
        for group, sample in zip(self.inputs.groups, self.samples):
            genotypes = self._group_genotypes(group, sample)
            # A unique name each: simulated parents are never the same individual.
            groups.append([Individual(f"#{place + k}", pairs)
                           for k, pairs in enumerate(genotypes)])
            place += len(genotypes)
        parents = [one for group in groups for one in group]
        catalogues = {locus: Catalogue(parents, locus) for locus in self.loci}
        matrices = {locus: transmission_matrix(self.settings.error, catalogues[locus])
                    for locus in self.loci}
        starts = [sum(len(group) for group in groups[:k]) for k in range(len(groups))]
        classes = []
        for origin, size in zip(self.origins, self.inputs.proportions.sizes):
            ranges = [(starts[k], len(groups[k])) for k in origin.groups]
            classes.append([self._produce(ranges, parents, catalogues, matrices)
                            for _ in range(size)])
        offspring = [child for produced in classes for child in produced]
        catalogues = {locus: Catalogue(parents + offspring, locus) for locus in self.loci}
        return Population(groups, classes, catalogues)

    def _group_genotypes(self, group, sample):
        if group.collected:
            return [masked(one.genotypes, self.loci) for one in group.individuals]
        drawn = []
        while len(drawn) < group.count:    # 10.5 parents are 11
            drawn.append(draw_genotypes(self.generator, sample, self.locus_count, self.modulus))
        return drawn

    def _produce(self, ranges, parents, catalogues, matrices):
        """Choose two different parents, then one allele of each at every locus.

        The chosen allele may be misread on its way. A locus that is not in use
        takes its draws as well.
        """
        (start1, count1), (start2, count2) = ranges
        child = PseudoOffspring([], 0, 0)
        while child.first == child.second:
            child.first = start1 + self.generator.value() % count1
            child.second = start2 + self.generator.value() % count2
        for locus in range(self.locus_count):
            choices = [self.generator.value() % 2 for _ in (0, 1)]
            draws = [grid_draw(self.generator, self.modulus) for _ in (0, 1)]
            if locus not in catalogues:
                child.genotypes.append((0, 0))
                continue
            pair = []
            for parent, choice, draw in zip((child.first, child.second), choices, draws):
                allele = parents[parent].genotypes[locus][choice]
                own = catalogues[locus].look_up(allele)
                read = transmit(matrices[locus][own], own, draw)
                pair.append(catalogues[locus].sizes[read])
            child.genotypes.append(tuple(pair))
        return child


# ---------------------------------------------------------- individuals as text

def loci_text(genotypes, digits):
    half = digits // 2
    return "".join(f"{first:0{half}d}{second:0{half}d} " for first, second in genotypes) + "\n"


def parents_text(individuals, digits):
    """All simulated parents bear the same name."""
    return "".join("unnamed " + loci_text(one.genotypes, digits) for one in individuals)


def offspring_text(offspring, digits):
    """The name of a pseudo-offspring is made of the places of its true parents."""
    return "".join(f"{child.first:<3} {child.second:<3} " + loci_text(child.genotypes, digits)
                   for child in offspring)
