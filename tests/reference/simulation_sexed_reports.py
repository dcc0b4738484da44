"""The text of the reports of a sexed simulation, as byte text."""

from reference_input import byte_text
from simulation_common_reports import (ARROW, class_cells, detailed_end, detailed_head,
                                       detailed_rows, error_lines, frame, joined, last_only,
                                       loci_lines, number, origin_table, parameter_lines, path,
                                       row_text, sequence_head, sequence_table, statistics_rows,
                                       table_row)
from simulation_flows import BOTH, SEXED_ORIGINS
from simulation_statistics import (columns, plain_mean, step_deviation, step_mean,
                                   table_deviation)

FROM = "pseudo-offspring from "
DISTRIBUTION = (
    FROM + "a (pseudo)collected male and a (pseudo)collected female",
    FROM + "a (pseudo)collected male and a uncollected female",
    FROM + "an uncollected male and a (pseudo)collected female",
    FROM + "an uncollected male and an uncollected female")
BLOCK_TITLES = (
    ("1 ) MC X FC", DISTRIBUTION[0]),
    ("2 ) MC X FU", FROM + "a (pseudo)collected male and an uncollected female"),
    ("3 ) MU X FC", DISTRIBUTION[2]),
    ("4 ) MU X FU", DISTRIBUTION[3]))
DETAILED_TITLES = ("1 / (pseudo)collected male X (pseudo)collected female",
                   "2 / (pseudo)collected male X uncollected female",
                   "3 / uncollected male X (pseudo)collected female",
                   "4 / uncollected male parent X uncollected female parent",
                   "GLOBAL : all offspring")
SIZE_ROWS = (4, 3, 3, 2, 4)
TABLE_TITLES = ("COLLECTED OR PSEUDO-COLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
                "COLLECTED OR PSEUDO-COLLECTED MALE + UNCOLLECTED FEMALE",
                "UNCOLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
                "UNCOLLECTED MALE + UNCOLLECTED FEMALE",
                "GLOBAL RESULTS (after weighing of 4 cases)")
WORDS = ("Iteration", byte_text("Itération"), "iteration", "iteration", "Iteration")
DEVIATIONS = ("standard deviation", "std deviation", "standard deviation", "std deviation",
              "std deviation")
FILES = ("Iterations-results_coll_m_coll_f.xls", "Iterations-results_coll_m_unc_f.xls",
         "Iterations-results_unc_m_coll_f.xls", "Iterations-results_unc_m_unc_f.xls",
         "Iterations-global results.xls")
COLUMNS = ["Corr_pair", "Incorr_pair", "Corr_male", "Incorr_male", "Corr_female",
           "Incorr_female", "Ambiguous", "Nulls"]
SHORT_COLUMNS = ["Corr_pair", "Inc_pair", "Corr_male", "Inc_male", "Corr_female", "Inc_female",
                 "Amb", "Nulls"]
RATIOS = [name + "/all_assigned" for name in
          ("Corr_pair", "Inc_pair", "Corr_male", "Inc_male", "Corr_female", "Inc_female")]
LONG_RATIOS = [name + "/all_assigned" for name in COLUMNS[:6]]
PLAIN = 8


def kind(settings):
    return "sexed parental" if settings.parental else "sexed preparental"


