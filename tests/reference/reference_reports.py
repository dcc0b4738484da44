"""The text of every allocation report, as byte text."""

from reference_input import byte_text
from reference_tables import unit_note

UNCOLLECTED = "UC"
NAME_WIDTH = 12


def genotype(pair, digits, between):
    """Both alleles with leading zeros, as wide as in the input files."""
    half = digits // 2
    return f"{pair[0]:0{half}d}{between}{pair[1]:0{half}d}"


# ---------------------------------------------------------------- one offspring

def max_like_block(child, outcome, parents, loci, digits):
    """Genotypes of the offspring and of its most likely pairs."""
    def line(individual):
        fields = "".join(genotype(individual.genotypes[locus], digits, "") + " "
                         for locus in loci)
        return f"{individual.name:<{NAME_WIDTH}}\t{fields}\n"

    text = "Offspring \n" + line(child)
    if outcome.more_than_five:
        text += "more than 5 potential pairs\n"
    elif not outcome.pairs:
        text += "Parents\nnone\n"
    else:
        for first, second in outcome.pairs:
            text += "Parents\n" + line(parents[first]) + line(parents[second])
    return text + "*" * 37 + "\n\n"


def transmission_block(child, outcome, parents, loci, digits, tolerance, sexed):
    """Locus by locus, how the offspring relates to the first of its pairs."""
    heads = ("Male", "Female") if sexed else ("Parent1", "Parent2")
    text = (f"{'Rejeton':<{NAME_WIDTH}}\t{heads[0]}\t{heads[1]}\t\tCondition\t\t"
            f"Parent -> Rejeton\t\t{byte_text('Condensé')}\t/ Dist_unit\tOffset\n\n")
    for position, locus in enumerate(loci):
        text += genotype(child.genotypes[locus], digits, " ") + "\t"
        if not outcome.pairs:
            text += "   *   \t\t   *   \n\n\n"
            continue
        first, second = (parents[one].genotypes[locus] for one in outcome.pairs[0])
        text += genotype(first, digits, " ") + "\t" + genotype(second, digits, " ") + "\t\t"
        text += outcome.comparisons[position].record + "\n\n"
    for side in (0, 1):
        offsets = outcome.offsets(side) if outcome.pairs else [0] * len(loci)
        text += f"Offsets Parent_{side + 1} :\t\t[  "
        text += "".join(f"{offset}  " for offset in offsets) + "]\n"
    text += byte_text("Offset maximum toléré : ") + f"{tolerance}\n"
    for side in (0, 1):
        verdict = "Oui" if outcome.uncollected[side] else "Non"
        text += f"offset_par{side + 1}_depasse = {verdict}\n"
    return text + "\n"


def result_line(child, outcome, parents, male_count):
    """Names, ranks and errors of the accepted parents.

    Non-sexed (male_count is None), a single accepted parent moves to the first
    column; sexed, male and female keep their columns and the ranks of the females
    start from the first female.
    """
    names, ranks, errors = [UNCOLLECTED] * 2, ["--"] * 2, ["--"] * 2
    if outcome.pairs:
        accepted = [side for side in (0, 1) if not outcome.uncollected[side]]
        for place, side in enumerate(accepted):
            column = place if male_count is None else side
            slot = outcome.pairs[0][side]
            rank = slot + 1
            if male_count is not None and side == 1:
                rank -= male_count
            names[column] = parents[slot].name
            ranks[column] = str(rank)
            errors[column] = str(outcome.errors[side])
    return (f"{child.name}\t{names[0]}\t{names[1]}\t[{ranks[0]},{ranks[1]}]"
            f"\t[{errors[0]},{errors[1]}]\n")


# ---------------------------------------------------------------- proportions

def count_classes(outcomes):
    """How many offspring have both, only parent 1, only parent 2, or no parent collected."""
    both = only1 = only2 = neither = 0
    for outcome in outcomes:
        flags = outcome.uncollected if outcome.pairs else (True, True)
        if flags == (False, False):
            both += 1
        elif flags == (False, True):
            only1 += 1
        elif flags == (True, False):
            only2 += 1
        else:
            neither += 1
    return both, only1, only2, neither


def proportions(outcomes, sexed):
    """Proportions in the order in which the reports list them."""
    both, only1, only2, neither = (float(count) for count in count_classes(outcomes))
    n = float(len(outcomes))
    if sexed:
        return [both / n + only1 / n, only2 / n + both / n,
                both / n, only1 / n, only2 / n, neither / n]
    one = only1 + only2
    return [(2 * both / n + one / n) * 0.5, both / n, one / n, neither / n]


# ---------------------------------------------------------------- whole reports

def choice_of_loci(names, in_use, catalogues):
    text = "\t\t"
    for locus in in_use:
        text += f"{names[locus]}\t{unit_note(catalogues[locus].unit)}\n\t\t"
    return text + "\n"


ERRORS_LEGEND = (
    "# Errors :\tNumber of loci for which genotype error(s) not exceeding the\n"
    "\tmaximum offset tolerance had to be assumed to allocate offspring.\n")


