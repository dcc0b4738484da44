#!/usr/bin/env python3
"""Runs kaldo.exe under Wine and compares every file and word with the program of this machine.

    wine_test.py KALDO KALDO_EXE [unittest options]

The prefix of Wine is made anew in a temporary folder.
"""

import fcntl
import gzip
import os
import pty
import re
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import termios
import time
import unittest
from pathlib import Path
from urllib.parse import unquote

WINE = next((found for found in map(shutil.which, ("wine64", "/usr/lib/wine/wine64", "wine"))
             if found), "wine64")
SERVER = Path(WINE).resolve().parent / "wineserver"
ROOT = Path(__file__).resolve().parents[2]
KALDO = EXE = BASE = None
GENEROUS = 300          # seconds: against a hang only
RECORD = "Run record.toml"

NON_SEXED = [f"--{option}={ROOT}/examples/non-sexed/{option}.txt"
             for option in ("loci", "parents", "offspring")]
SEXED = [f"--{option}={ROOT}/examples/sexed/{option}.txt"
         for option in ("loci", "males", "females", "offspring")]
NUMBERS = ["--iterations", "4", "--offspring-per-iteration", "25", "--seed", "1", "--keep", "all"]
LONG = ["--iterations", "900", "--offspring-per-iteration", "20000", "--seed", "1"]
SIMULATION = [NON_SEXED[0], f"--collected-parents={ROOT}/examples/non-sexed/parents.txt",
              f"--uncollected-sample={ROOT}/examples/non-sexed/parents.txt",
              "--uncollected", "10"]
SEXED_SIMULATION = ["--sexed", SEXED[0]]
for sex in ("male", "female"):
    SEXED_SIMULATION += [f"--collected-{sex}s={ROOT}/examples/sexed/sample-{sex}s.txt",
                         f"--uncollected-{sex}-sample={ROOT}/examples/sexed/sample-{sex}s.txt",
                         f"--uncollected-{sex}s", "4", f"--estimated-collected-{sex}s", "9",
                         f"--estimated-uncollected-{sex}s", "4"]
# What a record tells of the moment and the machine of a run.
OF_THE_RUN = re.compile(r'^(date|duration_seconds|folder|threads)\b.*$', re.M)


def environment():
    return {**os.environ, "WINEPREFIX": str(BASE / "prefix"), "WINEDEBUG": "-all",
            "LC_ALL": "C.UTF-8"}


def wine(*command, **more):
    return subprocess.run([WINE, *command], env=environment(), timeout=GENEROUS,
                          stdin=subprocess.DEVNULL, **more)


class Console:
    """A program alone on a terminal: where Wine is first there, that is a console of its own."""

    def __init__(self, folder, *command, **more):
        self.keys, terminal = pty.openpty()
        termios.tcsetwinsize(terminal, (50, 200))
        modes = termios.tcgetattr(terminal)
        modes[0] &= ~termios.ICRNL      # Enter stays what it is until Wine reads keys itself
        termios.tcsetattr(terminal, termios.TCSANOW, modes)
        self.program = subprocess.Popen(
            command, cwd=folder, env={**environment(), **more}, stdin=terminal, stdout=terminal,
            stderr=terminal, start_new_session=True,
            preexec_fn=self.own_the_terminal)
        os.close(terminal)
        self.written = b""

    @staticmethod
    def own_the_terminal():
        """As a shell of a user leaves it: a key may stop the program, whatever started the tests."""
        fcntl.ioctl(0, termios.TIOCSCTTY, 0)
        signal.signal(signal.SIGINT, signal.SIG_DFL)

    def text(self):
        """What was written, without the codes that move and colour; Wine skips over blanks."""
        codes = re.sub(rb"\x1b\[K\x1b\[1C", b" ", self.written)
        return re.sub(rb"\x1b(\[[0-9;?]*[A-Za-z]|\][^\a]*\a)", b"", codes).decode(errors="replace")

    def wait_for(self, words):
        """True once these were written, None for the end of the program."""
        end = time.monotonic() + GENEROUS
        while words is None or words not in self.text():
            if not select.select([self.keys], [], [], max(0, end - time.monotonic()))[0]:
                return False
            try:
                self.written += os.read(self.keys, 1 << 16)
            except OSError:     # nobody is left to write
                return words is None
        return True

    def press(self, key):
        os.write(self.keys, key)

    def end(self):
        """The exit code."""
        try:
            self.wait_for(None)
            return self.program.wait(GENEROUS)
        finally:
            self.program.kill()
            os.close(self.keys)


