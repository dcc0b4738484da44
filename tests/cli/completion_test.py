#!/usr/bin/env python3
"""Completes command lines in real shells with what `kaldo completion` prints for them.

    completion_test.py KALDO [unittest options]
"""

import os
import pty
import re
import select
import shutil
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import GENEROUS, ProgramTest, write_files

KALDO, = programs.arguments(["KALDO"], __doc__)
COMMANDS = ["allocate", "simulate", "check", "check simulate", "rerun", "export",
            "convert", "verify", "import", "completion"]
# Presses of the tabulator are what readline and its like understand; functions are asked directly
# where every option is wanted.
ASK_BASH = """source ./script; compopt() { :; }
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _kaldo; printf '%s\\n' "${COMPREPLY[@]}"
"""


def options_of_help(command):
    text = programs.run([KALDO, *command.split(), "--help"], ".", text=True).stdout
    return set(re.findall(r"^  (?:-h,)?(--[a-z-]+)", text, re.M))


class Completion(ProgramTest):
    def setUp(self):
        super().setUp()
        write_files({"lo ci.txt": b"", "lake/loci.txt": b"", "pond": b""}, self.folder)

    def script(self, shell):
        if not shutil.which(shell):
            self.skipTest(f"{shell} is not installed")
        done = programs.run([KALDO, "completion", shell], self.folder)
        self.assertEqual(done.returncode, 0)
        (self.folder / "script").write_bytes(done.stdout)

    def ask_bash(self, *words):
        done = programs.run(["bash", "-c", ASK_BASH, "bash", "kaldo", *words], self.folder,
                            text=True)
        self.assertEqual(done.stderr, "")
        return set(done.stdout.split("\n")) - {""}

    def test_bash_offers_what_the_help_tells(self):
        self.script("bash")
        self.assertEqual(self.ask_bash("c"), {"check", "convert", "completion"})
        for command in COMMANDS:
            self.assertEqual(self.ask_bash(*command.split(), "--"), options_of_help(command))
        self.assertEqual(self.ask_bash("simulate", "--strategy", "m"), {"minimal"})
        self.assertEqual(self.ask_bash("check", "--format", "="), {"text", "json"})
        self.assertEqual(self.ask_bash("allocate", "--tolerance", ""), set())
        self.assertEqual(self.ask_bash("allocate", "--loci", "=", "lo"), {"lo ci.txt"})
        self.assertEqual(self.ask_bash("allocate", "--project", ""), {"lake"})
        self.assertEqual(self.ask_bash("verify", "po"), {"pond"})
        self.assertEqual(self.ask_bash("completion", "z"), {"zsh"})

    def typed(self, command, words):
        """What an interactive shell shows when the words are typed and completed."""
        controller, terminal = pty.openpty()
        self.addCleanup(os.close, controller)
        process = self.start(command, stdin=terminal, stdout=terminal, stderr=terminal,
                             env=os.environ | {"TERM": "dumb", "HOME": str(self.folder)},
                             start_new_session=True)
        self.addCleanup(process.kill)   # interactive shells ignore what is politer
        os.close(terminal)
        end = time.monotonic() + GENEROUS
        for sent, wanted in words:
            os.write(controller, sent)
            seen = b""
            while wanted not in seen:
                if not select.select([controller], [], [], max(0, end - time.monotonic()))[0]:
                    raise AssertionError(f"{wanted!r} not within {GENEROUS} s; seen: {seen!r}")
                seen += os.read(controller, 4096)

    def test_bash_completes_what_is_typed(self):
        self.script("bash")
        self.typed(["bash", "--norc", "--noprofile", "-i"],
                   [(b"PS1='ready'; source ./script; echo so''urced\n", b"sourced"),
                    (b"kaldo ver\t", b"kaldo verify "), (b"\x15kaldo allocate --loc\t", b"i "),
                    (b"lo\t", b"lo\\ ci.txt")])

    def test_zsh_completes_what_is_typed(self):
        self.script("zsh")
        self.typed(["zsh", "-f", "-i"],
                   [(b"autoload -U compinit; compinit -D; source ./script; echo so''urced\n",
                     b"sourced"),
                    (b"kaldo ver\t", b"ify"), (b"\x15kaldo allocate --off\t", b"spring"),
                    (b"\x15kaldo check simulate --strategy=mi\t", b"nimal"),
                    (b"\x15kaldo verify po\t", b"nd")])

    def test_fish_offers_what_the_help_tells(self):
        self.script("fish")

        def ask(words):
            done = subprocess.run(["fish", "--no-config", "-c",
                                   f"source script; complete -C {words!r}"], cwd=self.folder,
                                  capture_output=True, text=True, timeout=GENEROUS, check=True,
                                  env=os.environ | {"HOME": str(self.folder)})
            self.assertEqual(done.stderr, "")
            return {line.split("\t")[0] for line in done.stdout.splitlines()}

        self.assertEqual(ask("kaldo c"), {"check", "convert", "completion"})
        for command in COMMANDS:
            self.assertEqual(ask(f"kaldo {command} --"), options_of_help(command), command)
        self.assertEqual(ask("kaldo simulate --strategy m"), {"minimal"})
        self.assertEqual(ask("kaldo verify po"), {"pond"})


if __name__ == "__main__":
    unittest.main()
