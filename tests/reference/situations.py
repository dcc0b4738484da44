"""Situations that the compared sets must meet, so that a tame generator is noticed.

Most of them are seen in what is typed, read and written: a set is then one text, made of its
options, its input files and its reports.
"""

import re

from simulation_flows import origins_of
from simulation_scoring import BEST_KEYS

ONE_SIDE = ("cond_RR_par1_seul", "cond_RR_par2_seul", "cond_RJ_R_par1", "cond_RJ_R_par2",
            "cond_RJ_J_par1", "cond_RJ_J_par2")
BOTH_ALLELES = ("cond_RJ_RJ_par1", "cond_RJ_RJ_par2")

COMMON = {
    "fields of two digits": r"^[A-Z]\S* +\d\d[ \r\n]", "fields of eight digits": r"\s\d{8}\s",
    "no error": r"--error[ =]none", "uniform": r"--error[ =]uniform",
    "uniform by default": r"(?s)\A(?!.*--error)", "non-uniform": r"--error[ =]nonuniform( |$|\0)", "non-uniform as typed": "nonuniform=",
    **{f"tolerance {number}": rf"--tolerance[ =]{number}" for number in range(4)},
    "loci not in use": "--use", "sequence by index": r"--sequence[ =]-?\d",
    "CR LF": "\r\n", "byte-order mark": "^\xef\xbb\xbf", "tabs": r"\S \t \d",
    "locus out of step": r"\tAlleles : ", "missing genotype": r"\s0{4,8}\s",
    "older files present": "left by an earlier run",
}

ALLOCATIONS = COMMON | {
    "non-sexed": "^NON-SEXED ALLOCATION", "sexed": "^SEXED ALLOCATION",
    "sequence in file order": r"--sequence($|\0| --)", "negative index": r"--sequence=-",
    **{f"{number} pairs": rf"^Offspring .*\n.*\n(Parents\n.*\n.*\n){{{number}}}\*"
       for number in range(1, 6)},
    "more than five pairs": "more than 5 potential pairs", "no pair": r"Parents\nnone",
    **{label: label + r"\t" for label in ("cond_aucun", "cond_complet", "cond_un_a_chacun")},
    **{f"{label}, {form}": rf"{label}\t\t.*\[{pattern}\]" for label in ONE_SIDE
       for form, pattern in (("nearest", r"\d+,\d+"), ("tie", r"dm=\d+,\d+"))},
    **{f"{label}, {form}": rf"{label}\t\t.*\[{pattern}\]" for label in BOTH_ALLELES
       for form, pattern in (("nearest", r"\d+,\d+"), ("tie", r"dm=\d+"))},
    "missing locus": r"\[\*,\*\]", "first parent rejected": "offset_par1_depasse = Oui",
    "second parent rejected": "offset_par2_depasse = Oui",
    "one accepted": r"\[\d+,--\]", "only the female": r"\[--,\d+\]", "none": r"\[--,--\]",
    "error accepted": r"\[[1-9]\d*,\d+\]$", "one-allele locus": "Unit distance = -",
    "several groups": r"\d\s+\*\S*\s+[^*\s]\S*\s+\d", "doubled separator": r"\*\S*\s+\*",
    "long name": r"^\S{11,15}\t", "name not in ASCII": "^[^ \t\n]*\xc3",
}

SIMULATIONS = COMMON | {
    **{f"{flow} {procedure}": f"Type of simulations : {flow} {procedure}\n"
       for flow in ("non-sexed", "sexed") for procedure in ("parental", "preparental")},
    **{strategy: rf"--strategy[ =]{strategy}" for strategy in ("all", "minimal", "cumulative")},
    "criterion reached": "has been reached with", "a larger start": r"--start-with[ =]2",
    "empty class": "       NA", "deviation that is not a number": r"\tnan",
    "more than 1000 iterations": "^1001\t", "place beyond the hundredth": r"^(\d+ +)?1\d\d +",
    "no offspring": r"generated per iteration : 0\n\S.*\n(.*\n)*?GLOBAL.*\n.*iteration : 0",
    "fraction of a parent": r"uncollected parents :\t\d+\.\d", "one parent": "^Number of it.*\t1$",
    **{f"keeps {what}": rf"--keep[ =]\S*{what}" for what in
       ("none", "all", "parents", "offspring", "matrices")},
    "iterations printed": "--print-iterations", "subsets told": "--print-subset-statistics",
}


class Situations:
    """Counts in how many sets each situation was met."""

    def __init__(self, patterns, counted=()):
        self.patterns = {name: re.compile(pattern, re.MULTILINE)
                         for name, pattern in patterns.items()}
        self.counts = dict.fromkeys([*patterns, *counted], 0)

    def see(self, options, inputs, reports):
        text = "\0\n".join([" ".join(options), *inputs, *reports])
        for name, pattern in self.patterns.items():
            self.counts[name] += bool(pattern.search(text))

    def never_met(self):
        return [name for name, count in self.counts.items() if not count]


def decisions(sexed):
    """Every kind of decision that can be, and every verdict on a best pair.

    A non-sexed simulation allocates without errors: a pair is accepted as a whole.
    """
    rows = [f"{origin.label} {row.allocated} / {row.correct}"
            for origin in origins_of(sexed) for row in origin.rows if row.allocated != "C + UC"]
    return rows + [f"best pair: {key}" for key in BEST_KEYS[sexed]]


def decisions_met(run):
    for iteration in run.iterations:
        for origin, counts in zip(origins_of(run.settings.sexed), iteration.counts):
            for row, count in zip(origin.rows, counts.rows):
                if count:
                    yield f"{origin.label} {row.allocated} / {row.correct}"
            yield from (f"best pair: {key}" for key, count in counts.best.items() if count)
