#!/usr/bin/env python3
"""Runs the commands that the documents show and compares what they print with what is shown.

    documents_test.py KALDO [unittest options]

Every fenced block of a document says what it is:

    sh        commands. Those of kaldo are run, in the order of the documents and all in one folder
              beside the examples; others have their reason in SKIPPED
    output    what the command above prints
    report    from a file that some command above wrote; an arrow stands for a tab
    input     the beginnings of lines of the example data
    text      none of these: formulas, layouts of other data, messages

In outputs and reports a line "..." stands for any number of lines and words in braces for any text;
a line that begins with braces stands for one or more of its kind.
"""

import re
import shlex
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import SOURCE, ProgramTest

KALDO, = programs.arguments(["KALDO"], __doc__)
DOCUMENTS = ["README.md", "examples/README.md", "CONTRIBUTING.md",
             *sorted(str(path.relative_to(SOURCE)) for path in SOURCE.glob("docs/*.md"))]
SKIPPED = {
    "scripts/run": "builds; the commands in it are run here",
    "scripts/test": "runs all tests, this one too",
    "scripts/make-package": "builds a package",
    "scripts/make-large-example": "takes minutes",
    "build/release/benchmarks/kaldo_search_table": "takes minutes",
    "mpirun": "takes minutes; short runs under the launcher have tests of their own",
    "sudo": "needs the superuser and a package manager",
    "cmake": "builds and installs; installing has a test of its own",
    "export": "lets a shell find the program",
    "cp": "copies the examples of an installed package",
}
# Figures of the documents that none of the commands shown writes.
MORE = [["--project", "kaldo-example/more", "--print-iterations", "--keep", "all"],
        ["--project", "kaldo-example/sequence", "--strategy", "cumulative",
         "--print-subset-statistics"]]
MACHINE = re.compile(r"^(date|folder|threads|duration_seconds) = .*", re.M)


def commands_in(text):
    """The commands of a block; one ends with its line unless a backslash joins the next."""
    for line in text.replace("\\\n", " ").splitlines():
        if line.strip():
            yield shlex.split(line)


def blocks_of(document):
    """(kind, text) of every fenced block."""
    text = (SOURCE / document).read_text(encoding="utf-8")
    return re.findall(r"^```(.*)\n((?:.*\n)*?)```$", text, re.M)


def blocks_of_page(page):
    """The examples of a manual page, as blocks of commands."""
    text = (SOURCE / page).read_text(encoding="utf-8")
    return [block.replace("\\-", "-").replace("\\e", "\\")
            for block in re.findall(r"^\.nf\n\.RS\n((?:.*\n)*?)\.RE$", text, re.M)]


def pattern_of(block):
    """A pattern for what is shown; a block that begins with a tab shows a part of its lines."""
    pattern = ""
    for line in block.replace("→", "\t").splitlines(True):
        if line == "...\n":
            pattern += r"(?:.*\n)*?"
            continue
        parts = [re.escape(part) for part in re.split(r"\{[^}]*\}", line)]
        kind = ".*".join(parts)
        pattern += f"(?:{kind})+" if line.startswith("{") else kind
    if block.startswith("→"):
        return re.compile(pattern.removesuffix(re.escape("\n")))
    return re.compile("^" + pattern, re.M)


class Documents(ProgramTest):
    def setUp(self):
        super().setUp()
        (self.folder / "examples").symlink_to(SOURCE / "examples")
        self.output = ""

    def run_command(self, command, where):
        if command[0] in SKIPPED:
            return
        self.assertEqual(command[0], "kaldo", f"{where}: neither run nor skipped: {command}")
        done = programs.run([KALDO, *command[1:]], self.folder, text=True)
        self.assertEqual(done.returncode, 0, f"{where}: {shlex.join(command)}\n{done.stderr}")
        self.output = done.stdout

    def reports(self):
        return [path.read_text(encoding="utf-8") for path in self.folder.rglob("*")
                if path.is_file() and not path.is_relative_to(self.folder / "examples")]

    def check(self, kind, block, where):
        told = f"{where}: not so any more:\n{block}"
        if kind == "sh":
            for command in commands_in(block):
                self.run_command(command, where)
        elif kind == "input":
            lines = [line for path in SOURCE.glob("examples/*/*.txt")
                     for line in path.read_text(encoding="utf-8").splitlines()]
            for shown in block.splitlines():
                self.assertTrue(any(line.startswith(shown) for line in lines), told)
        elif kind in ("output", "report"):
            texts = [self.output] if kind == "output" else self.reports()
            pattern = pattern_of(MACHINE.sub(r"\1", block))
            self.assertTrue(any(pattern.search(MACHINE.sub(r"\1", text)) for text in texts), told)
        else:
            self.assertEqual(kind, "text", f"{where}: of which kind is this?\n{block}")

    def run_the_first_commands(self):
        """Those of scripts/run, to which the documents refer, and what they leave out."""
        script = (SOURCE / "scripts/run").read_text(encoding="utf-8").replace("\\\n", " ")
        commands = [["kaldo", *shlex.split(line)] for line in
                    re.findall(r'^"\$kaldo" (.*--.*)$', script, re.M)]
        self.assertEqual([command[1] for command in commands], ["allocate", "allocate", "simulate"])
        for more in MORE:
            place = commands[2].index("--project")
            commands.append(commands[2][:place] + commands[2][place + 2:] + more)
        for command in commands:
            self.run_command(command, "scripts/run")

    def test_show_what_the_program_does(self):
        self.run_the_first_commands()
        for document in DOCUMENTS:
            for number, (kind, block) in enumerate(blocks_of(document), start=1):
                with self.subTest(f"{document}, block {number}"):
                    self.check(kind, block, document)

    def test_examples_of_the_manual_pages_run(self):
        for page in sorted(path.relative_to(SOURCE) for path in SOURCE.glob("docs/man/*.1")):
            for block in blocks_of_page(page):
                for command in commands_in(block):
                    self.run_command(command, page)

    def test_examples_of_the_help_run(self):
        for command in ("", "allocate", "simulate", "check", "check simulate", "rerun", "export",
                        "convert", "verify", "import"):
            text = programs.run([KALDO, *command.split(), "--help"], ".", text=True).stdout
            block = "".join(line for line in
                            text.partition("Examples")[2].splitlines(True)[1:]
                            if line.startswith("  "))
            self.assertTrue(block.startswith(f"  kaldo {command}"), command)
            for example in commands_in(block):
                self.run_command(example, f"kaldo {command} --help")


if __name__ == "__main__":
    unittest.main()
