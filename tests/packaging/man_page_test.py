#!/usr/bin/env python3
"""Holds the manual page against what the program says of itself.

    man_page_test.py KALDO PAGE [unittest options]

A user of the manual page must find every option of every command, with the kind of its value and its
default, and none that is not there.
"""

import re
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs

KALDO, PAGE = programs.arguments(["KALDO", "PAGE"], __doc__)
OF_RUNS = "OPTIONS OF KALDO ALLOCATE, SIMULATE AND RERUN"
OF_CHECKS = "OPTIONS OF KALDO CHECK"
OF_RESULTS = "OPTIONS OF KALDO ALLOCATE AND KALDO SIMULATE"
COMMANDS = {"allocate": ["OPTIONS OF KALDO ALLOCATE AND KALDO CHECK", OF_RUNS, OF_RESULTS],
            "check": ["OPTIONS OF KALDO ALLOCATE AND KALDO CHECK", OF_CHECKS],
            "check simulate": ["OPTIONS OF KALDO SIMULATE", OF_CHECKS],
            "simulate": ["OPTIONS OF KALDO SIMULATE", OF_RUNS, OF_RESULTS],
            "rerun": ["OPTIONS OF KALDO RERUN", OF_RUNS],
            "export": ["OPTIONS OF KALDO EXPORT"], "convert": ["OPTIONS OF KALDO CONVERT"],
            "verify": [], "import": ["OPTIONS OF KALDO IMPORT"], "completion": []}
OF_ALL = "OPTIONS OF ALL COMMANDS"
OPTION = re.compile(r"(--[a-z-]+)(?:\s(\S+))?")


def run(*arguments):
    return programs.run([KALDO, *arguments], ".", text=True).stdout


def plain(line):
    """A line of the page without its macro and fonts."""
    line = re.sub(r"^\.(B|BR|I|IR) ", "", line)
    return re.sub(r"\\f[BIR]", "", line).replace('"', "").replace("\\-", "-").replace("\\e", "\\")


def sections():
    """The tagged paragraphs of every section of the page: pairs of tag and text."""
    found = {}
    lines = Path(PAGE).read_text(encoding="utf-8").splitlines()
    paragraphs = []
    for number, line in enumerate(lines):
        if line.startswith(".SH "):
            paragraphs = found.setdefault(line[4:], [])
        elif line == ".TP":
            paragraphs.append([plain(lines[number + 1]), ""])
        elif paragraphs and lines[number - 1] != ".TP":
            paragraphs[-1][1] += plain(line) + "\n"
    return found


def options_of_page(section):
    """Per option the kind of its value and its paragraph."""
    options = {}
    for tag, text in sections()[section]:
        for each in tag.split(", "):
            if match := OPTION.match(each.strip()):
                options[match[1]] = (match[2], text)
    return options


def options_of_help(command):
    """Per option the kind of its value and its default."""
    options = {}
    for line in run(*command.split(), "--help").splitlines():
        if match := re.match(r"  (?:-h,)?(--[a-z-]+)(?: ([A-Z[]\S*))?(?:\s|$)", line):
            kind, _, default = (match[2] or "").partition("=")
            options[match[1]] = (None if kind.endswith(":") else kind or None, default)
    return options


class ManPage(unittest.TestCase):
    def test_has_every_option_with_its_default_and_no_other(self):
        of_all = options_of_page(OF_ALL)
        for command, sections_of_command in COMMANDS.items():
            page = {}
            for section in sections_of_command:
                page |= options_of_page(section)
            told = options_of_help(command)
            self.assertGreaterEqual(len(told), 2, command)
            self.assertEqual({option: kind for option, (kind, _) in (page | of_all).items()},
                             {option: kind for option, (kind, _) in told.items()}, command)
            for option, (_, default) in told.items():
                if default:
                    self.assertRegex(page[option][1], rf"\b{re.escape(default)}\b", option)

    def test_names_every_command(self):
        commands = re.findall(r"^  (\w+) {4,}", run("--help").partition("Subcommands:")[2], re.M)
        self.assertEqual(set(commands), {command.split()[0] for command in COMMANDS})
        self.assertEqual([tag for tag, _ in sections()["COMMANDS"] if "simulate" not in tag],
                         [f"kaldo {command}" for command in commands if command != "simulate"])

    def test_tells_the_version_and_the_exit_codes(self):
        version = run("--version").split()[1]
        self.assertIn(f'"KALDO {version}"', Path(PAGE).read_text(encoding="utf-8").splitlines()[1])
        codes = re.findall(r"\d+", run("--help").partition("Exit codes:")[2])
        self.assertEqual([tag for tag, _ in sections()["EXIT STATUS"]], codes)


if __name__ == "__main__":
    unittest.main()
