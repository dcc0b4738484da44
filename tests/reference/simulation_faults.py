"""Refused simulations: which sentence the user reads, and that nothing is written.

A case names the files that differ from a sound set and the options that differ
from a sound command line (None takes an option away). A sentence of None leaves
the wording to the program; only its exit code and the untouched folder count then.
"""

from fault_cases import S_ODD, S_UNDEFINED
from fault_table import FaultTable, options_of
from reference_input import InputFault
from simulation_input import FEMALE_HALF, MALE_HALF, SAMPLE_HALF, check_and_read_simulation
from simulation_settings import parse_simulation

SOUND = "P1 150152 200204\nP2 152154 204204\nP3 150150 200200\n"
SOUND_FILES = {name: SOUND for name in
               ("parents", "pseudo", "uncollected", "males", "females", "pseudo males",
                "pseudo females", "uncollected males", "uncollected females")}
SOUND_FILES["loci"] = "A B\n"
COMMON = {"project": "results", "loci": "loci", "iterations": "2",
          "offspring-per-iteration": "9", "seed": "5"}
PARENTAL = COMMON | {"collected-parents": "parents", "uncollected-sample": "uncollected",
                     "uncollected": "3"}
PREPARENTAL = COMMON | {"pseudo-collected-sample": "pseudo", "pseudo-collected": "4",
                        "uncollected-sample": "uncollected", "uncollected": "3"}
SEXED = COMMON | {
    "sexed": True, "uncollected-male-sample": "uncollected males", "uncollected-males": "2",
    "uncollected-female-sample": "uncollected females", "uncollected-females": "2",
    "estimated-collected-males": "3", "estimated-uncollected-males": "3",
    "estimated-collected-females": "3", "estimated-uncollected-females": "3"}
SEXED_PARENTAL = SEXED | {"collected-males": "males", "collected-females": "females"}
SEXED_PREPARENTAL = SEXED | {
    "pseudo-collected-male-sample": "pseudo males", "pseudo-collected-males": "3",
    "pseudo-collected-female-sample": "pseudo females", "pseudo-collected-females": "3"}

ODD = "P1 150152 20020\nP2 152154 204204\n"
MISSING = "P1 150152 200204\nP2 152154 000000\n"
HALF = "P1 150152 200204\nP2 152154 000204\n"
OTHER_HALF = "P1 150000 200204\nP2 152154 204204\n"
NO_ALLELE = "P1 150152 000000\nP2 152154 000000\n"

PROJECT_NAME = "Please enter name of project!"
LOCI_NAME = "Names of loci file name is missing!"
PARENT_NAME = "Parent file name is missing!"
SAMPLE_NAME = "File name is missing!"
ITERATIONS = "Number of iterations must be inferior to 1000"
NEGATIVE = "Enter a positive number"
CRITERION = "Enter number between 0 and 1"
START = "The minimum number of loci to start with is 1"
EPSILON = "Espilon should be between 0 and 0.1"
FOCAL = "Focal allele must be between 0.9 and 1.0"
SUM_ONE = "Sum of probabilities must be 1"
NO_ZERO = ("Set of indices has to run from 1 to the total number of loci. "
           "No zero! Only integers!")
NOT_FARTHER = "Set of indices has to run from 1 to the total number of loci. Not farther!"
WRONG_SUM = "Set of indices has to run from 1 to the total number of loci."


def case(base, sentence, options=None, **files):
    return base, files, options or {}, sentence


def both_sexes(sentence, options=None):
    """The same fault in the sexed parental and preparental procedure."""
    return [case(SEXED_PARENTAL, sentence, options), case(SEXED_PREPARENTAL, sentence, options)]


CUMULATIVE = {"strategy": "cumulative"}

