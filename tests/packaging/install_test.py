#!/usr/bin/env python3
"""Installs the build into a folder of its own and works with what is there.

    install_test.py CMAKE BUILD_FOLDER KALDO [unittest options]

What a user gets must work without the sources: the program, its examples, and documents whose links
lead to other installed documents.
"""

import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import SOURCE, files_of

CMAKE, BUILD, KALDO = programs.arguments(["CMAKE", "BUILD_FOLDER", "KALDO"], __doc__)


def reports(program, examples, folder):
    """An allocation of the example as its README has it: standard output and all reports."""
    folder.mkdir()
    (folder / "examples").symlink_to(examples)
    data = "examples/non-sexed/"
    run = programs.run([program, "allocate", "--project", "lake", "--loci", data + "loci.txt",
                        "--parents", data + "parents.txt", "--offspring", data + "offspring.txt"],
                       folder)
    return run.returncode, run.stdout, files_of(folder / "lake")


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.root = Path(cls.folder.name).resolve()
        cls.prefix = cls.root / "prefix"
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", cls.prefix], check=True,
                       capture_output=True)

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_program_and_examples_give_the_results_of_the_build(self):
        installed = reports(self.prefix / "bin/kaldo", self.prefix / "share/kaldo/examples",
                            self.root / "installed")
        self.assertEqual(installed[0], 0)
        self.assertEqual(installed, reports(KALDO, SOURCE / "examples", self.root / "built"))

    def test_the_manual_names_the_folders_of_this_installation(self):
        manual = (self.prefix / "share/man/man1/kaldo.1").read_text()
        folders = re.findall(r"/\S+/share/\S+/", manual)
        self.assertGreater(len(folders), 1)
        for folder in folders:
            self.assertTrue(Path(folder).is_dir(), folder)

    def test_completions_are_those_of_the_program(self):
        for shell, place in (("bash", "bash-completion/completions/kaldo"),
                             ("zsh", "zsh/site-functions/_kaldo"),
                             ("fish", "fish/vendor_completions.d/kaldo.fish")):
            told = programs.run([KALDO, "completion", shell], self.root).stdout
            self.assertEqual((self.prefix / "share" / place).read_bytes(), told)

    def test_the_program_for_clusters_is_a_component_of_its_own(self):
        self.assertFalse((self.prefix / "bin/kaldo-mpi").exists())
        if not Path(BUILD, "src/cluster/kaldo-mpi").exists():
            self.skipTest("it was not built")
        prefix = self.root / "cluster"
        subprocess.run([CMAKE, "--install", BUILD, "--component", "cluster", "--prefix", prefix],
                       check=True, capture_output=True)
        self.assertEqual({str(path.relative_to(prefix)) for path in prefix.rglob("*")
                          if path.is_file()},
                         {"bin/kaldo-mpi", "share/man/man1/kaldo-mpi.1"})

    def test_links_between_documents_lead_somewhere(self):
        documents = [path for path in self.prefix.rglob("*.md")]
        self.assertGreater(len(documents), 3)
        followed = 0
        for document in documents:
            # examples/README.md is read where the documents link to it
            if document.is_relative_to(self.prefix / "share/kaldo"):
                document = self.prefix / "share/doc/kaldo" / document.relative_to(
                    self.prefix / "share/kaldo")
            for target in re.findall(r"\]\(([^)#:]+)(?:#[^)]*)?\)", document.read_text()):
                place = document.parent
                for part in Path(target).parts:   # as a reader of links does, not the system
                    place = place.parent if part == ".." else place / part
                self.assertTrue(place.exists(), f"{document}: {target}")
                followed += 1
        self.assertGreater(followed, 5)


if __name__ == "__main__":
    unittest.main()