def libraries_of_the_compiler(program):
    """What the program would look for in vain on Windows; Wine has some of it."""
    told = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", program], check=True,
                          capture_output=True, text=True).stdout
    wanted = {name.lower() for name in re.findall(r"DLL Name: (\S+)", told)}
    assert "kernel32.dll" in wanted, told
    return wanted & {path.name.lower() for folder in ("/usr", "/usr/lib/gcc")
                     for path in Path(folder, "x86_64-w64-mingw32").rglob("*.dll")}


class WindowsTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(dir=BASE))
        for system in ("here", "there"):
            (self.folder / system).mkdir()

    def both(self, *arguments):
        """Runs both programs, each in a folder of its own; what they did differently is a fault."""
        ended = []
        for system, program in (("here", [KALDO]), ("there", [WINE, EXE])):
            done = subprocess.run([*program, *arguments], cwd=self.folder / system,
                                  env=environment(), timeout=GENEROUS, capture_output=True,
                                  stdin=subprocess.DEVNULL)
            ended.append((done.returncode, done.stdout.decode(), done.stderr.decode()))
        self.assertEqual(ended[0], ended[1])
        return ended[0]

    def files(self, system):
        top = self.folder / system
        return {str(path.relative_to(top)): path.read_bytes()
                for path in top.rglob("*") if path.is_file()}

    def compare_files(self, at_least):
        here, there = self.files("here"), self.files("there")
        self.assertEqual(sorted(here), sorted(there))
        self.assertGreaterEqual(len(here), at_least)
        for name, content in here.items():
            if name.endswith(RECORD):
                masked = [OF_THE_RUN.sub(r"\1", text.decode()) for text in (content, there[name])]
                self.assertEqual(*masked)
            else:
                self.assertEqual(content, there[name], name)

    def test_needs_nothing_but_windows(self):
        self.assertEqual(libraries_of_the_compiler(EXE), set())

    def test_all_flows_leave_the_same_files(self):
        runs = {"allocated": ["allocate", *NON_SEXED, "--sequence"],
                "allocated/by sex": ["allocate", *SEXED, "--tolerance", "2"],
                "simulated": ["simulate", *SIMULATION, *NUMBERS],
                "simulated/by sex": ["simulate", *SEXED_SIMULATION, *NUMBERS]}
        for project, arguments in runs.items():
            with self.subTest(project):
                code, _, said = self.both(*arguments, "--project", project)
                self.assertEqual(code, 0, said)
        self.compare_files(24)

    def test_names_of_any_language_and_long_paths(self):
        project = "/".join(["Zürich lac d'été – 湖"] + ["a folder of a long name"] * 14)
        code, _, said = self.both("allocate", *NON_SEXED, "--project", project)
        self.assertEqual(code, 0, said)
        code, _, said = self.both("rerun", f"{project}/{RECORD}")
        self.assertEqual(code, 0, said)
        self.compare_files(6)

    def test_wrong_inputs_are_refused_in_the_same_words(self):
        for wrong in (["allocate"], ["simulate", "--iterations", "many"], ["alocate"],
                      ["verify", "/nowhere/Run record.toml"],
                      ["allocate", "--project", "p", *NON_SEXED[:2], "--offspring", "fehlt-ä.txt"],
                      ["allocate", "--project", "p", *NON_SEXED[:2], f"--offspring={ROOT}"],
                      ["allocate", "--project", "p", *NON_SEXED[1:], f"--loci={KALDO}"]):
            with self.subTest(wrong):
                self.assertNotEqual(self.both(*wrong)[0], 0)
        self.assertEqual(self.files("there"), {})

    def test_what_another_program_holds_open_is_named_and_nothing_changes(self):
        there = self.folder / "there"
        run = ["allocate", *NON_SEXED, "--project", "p"]
        self.assertEqual(wine(EXE, *run, cwd=there, capture_output=True).returncode, 0)
        before = self.files("there")
        for held in sorted(name for name in before if not name.endswith(".toml"))[1::2]:
            # As a spreadsheet does: others may read, nobody may write, move or remove it.
            with self.subTest(held), open(there / held, "rb"):
                holder = subprocess.Popen([WINE, BASE / "hold.exe", there / held], env=environment(),
                                          stdin=subprocess.PIPE, stdout=subprocess.PIPE)
                try:
                    self.assertEqual(holder.stdout.readline().strip(), b"held")
                    done = wine(EXE, *run, "--tolerance", "2", cwd=there, capture_output=True)
                finally:
                    holder.communicate(b"\n", timeout=GENEROUS)
                said = done.stderr.decode()
                self.assertNotEqual(done.returncode, 0)
                self.assertIn(f'Cannot replace "{held}"', said)
                self.assertIn("open in another program", said)
                self.assertIn("The results of earlier runs are as they were.", said)
                self.assertEqual(self.files("there"), before)
        self.assertEqual(
            wine(EXE, *run, "--tolerance", "2", cwd=there, capture_output=True).returncode, 0)

    def test_a_second_run_in_the_folder_is_refused(self):
        there = self.folder / "there"
        long = ["simulate", *SIMULATION, *LONG, "--project", "p"]
        with subprocess.Popen([WINE, EXE, *long], cwd=there, env=environment(),
                              stderr=subprocess.PIPE, stdin=subprocess.DEVNULL) as first:
            end = time.monotonic() + GENEROUS
            while not list(there.glob("p/.kaldo-*/new")) and time.monotonic() < end:
                time.sleep(0.05)
            second = wine(EXE, "allocate", *NON_SEXED, "--project", "p", cwd=there,
                          capture_output=True)
            first.send_signal(signal.SIGKILL)
        self.assertEqual(second.returncode, 1)
        self.assertRegex(second.stderr.decode(), r'Another run is at work in "p" \(process \d+ on ')

    def test_ctrl_c_on_a_console_with_a_bar_leaves_the_earlier_results(self):
        code, _, said = self.both("simulate", *SIMULATION, *NUMBERS, "--project", "p")
        self.assertEqual(code, 0, said)
        for system, program in (("here", [KALDO]), ("there", [WINE, EXE])):
            with self.subTest(system):
                before = self.files(system)
                console = Console(self.folder / system, *program, "simulate", *SIMULATION, *LONG,
                                  "--project", "p")
                self.assertTrue(console.wait_for("Simulating ["), console.text())
                console.press(b"\x03")
                self.assertEqual(console.end(), 130, console.text())
                self.assertIn("Stopped. The results of earlier runs are as they were.",
                              console.text())
                self.assertEqual(self.files(system), before)

    def test_packed_files_and_workbooks_are_read_and_written(self):
        study = (ROOT / "examples/foreign/pond.gen").read_bytes()
        (self.folder / "pond.gen.gz").write_bytes(gzip.compress(study))
        code, _, said = self.both("import", "../pond.gen.gz", "--offspring-populations", "pop3",
                                  "--to", "pond")
        self.assertEqual(code, 0, said)
        self.compare_files(4)
        book = ["allocate", *NON_SEXED, "--project", "p", "--also", "xlsx"]
        tried = wine(EXE, *book, cwd=self.folder, capture_output=True)
        if b"built without libxlsxwriter" in tried.stderr:
            self.skipTest("built without the libraries for workbooks: scripts/make-libraries windows")
        for system, program in (("here", [KALDO]), ("there", [WINE, EXE])):
            subprocess.run([*program, *book], cwd=self.folder / system, env=environment(),
                           timeout=GENEROUS, capture_output=True, check=True)
        # The logarithms in them may differ in the sixteenth digit, which these refusals do not show.
        read = [self.both("import", f"../{system}/p/Results.xlsx", "--to", "read")[2]
                for system in ("here", "there")]
        self.assertIn("is no allele", read[0])
        self.assertEqual(read[0], read[1].replace("there", "here"))

    def user_path(self):
        """The type of the user's PATH in the registry, in its words, and its folders."""
        exported = self.folder / "environment.reg"
        wine("reg", "export", r"HKCU\Environment", exported, "/y", capture_output=True, check=True)
        lines = re.sub(r"\\\r?\n *", "", exported.read_text("utf-16"))
        kind, value = re.search(r'^"Path"=(hex\(2\)|)[:"]?(.*?)"?$', lines, re.M).groups()
        return kind, (bytes.fromhex(value.replace(",", "")).decode("utf-16-le").rstrip("\0")
                      if kind else value)

    def test_the_installer_changes_a_long_path_of_the_user_by_one_folder(self):
        step = Path(EXE).parents[2] / "packaging/user-path.exe"
        long = ";".join([r"%USERPROFILE%\Zürich"] + [rf"C:\a\folder {k}" for k in range(250)] + [""])
        self.assertGreater(len(long), 3000)
        content = long.encode("utf-16-le").hex(",") + ",00,00"
        imported = self.folder / "long.reg"
        imported.write_text("Windows Registry Editor Version 5.00\n\n[HKEY_CURRENT_USER\\Environment]"
                            f'\n"Path"=hex(2):{content}\n', "utf-16")
        wine("reg", "import", imported, capture_output=True, check=True)
        self.assertEqual(self.user_path(), ("hex(2)", long))
        folder = r"C:\Users\Jürg\KALDO"
        for how, after in (("add", f"{long};{folder}"), ("add", f"{long};{folder}"),
                           ("remove", long), ("remove", long)):
            self.assertEqual(wine(step, how, folder).returncode, 0)
            self.assertEqual(self.user_path(), ("hex(2)", after))
        self.assertEqual(wine(step, "add", "C:\\" + 30000 * "x").returncode, 1)
        self.assertEqual(self.user_path(), ("hex(2)", long))

    def test_a_console_shows_names_of_any_language(self):
        console = Console(self.folder, WINE, EXE, "allocate", "--project", "p", *NON_SEXED[:2],
                          "--offspring", "fehlt-ä-湖.txt")
        self.assertEqual(console.end(), 2)
        self.assertIn("fehlt-ä-湖.txt", console.text())

    def test_a_double_click_opens_the_page_or_waits_for_its_reader(self):
        place = self.folder / "Zürich lac"
        place.mkdir()
        program, page = shutil.copy(EXE, place), place / "kaldo.html"
        page.touch()
        browser, opened = place / "xdg-open", place / "opened"
        browser.write_text(f'#!/bin/sh\nprintf %s "$1" >"{opened}"\n')
        browser.chmod(0o755)
        opened.touch()
        path = f"{place}:{os.environ['PATH']}"
        self.assertEqual(Console(place, WINE, program, PATH=path).end(), 2)
        end = time.monotonic() + GENEROUS
        while not opened.read_text() and time.monotonic() < end:
            time.sleep(0.05)
        self.assertEqual(unquote(opened.read_text()), f"file://{page}")

        page.unlink()
        alone = Console(place, WINE, program)
        self.assertTrue(alone.wait_for("Press Enter to close this window"), alone.text())
        self.assertIsNone(alone.program.poll())
        alone.press(b"\r")
        self.assertEqual(alone.end(), 2)
        of_a_shell = Console(place, WINE, "cmd", "/c", f"Z:{program}".replace("/", "\\"))
        self.assertEqual(of_a_shell.end(), 2)
        self.assertNotIn("Press Enter", of_a_shell.text())


def main():
    global KALDO, EXE, BASE
    KALDO, EXE = (str(Path(argument).resolve()) for argument in sys.argv[1:3])
    BASE = Path(tempfile.mkdtemp(prefix="kaldo-wine-"))
    try:
        subprocess.run(["x86_64-w64-mingw32-g++-posix", "-static", "-o", BASE / "hold.exe",
                        ROOT / "tests/windows/hold.cpp"], check=True)
        # The services of Wine start once, with the first program, and stay: what they say when they
        # come up on a busy machine would stand among the words of a program that is compared.
        (BASE / "prefix").mkdir()
        subprocess.run([SERVER, "-p"], env=environment(), check=True)
        wine(EXE, "--version", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
    finally:
        subprocess.run([SERVER, "-k"], env=environment(), check=False, stderr=subprocess.DEVNULL)
        shutil.rmtree(BASE, ignore_errors=True)


if __name__ == "__main__":
    main()
