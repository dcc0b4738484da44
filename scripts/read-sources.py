#!/usr/bin/env python3
"""Reads the sources of a build with clang-tidy, as many at once as there are processors.

    read-sources.py BUILD_FOLDER [--alone] [OPTION OF CLANG-TIDY...] < SOURCES

SOURCES are paths, one a line; the build knows how each is compiled. Most of the time goes into the
headers of libraries, so sources of one folder with the same options are read as one that includes
them. Those in which anything is found then, and be it names that clash, are read again by themselves,
and what is found there counts. With --alone all are read so.
"""

import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from itertools import groupby
from pathlib import Path

TOGETHER = 8
OURS = r"--header-filter=.*/(src|tests|benchmarks)/.*\.(h|cpp)$"


def key(command):
    """What sources have in common that are read together: their folder and their options."""
    words = shlex.split(command["command"])
    return str(Path(command["file"]).parent), words[:words.index("-o")]


def groups_of(commands, most):
    """Lists of sources to read together, the longest first."""
    groups = []
    for _, alike in groupby(sorted(commands, key=key), key):
        alike = list(alike)
        count = -(-len(alike) // most)
        groups += [alike[place::count] for place in range(count)]
    return sorted(groups, key=len, reverse=True)


class Reader:
    def __init__(self, build, options, folder):
        self.build = build
        self.options = options
        self.folder = Path(folder)

    def read(self, group):
        """What is found in sources that may be read together."""
        if len(group) == 1:
            return self.tidy("-p", self.build, group[0]["file"])
        found = self.together(group) if group else ""
        if not found:
            return ""
        blamed = [command for command in group if re.search(
            rf"^{re.escape(command['file'])}:[\d:]+ error", found, re.MULTILINE)] or group
        rest = [command for command in group if command not in blamed]
        return "".join(self.read([command]) for command in blamed) + self.read(rest)

    def together(self, group):
        """What is found in a source that includes several. It stands where they stand, so that the
        settings of their folder hold."""
        place, words = key(group[0])
        source = tempfile.mkstemp(".cpp", dir=self.folder)[1]
        Path(source).write_text(
            "".join(f'#include "{command["file"]}"  // NOLINT\n' for command in group))
        stands_for = f"{place}/together_{Path(source).name}"
        overlay = Path(source).with_suffix(".json")
        overlay.write_text(json.dumps({"version": 0, "roots": [
            {"name": stands_for, "type": "file", "external-contents": source}]}))
        return self.tidy(OURS, f"--vfsoverlay={overlay}", stands_for, "--", *words[1:])

    def tidy(self, *arguments):
        """What clang-tidy finds, without what it counts in the headers of libraries."""
        run = subprocess.run(["clang-tidy-14", "--quiet", *self.options, *arguments],
                             capture_output=True, text=True, check=False)
        return run.stdout + run.stderr if run.returncode else ""


def main(build, *options):
    wanted = {os.path.abspath(line) for line in sys.stdin.read().splitlines()}
    known = json.loads(Path(build, "compile_commands.json").read_text())
    commands = {command["file"]: command for command in known if command["file"] in wanted}
    if not commands:
        sys.exit(f"{build}/compile_commands.json names no source of this folder.")
    groups = groups_of(commands.values(), 1 if "--alone" in options else TOGETHER)
    options = [option for option in options if option != "--alone"]
    with tempfile.TemporaryDirectory() as folder:
        reader = Reader(build, options, folder)
        with ThreadPoolExecutor(os.cpu_count()) as readers:
            found = list(filter(None, readers.map(reader.read, groups)))
    print(*found, sep="\n", end="")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
