"""The words of the reports of a non-sexed simulation."""

from simulation_flows import NON_SEXED_ORIGINS
from simulation_reports import Layout
from simulation_statistics import deviation_about_mean, plain_mean

CLASS_TITLES = ("TWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
                "ONE COLLECTED OR PSEUDO-COLLECTED PARENT",
                "ZERO COLLECTED OR PSEUDO-COLLECTED PARENT")
GLOBAL_HEAD = "GLOBAL RESULTS AFTER WEIGHING OF 3 PARTIAL RESULTS "
COUNTS = ("Corr_2_par", "Corr_1_par", "Corr_0_par")
RATIOS = tuple(f"{name}/all_assigned" for name in COUNTS)
PAIRS = ("2 C", "C + UC", "2 UC")
PROBABILITIES = ("ANY", ("RCOLL", "COLL"), ("RUNCOLL", "UNCOLL"))


def parameters(settings, inputs):
    if settings.parental:
        first = [("Collected parents file :", settings.collected_parents)]
        collected = [("Size of collected parents group : ", len(inputs.groups[0].individuals))]
    else:
        first = [("Sample to generate pseudo-collected parents :",
                  settings.pseudo_collected_sample),
                 ("Size of pseudo-collected parents group : ", settings.pseudo_collected)]
        collected = []
    return first + [
        ("Sample to generate uncollected parents :", settings.uncollected_sample),
        ("Name of loci file :", settings.loci)] + collected + [
        ("Estimated number of uncollected parents :", settings.uncollected),
        ("Number of iterations : ", settings.iterations),
        ("Number of pseudo-offspring generated at each iteration :",
         settings.offspring_per_iteration),
        ("Proportion of collected or pseudo-collected parents :", inputs.proportions.shares[0])]


NON_SEXED = Layout(
    flow="non-sexed",
    origins=NON_SEXED_ORIGINS,
    parameters=parameters,
    distribution=CLASS_TITLES,
    before_averages=(
        "DEFINITIONS :\n"
        "Collected :\tallocation to a collected or pseudo-collected parent\n"
        "UC :\tnon-allocation, the parent is taken as uncollected\n"
        "Correct :\tallocation to a true parent, or UC for a true parent that is uncollected\n"
        "2 C :\tone collected + one collected\n"
        "C + UC :\tone collected + one uncollected\n"
        "2 UC :\tone uncollected + one uncollected\n\n\n"
        "AVERAGE RESULTS OVER ALL ITERATIONS AND OFFSPRING :\n"),
    averages=(("PROPORTIONS OF PAIR ALLOCATIONS", "\t" * 4, PAIRS, PAIRS),
              ("PROPORTIONS OF SINGLE ALLOCATIONS", "\t" * 4, ("to coll", "to uncoll"),
               ("COLL", "UNCOLL")),
              ("ESTIMATED CORRECTNESS PROBABILITIES", "\t" * 4,
               ("any alloc", "to coll", "to uncoll"), PROBABILITIES)),
    statistics_legend=(
        "Average :\taverage frequency taken over all iterations.\n"
        "SD :\tstandard deviation of frequencies taken over all iterations.\n"
        "Allocation :\tallocation to a collected parent.\n"
        "First pair :\tmost likely pair found first, whatever its offsets.\n"),
    block_titles=tuple(f"{origin.label}\t{title}" for origin, title in
                       zip(NON_SEXED_ORIGINS, CLASS_TITLES)) + (GLOBAL_HEAD,),
    block_heads="Allocated\tCorrect\t   Average\t       SD\n",
    both_right="2",
    row_spread=(plain_mean, deviation_about_mean),
    table_spread=(plain_mean, deviation_about_mean),
    first_pair=(("2 correct", "1 correct", "0 correct"), ("correct", "incorrect"), ("counted",),
                ("combined",)),
    detailed="Detailled summary.xls",
    detailed_titles=tuple(f"{origin.label} {title}" for origin, title in
                          zip(NON_SEXED_ORIGINS, CLASS_TITLES)) + (GLOBAL_HEAD,),
    size_rows=(4, 3, 2, 4),
    tables=tuple((f"Iterations - {file}.xls", title, "Iteration", "standard deviation")
                 for file, title in
                 zip(("results_2collpar", "results_1collpar", "results_0collpar",
                      "global results"),
                     CLASS_TITLES + ("GLOBAL RESULTS (AFTER WEIGHING OF 3 PARTIAL RESULTS)",))),
    columns=COUNTS + ("Ambiguous", "Nulls"),
    short_columns=COUNTS + ("Amb", "Nulls"),
    ratios=RATIOS,
    short_ratios=RATIOS,
    class_ratios=True,
    sequence_legend="C : Collected  /  UC : Uncollected",
    sequence_tables=(
        ("PROPORTIONS OF PAIR ALLOCATIONS", PAIRS, PAIRS),
        ("PROPORTIONS OF SINGLE ALLOCATIONS", ("to coll", "to uncoll"), ("COLL", "UNCOLL")),
        ("ESTIMATED CORRECTNESS PROBABILITIES", ("any alloc", "to coll", "to uncoll"),
         PROBABILITIES)),
    completed="calculations completed!",
    parents=("pseudo-collected parents.txt", "uncollected parents.txt"),
    matrices="Iterations - transmission matrices.xls")
