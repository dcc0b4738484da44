"""The reports of a simulation, as byte text. What the two flows say differently is their Layout."""

from dataclasses import dataclass

from reference_input import byte_text
from reference_tables import allele_listing
from simulation_statistics import columns

NOT_AVAILABLE = "       NA"
LAST_ONLY = " (results for the last combination of loci only)"
ARROW = "       --->"
SUMMARY, SEQUENCE = "Summary.xls", "Sequence results.xls"
CORRECT_LEGEND = (
    "DISTRIBUTION OF CORRECT ALLOCATION FREQUENCIES ACCORDING TO PARENTAL ORIGIN :\n"
    "Correct :\t--->  correct allocation to a (pseudo)collected parent\n"
    "\t--->  non-allocation (UC) when parent is indeed uncollected\n\n\n")


@dataclass(frozen=True)
class Layout:
    """The words of a flow. Where there is one per class of origin, the last one is the global."""
    flow: str
    origins: tuple
    parameters: object         # (settings, inputs): pairs of label and value
    distribution: tuple        # per class, what its pseudo-offspring are
    averages: tuple            # (title, tabs, labels, figures) per section of the summary
    before_averages: str
    statistics_legend: str
    block_titles: tuple
    block_heads: str
    both_right: str            # the summary's word for the first row of the first class
    row_spread: tuple          # mean and deviation of the summary
    table_spread: tuple        # ... and of the tables of the iterations
    first_pair: tuple          # per class, labels of the lines on the pair found first
    detailed: str
    detailed_titles: tuple
    size_rows: tuple           # the row that tells the size of the class in the detailed file
    tables: tuple              # (file, title, word over the numbers, label of the deviations)
    columns: tuple
    short_columns: tuple
    ratios: tuple
    short_ratios: tuple
    class_ratios: bool         # the tables of the classes have ratios, too
    sequence_legend: str
    sequence_tables: tuple     # (title, column heads, figures)
    completed: str             # the closing sentence
    parents: tuple             # files of the parental groups, in the order of the parent table
    matrices: str

    @property
    def files(self):
        """All files that a run of this flow may leave in its project folder."""
        return [*self.parents, "pseudo-offspring.txt", SUMMARY, SEQUENCE, self.matrices,
                self.detailed, "Stepping error file.xls", "Service file.xls",
                *(table[0] for table in self.tables)]


def number(value):
    return f"{value:g}"


def row_text(cells):
    return "\t".join(cells) + "\n"


def cells_of(size, values):
    """An empty class has no values; the global ones are always there."""
    return [number(value) if size else NOT_AVAILABLE for value in values]


def spread_cells(spread, size, values):
    return cells_of(size, [form(values) for form in spread])


def kind(layout, settings):
    return f"{layout.flow} {'parental' if settings.parental else 'preparental'}"


# ------------------------------------------------------------------ parameters

def joined(names, loci):
    return " ".join(names[locus] for locus in loci)


def subset_lines(names, loci):
    return f" {'*' * 22}{len(loci)} loci{'*' * 17} \nChoice of loci :\t{joined(names, loci)}\n"


def error_lines(model):
    if model.kind == "none":
        return "Error model\tNo Error\t\n"
    if model.kind == "uniform":
        return f"Error model\tUniform Error Distribution\nError sum  =  {model.epsilon:g}\n"
    values = "   ".join(number(value) for value in model.values)
    return ("Error model\tNon Uniform Error Distribution\n"
            f"Error Description : \t\t{values}\n")


def loci_lines(settings, inputs, last_subset, reached):
    """The loci of the run and, after a choice among subsets, those of the results."""
    names, pool = inputs.locus_names, inputs.in_use
    if settings.strategy == "choice":
        return f"Choice of loci :\t{joined(names, last_subset)}\n"
    if settings.strategy == "all":
        text = f"All combinations among the following :\t{joined(names, pool)}\n"
    else:
        if settings.strategy == "cumulative":
            pool = inputs.subsets[-1]     # the last prefix is the whole sequence
        text = f"Combinations of the following loci :\t{joined(names, pool)}\n"
    if settings.strategy == "minimal":
        text += f"Success criteria = {settings.criterion:g}\n"
        if reached:
            text += (f"Your success criteria ( {settings.criterion:g} ) has been reached "
                     f"with {len(last_subset)} loci.\n")
    return text + subset_lines(names, last_subset)