def non_sexed_results(settings, inputs, catalogues, lines, outcomes):
    """The results report when the sex of the parents is unknown."""
    title = "NON-SEXED ALLOCATION RESULTS"
    if settings.sequence is not None:
        title += " (for the last combination of loci)"
    single, two, one, none = (f"{value:g}" for value in proportions(outcomes, False))
    return (
        f"{title}\n\n"
        f"Collected parents file:\t\t{byte_text(settings.parents)}\n"
        f"Offspring file:\t\t{byte_text(settings.offspring)}\n"
        f"Names of loci file: \t\t{byte_text(settings.loci)}\n\n"
        f"Maximal offset tolerance :               {settings.tolerance}\n\n"
        "Choice of loci :   " + choice_of_loci(inputs.locus_names, inputs.in_use, catalogues) +
        "UC :\tParent does not belong to the set of collected parents\n"
        + ERRORS_LEGEND +
        "Indices :\t[N1,N2] N1, N2 refer to rank of parent in parental file.\n\n\n"
        "OFFSPRING\tPARENT 1\tPARENT 2\tINDICES\t# Errors\n\n"
        + "".join(lines) +
        "\nSINGLE ALLOCATION PROPORTION\n"
        "Collected :\tproportion of the allocations to a collected parent "
        "(as opposed to uncollected parent)\n"
        "On a single basis the total number of allocations  =  2 X the number of offspring\n"
        f"Collected\t{single}\n"
        "\nProportions of allocations classified on a parental pair basis\n"
        "On a pair basis the total number of allocations  =  the number of offspring\n"
        "2 C :\tone collected + one collected\n"
        "C + UC :\tone collected + one uncollected\n"
        "2 UC :\tone uncollected + one uncollected\n"
        f"2 C\t{two}\n"
        f"C + UC\t{one}\n"
        f"2 UC\t{none}\n")


def sexed_results(settings, inputs, catalogues, lines, outcomes):
    """The results report when males and females are told apart."""
    male, female, both, male_only, female_only, neither = (
        f"{value:g}" for value in proportions(outcomes, True))
    return (
        "SEXED ALLOCATION RESULTS (for the last combination of loci)\n\n"
        f"Collected male parents file:\t\t\t{byte_text(settings.males)}\n"
        f"Collected female parents file:\t\t\t{byte_text(settings.females)}\n"
        f"Offspring file:\t\t\t{byte_text(settings.offspring)}\n"
        f"Names of loci file: \t\t\t{byte_text(settings.loci)}\n\n"
        f"Maximal offset tolerance :            {settings.tolerance}\n\n"
        "Choice of loci: " + choice_of_loci(inputs.locus_names, inputs.in_use, catalogues) +
        "UC : Parent does not belong to the set of collected parents\n"
        + ERRORS_LEGEND +
        "Indices :\t[N1,N2] N1, N2 refer to rank of male, female parent in parental file.\n\n\n"
        "OFFSPRING\tMALE\tFEMALE\tINDICES\t# Errors\n\n"
        + "".join(lines) +
        "\nSINGLE ALLOCATION PROPORTIONS\n"
        "Coll Male :\tproportion of the allocations to a male collected parent "
        "(as opposed to male uncollected)\n"
        "Coll Fem  :\tproportion of the allocations to a female collected parent "
        "(as opposed to female uncollected)\n"
        f"Coll Male :\t{male}\n"
        f"Coll Fem  :\t{female}\n"
        "\nProportions of allocations classified on a parental pair basis\n"
        "CM + CF :\tcollected male + collected female\n"
        "CM + UCF :\tcollected male + uncollected female\n"
        "UCM + CF :\tuncollected male + collected female\n"
        "UCM + UCF :\tuncollected male + uncollected female\n"
        f"CM + CF\t{both}\n"
        f"CM + UCF\t{male_only}\n"
        f"UCM + CF\t{female_only}\n"
        f"UCM + UCF\t{neither}\n")


def sequence_results(settings, inputs, combinations, outcomes_of_each):
    """One row of proportions per combination of the cumulative sequence."""
    if settings.sexed:
        title = "SEXED ALLOCATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI"
        files = [("Collected male parents file :", settings.males),
                 ("Collected female parents file :", settings.females)]
        columns = ["Coll Male", "Coll Fem", "CM + CF", "CM + UCF", "UCM+CF", "UCM+UCF"]
    else:
        title = "NON-SEXED ALLOCATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI"
        files = [("Collected parents file :", settings.parents)]
        columns = ["Collected", "2 C", "C + UC", "2 UC"]
    files += [("Offspring file :", settings.offspring), ("Name of loci file :", settings.loci)]
    text = title + "\n\n"
    text += "".join(f"{label}\t\t{byte_text(path)}\n" for label, path in files)
    text += f"Maximal offset tolerance : {settings.tolerance}\n\nCombinations of loci :\n"
    for number, loci in enumerate(combinations, start=1):
        names = " ".join(inputs.locus_names[locus] for locus in loci)
        text += f"{number}\t      ==>\t{names}\n"
    text += "\nSHORT REPORT ON SINGLE ALLOCATION PROPORTIONS\n"
    text += "\t".join(["Combin #"] + columns) + "\n"
    for number, outcomes in enumerate(outcomes_of_each, start=1):
        row = [f"{value:g}" for value in proportions(outcomes, settings.sexed)]
        text += "\t".join([str(number)] + row) + "\n"
    return text
