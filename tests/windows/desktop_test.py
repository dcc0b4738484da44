#!/usr/bin/env python3
"""Drives kaldo-desktop.exe under Wine by its keys, on a display that nobody sees, through an allocation
of the example data, and compares every file with those of the command line of this machine.

    desktop_test.py KALDO KALDO_DESKTOP_EXE
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is

from wine_test import GENEROUS, OF_THE_RUN, ROOT, SERVER, WINE, libraries_of_the_compiler

PROJECT = "kaldo-example/lake"
DATA = "kaldo-example/data/non-sexed"


def xdotool(*words):
    return subprocess.run(["xdotool", *words], capture_output=True, text=True).stdout.split()


def windows(title):
    return xdotool("search", "--onlyvisible", "--name", title)


def press(key, title, until):
    """Presses the key in the window, again where it comes too early, until the next one is there."""
    end = time.monotonic() + GENEROUS
    while not windows(until):
        if time.monotonic() > end:
            sys.exit(f"After {key} in {title} there is no {until}.")
        for window in windows(title)[-1:]:
            xdotool("windowfocus", "--sync", window, "key", key)
        time.sleep(2)


def files(folder):
    """What the program wrote, without the moment of the run."""
    return {path.name: OF_THE_RUN.sub(r"\1", path.read_bytes().decode())
            for path in (folder / PROJECT).iterdir()}


def compare(here, there, kaldo):
    shutil.copytree(ROOT / "examples/non-sexed", here / DATA)
    subprocess.run([kaldo, "allocate", "--project", PROJECT, f"--loci={DATA}/loci.txt",
                    f"--parents={DATA}/parents.txt", f"--offspring={DATA}/offspring.txt"],
                   cwd=here, check=True, stdout=subprocess.DEVNULL)
    expected, found = files(here), files(there)
    differing = sorted(name for name in expected.keys() | found.keys()
                       if expected.get(name) != found.get(name))
    if differing or len(found) < 7:
        sys.exit(f"The windows wrote {sorted(found)}, and otherwise than the command line {differing}")
    print(f"The windows wrote {len(found)} files as the command line does.")


def main(kaldo, program):
    if needed := libraries_of_the_compiler(program):
        sys.exit(f"The windows need more than Windows: {needed}")
    base = Path(tempfile.mkdtemp(prefix="kaldo-wine-"))
    os.environ.update(WINEPREFIX=str(base / "prefix"), WINEDEBUG="-all", LC_ALL="C.UTF-8",
                      WINEDLLOVERRIDES="mscoree,mshtml=")     # it would offer to fetch them
    (base / "there").mkdir()
    read, write = os.pipe()
    display = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x900x24"],
                               pass_fds=[write], stderr=subprocess.DEVNULL)
    try:
        os.environ["DISPLAY"] = ":" + os.read(read, 16).decode().strip()
        subprocess.Popen([WINE, program], cwd=base / "there")
        press("alt+t", "^KALDO", until="^ALLOCATION")
        press("Return", "^ALLOCATION", until="results$")
        compare(base / "here", base / "there", kaldo)
    finally:
        subprocess.run([SERVER, "-k"], check=False)
        display.terminate()
        display.wait()
        shutil.rmtree(base, ignore_errors=True)


if __name__ == "__main__":
    main(*(os.path.abspath(argument) for argument in sys.argv[1:]))
