"""Runs a table of refused inputs: which sentence the user reads, and that nothing is written."""

import contextlib
import io
import subprocess
from dataclasses import dataclass
from typing import Callable

from comparison import TIME_LIMIT, write_files
from reference_input import InputFault, byte_text


@dataclass
class FaultTable:
    """Cases, each of which ends with the wanted sentence; None leaves the wording to the program."""

    subcommand: str
    cases: list
    prepare: Callable        # (case, folder): writes the files of a case, gives its command line
    ask: Callable            # (arguments, folder): the reference; raises InputFault
    earlier: dict            # files of an earlier result, which must stay as they are
    told: dict               # by number of the case: what the program says besides

    def _ask_reference(self, arguments, folder):
        """Exit code and sentence of the reference."""
        try:
            with contextlib.redirect_stderr(io.StringIO()):
                self.ask(arguments, folder)
        except InputFault as fault:
            return 2, byte_text(str(fault))
        except SystemExit as usage:
            return usage.code, ""
        return 0, ""

    def _prepared(self, number, parent):
        """A folder with a case, and its command line; every second one has an earlier result."""
        folder = parent / f"case_{number:03d}"
        folder.mkdir(parents=True)
        if number % 2:
            write_files(self.earlier, folder)
        return folder, self.prepare(self.cases[number], folder)

    def check(self, parent):
        """The reference gives the sentence of every case; returns the number of failures."""
        failures = 0
        for number, case in enumerate(self.cases):
            folder, arguments = self._prepared(number, parent)
            code, sentence = self._ask_reference(arguments, folder)
            wanted = case[3]
            if code != 2 or (wanted is not None and sentence != byte_text(wanted)):
                failures += 1
                print(f"fault case {number} {arguments}: wanted {wanted!r}, "
                      f"got {code} {sentence!r}")
        print(f"{len(self.cases)} refused inputs, {failures} failures of the reference")
        return failures

    def compare(self, binary, parent):
        """The program gives the same code and sentence, and touches nothing."""
        failures = 0
        for number in range(len(self.cases)):
            problems = self._problems(binary, number, parent / "faults")
            if problems:
                failures += 1
                print(f"fault case {number}: " + "; ".join(problems))
        print(f"{len(self.cases)} refused inputs compared, "
              + (f"{failures} failures" if failures else "all alike"))
        return failures

    def _problems(self, binary, number, parent):
        folder, arguments = self._prepared(number, parent)
        before = state_of(folder)
        code, sentence = self._ask_reference(arguments, folder)
        completed = subprocess.run([binary, self.subcommand, *arguments], cwd=folder,
                                   timeout=TIME_LIMIT, capture_output=True, check=False)
        errors = completed.stderr.decode("latin-1")
        first_line = errors.partition("\n")[0]
        problems = []
        if completed.returncode != code:
            problems.append(f"exit code {completed.returncode}, not {code}")
        if self.cases[number][3] is not None and first_line != sentence:
            problems.append(f"says {first_line!r}, not {sentence!r}")
        if not first_line:
            problems.append("says nothing on standard error")
        if self.told.get(number, "") not in errors:
            problems.append(f"does not tell of {self.told[number]!r}")
        if state_of(folder) != before:
            problems.append("files were created or changed")
        return problems and [str(arguments), *problems]


def options_of(values):
    """A command line; a value of None takes its option away, True makes it a switch."""
    arguments = []
    for name, value in values.items():
        if value is True:
            arguments += [f"--{name}"]
        elif value is not None:
            arguments += [f"--{name}={value}"] if value.startswith("-") else [f"--{name}", value]
    return arguments


def state_of(folder):
    """Everything in the folder of a case, to see that nothing was created or changed."""
    return {path.relative_to(folder).as_posix(): path.read_bytes() if path.is_file() else None
            for path in folder.rglob("*")}