def parameter_block(layout, settings, inputs, last_subset, reached):
    """The settings of the run and how many pseudo-offspring each class has."""
    text = (f"PARAMETERS{LAST_ONLY if settings.several_subsets else ''}\n"
            f"Type of simulations : {kind(layout, settings)}\n")
    for label, value in layout.parameters(settings, inputs):
        shown = number(value) if isinstance(value, float) else byte_text(str(value))
        text += f"{label}\t{shown}\n"
    text += error_lines(settings.error) + f"Maximum offset tolerance :\t{settings.tolerance}\n"
    text += loci_lines(settings, inputs, last_subset, reached)
    text += "DISTRIBUTION OF PSEUDO-OFFSPRING ACCORDING TO PARENTAL ORIGIN :\n"
    for origin, size, words in zip(layout.origins, inputs.proportions.sizes, layout.distribution):
        text += row_text([origin.label, str(size), words])
    return text


# -------------------------------------------------------------------- summary

def with_global(figures, of_classes, of_all):
    """(size or how many rows are told, values) of the classes, then of all of them."""
    return list(zip([*figures.sizes, 1], [*of_classes, of_all]))


def origin_table(layout, figures):
    """Frequencies of correct decisions, a line per iteration, a column per class."""
    series = with_global(figures, figures.correct, figures.global_correct)
    heads = [origin.label.strip(" :").upper() for origin in layout.origins] + ["GLOBAL"]
    text = "Iteration # :\t\t" + "\t".join("   " + head for head in heads) + "\n\n\n"
    for place in range(len(figures.global_correct)):
        cells = [cells_of(size, [values[place]])[0] for size, values in series]
        text += f"{place + 1}\t\t" + row_text(cells)
    text += "\n"
    for label, form in zip(("Average", "SD"), layout.row_spread):
        cells = [cells_of(size, [form(values)])[0] for size, values in series]
        text += f"{label}\t\t" + row_text(cells)
    return text + "\n\n\n"


def class_block(layout, figures, index):
    """Statistics of one class or, with the index behind the last one, of all of them."""
    is_global = index == len(layout.origins)
    rows = layout.origins[0 if is_global else index].rows
    size = sum(figures.sizes) if is_global else figures.sizes[index]
    told = 1 if is_global else size
    series = columns(figures.global_rows if is_global else figures.rows[index])
    correct = figures.global_correct if is_global else figures.correct[index]
    text = (f"{layout.block_titles[index]}\n"
            f"Number of pseudo-offspring generated per iteration : {size}\n{layout.block_heads}")
    before = None
    for row, values in zip(rows, series):
        shown = "" if row.allocated == before else row.allocated
        before = row.allocated
        right = layout.both_right if row is layout.origins[0].rows[0] else row.correct
        text += row_text([shown, right] + spread_cells(layout.row_spread, told, values))
    text += "\n\nFrequency correct :\t\t"
    text += row_text(spread_cells(layout.row_spread, told, correct))
    if layout.first_pair:
        text += "\nFirst pair :"
        for label, values in zip(layout.first_pair[index], columns(figures.first_pairs[index])):
            text += "\t" + row_text([label] + spread_cells(layout.row_spread, told, values))
    return text + "\n\n"


def summary(layout, settings, inputs, block, statistics):
    """The summary of the last subset and, when asked for, the statistics of all of them."""
    figures = statistics[-1]
    text = block + layout.before_averages
    for title, tabs, labels, names in layout.averages:
        text += title + "\n" + "".join(f"{label}{tabs}{number(figures.average(name))}\n"
                                       for label, name in zip(labels, names)) + "\n\n"
    text += CORRECT_LEGEND + origin_table(layout, figures)
    text += f"STATISTICS OVER ALL ITERATIONS :\n{layout.statistics_legend}\n\n"
    text += "".join(class_block(layout, figures, index)
                    for index in range(len(layout.origins) + 1))
    if settings.print_subset_statistics:
        text += "".join(subset_statistics(layout, inputs, each) for each in statistics)
    return text


# ------------------------------------------------------- tables of the iterations

def table_row(layout, label, values):
    """Values of a table; the column of the arrow stays empty before the ratios."""
    cells = [number(value) for value in values]
    if len(cells) > len(layout.columns):
        cells[len(layout.columns):len(layout.columns)] = [""]
    return row_text([label] + cells)


def table_heads(layout, index, word, heads, ratios):
    has_ratios = layout.class_ratios or index == len(layout.origins)
    return row_text([word, *heads] + ([ARROW, *ratios] if has_ratios else []))


