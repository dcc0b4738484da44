"""The text of the reports of a non-sexed simulation, as byte text."""

from simulation_common_reports import (ARROW, class_cells, detailed_end, detailed_head,
                                       detailed_rows, error_lines, frame, joined, last_only,
                                       loci_lines, number, origin_table, parameter_lines, path,
                                       row_text, sequence_head, sequence_table, statistics_rows,
                                       table_row)
from simulation_flows import NON_SEXED_ORIGINS
from simulation_statistics import columns, deviation_about_mean, plain_mean

CLASS_TITLES = ("TWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
                "ONE COLLECTED OR PSEUDO-COLLECTED PARENT",
                "ZERO COLLECTED OR PSEUDO-COLLECTED PARENT")
GLOBAL_TITLE = "GLOBAL RESULTS (AFTER WEIGHING OF 3 PARTIAL RESULTS)"
GLOBAL_HEAD = "GLOBAL RESULTS AFTER WEIGHING OF 3 PARTIAL RESULTS "
FILES = ("Iterations - results_2collpar.xls", "Iterations - results_1collpar.xls",
         "Iterations - results_0collpar.xls", "Iterations - global results.xls")
RATIOS = ["Corr_2_par/all_assigned", "Corr_1_par/all_assigned", "Corr_0_par/all_assigned"]
COLUMNS = ["Corr_2_par", "Corr_1_par", "Corr_0_par", "Ambiguous", "Nulls"]
SHORT_COLUMNS = ["Corr_2_par", "Corr_1_par", "Corr_0_par", "Amb", "Nulls"]
FIRST_PAIR_LABELS = (("2 correct", "1 correct", "0 correct"), ("correct", "incorrect"),
                     ("counted",), ("combined",))
SIZE_ROWS = (3, 2, 1, 3)
PLAIN = 5


def kind(settings):
    return "non-sexed parental" if settings.parental else "non-sexed preparental"


def parameter_block(settings, inputs, last_subset, reached):
    """The settings of the run and how many pseudo-offspring each class has."""
    if settings.parental:
        first = [("Collected parents file :", path(settings.collected_parents))]
        collected = [("Size of collected parents group : ", len(inputs.groups[0].individuals))]
    else:
        first = [("Sample to generate pseudo-collected parents :",
                  path(settings.pseudo_collected_sample)),
                 ("Size of pseudo-collected parents group : ", settings.pseudo_collected)]
        collected = []
    lines = first + [
        ("Sample to generate uncollected parents :", path(settings.uncollected_sample)),
        ("Name of loci file :", path(settings.loci))] + collected + [
        ("Estimated number of uncollected parents :", settings.uncollected),
        ("Number of iterations : ", settings.iterations),
        ("Number of pseudo-offspring generated at each iteration :",
         settings.offspring_per_iteration),
        ("Proportion of collected or pseudo-collected parents :", inputs.proportions.shares[0])]
    text = f"PARAMETERS{last_only(settings)}\nType of simulations : {kind(settings)}\n"
    text += parameter_lines(lines) + error_lines(settings.error)
    text += parameter_lines([("Maximum offset tolerance :", settings.tolerance)])
    text += loci_lines(settings, inputs, last_subset, reached)
    text += "DISTRIBUTION OF PSEUDO-OFFSPRING ACCORDING TO PARENTAL ORIGIN :\n"
    for origin, size, title in zip(NON_SEXED_ORIGINS, inputs.proportions.sizes, CLASS_TITLES):
        text += row_text([origin.label, str(size), title])
    return text


def probability_figures(figures):
    """Any allocation, to a collected parent, to an uncollected one."""
    return [figures.average("ANY"), figures.average_ratio("RCOLL", "COLL"),
            figures.average_ratio("RUNCOLL", "UNCOLL")]


DEFINITIONS = (
    "DEFINITIONS :\n"
    "Collected :\tallocation to a collected or pseudo-collected parent\n"
    "UC :\tnon-allocation, the parent is taken as uncollected\n"
    "Correct :\tallocation to a true parent, or UC for a true parent that is uncollected\n"
    "2 C :\tone collected + one collected\n"
    "C + UC :\tone collected + one uncollected\n"
    "2 UC :\tone uncollected + one uncollected\n\n\n")


def averages(figures):
    """Averages of the weighted figures."""
    def lines(labels, values):
        return "".join(f"{label}\t\t\t\t{number(value)}\n"
                       for label, value in zip(labels, values))
    pairs, singles = ("2 C", "C + UC", "2 UC"), ("COLL", "UNCOLL")
    return ("AVERAGE RESULTS OVER ALL ITERATIONS AND OFFSPRING :\n"
            "PROPORTIONS OF PAIR ALLOCATIONS\n"
            + lines(pairs, [figures.average(name) for name in pairs])
            + "\n\nPROPORTIONS OF SINGLE ALLOCATIONS\n"
            + lines(("to coll", "to uncoll"), [figures.average(name) for name in singles])
            + "\n\nESTIMATED CORRECTNESS PROBABILITIES\n"
            + lines(("any alloc", "to coll", "to uncoll"), probability_figures(figures))
            + "\n\n")


