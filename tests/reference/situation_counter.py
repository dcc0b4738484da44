"""Counts which situations the compared sets met, so that a tame generator is noticed."""

from collections import Counter


class SituationCounter:
    """Knows which situations must be met, and how often each was."""

    def __init__(self, required):
        self.required = required
        self.counts = Counter()

    def missing(self):
        return [situation for situation in self.required if not self.counts[situation]]

    def report(self):
        unknown = set(self.counts) - set(self.required)
        assert not unknown, f"counted but not required: {sorted(unknown)}"
        return "\n".join(f"{self.counts[situation]:7}  {situation}" for situation in self.required)