def parameter_block(settings, inputs, last_subset, reached):
    """The settings of the run and how many pseudo-offspring each class has."""
    if settings.parental:
        first = [("Collected male parents file :", path(settings.collected_males)),
                 ("Collected female parents file :", path(settings.collected_females))]
        collected = [("Size of collected male parental group :", len(inputs.groups[0].individuals)),
                     ("Size of collected female parental group :",
                      len(inputs.groups[1].individuals))]
    else:
        first = [("Sample to generate pseudo-collected male parents :",
                  path(settings.pseudo_collected_male_sample)),
                 ("Sample to generate pseudo-collected female parents :",
                  path(settings.pseudo_collected_female_sample)),
                 ("Size of pseudo-collected male parental group :",
                  settings.pseudo_collected_males),
                 ("Size of pseudo-collected female parental group :",
                  settings.pseudo_collected_females)]
        collected = []
    male_share, female_share = inputs.proportions.shares
    lines = first + [
        ("Sample to generate uncollected male parents :", path(settings.uncollected_male_sample)),
        ("Sample to generate uncollected female parents :",
         path(settings.uncollected_female_sample)),
        ("Name of loci file :", path(settings.loci))] + collected + [
        ("Size of uncollected male parental group :", settings.uncollected_males),
        ("Size of uncollected female parental group :", settings.uncollected_females),
        ("Number of iterations :", settings.iterations),
        ("Number of pseudo-offspring generated at each iteration :",
         settings.offspring_per_iteration),
        ("Proportion of collected or pseudo-collected male parents :", male_share),
        ("Proportion of collected or pseudo-collected female parents :", female_share)]
    text = f"PARAMETERS{last_only(settings)}\nType of simulations : {kind(settings)}\n"
    text += parameter_lines(lines) + error_lines(settings.error)
    text += parameter_lines([("Maximum offset tolerance :", settings.tolerance)])
    text += loci_lines(settings, inputs, last_subset, reached)
    text += "DISTRIBUTION OF PSEUDO-OFFSPRING ACCORDING TO PARENTAL ORIGIN :\n"
    for origin, size, description in zip(SEXED_ORIGINS, inputs.proportions.sizes, DISTRIBUTION):
        text += row_text([origin.label, str(size), description])
    return text


def probability_figures(figures):
    """Any allocation, to a collected male, to a collected female, to an uncollected one."""
    return [figures.average("ANY"), figures.average_ratio("CM", "M"),
            figures.average_ratio("CF", "F"), figures.average_ratio("CUC", "UC")]


def averages(figures):
    """First sections of the summary: averages of the weighted figures."""
    def lines(tabs, labels, values):
        return "".join(f"{label}{tabs}{number(value)}\n" for label, value in zip(labels, values))
    text = "AVERAGE FREQUENCIES OF TYPES OF ALLOCATIONS :\n"
    text += lines("\t" * 4, ("two collected parents :",
                             "one collected male parent and one uncollected (UC) :",
                             "one collected female parent and one uncollected (UC) :",
                             "two uncollected (UC) parents :"),
                  [figures.average(name) for name in ("MF", "MU", "UF", "UU")])
    text += "\n\nAVERAGE PROPORTION OF ALLOCATIONS :\n"
    text += lines("\t" * 4, ("to a male collected parent   :", "to a female collected parent   :"),
                  [figures.average(name) for name in ("M", "F")])
    text += "\n\nESTIMATED CORRECTNESS PROBABILITIES :\n"
    text += lines("\t" * 6, (
        "estimated probability that any allocation is correct :",
        "estimated probability that an allocation to a collected male parent is correct :",
        "estimated probability that an allocation to a collected female parent is correct :",
        "estimated probability that an allocation to an uncollected parent (UC) is correct :"),
        probability_figures(figures))
    return text + "\n\n"


def class_block(title, description, size, mark, origin, rows, correct):
    """Statistics of the rows of one class; mark 0 means that there is nothing to tell."""
    labels = [(row.allocated, row.correct) for row in origin.rows]
    if labels[0] == (BOTH, BOTH):
        labels[0] = (BOTH, "male,female")
    text = (f"{title}\t{description}\n"
            f"Number of pseudo-offspring generated per iteration : {size}\n"
            "Collected\tCollected\nAllocated\tCorrect\t   Average\t       SD\n")
    text += statistics_rows(labels, columns(rows), mark, step_mean, step_deviation)
    cells = class_cells((mark, mark), (step_mean(correct), step_deviation(correct)))
    return text + "\n\nFrequency correct :\t\t" + row_text(cells) + "\n\n"


