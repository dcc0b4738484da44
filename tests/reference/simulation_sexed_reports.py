"""The words of the reports of a sexed simulation."""

from reference_input import byte_text
from simulation_flows import SEXED_ORIGINS
from simulation_input import SEXES
from simulation_reports import Layout
from simulation_statistics import plain_mean, step_deviation, step_mean, table_deviation

FROM = "pseudo-offspring from "
DISTRIBUTION = (
    FROM + "a (pseudo)collected male and a (pseudo)collected female",
    FROM + "a (pseudo)collected male and a uncollected female",
    FROM + "an uncollected male and a (pseudo)collected female",
    FROM + "an uncollected male and an uncollected female")
PAIRS = ("Corr_pair", "Incorr_pair", "Corr_male", "Incorr_male", "Corr_female", "Incorr_female")
SHORT_PAIRS = tuple(name.replace("Incorr", "Inc") for name in PAIRS)
PROBABILITIES = ("ANY", ("CM", "M"), ("CF", "F"), ("CUC", "UC"))


def parameters(settings, inputs):
    typed = vars(settings)

    def per_sex(label, value_of):
        return [(label.format(sex), value_of(sex)) for sex in SEXES]
    if settings.parental:
        first = per_sex("Collected {} parents file :", lambda sex: typed[f"collected_{sex}s"])
        collected = per_sex("Size of collected {} parental group :",
                            lambda sex: len(inputs.groups[SEXES.index(sex)].individuals))
    else:
        first = per_sex("Sample to generate pseudo-collected {} parents :",
                        lambda sex: typed[f"pseudo_collected_{sex}_sample"])
        first += per_sex("Size of pseudo-collected {} parental group :",
                         lambda sex: typed[f"pseudo_collected_{sex}s"])
        collected = []
    return (first
            + per_sex("Sample to generate uncollected {} parents :",
                      lambda sex: typed[f"uncollected_{sex}_sample"])
            + [("Name of loci file :", settings.loci)] + collected
            + per_sex("Size of uncollected {} parental group :",
                      lambda sex: typed[f"uncollected_{sex}s"])
            + [("Number of iterations :", settings.iterations),
               ("Number of pseudo-offspring generated at each iteration :",
                settings.offspring_per_iteration)]
            + per_sex("Proportion of collected or pseudo-collected {} parents :",
                      lambda sex: inputs.proportions.shares[SEXES.index(sex)]))


SEXED = Layout(
    flow="sexed",
    origins=SEXED_ORIGINS,
    parameters=parameters,
    distribution=DISTRIBUTION,
    before_averages="",
    averages=(
        ("AVERAGE FREQUENCIES OF TYPES OF ALLOCATIONS :", "\t" * 4,
         ("two collected parents :", "one collected male parent and one uncollected (UC) :",
          "one collected female parent and one uncollected (UC) :",
          "two uncollected (UC) parents :"), ("MF", "MU", "UF", "UU")),
        ("AVERAGE PROPORTION OF ALLOCATIONS :", "\t" * 4,
         ("to a male collected parent   :", "to a female collected parent   :"), ("M", "F")),
        ("ESTIMATED CORRECTNESS PROBABILITIES :", "\t" * 6,
         tuple(f"estimated probability that {what} is correct :" for what in (
             "any allocation", "an allocation to a collected male parent",
             "an allocation to a collected female parent",
             "an allocation to an uncollected parent (UC)")), PROBABILITIES)),
    statistics_legend=(
        "Correct :\tcorrect allocation of a (pseudo)parent or non-allocation of an "
        "uncollected parent.\n"
        "Average :\taverage frequency taken over all iterations.\n"
        "SD :\tstandard deviation of frequencies taken over all iterations.\n"
        "Allocation :\tallocation to a collected parent.\n"),
    block_titles=("1 ) MC X FC\t" + DISTRIBUTION[0],
                  "2 ) MC X FU\t" + FROM + "a (pseudo)collected male and an uncollected female",
                  "3 ) MU X FC\t" + DISTRIBUTION[2], "4 ) MU X FU\t" + DISTRIBUTION[3],
                  "GLOBAL :\tall offspring"),
    block_heads="Collected\tCollected\nAllocated\tCorrect\t   Average\t       SD\n",
    both_right="male,female",
    row_spread=(step_mean, step_deviation),
    table_spread=(plain_mean, table_deviation),
    first_pair=(),
    detailed="Detailed Iterations Results.xls",
    detailed_titles=("1 / (pseudo)collected male X (pseudo)collected female",
                     "2 / (pseudo)collected male X uncollected female",
                     "3 / uncollected male X (pseudo)collected female",
                     "4 / uncollected male parent X uncollected female parent",
                     "GLOBAL : all offspring"),
    size_rows=(5, 4, 4, 3, 5),
    tables=(
        ("Iterations-results_coll_m_coll_f.xls",
         "COLLECTED OR PSEUDO-COLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
         "Iteration", "standard deviation"),
        ("Iterations-results_coll_m_unc_f.xls",
         "COLLECTED OR PSEUDO-COLLECTED MALE + UNCOLLECTED FEMALE",
         byte_text("Itération"), "std deviation"),
        ("Iterations-results_unc_m_coll_f.xls",
         "UNCOLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
         "iteration", "standard deviation"),
        ("Iterations-results_unc_m_unc_f.xls", "UNCOLLECTED MALE + UNCOLLECTED FEMALE",
         "iteration", "std deviation"),
        ("Iterations-global results.xls", "GLOBAL RESULTS (after weighing of 4 cases)",
         "Iteration", "std deviation")),
    columns=PAIRS + ("Ambiguous", "Nulls"),
    short_columns=SHORT_PAIRS + ("Amb", "Nulls"),
    ratios=tuple(f"{name}/all_assigned" for name in SHORT_PAIRS),
    short_ratios=tuple(f"{name}/all_assigned" for name in PAIRS),
    class_ratios=False,
    sequence_legend="M : Male  /  F : Female  /  C : Collected  /  UC : Uncollected",
    sequence_tables=(
        ("PROPORTIONS OF TYPES OF ALLOCATIONS\nPAIR ALLOCATIONS",
         ("M.C + F.C", "M.C + F.UC", "M.UC + F.C", "M.UC + F.UC"), ("MF", "MU", "UF", "UU")),
        ("SINGLE ALLOCATIONS", ("Male coll", "Female coll"), ("M", "F")),
        ("ESTIMATED CORRECTNESS PROBABILITIES", ("Any alloc", "Coll M", "Coll F", "Uncoll"),
         PROBABILITIES)),
    completed="Calculations completed!",
    parents=("pseudo-collected males.txt", "pseudo-collected females.txt",
             "uncollected males.txt", "uncollected females.txt"),
    matrices="Iterations-transmission matrices.xls")