CASES = [
    # names of files
    case(PARENTAL, PROJECT_NAME, {"project": ""}),
    case(PARENTAL, LOCI_NAME, {"loci": ""}),
    case(SEXED_PREPARENTAL, LOCI_NAME, {"loci": ""}),
    case(PARENTAL, PARENT_NAME, {"collected-parents": ""}),
    case(PARENTAL, SAMPLE_NAME, {"uncollected-sample": ""}),
    case(PARENTAL, SAMPLE_NAME, {"uncollected-sample": "", "uncollected": "0"}),
    case(PREPARENTAL, SAMPLE_NAME, {"pseudo-collected-sample": ""}),
    case(SEXED_PARENTAL, PARENT_NAME, {"collected-males": ""}),
    case(SEXED_PARENTAL, PARENT_NAME, {"collected-females": ""}),
    case(SEXED_PREPARENTAL, SAMPLE_NAME, {"pseudo-collected-female-sample": ""}),
    case(SEXED_PARENTAL, SAMPLE_NAME, {"uncollected-male-sample": ""}),
    case(PARENTAL, 'Cannot open file "nowhere"!', {"collected-parents": "nowhere"}),
    case(PREPARENTAL, 'Cannot open file "no ôther"!', {"uncollected-sample": "no ôther"}),
    case(SEXED_PREPARENTAL, 'Cannot open file "nothing"!', {"loci": "nothing"}),
    # numbers
    case(PARENTAL, ITERATIONS, {"iterations": "1000"}),
    case(PREPARENTAL, ITERATIONS, {"iterations": "5000"}),
    case(PARENTAL, NEGATIVE, {"tolerance": "-1"}),
    case(SEXED_PARENTAL, NEGATIVE, {"tolerance": "-2"}),
    case(PARENTAL, CRITERION, {"criterion": "1.01"}),
    case(SEXED_PARENTAL, CRITERION, {"criterion": "-0.1", "strategy": "minimal"}),
    case(PREPARENTAL, CRITERION, {"criterion": "2", "start-with": "0"}),
    case(PARENTAL, START, {"start-with": "0", "strategy": "all"}),
    case(SEXED_PREPARENTAL, START, {"start-with": "-1"}),
    # contents of the files
    case(PARENTAL, S_ODD, parents=ODD),
    case(PARENTAL, S_ODD, uncollected=ODD),
    case(PREPARENTAL, S_ODD, pseudo=ODD),
    case(SEXED_PARENTAL, S_ODD, females=ODD),
    case(SEXED_PREPARENTAL, S_ODD, **{"uncollected males": ODD}),
    case(PARENTAL, S_UNDEFINED, parents=MISSING),
    case(PARENTAL, S_UNDEFINED, parents=HALF),
    case(SEXED_PARENTAL, S_UNDEFINED, males=MISSING),
    case(SEXED_PARENTAL, S_UNDEFINED, females=MISSING),
    case(PARENTAL, SAMPLE_HALF, uncollected=HALF),
    case(PREPARENTAL, SAMPLE_HALF, pseudo=OTHER_HALF),
    case(SEXED_PARENTAL, MALE_HALF, males=HALF),
    case(SEXED_PARENTAL, FEMALE_HALF, females=OTHER_HALF),
    case(SEXED_PREPARENTAL, MALE_HALF, **{"pseudo males": HALF}),
    case(SEXED_PREPARENTAL, FEMALE_HALF, **{"pseudo females": HALF}),
    case(SEXED_PARENTAL, MALE_HALF, **{"uncollected males": OTHER_HALF}),
    case(SEXED_PARENTAL, FEMALE_HALF, **{"uncollected females": HALF}),
    # the error model
    case(PARENTAL, EPSILON, {"error": "uniform=0.11"}),
    *both_sexes(EPSILON, {"error": "uniform=0.1000001"}),
    case(PARENTAL, FOCAL, {"error": "nonuniform=0.05,0.05,0.8,0.05,0.05"}),
    case(PREPARENTAL, FOCAL, {"error": "nonuniform=0.1,0.1,0.5,0.1,0.1"}),
    case(SEXED_PARENTAL, FOCAL, {"error": "nonuniform=-0.1,0,1.1,0,0"}),
    *both_sexes(SUM_ONE, {"error": "nonuniform=0.002,0.008,0.98,0.008,0.003"}),
    # adds up to one from left to right, but not with the focal probability last
    case(PARENTAL, SUM_ONE, {"error": "nonuniform=0.001,0.005,0.939,0.004,0.051"}),
    # the cumulative sequence
    case(PARENTAL, NO_ZERO, CUMULATIVE | {"sequence": "0,3"}),
    case(SEXED_PARENTAL, NOT_FARTHER, CUMULATIVE | {"sequence": "3,1"}),
    case(PREPARENTAL, WRONG_SUM, CUMULATIVE | {"sequence": "2,2"}),
    # in words of the program's own
    case(PARENTAL, None, {"iterations": "0"}),
    case(SEXED_PARENTAL, None, {"iterations": "-3"}),
    case(PARENTAL, None, {"offspring-per-iteration": "0"}),
    case(PARENTAL, None, {"uncollected": "-1"}),
    case(PARENTAL, None, {"uncollected": "inf"}),
    case(PREPARENTAL, None, {"pseudo-collected": "0"}),
    case(SEXED_PARENTAL, None, {"estimated-collected-males": "-1"}),
    case(SEXED_PARENTAL, None, {"estimated-collected-females": "0",
                                "estimated-uncollected-females": "0"}),
    case(PARENTAL, None, {"iterations": "2.5"}),
    case(PARENTAL, None, {"strategy": "best"}),
    case(PARENTAL, None, {"keep": "parents,pets"}),
    case(PARENTAL, None, {"use": "A,C"}),
    case(PARENTAL, None, {"error": "often"}),
    case(PARENTAL, None, {"strategy": "all", "start-with": "3"}),
    case(PARENTAL, None, {"strategy": "cumulative", "start-with": "2", "use": "B"}),
    case(PARENTAL, None, CUMULATIVE | {"sequence": "1,2,3"}),
    case(PARENTAL, None, {"uncollected": None}),
    case(PARENTAL, None, {"uncollected-sample": None}),
    case(PARENTAL, None, {"collected-parents": None}),
    case(PARENTAL, None, {"pseudo-collected-sample": "pseudo", "pseudo-collected": "3"}),
    case(PARENTAL, None, {"sexed": ""}),
    case(SEXED_PARENTAL, None, {"sexed": None}),
    case(SEXED_PARENTAL, None, {"collected-females": None}),
    case(SEXED_PARENTAL, None, {"uncollected-females": None}),
    case(SEXED_PARENTAL, None, {"estimated-uncollected-males": None}),
    case(PARENTAL, None, {"uncollected": "1"}, parents="P1 150152 200204\n"),
    case(PARENTAL, None, {"uncollected": "0.9", "offspring-per-iteration": "500"}),
    case(SEXED_PARENTAL, None, {"uncollected-males": "0"}),
    case(SEXED_PREPARENTAL, None, {"uncollected-females": "0"}),
    case(PARENTAL, None, loci=""),
    case(PARENTAL, None, loci="A A\n"),
    case(PARENTAL, None, parents=""),
    case(PARENTAL, None, uncollected=""),
    case(PARENTAL, None, uncollected=NO_ALLELE),
    case(SEXED_PREPARENTAL, None, **{"pseudo females": NO_ALLELE}),
    case(PARENTAL, None, uncollected="P1 01500152 02000204\n"),
    case(SEXED_PARENTAL, None, females="P1 1510 2020\n"),
    case(PARENTAL, None, parents="*P1 150152 200204\nP2 152154 204204\nP3 152154 204204\n"),
    case(PREPARENTAL, None, uncollected="P1 150152 2a0204\n"),
    case(PREPARENTAL, None, uncollected="SixteenBytesName 150152 200204\n"),
]
# 21 loci have 2097151 subsets; the program says how many it would be.
MANY = 21
MANY_SUBSETS = str(2 ** MANY - 1)