def class_block(title, size, mark, rows_series, correct, origin, first_pair):
    """Statistics of one class; mark 0 means that there is nothing to tell.

    first_pair holds (label, values over the iterations) of the verdicts on the
    pair found first.
    """
    def cells(values):
        return row_text(class_cells((mark, mark),
                                    (plain_mean(values), deviation_about_mean(values))))
    labels = [(row.allocated, row.correct) for row in origin.rows]
    text = (f"{title}\nNumber of pseudo-offspring generated per iteration : {size}\n"
            "Allocated\tCorrect\t   Average\t       SD\n")
    text += statistics_rows(labels, columns(rows_series), mark, plain_mean, deviation_about_mean)
    text += "\n\nFrequency correct :\t\t" + cells(correct) + "\n"
    for place, (label, values) in enumerate(first_pair):
        text += ("First pair :" if place == 0 else "") + f"\t{label}\t" + cells(values)
    return text + "\n\n"


def summary(settings, inputs, block, figures, statistics):
    """The summary; figures are those of the last subset."""
    text = block + DEFINITIONS + averages(figures)
    text += ("DISTRIBUTION OF CORRECT ALLOCATION FREQUENCIES ACCORDING TO PARENTAL ORIGIN :\n"
             "Correct :\t--->  correct allocation to a (pseudo)collected parent\n"
             "\t--->  non-allocation (UC) when parent is indeed uncollected\n\n\n")
    text += origin_table(["   C X C", "   C X U", "   U X U", "   GLOBAL"], figures.sizes,
                         figures.correct, figures.global_correct, plain_mean,
                         deviation_about_mean)
    text += ("STATISTICS OVER ALL ITERATIONS :\n"
             "Average :\taverage frequency taken over all iterations.\n"
             "SD :\tstandard deviation of frequencies taken over all iterations.\n"
             "Allocation :\tallocation to a collected parent.\n"
             "First pair :\tmost likely pair found first, whatever its offsets.\n\n\n")
    for index, origin in enumerate(NON_SEXED_ORIGINS):
        size = figures.sizes[index]
        first_pair = list(zip(FIRST_PAIR_LABELS[index], columns(figures.first_pairs[index])))
        text += class_block(f"{origin.label}\t{CLASS_TITLES[index]}", size, size,
                            figures.rows[index], figures.correct[index], origin, first_pair)
    text += class_block(GLOBAL_HEAD, sum(figures.sizes), 1, figures.global_rows,
                        figures.global_correct, NON_SEXED_ORIGINS[0],
                        [("combined", figures.combined)])
    if settings.print_subset_statistics:
        text += "".join(subset_statistics(inputs, each) for each in statistics)
    return text


def tables_of(figures):
    return figures.tables + [figures.global_table]


def table_end(rows):
    series = columns(rows)
    return (table_row("mean", [plain_mean(values) for values in series], PLAIN)
            + table_row("standard deviation",
                        [deviation_about_mean(values) for values in series], PLAIN))


def iteration_tables(settings, block, figures):
    """The four per-iteration files; the last one is the global one."""
    titles = [title + last_only(settings) for title in CLASS_TITLES] + [GLOBAL_TITLE]
    files = {}
    for name, title, rows in zip(FILES, titles, tables_of(figures)):
        text = block + title + "\n\n" + row_text(["Iteration"] + COLUMNS + [ARROW] + RATIOS)
        text += "".join(table_row(str(place), values, PLAIN)
                        for place, values in enumerate(rows, start=1))
        files[name] = text + table_end(rows)
    return files


def subset_statistics(inputs, figures):
    """Means and deviations of the tables of one subset."""
    text = frame(figures.loci)
    text += f"Choice of loci :\t{joined(inputs.locus_names, figures.loci)}\n\n"
    for title, rows in zip(CLASS_TITLES + (GLOBAL_TITLE,), tables_of(figures)):
        text += title + "\n" + row_text([""] + SHORT_COLUMNS + [ARROW] + RATIOS)
        text += table_end(rows) + "\n"
    return text


def detailed(figures):
    """All rows of all classes, iteration by iteration."""
    titles = [f"{origin.label} {title}" for origin, title in zip(NON_SEXED_ORIGINS, CLASS_TITLES)]
    text = ""
    for place in range(len(figures.global_correct)):
        text += detailed_head(place)
        for index, title in enumerate(titles + [GLOBAL_HEAD]):
            is_global = index == len(NON_SEXED_ORIGINS)
            rows = NON_SEXED_ORIGINS[0 if is_global else index].rows
            size = sum(figures.sizes) if is_global else figures.sizes[index]
            series = figures.global_rows if is_global else figures.rows[index]
            correct = figures.global_correct if is_global else figures.correct[index]
            mark = 1 if is_global else size
            cells = class_cells([mark] * len(rows), series[place])
            text += detailed_rows(title, rows, rows[0].correct, SIZE_ROWS[index], size, cells)
            text += detailed_end(rows, cells, class_cells([mark], [correct[place]])[0],
                                 not is_global)
    return text


def sequence_results(settings, inputs, statistics):
    """One row of averages per combination of the cumulative sequence."""
    text = sequence_head(settings, inputs,
                         "NON-SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI",
                         kind(settings))
    text += "C : Collected  /  UC : Uncollected\n\nPROPORTIONS OF PAIR ALLOCATIONS\n"
    text += sequence_table(["2 C", "C + UC", "2 UC"],
                           [[each.average(name) for name in ("2 C", "C + UC", "2 UC")]
                            for each in statistics])
    text += "\nPROPORTIONS OF SINGLE ALLOCATIONS\n"
    text += sequence_table(["to coll", "to uncoll"],
                           [[each.average(name) for name in ("COLL", "UNCOLL")]
                            for each in statistics])
    text += "\nESTIMATED CORRECTNESS PROBABILITIES\n"
    return text + sequence_table(["any alloc", "to coll", "to uncoll"],
                                 [probability_figures(each) for each in statistics])
