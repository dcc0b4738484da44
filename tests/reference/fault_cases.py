"""Refused inputs: which sentence the user reads, and that nothing is written.

A case names the files that differ from a sound set and the options that differ
from a sound command line. A sentence of None leaves the wording to the program;
only its exit code and the untouched project folder are then compared.
"""

from allocation_reference import allocate, parse_arguments
from fault_table import FaultTable, options_of

SOUND_FILES = {
    "loci": "A B\n",
    "parents": "P1 150152 200204\nP2 152154 204204\n",
    "males": "M1 150152 200204\nM2 152154 204204\n",
    "females": "F1 150152 200204\nF2 152154 204204\n",
    "offspring": "K1 150152 200204\nK2 000000 204204\n",
}

ODD = "P1 150152 20020\nP2 152154 204204\n"
UNDEFINED = "P1 150152 200204\nP2 152154 000204\n"
HALF = "K1 150152 200000\nK2 000000 204204\n"
EXTRA_STAR = "M1 150152 200204\n*\nM2 152154 204204\n"

PARENT_NAME = "Parent file name is missing!"
MALE_NAME = "Male parent file name is missing!"
FEMALE_NAME = "Female parent file name is missing!"
OFFSPRING_NAME = "Offspring file name is missing!"
LOCI_NAME = "Names of loci file name is missing!"
PROJECT_NAME = "Please enter name of project!"
NEGATIVE = "Enter a positive number"
S_ODD = "Some parental loci are represented with an odd number of digits!"
S_UNDEFINED = ("Parental loci should not contain undefined alleles i.e. represented by "
               "a string of 0s!")
M_ODD = "Some male parental loci are represented with an odd number of digits!"
M_UNDEFINED = ("Male parental loci should not contain undefined alleles i.e. represented by "
               "a string of 0s!")
F_ODD = "Some female parental loci are represented with an odd number of digits!"
F_UNDEFINED = ("Female parental loci should not contain undefined alleles i.e. represented by "
               "a string of 0s!")
K_ODD = "Some offspring loci are represented with an odd number of digits!"
K_HALF = ("Offspring loci should contain totally defined alleles(no string of 0s) or totally "
          "undefined alleles (two strings of 0s)!")
EPSILON = "Espilon should be between 0 and 0.1"
SUM_ONE = "Sum of probability must be 1 ! "
FOCAL = "Error sum should not exceed 0.1!"
NO_ZERO = ("Set of indices has to run from 1 to the total number of loci. "
           "No zero! Only integers!")
NOT_FARTHER = "Set of indices has to run from 1 to the total number of loci. Not farther!"
WRONG_SUM = "Set of indices has to run from 1 to the total number of loci."


def pond(sentence, options=None, **files):
    """A case of the non-sexed flow."""
    return False, files, options or {}, sentence


def couple(sentence, options=None, **files):
    """A case of the sexed flow."""
    return True, files, options or {}, sentence