def table_end(layout, index, rows):
    """Mean and deviation below a table."""
    labels = ("mean", layout.tables[index][3])
    return "".join(table_row(layout, label, [form(values) for values in columns(rows)])
                   for label, form in zip(labels, layout.table_spread))


def iteration_tables(layout, settings, block, figures):
    files = {}
    for index, (file, title, word, _) in enumerate(layout.tables):
        several = settings.several_subsets and index < len(layout.origins)
        rows = figures.tables[index]
        files[file] = (
            block + title + (LAST_ONLY if several else "") + "\n\n"
            + table_heads(layout, index, word, layout.columns, layout.ratios)
            + "".join(table_row(layout, str(place), values)
                      for place, values in enumerate(rows, start=1))
            + table_end(layout, index, rows))
    return files


def subset_statistics(layout, inputs, figures):
    """Means and deviations of the tables of one subset."""
    text = subset_lines(inputs.locus_names, figures.loci) + "\n"
    for index, (_, title, _, _) in enumerate(layout.tables):
        text += (title + "\n"
                 + table_heads(layout, index, "", layout.short_columns, layout.short_ratios)
                 + table_end(layout, index, figures.tables[index]) + "\n")
    return text


# -------------------------------------------------------- detailed file, sequence

def detailed_block(layout, figures, index, place):
    """Rows of one class in one iteration; one of them also tells the class size."""
    is_global = index == len(layout.origins)
    rows = layout.origins[0 if is_global else index].rows
    size = sum(figures.sizes) if is_global else figures.sizes[index]
    told = 1 if is_global else size
    cells = cells_of(told, (figures.global_rows if is_global else figures.rows[index])[place])
    correct, = cells_of(
        told, [(figures.global_correct if is_global else figures.correct[index])[place]])
    text, before = "", None
    for number_of_row, (row, cell) in enumerate(zip(rows, cells), start=1):
        start = "\t\t\t\t"
        if number_of_row == 1:
            start = layout.detailed_titles[index] + start
        elif number_of_row == layout.size_rows[index]:
            start = f"\t# of offspring = {size}\t\t\t" + ("\t" if row.allocated == before else "")
        shown = "" if row.allocated == before else row.allocated
        before = row.allocated
        text += f"{start}{shown}\t{row.correct}\t{cell}\n"
    text += f"\n\n     Frequency of correct allocation or non allocation : {correct}\n"
    if not is_global:
        terms = " + ".join(f"{row.weight}x{cell}" for row, cell in zip(rows, cells))
        text += f"     ( {terms} )/2 = {correct}\n"
    return text + "\n\n\n"


def detailed(layout, settings, figures):
    """All rows of all classes, iteration by iteration."""
    last_only = not settings.sexed and settings.strategy != "choice"
    text = f"DETAILED RESULTS{LAST_ONLY}\n\n" if last_only else ""
    for place in range(len(figures.global_correct)):
        text += byte_text(f"Iteration n° : {place + 1}\n")
        text += ("Parental origin\t\t\t\tCollected\tCollected\n"
                 "\t\t\t\tAllocated\tCorrect\tFrequency\n")
        text += "".join(detailed_block(layout, figures, index, place)
                        for index in range(len(layout.origins) + 1))
    return text


def sequence_results(layout, settings, inputs, statistics):
    """One row of averages per combination of the cumulative sequence."""
    kept = "offspring" in settings.keep and sum(inputs.proportions.sizes) > 0
    offspring = byte_text(settings.project) + "/pseudo-offspring.txt" if kept else "(not kept)"
    text = (f"{layout.flow.upper()} SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI\n\n"
            f"Type of simulations : {kind(layout, settings)}\nOffspring file :\t\t{offspring}\n"
            f"Name of loci file :\t\t{byte_text(settings.loci)}\n\nCombinations of loci :\n")
    for place, loci in enumerate(inputs.subsets, start=1):
        text += f"{place}\t      ==>\t{joined(inputs.locus_names, loci)}\n"
    text += f"\n{layout.sequence_legend}\n"
    for title, heads, names in layout.sequence_tables:
        text += f"\n{title}\n" + row_text(["Combin #", *heads])
        for place, each in enumerate(statistics, start=1):
            text += row_text([str(place)] + [number(each.average(name)) for name in names])
    return text


def service_report(settings, inputs, population):
    """The seed, by which the run can be repeated, and the alleles of the last iteration."""
    everyone = len(population.parents) + len(population.offspring)
    return (f"Seed of the random numbers :\t{settings.seed}\n\n"
            + allele_listing(inputs.locus_names, sorted(population.catalogues),
                             population.catalogues, everyone))