def summary(settings, inputs, block, figures, statistics):
    """The summary; figures are those of the last subset."""
    text = block + averages(figures)
    text += ("DISTRIBUTION OF CORRECT ALLOCATION FREQUENCIES ACCORDING TO PARENTAL ORIGIN :\n"
             "Correct :\t--->  correct allocation to a (pseudo)collected parent\n"
             "\t--->  non-allocation (UC) when parent is indeed uncollected\n\n\n")
    text += origin_table(["   MC X FC", "   MC X FU", "   MU X FC", "   MU X FU", "   GLOBAL"],
                         figures.sizes, figures.correct, figures.global_correct,
                         step_mean, step_deviation)
    text += ("STATISTICS OVER ALL ITERATIONS :\n"
             "Correct :\tcorrect allocation of a (pseudo)parent or non-allocation of an "
             "uncollected parent.\n"
             "Average :\taverage frequency taken over all iterations.\n"
             "SD :\tstandard deviation of frequencies taken over all iterations.\n"
             "Allocation :\tallocation to a collected parent.\n\n\n")
    for index, (title, description) in enumerate(BLOCK_TITLES):
        size = figures.sizes[index]
        text += class_block(title, description, size, size, SEXED_ORIGINS[index],
                            figures.rows[index], figures.correct[index])
    text += class_block("GLOBAL :", "all offspring", sum(figures.sizes), 1, SEXED_ORIGINS[0],
                        figures.global_rows, figures.global_correct)
    if settings.print_subset_statistics:
        text += "".join(subset_statistics(inputs, each) for each in statistics)
    return text


def tables_of(figures):
    return figures.tables + [figures.global_table]


def table_end(index, rows):
    """Mean and deviation below a per-iteration table."""
    series = columns(rows)
    return (table_row("mean", [plain_mean(values) for values in series], PLAIN)
            + table_row(DEVIATIONS[index], [table_deviation(values) for values in series], PLAIN))


def iteration_tables(settings, block, figures):
    """The five per-iteration files; the last one is the global one."""
    files = {}
    for index, rows in enumerate(tables_of(figures)):
        is_global = index == len(SEXED_ORIGINS)
        text = block + TABLE_TITLES[index] + ("" if is_global else last_only(settings)) + "\n\n"
        text += row_text([WORDS[index]] + COLUMNS + ([ARROW] + RATIOS if is_global else []))
        text += "".join(table_row(str(place), values, PLAIN)
                        for place, values in enumerate(rows, start=1))
        files[FILES[index]] = text + table_end(index, rows)
    return files


def subset_statistics(inputs, figures):
    """Means and deviations of the tables of one subset."""
    text = frame(figures.loci)
    text += f"Choice of loci :\t{joined(inputs.locus_names, figures.loci)}\n\n"
    for index, rows in enumerate(tables_of(figures)):
        is_global = index == len(SEXED_ORIGINS)
        text += TABLE_TITLES[index] + "\n"
        text += row_text([""] + SHORT_COLUMNS + ([ARROW] + LONG_RATIOS if is_global else []))
        text += table_end(index, rows) + "\n"
    return text


def detailed(figures):
    """All rows of all classes, iteration by iteration."""
    text = ""
    for place in range(len(figures.global_correct)):
        text += detailed_head(place)
        for index, title in enumerate(DETAILED_TITLES):
            is_global = index == len(SEXED_ORIGINS)
            rows = SEXED_ORIGINS[0 if is_global else index].rows
            size = sum(figures.sizes) if is_global else figures.sizes[index]
            series = figures.global_rows if is_global else figures.rows[index]
            correct = figures.global_correct if is_global else figures.correct[index]
            mark = 1 if is_global else size
            cells = class_cells([mark] * len(rows), series[place])
            first = rows[0].correct
            text += detailed_rows(title, rows, first, SIZE_ROWS[index], size, cells)
            text += detailed_end(rows, cells, class_cells([mark], [correct[place]])[0],
                                 not is_global)
    return text


def sequence_results(settings, inputs, statistics):
    """One row of averages per combination of the cumulative sequence."""
    text = sequence_head(settings, inputs,
                         "SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI",
                         kind(settings))
    text += "M : Male  /  F : Female  /  C : Collected  /  UC : Uncollected\n\n"
    text += "PROPORTIONS OF TYPES OF ALLOCATIONS\nPAIR ALLOCATIONS\n"
    text += sequence_table(["M.C + F.C", "M.C + F.UC", "M.UC + F.C", "M.UC + F.UC"],
                           [[each.average(name) for name in ("MF", "MU", "UF", "UU")]
                            for each in statistics])
    text += "\nSINGLE ALLOCATIONS\n"
    text += sequence_table(["Male coll", "Female coll"],
                           [[each.average(name) for name in ("M", "F")] for each in statistics])
    text += "\nESTIMATED CORRECTNESS PROBABILITIES\n"
    return text + sequence_table(["Any alloc", "Coll M", "Coll F", "Uncoll"],
                                 [probability_figures(each) for each in statistics])