def many_loci():
    record = "P{} " + " ".join(["150152"] * MANY) + "\n"
    parents = "".join(record.format(k) for k in range(3))
    return case(PARENTAL, None, {"strategy": "all"}, parents=parents, uncollected=parents,
                loci=" ".join(f"L{k}" for k in range(MANY)))


def prepare(each, folder):
    """Write the files of a case; returns its command line."""
    base, files, options, _ = each
    for name, text in (SOUND_FILES | files).items():
        (folder / name).write_text(text, encoding="utf-8")
    return options_of(base | options)


def ask_reference(arguments, folder):
    check_and_read_simulation(parse_simulation(arguments), folder)


SIMULATION_FAULTS = FaultTable(
    "simulate", CASES + [many_loci()], prepare, ask_reference,
    {"results/Summary.xls": b"an earlier result\n", "SAUVLOCUSTULM.txt": b"X Y "},
    {len(CASES): f"{MANY_SUBSETS} subsets"})


def check_sound_sets(parent):
    """The sets that the cases spoil are accepted; returns the number of failures."""
    failures = 0
    bases = (PARENTAL, PREPARENTAL, SEXED_PARENTAL, SEXED_PREPARENTAL)
    for number, base in enumerate(bases):
        folder = parent / f"sound_{number}"
        folder.mkdir(parents=True)
        try:
            ask_reference(prepare(case(base, None), folder), folder)
        except InputFault as fault:
            failures += 1
            print(f"a sound set is refused: {fault}")
    return failures
