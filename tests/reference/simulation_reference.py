"""A slow, plain simulation of allocations whose truth is known.

It exists to be compared with the fast program: the same options, the same random
numbers, the same files, written without any thought for speed.
"""

from dataclasses import dataclass

from allocation_reference import OUT_OF_STEP
from reference_reports import transmission_block
from reference_tables import stepping_report
from simulation_input import parse_simulation, read_simulation
from simulation_nonsexed_reports import NON_SEXED
from simulation_population import Producer, offspring_text, parents_text
from simulation_random import Generator
from simulation_reports import (SEQUENCE, SUMMARY, detailed, iteration_tables, parameter_block,
                                sequence_results, service_report, summary)
from simulation_scoring import score_population
from simulation_sexed_reports import SEXED
from simulation_statistics import SubsetFigures
from simulation_subsets import subsets_table

SAVED_LOCI = "SAUVLOCUSTULM.txt"
LAYOUTS = {False: NON_SEXED, True: SEXED}


@dataclass
class SimulationRun:
    """All that a run found and wrote."""
    settings: object
    iterations: list      # all iterations of all subsets
    files: dict           # name of every file that the flow may write -> byte text or None
    saved_loci: str
    closing: list         # lines that end the standard output
    warning: str          # on standard error


def matrices_text(settings, inputs, iterations, loci):
    """The blocks of all pseudo-offspring of the iterations of one subset."""
    text = ""
    for iteration in iterations:
        groups = iteration.population.groups
        candidates = [one for group in (groups[:2] if settings.sexed else groups[:1])
                      for one in group]
        for child, outcome in zip(iteration.population.offspring, iteration.outcomes):
            text += transmission_block(child, outcome, candidates, loci, inputs.digits,
                                       settings.tolerance, settings.sexed)
    return text


def kept_files(layout, settings, inputs, iterations, loci):
    """What was generated, as far as it is kept: the individuals are those of the last iteration."""
    files, population = {}, iterations[-1].population
    if "parents" in settings.keep:
        files = {name: parents_text(individuals, inputs.digits) for name, group, individuals in
                 zip(layout.parents, inputs.groups, population.groups) if not group.collected}
    if "offspring" in settings.keep:
        files["pseudo-offspring.txt"] = offspring_text(population.offspring, inputs.digits)
    if "matrices" in settings.keep:
        files[layout.matrices] = matrices_text(settings, inputs, iterations, loci)
    return files


def simulate(arguments, folder):
    """Run every subset, every iteration, on the files of a folder, and compose the results."""
    settings = parse_simulation(arguments)
    inputs = read_simulation(settings, folder)
    generator = Generator(settings.seed)
    layout = LAYOUTS[settings.sexed]
    figures, all_iterations, reached = [], [], False
    for loci in inputs.subsets:
        producer = Producer(settings, inputs, loci, generator)
        iterations = [score_population(settings, producer.next_population())
                      for _ in range(settings.iterations)]
        figures.append(SubsetFigures(settings, inputs.proportions, loci, iterations))
        all_iterations += iterations
        if settings.strategy == "minimal" and \
                figures[-1].average("ANY") >= settings.criterion:
            reached = True
            break
    population = iterations[-1].population
    names, used = inputs.locus_names, sorted(loci)
    stepping_text, out_of_step = stepping_report(names, used, population.catalogues)

    block = parameter_block(layout, settings, inputs, loci, reached)
    files = dict.fromkeys(layout.files) | {
        SUMMARY: summary(layout, settings, inputs, block, figures),
        "Service file.xls": service_report(settings, inputs, population)}
    files |= iteration_tables(layout, settings, block, figures[-1])
    files |= kept_files(layout, settings, inputs, iterations, used)
    if settings.print_iterations:
        files[layout.detailed] = detailed(layout, settings, figures[-1])
    if settings.strategy == "cumulative":
        files[SEQUENCE] = sequence_results(layout, settings, inputs, figures)
    if settings.strategy != "choice":
        files["Subsets.tsv"] = subsets_table(names, figures)
    if out_of_step:
        files["Stepping error file.xls"] = stepping_text
    return SimulationRun(
        settings, all_iterations, {name: text or None for name, text in files.items()},
        "".join(name + " " for name in names),
        [OUT_OF_STEP] * out_of_step + [layout.completed],
        "1000 iterations maximum!" if settings.sexed and settings.iterations > 1000 else "")
