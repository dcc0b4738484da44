"""Which situations the compared sets met, so that a tame generator is noticed."""

from allocation_reference import OUT_OF_STEP
from reference_tables import single
from situation_counter import SituationCounter

NEAREST_FORMS = ["single", "tie", "homozygous"]
BOTH_FORMS = NEAREST_FORMS + ["homozygous tie"]

REQUIRED = (
    [f"flow {flow}" for flow in ("non-sexed", "sexed")]
    + [f"error model {kind}" for kind in ("none", "uniform", "nonuniform")]
    + [f"offspring with {count} pairs" for count in (1, 2, 3, 4, 5)]
    + ["more than five pairs", "better pair after the flag",
       "tie missed by a rounding",
       "duplicate skipped, straight", "duplicate skipped, crosswise", "sexed namesakes kept",
       "offspring without a pair", "one-allele locus", "missing offspring locus",
       "fully missing offspring", "offspring name with a star",
       "offset equal to the tolerance", "offset beyond the tolerance",
       "distance not a whole number of repeats",
       "frequency that shows its precision"]
    + [f"condition {number}" for number in range(1, 12)]
    + [f"condition {number}, {form}" for number in range(4, 10) for form in NEAREST_FORMS]
    + [f"condition {number}, {form}" for number in (10, 11) for form in BOTH_FORMS]
    + [f"{flow}: {verdict}" for flow in ("non-sexed", "sexed")
       for verdict in ("both collected", "first uncollected", "second uncollected",
                       "both uncollected")]
    + [f"{flow}, several groups" for flow in ("non-sexed", "sexed")]
    + ["empty group", "leading separator", "doubled separator", "trailing separator",
       "sequence in file order", "sequence by index", "sequence with repeated indices",
       "sequence with a negative index", "sequence with loci not in use", "loci not in use",
       "locus out of step", "names of more than ten bytes", "names not in ASCII"]
    + [f"fields of {digits} digits" for digits in (2, 4, 6, 8)]
    + [f"tolerance {tolerance}" for tolerance in range(4)]
    + ["CR LF", "byte-order mark", "tabs", "records over several lines", "older reports present"])


class Coverage(SituationCounter):
    """The situations of allocations."""

    def __init__(self):
        super().__init__(REQUIRED)

    def add(self, input_set, run):
        """Count what one set met; settings once per set, the rest per offspring."""
        settings, inputs = run.settings, run.inputs
        met = self.counts.update
        flow = "sexed" if settings.sexed else "non-sexed"
        met([f"flow {flow}", f"error model {settings.error.kind}",
             f"fields of {inputs.digits} digits", f"tolerance {settings.tolerance}"])
        if input_set.stale:
            met(["older reports present"])
        if run.closing == OUT_OF_STEP:
            met(["locus out of step"])
        self._add_layout(input_set, inputs)
        self._add_groups(inputs, flow)
        self._add_loci(run)
        for outcomes in run.outcomes:
            for child, outcome in zip(inputs.offspring, outcomes):
                self._add_outcome(child, outcome, run, flow)

    def _add_layout(self, input_set, inputs):
        datas = list(input_set.files.values())
        if any(b"\r\n" in data for data in datas):
            self.counts["CR LF"] += 1
        if any(data.startswith(b"\xef\xbb\xbf") for data in datas):
            self.counts["byte-order mark"] += 1
        if any(b"\t" in data for data in datas):
            self.counts["tabs"] += 1
        if any(len(data.splitlines()) > len(inputs.slots) + len(inputs.locus_names) + 2
               for data in datas):
            self.counts["records over several lines"] += 1
        names = [one.name for one in inputs.slots]
        if any(len(name) > 10 for name in names):
            self.counts["names of more than ten bytes"] += 1
        if any(not name.isascii() for name in names):
            self.counts["names not in ASCII"] += 1

    def _add_groups(self, inputs, flow):
        for file in inputs.parent_files:
            marks = [one.separator for one in file]
            if any(mark and not all(marks[:k]) and not all(marks[k:])
                   for k, mark in enumerate(marks)):
                self.counts[f"{flow}, several groups"] += 1
            doubled = any(a and b for a, b in zip(marks, marks[1:]))
            for situation, holds in (("leading separator", marks[0]),
                                     ("trailing separator", marks[-1]),
                                     ("doubled separator", doubled)):
                self.counts.update([situation] if holds else [])
            if marks[0] or marks[-1] or doubled:
                self.counts["empty group"] += 1

    def _add_loci(self, run):
        inputs, settings = run.inputs, run.settings
        partly = len(inputs.in_use) < len(inputs.locus_names)
        if partly:
            self.counts["loci not in use"] += 1
        for catalogue in run.catalogues.values():
            if len(catalogue.listed) == 1:
                self.counts["one-allele locus"] += 1
        if settings.sequence is None:
            return
        divisor = 2 * len(inputs.slots)
        if any(f"{single(count / divisor):g}" != f"{count / divisor:g}"
               for catalogue in run.catalogues.values() for count in catalogue.counts):
            self.counts["frequency that shows its precision"] += 1
        self.counts["sequence by index" if settings.sequence else "sequence in file order"] += 1
        if partly:
            self.counts["sequence with loci not in use"] += 1
        if len(set(settings.sequence)) < len(settings.sequence):
            self.counts["sequence with repeated indices"] += 1
        if any(index < 0 for index in settings.sequence):
            self.counts["sequence with a negative index"] += 1

    def _add_outcome(self, child, outcome, run, flow):
        met, tolerance = self.counts.update, run.settings.tolerance
        met(outcome.events)
        typed = [child.genotypes[locus] != (0, 0) for locus in run.inputs.in_use]
        if not all(typed):
            met(["missing offspring locus"])
        if not any(typed):
            met(["fully missing offspring"])
        if child.name.startswith("*"):
            met(["offspring name with a star"])
        if not outcome.pairs:
            met(["offspring without a pair"])
            return
        if outcome.more_than_five:
            met(["more than five pairs"])
        else:
            met([f"offspring with {len(outcome.pairs)} pairs"])
        verdicts = {(False, False): "both collected", (True, False): "first uncollected",
                    (False, True): "second uncollected", (True, True): "both uncollected"}
        met([f"{flow}: {verdicts[outcome.uncollected]}"])
        for comparison in outcome.comparisons:
            met([f"condition {comparison.condition}"])
            if comparison.condition >= 4:
                met([f"condition {comparison.condition}, {comparison.form}"])
            if comparison.uneven:
                met(["distance not a whole number of repeats",
       "frequency that shows its precision"])
            for offset in (comparison.offset1, comparison.offset2):
                if 0 < offset == tolerance:
                    met(["offset equal to the tolerance"])
                elif offset > tolerance:
                    met(["offset beyond the tolerance"])