CASES = [
    # names of files, in their order, before anything is read
    pond(PROJECT_NAME, {"project": "", "parents": ""}),
    pond(PARENT_NAME, {"parents": "", "offspring": ""}),
    pond(OFFSPRING_NAME, {"offspring": "", "loci": ""}),
    pond(LOCI_NAME, {"loci": "", "parents": "nowhere"}),
    couple(MALE_NAME, {"males": "", "females": "", "offspring": ""}),
    couple(FEMALE_NAME, {"females": "", "loci": ""}),
    couple(OFFSPRING_NAME, {"offspring": ""}),
    couple(LOCI_NAME, {"loci": ""}),
    pond('Cannot open file "nowhere"!', {"parents": "nowhere", "loci": "nothing"}),
    pond('Cannot open file "no ôther"!', {"offspring": "no ôther", "tolerance": "-1"}),
    pond('Cannot open file "nothing"!', {"loci": "nothing"}),
    couple('Cannot open file "no males"!', {"males": "no males", "females": "no females"}),
    couple('Cannot open file "no females"!', {"females": "no females", "loci": "nothing"}),
    # the tolerance, before the contents
    pond(NEGATIVE, {"tolerance": "-1"}, parents=ODD),
    couple(NEGATIVE, {"tolerance": "-3"}, males=ODD),
    # contents: within a file odd hides undefined, over the files the last one speaks
    pond(S_ODD, parents=ODD),
    pond(S_ODD, parents=ODD + "P3 000000 200200\n"),
    pond(S_UNDEFINED, parents=UNDEFINED),
    pond(S_UNDEFINED, parents="P1 150152 200204\nP2 152000 204204\n"),
    pond(S_UNDEFINED, parents="P1 000000 200204\nP2 152154 204204\n"),
    pond(K_HALF, offspring=HALF),
    pond(K_HALF, offspring=HALF, parents=ODD),
    pond(K_HALF, offspring="K1 000156 200204\n"),
    pond(K_ODD, offspring=ODD),
    pond(K_ODD, offspring=ODD, parents=UNDEFINED),
    couple(M_ODD, males=ODD),
    couple(M_UNDEFINED, males=UNDEFINED),
    couple(F_ODD, females=ODD),
    couple(F_UNDEFINED, females=UNDEFINED),
    couple(F_UNDEFINED, females=UNDEFINED, males=ODD),
    couple(F_ODD, females=ODD, males=UNDEFINED),
    couple(K_HALF, offspring=HALF, males=UNDEFINED, females=ODD),
    couple(K_ODD, offspring=ODD, females=UNDEFINED),
    couple(K_ODD, offspring=ODD, males=EXTRA_STAR),
    couple(M_ODD, males="*\n" + ODD),
    couple(F_UNDEFINED, males=EXTRA_STAR, females=UNDEFINED),
    couple(None, males=EXTRA_STAR),
    # a wrong number of fields shows as far as it disturbs the counts of the file
    pond(S_ODD, parents="P1 150152\nP2 152154 204204\n"),
    pond(S_ODD, parents="P1 150152 200204\nP2 152154 204204\nP3 150150\n"),
    pond(K_ODD, offspring="Kid 150152 200204 200204\nTwo 150152 200204\n"),
    pond(None, parents="P1 150152 200204 300300\nP2 152154 204204\n"),
    # the error model
    pond(EPSILON, {"error": "uniform=0.1000001"}),
    pond(SUM_ONE, {"error": "nonuniform=0.002,0.008,0.98,0.008,0.003"}),
    pond(SUM_ONE, {"error": "nonuniform=0.1,0.1,0.5,0.1,0.1"}),
    pond(FOCAL, {"error": "nonuniform=0.05,0.05,0.8,0.05,0.05"}),
    couple(FOCAL, {"error": "nonuniform=-0.1,0,1.1,0,0"}),
    couple(M_ODD, {"error": "uniform=0.5"}, males=ODD),
    # the cumulative sequence: zero, then too large, then the sum
    pond(NO_ZERO, {"sequence": "0,3"}),
    pond(NO_ZERO, {"sequence": "1,0"}),
    pond(NOT_FARTHER, {"sequence": "3,1"}),
    pond(NOT_FARTHER, {"sequence": "1,2,3,5"}, loci="A B C D\n",
         parents="P1 1010 1010 1010 1010", offspring="K1 1010 1010 1010 1010"),
    couple(WRONG_SUM, {"sequence": "2,2"}),
    pond(WRONG_SUM, {"sequence": "-1,2"}),
    pond(EPSILON, {"error": "uniform=0.2", "sequence": "0,3"}),
    pond(K_HALF, {"sequence": "0,3"}, offspring=HALF),
    # stricter checks and usage, in words of the program's own
    pond(None, {"sequence": "1,2,3"}),
    pond(None, {"sequence": "1"}),
    pond(None, {"sequence": "1,x"}),
    pond(None, {"use": "A,C"}),
    pond(None, {"error": "often"}),
    pond(None, {"error": "nonuniform=0.05,0.9,0.05"}),
    pond(None, {"error": "uniform=high"}),
    pond(None, {"tolerance": "1.5"}),
    pond(None, {"tolerance": "one"}),
    pond(None, {"males": "males"}),
    pond(None, loci=""),
    pond(None, parents=""),
    pond(None, parents="*\n*\n"),
    pond(None, offspring=""),
    couple(None, females=" \n"),
    pond(None, loci="A A\n"),
    pond(None, loci="A FifteenBytesXYZ\n"),
    pond(None, parents="P1 150152 200204\nSixteenBytesName 152154 204204\n"),
    pond(None, offspring="K1 150152 2a0204\n"),
    pond(None, offspring="K1 150152 +200204+\n"),
    pond(None, offspring="K1 150152 02000204\n"),
    couple(None, females="F1 1510 2020\n"),
    pond(None, offspring="* K1 150152 200204\n"),
    pond(None, loci="A\n", parents="P1 0015000152\n", offspring="K1 0015000152\n"),
    pond(None, loci=" ".join(f"L{k}" for k in range(51)),
         parents="P1" + " 1010" * 51, offspring="K1" + " 1010" * 51),
    pond(None, loci="A\n", offspring="K1 100101\n",
         parents="".join(f"P{k} {k}{k}\n" for k in range(100, 201))),
]


def prepare(case, folder):
    """Write the files of a case; returns its command line."""
    sexed, files, options, _ = case
    roles = ["loci", "offspring"] + (["males", "females"] if sexed else ["parents"])
    for role in SOUND_FILES:
        (folder / role).write_text(files.get(role, SOUND_FILES[role]), encoding="utf-8")
    return options_of({"project": "results"} | {role: role for role in roles} | options)


def ask_reference(arguments, folder):
    allocate(parse_arguments(arguments), folder)


ALLOCATION_FAULTS = FaultTable("allocate", CASES, prepare, ask_reference,
                               {"results/Allocation results.xls": b"an earlier result\n"}, {})
