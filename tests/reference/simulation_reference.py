#!/usr/bin/env python3
"""A slow, plain simulation of allocations whose truth is known.

It exists to be compared with the fast program: the same options, the same random
numbers, the same files, written without any thought for speed.
"""

import sys
from dataclasses import dataclass
from pathlib import Path

import simulation_nonsexed_reports
import simulation_sexed_reports
from allocation_reference import COMPLETED, OUT_OF_STEP
from reference_input import InputFault, byte_text
from reference_reports import transmission_block
from reference_tables import stepping_report
from simulation_common_reports import service_report
from simulation_input import MOST_ITERATIONS, check_and_read_simulation, saved_loci
from simulation_population import Producer, offspring_text, parents_text
from simulation_random import Generator
from simulation_scoring import score_population
from simulation_settings import parse_simulation
from simulation_statistics import SubsetFigures

SAVED_LOCI = "SAUVLOCUSTULM.txt"
OFFSPRING = "pseudo-offspring.txt"
SUMMARY, SEQUENCE = "Summary.xls", "Sequence results.xls"
STEPPING, SERVICE = "Stepping error file.xls", "Service file.xls"
WARNING = "1000 iterations maximum!"


@dataclass(frozen=True)
class FlowFiles:
    """Names of the files in which the two flows differ."""
    reports: object
    parents: tuple     # files of the parental groups, in the order of the parent table
    matrices: str
    detailed: str
    completed: str

    @property
    def all_names(self):
        return self.parents + (OFFSPRING, SUMMARY, SEQUENCE, STEPPING, SERVICE, self.matrices,
                               self.detailed) + self.reports.FILES


FILES = {
    False: FlowFiles(simulation_nonsexed_reports,
                     ("pseudo-collected parents.txt", "uncollected parents.txt"),
                     "Iterations - transmission matrices.xls", "Detailled summary.xls",
                     "calculations completed!"),
    True: FlowFiles(simulation_sexed_reports,
                    ("pseudo-collected males.txt", "pseudo-collected females.txt",
                     "uncollected males.txt", "uncollected females.txt"),
                    "Iterations-transmission matrices.xls", "Detailed Iterations Results.xls",
                    COMPLETED),
}


@dataclass
class SimulationRun:
    """All that a run found, kept for the tests beside the text of its files."""
    settings: object
    inputs: object
    figures: list         # SubsetFigures per subset that ran
    iterations: list      # all iterations of all subsets
    reached: bool
    files: dict           # file name -> byte text
    saved_loci: str
    closing: list         # lines that end the standard output
    warning: str | None


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


def individuals_files(settings, inputs, population):
    """The generated individuals of the last iteration, those that are kept."""
    files = {}
    if "parents" in settings.keep:
        for name, group, individuals in zip(FILES[settings.sexed].parents, inputs.groups,
                                            population.groups):
            if not group.collected:
                files[name] = parents_text(individuals, inputs.digits)
    if "offspring" in settings.keep:
        files[OFFSPRING] = offspring_text(population.offspring, inputs.digits)
    return files


def simulate(settings, folder="."):
    """Run every subset, every iteration, and compose the files."""
    inputs = check_and_read_simulation(settings, folder)
    generator = Generator(settings.seed)
    flow = FILES[settings.sexed]
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

    block = flow.reports.parameter_block(settings, inputs, loci, reached)
    files = {SUMMARY: flow.reports.summary(settings, inputs, block, figures[-1], figures),
             SERVICE: service_report(settings, inputs, population)}
    files |= flow.reports.iteration_tables(settings, block, figures[-1])
    if settings.print_iterations:
        files[flow.detailed] = flow.reports.detailed(figures[-1])
    if settings.strategy == "cumulative":
        files[SEQUENCE] = flow.reports.sequence_results(settings, inputs, figures)
    if out_of_step:
        files[STEPPING] = stepping_text
    if "matrices" in settings.keep:
        files[flow.matrices] = matrices_text(settings, inputs, iterations, used)
    files |= individuals_files(settings, inputs, population)
    files = {name: text for name, text in files.items() if text}
    closing = ([OUT_OF_STEP] if out_of_step else []) + [flow.completed]
    warning = WARNING if settings.sexed and settings.iterations > MOST_ITERATIONS else None
    return SimulationRun(settings, inputs, figures, all_iterations, reached, files,
                         saved_loci(names), closing, warning)


def write_simulation(run, folder="."):
    """Write the files of the run and remove those that it leaves without content."""
    project = Path(folder) / run.settings.project
    project.mkdir(exist_ok=True)
    (Path(folder) / SAVED_LOCI).write_bytes(run.saved_loci.encode("latin-1"))
    for name in FILES[run.settings.sexed].all_names:
        if name in run.files:
            (project / name).write_bytes(run.files[name].encode("latin-1"))
        else:
            (project / name).unlink(missing_ok=True)


def main(arguments):
    settings = parse_simulation(arguments)
    try:
        run = simulate(settings)
    except InputFault as fault:
        sys.stderr.buffer.write(byte_text(str(fault)).encode("latin-1") + b"\n")
        return 2
    write_simulation(run)
    if run.warning:
        print(run.warning, file=sys.stderr)
    print("\n".join(run.closing))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
