"""Parts of the reports that both simulation flows share. All text is byte text."""

from reference_input import byte_text
from reference_tables import allele_listing

NOT_AVAILABLE = "       NA"
LAST_ONLY = " (results for the last combination of loci only)"
ARROW = "       --->"
SUCCESS = "Your success criteria ( {:g} ) has been reached with {} loci.\n"


def number(value):
    return f"{value:g}"


def row_text(cells):
    return "\t".join(cells) + "\n"


def last_only(settings):
    """What a title says when the report holds the last of several subsets."""
    return LAST_ONLY if settings.several_subsets else ""


def joined(names, loci):
    return " ".join(names[locus] for locus in loci)


def frame(loci):
    return f" {'*' * 22}{len(loci)} loci{'*' * 17} \n"


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
    names = inputs.locus_names
    result = f"Choice of loci :\t{joined(names, last_subset)}\n"
    if settings.strategy == "choice":
        return result
    if settings.strategy == "all":
        text = f"All combinations among the following :\t{joined(names, inputs.in_use)}\n"
    elif settings.strategy == "minimal":
        text = (f"Combinations of the following loci :\t{joined(names, inputs.in_use)}\n"
                f"Success criteria = {settings.criterion:g}\n")
        if reached:
            text += SUCCESS.format(settings.criterion, len(last_subset))
    else:
        # The last prefix of the sequence is the whole sequence.
        text = f"Combinations of the following loci :\t{joined(names, inputs.subsets[-1])}\n"
    return text + frame(last_subset) + result


def parameter_lines(pairs):
    return "".join(f"{label}\t{number(value) if isinstance(value, float) else value}\n"
                   for label, value in pairs)


def path(text):
    return byte_text(text)


def class_cells(sizes, values):
    """One cell per class; an empty class has no value, the global figure always has one."""
    return [number(value) if size else NOT_AVAILABLE for size, value in zip(sizes, values)]


def origin_table(heads, sizes, series, global_series, mean, deviation):
    """Frequencies of correct decisions, a line per iteration, a column per class."""
    everything = series + [global_series]
    marks = list(sizes) + [1]
    text = "Iteration # :\t\t" + "\t".join(heads) + "\n\n\n"
    for index in range(len(global_series)):
        cells = class_cells(marks, [values[index] for values in everything])
        text += f"{index + 1}\t\t" + row_text(cells)
    text += "\nAverage\t\t" + row_text(class_cells(marks, [mean(v) for v in everything]))
    return text + "SD\t\t" + row_text(class_cells(marks, [deviation(v) for v in everything])) + \
        "\n\n\n"


def statistics_rows(labels, series, size, mean, deviation):
    """Average and deviation of each row; a repeated first label is left empty."""
    text, before = "", None
    for (allocated, correct), values in zip(labels, series):
        shown = "" if allocated == before else allocated
        before = allocated
        text += row_text([shown, correct] + class_cells((size, size),
                                                        (mean(values), deviation(values))))
    return text


def detailed_rows(title, rows, first_correct, size_row, size, frequencies):
    """Rows of one class in the detailed file; one of them also tells the class size."""
    text, before = "", None
    for index, (row, cell) in enumerate(zip(rows, frequencies)):
        correct = first_correct if index == 0 else row.correct
        repeated = row.allocated == before
        before = row.allocated
        if index == 0:
            text += f"{title}\t\t\t\t{row.allocated}"
        elif index == size_row:
            text += f"\t# of offspring = {size}" + ("\t\t\t\t" if repeated
                                                    else f"\t\t\t{row.allocated}")
        else:
            text += "\t\t\t\t" + ("" if repeated else row.allocated)
        text += f"\t{correct}\t{cell}\n"
    return text


def detailed_end(rows, frequencies, correct, with_formula):
    """Frequency of correct decisions and how it follows from the rows."""
    text = f"\n\n     Frequency of correct allocation or non allocation : {correct}\n"
    if with_formula:
        terms = " + ".join(f"{row.weight}x{cell}" for row, cell in zip(rows, frequencies))
        text += f"     ( {terms} )/2 = {correct}\n"
    return text + "\n\n\n"


def detailed_head(index):
    return (byte_text("Iteration n° : ") + f"{index + 1}\n"
            "Parental origin\t\t\t\tCollected\tCollected\n"
            "\t\t\t\tAllocated\tCorrect\tFrequency\n")


def table_row(label, values, plain):
    """Values of a table; the column of the arrow stays empty before the ratios."""
    cells = [number(value) for value in values]
    if len(cells) > plain:
        cells[plain:plain] = [""]
    return row_text([label] + cells)


def sequence_head(settings, inputs, title, kind):
    """Title, files and combinations of the report on a cumulative sequence."""
    kept = "offspring" in settings.keep and sum(inputs.proportions.sizes) > 0
    offspring = path(settings.project) + "/pseudo-offspring.txt" if kept else "(not kept)"
    text = (f"{title}\n\nType of simulations : {kind}\nOffspring file :\t\t{offspring}\n"
            f"Name of loci file :\t\t{path(settings.loci)}\n\nCombinations of loci :\n")
    for place, loci in enumerate(inputs.subsets, start=1):
        text += f"{place}\t      ==>\t{joined(inputs.locus_names, loci)}\n"
    return text + "\n"


def sequence_table(heads, rows):
    text = row_text(["Combin #"] + heads)
    for place, values in enumerate(rows, start=1):
        text += row_text([str(place)] + [number(value) for value in values])
    return text


def service_report(settings, inputs, population):
    """The seed, by which the run can be repeated, and the alleles of the last iteration."""
    everyone = len(population.parents) + len(population.offspring)
    return (f"Seed of the random numbers :\t{settings.seed}\n\n"
            + allele_listing(inputs.locus_names, sorted(population.catalogues),
                             population.catalogues, everyone))
