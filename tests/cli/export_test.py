#!/usr/bin/env python3
"""Reads what the program exports as other programs would, and holds it against the reports.

    export_test.py KALDO [unittest options]

R, pandas and an HTML validator (tidy) are used where they are installed, and skipped with a message
elsewhere.
"""

import csv
import html.parser
import itertools
import io
import re
import shutil
import subprocess
import sys
import unittest
import zipfile
from collections import defaultdict
from pathlib import Path
from xml.etree import ElementTree

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import SOURCE, ProgramTest

KALDO, = programs.arguments(["KALDO"], __doc__)
LAKE = SOURCE / "examples/non-sexed"
PONDS = SOURCE / "examples/sexed"
ODD_NAMES = {"Adult32": "00012", "Adult40": "T", "Adult09": "1e5", "Adult17": 'a"b'}
ORIGINAL = 'tab\there "q" =1+1'
FORMULA = "=cmd() <script>alert(1)</script> & Mar 1"


def table_of(path):
    """The rows of a table as RFC 4180 has them, all cells as text."""
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter="\t"))


def name_or_na(name):
    return "NA" if name == "UC" else name


class Page(html.parser.HTMLParser):
    """What a reader of a page sees, and whether every mark is closed in its turn."""

    def __init__(self, text):
        super().__init__()
        self.open, self.tags, self.text = [], set(), ""
        self.feed(text)
        self.close()

    def handle_starttag(self, tag, attrs):
        self.tags.add(tag)
        if tag not in ("meta", "rect"):
            self.open.append(tag)

    def handle_endtag(self, tag):
        assert self.open.pop() == tag, tag

    def handle_startendtag(self, tag, attrs):
        self.tags.add(tag)

    def handle_data(self, data):
        self.text += data


class Exports(ProgramTest):
    def kaldo(self, *arguments, code=0):
        done = programs.run([KALDO, *map(str, arguments)], self.folder, text=True)
        self.assertEqual(done.returncode, code, done.stderr)
        return done

    def lake(self, project, *more, files=LAKE, **kept):
        return self.kaldo("allocate", "--quiet", "--project", project, "--loci", files / "loci.txt",
                          "--parents", files / "parents.txt", "--offspring",
                          files / "offspring.txt", *more, **kept)

    def ponds(self, project, *more, **kept):
        return self.kaldo("allocate", "--quiet", "--project", project, "--loci", PONDS / "loci.txt",
                          "--males", PONDS / "males.txt", "--females", PONDS / "females.txt",
                          "--offspring", PONDS / "offspring.txt", *more, **kept)

    def odd_lake(self):
        """The lake with names that programs change, and originals of codes."""
        odd = self.folder / "odd"
        odd.mkdir()
        parents = (LAKE / "parents.txt").read_text(encoding="utf-8")
        for name, other in ODD_NAMES.items():
            parents = re.sub(rf"\b{name}\b", other, parents)
        (odd / "parents.txt").write_text(parents, encoding="utf-8")
        offspring = (LAKE / "offspring.txt").read_text(encoding="utf-8")
        (odd / "offspring.txt").write_text(offspring.replace("Young02", "NA"), encoding="utf-8")
        shutil.copy(LAKE / "loci.txt", odd)
        quoted = ORIGINAL.replace('"', '""')
        (odd / "names.tsv").write_text(
            f'kind\tcode\toriginal\nindividual\tYoung09\t"{quoted}"\n'
            f"individual\tYoung10\t{FORMULA}\nlocus\tMir03Di\tlocus <b>1</b>\n", encoding="utf-8")
        return odd

    def check_rows(self, project, sides):
        """The tables against what the reports of the same run say, row by row."""
        rows = table_of(self.folder / project / "Allocations.tsv")
        report = (self.folder / project / "Allocation results.xls").read_text(encoding="utf-8")
        lines = re.findall(r"^(\S+)\t(\S+)\t(\S+)\t\[(.+),(.+)\]\t\[(.+),(.+)\]$", report, re.M)
        sure = table_of(self.folder / project / "Confidence.tsv")
        self.assertEqual(len(rows), len(lines))
        for row, line, certain in zip(rows, lines, sure):
            self.assertEqual([row["offspring"], row[sides[0]], row[sides[1]]],
                             [line[0], name_or_na(line[1]), name_or_na(line[2])])
            for k, side in enumerate(sides):
                self.assertEqual(row[f"p_parent{k + 1}"], certain[f"p_{side}_reported"])
                if line[k + 1] == "UC":
                    self.assertIn(row[f"status{k + 1}"], ("offset", "no_pair"))
                    continue
                self.assertEqual(row[f"status{k + 1}"], "collected")
                self.assertEqual((row[f"rank{k + 1}"], row[f"errors{k + 1}"]),
                                 (line[3 + k], line[5 + k]))
                self.assertEqual(row[f"candidate{k + 1}"], row[side])
                if row[side] == certain[side]:
                    self.assertEqual(row[f"verdict{k + 1}"], certain[f"{side}_verdict"])
        return rows

    def check_parents(self, project, rows, sides):
        offspring, mates, sums = defaultdict(int), defaultdict(set), defaultdict(float)
        for row in rows:
            pair = [row[side] for side in sides]
            for k, name in enumerate(pair):
                if name != "NA":
                    offspring[name] += 1
                    mates[name] |= {pair[1 - k]} - {"NA"}
                    sums[name] += float(row[f"p_parent{k + 1}"])
        for parent in table_of(self.folder / project / "Parents.tsv"):
            name = parent["parent"]
            self.assertEqual((int(parent["offspring"]), int(parent["mates"])),
                             (offspring[name], len(mates[name])), name)
            self.assertAlmostEqual(float(parent["expected_offspring"]), sums[name], 5)

    def test_tables_agree_with_the_reports(self):
        self.lake("lake", "--also", "tsv")
        self.check_parents("lake", self.check_rows("lake", ("parent1", "parent2")),
                           ("parent1", "parent2"))
        self.ponds("ponds", "--also", "tsv", "--sequence")
        self.check_parents("ponds", self.check_rows("ponds", ("father", "mother")),
                           ("father", "mother"))
        report = (self.folder / "ponds/Sequence results.xls").read_text(encoding="utf-8")
        shares = re.findall(r"^(\d+)\t[\d.]+\t[\d.]+\t([\d.]+)\t([\d.]+)\t([\d.]+)\t([\d.]+)$",
                            report, re.M)
        sequence = table_of(self.folder / "ponds/Sequence.tsv")
        self.assertEqual(len(sequence), len(shares))
        for row, (number, *told) in zip(sequence, shares):
            self.assertEqual((row["loci"], row["entered"]),
                             (number, row["names"].split(",")[-1]))
            for column, share in zip(("both", "only_father", "only_mother", "none"), told):
                self.assertEqual(f"{int(row[column]) / int(row['offspring']):g}", share)

    def test_exports_are_a_part_of_the_run(self):
        self.ponds("at once", "--also", "tsv,html,pedigree", "--min-probability", "0.9")
        self.ponds("later")
        self.kaldo("export", "later", "--as", "html")
        self.kaldo("export", "later", "--as", "tsv,pedigree", "--min-probability", "0.9")
        at_once, later = (programs.files_of(self.folder / name) for name in ("at once", "later"))
        self.assertEqual(at_once.keys(), later.keys())
        for name in at_once.keys() - {programs.RUN_RECORD}:
            self.assertEqual(at_once[name], later[name], name)
        for project in ("at once", "later"):
            self.assertIn("intact, 13 of 13", self.kaldo("verify", project).stdout)
            self.assertIn("identical, 13 of 13", self.kaldo("rerun", project).stdout)
        sides = [row[side] for row in table_of(self.folder / "later/Confidence.tsv")
                 for side in ("father", "mother") if row[f"{side}_verdict"] == "named"]
        same = sum(a == b for a, b in itertools.permutations(sides, 2))
        breeders = len(sides) * (len(sides) - 1) / same
        self.assertIn(f"Effective number of breeders: {breeders:.1f} ",
                      later["Report.html"].decode())
        (self.folder / "later/Pedigree.fam").write_text("edited", encoding="utf-8")
        (self.folder / "later/Sequence.tsv").write_text("a user's own", encoding="utf-8")
        self.kaldo("verify", "later", code=3)
        self.ponds("later")   # takes away what the record lists, and nothing else
        left = {path.name for path in (self.folder / "later").iterdir()}
        self.assertEqual(left & {"Allocations.tsv", "Report.html", "Pedigree.fam", "Sequence.tsv"},
                         {"Sequence.tsv"})

    def test_forms_that_cannot_be_made_are_refused(self):
        self.lake("lake")
        before = programs.files_of(self.folder / "lake")
        sexes = self.folder / "sexes.txt"
        names = [line.split()[0] for line in
                 (LAKE / "parents.txt").read_text(encoding="utf-8").splitlines()]
        sexes.write_text("".join(f"{name}\tmale\n" for name in names), encoding="utf-8")
        told = self.kaldo("export", "lake", "--as", "pedigree", "--sexes", sexes, code=2).stderr
        self.assertIn('both parents of "Young02", "Adult32" and "Adult40", are males', told)
        self.kaldo("export", "lake", "--as", "tsv,doc", code=2)
        self.assertEqual(before, programs.files_of(self.folder / "lake"))
        self.lake("other", "--no-confidence", "--also", "pedigree", "--min-probability", "0.9",
                  code=2)
        self.assertFalse((self.folder / "other").exists())
        warned = self.lake("other", "--also", "pedigree", "--sexes", sexes).stderr
        self.assertIn("are males", warned)
        self.assertFalse((self.folder / "other/Pedigree.fam").exists())

    def test_pedigrees_hold_what_their_readers_want(self):
        self.ponds("ponds", "--also", "tsv,pedigree", "--min-probability", "0.95")
        ponds = self.folder / "ponds"
        known = {row["offspring"]: [row[side] if row[side] != "NA" and float(row[p]) >= 0.95
                                    else "NA" for side, p in (("mother", "p_parent2"),
                                                              ("father", "p_parent1"))]
                 for row in table_of(ponds / "Allocations.tsv")}
        plain = table_of(ponds / "Pedigree.tsv")
        self.assertEqual(list(plain[0]), ["id", "dam", "sire"])
        seen = set()
        for row in plain:
            self.assertEqual([row["dam"], row["sire"]], known.pop(row["id"], ["NA", "NA"]))
            self.assertLessEqual({row["dam"], row["sire"]}, seen | {"NA"})
            seen.add(row["id"])
        self.assertEqual(known, {})
        opti = table_of(ponds / "Pedigree optiSel.tsv")
        self.assertEqual([(r["Indiv"], r["Dam"], r["Sire"]) for r in opti],
                         [tuple(row.values()) for row in plain])
        fam = [line.split() for line in
               (ponds / "Pedigree.fam").read_text(encoding="utf-8").splitlines()]
        self.assertEqual([[id_, dam, sire] for _, id_, sire, dam, _, _ in fam],
                         [[cell.replace("NA", "0") for cell in row.values()] for row in plain])
        kin = {row["id"]: row for row in table_of(ponds / "Pedigree kinship2.tsv")}
        halves = [row for row in plain if (row["dam"] == "NA") != (row["sire"] == "NA")]
        self.assertTrue(halves)
        self.assertEqual(len(kin), len(plain) + len(halves))
        for row in kin.values():
            self.assertEqual(row["dadid"] == "NA", row["momid"] == "NA")
            if row["dadid"] != "NA":
                self.assertEqual((kin[row["dadid"]]["sex"], kin[row["momid"]]["sex"]), ("1", "2"))

    def test_names_stay_what_they_are(self):
        warned = self.lake("lake", "--also", "tsv,html,pedigree", files=self.odd_lake()).stderr
        self.assertIn("4 of the names in the tables look like numbers", warned)
        rows = table_of(self.folder / "lake/Allocations.tsv")
        self.assertEqual([row["offspring"] for row in rows][8:10], [ORIGINAL, FORMULA])
        self.assertEqual([rows[1][k] for k in ("offspring", "parent1", "parent2")],
                         ["NA", "00012", "T"])
        self.assertLessEqual(set(ODD_NAMES.values()),
                             {row["id"] for row in table_of(self.folder / "lake/Pedigree.tsv")})
        text = (self.folder / "lake/Report.html").read_text(encoding="utf-8")
        page = Page(text)
        self.assertEqual(page.open, [])
        self.assertIn(FORMULA, page.text)
        self.assertIn("locus <b>1</b>", page.text)
        self.assertFalse(page.tags & {"script", "b", "link", "img"})
        self.assertIsNone(re.search(r"(src|href)=|@import|url\(", text))
        self.assertIn("identical", self.kaldo("rerun", "lake").stdout)
        if shutil.which("tidy") is None:
            self.skipTest("tidy is not installed: the page was not validated")
        done = programs.run(["tidy", "-e", "-q", "lake/Report.html"], self.folder, text=True)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_workbooks_hold_names_as_text(self):
        odd = self.odd_lake()
        files = ["--loci", odd / "loci.txt", "--parents", odd / "parents.txt", "--offspring",
                 odd / "offspring.txt"]
        done = programs.run([KALDO, "allocate", "--project", "lake", "--also", "xlsx",
                             *map(str, files)], self.folder, text=True)
        if "without libxlsxwriter" in done.stderr:
            self.assertEqual(done.returncode, 2)
            self.skipTest("built without libxlsxwriter")
        with zipfile.ZipFile(self.folder / "lake/Results.xlsx") as book:
            parts = {name: ElementTree.fromstring(book.read(name)) for name in book.namelist()
                     if name.endswith(".xml")}
        space = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
        self.assertEqual([sheet.get("name") for sheet in parts["xl/workbook.xml"].iter(
            f"{space}sheet")], ["Allocations", "Loci", "Parents", "Settings"])
        texts = ["".join(item.itertext()) for item in parts["xl/sharedStrings.xml"]]
        cells = [(cell.get("r"), cell.get("t"), cell[0].text)
                 for cell in parts["xl/worksheets/sheet1.xml"].iter(f"{space}c")]
        names = {place: texts[int(value)] for place, kind, value in cells if kind == "s"}
        self.assertEqual([names[place] for place in ("A3", "B3", "C3", "A10", "A11")],
                         ["NA", "00012", "T", ORIGINAL, FORMULA])
        self.assertFalse(list(parts["xl/worksheets/sheet1.xml"].iter(f"{space}f")))
        self.assertIn("identical", self.kaldo("rerun", "lake").stdout)

    def test_R_and_pandas_read_the_tables(self):
        self.lake("lake", "--also", "tsv,pedigree", "--sequence", files=self.odd_lake())
        wanted = ["Young01", "NA", "Young03"]
        readers = []
        if shutil.which("Rscript"):
            script = SOURCE / "contrib/r/read_kaldo.R"
            readers.append(["Rscript", "-e", f"""
                source("{script}")
                for (file in list.files("lake", "[.]tsv$", full.names = TRUE)) {{
                  stopifnot(nrow(read.delim(file)) == nrow(read_kaldo(file)))
                }}
                t <- read_kaldo("lake/Allocations.tsv")
                stopifnot(is.numeric(t$p_parent1), is.na(t$parent1[1]), nrow(t) == 50)
                cat(t$offspring[1:3], t$parent1[2], t$parent2[2], t$parent1[3], t$parent2[3],
                    t$offspring[9], sep = "|")"""])
        for python in (sys.executable, "/usr/bin/python3"):
            if programs.run([python, "-c", "import pandas"], ".").returncode == 0:
                lines = re.search(r"```text\n(import pandas\n.*?)```", (
                    SOURCE / "docs/file-formats.md").read_text(encoding="utf-8"), re.S)[1]
                readers.append([python, "-c", lines.replace("Allocations.tsv",
                                                            "lake/Allocations.tsv") + """
t = table
assert t.p_parent1.dtype == float and t.parent1.isna()[0] and len(t) == 50
assert len(pandas.read_table("lake/Allocations.tsv")) == 50
print("|".join([*t.offspring[:3], t.parent1[1], t.parent2[1], t.parent1[2], t.parent2[2],
                t.offspring[8]]), end="")"""])
                break
        for reader in readers:
            done = programs.run(reader, self.folder, text=True)
            self.assertEqual(done.stdout, "|".join([*wanted, "00012", "T", "1e5", 'a"b', ORIGINAL]),
                             done.stderr)
        if len(readers) < 2:
            self.skipTest("R or pandas is not installed")

    def test_genotypes_come_back(self):
        wanted = {}
        for name in ("parents", "offspring"):
            for line in (LAKE / f"{name}.txt").read_text(encoding="utf-8").splitlines():
                wanted[line.split()[0]] = line.split()[1:]
        files = ["--loci", LAKE / "loci.txt", "--parents", LAKE / "parents.txt", "--offspring",
                 LAKE / "offspring.txt"]
        self.kaldo("convert", *files, "--as", "genepop", "--to", "lake.gen")
        blocks = (self.folder / "lake.gen").read_text(encoding="utf-8").split("POP\n")
        self.assertEqual(blocks[0].splitlines()[1:],
                         (LAKE / "loci.txt").read_text(encoding="utf-8").split())
        self.assertEqual({line.split(" ,")[0]: line.split(" ,")[1].split()
                          for block in blocks[1:] for line in block.splitlines()}, wanted)
        self.kaldo("convert", *files, "--as", "csv", "--to", "lake.csv")
        with open(self.folder / "lake.csv", encoding="utf-8", newline="") as file:
            rows = list(csv.reader(file))[1:]
        self.assertEqual({row[0]: [f"{a or 0:>03}{b or 0:>03}" for a, b in
                                   zip(row[4::2], row[5::2])] for row in rows}, wanted)
        self.kaldo("convert", *files, "--as", "csv", "--to", "lake.csv", code=1)   # is there

    def test_simulations_have_tables_too(self):
        run = ["simulate", "--project", "trial", "--loci", LAKE / "loci.txt",
               "--collected-parents", LAKE / "parents.txt", "--uncollected-sample",
               LAKE / "parents.txt", "--uncollected", "10", "--iterations", "4",
               "--offspring-per-iteration", "60", "--seed", "3", "--strategy", "cumulative"]
        self.kaldo(*run)
        self.kaldo("export", "trial", "--as", "tsv")
        summary = (self.folder / "trial/Summary.xls").read_text(encoding="utf-8")
        told = re.findall(r"^\d\t\t(\S+)\t(\S+)\t(\S+)\t(\S+)$", summary, re.M)
        rows = table_of(self.folder / "trial/Iterations.tsv")
        found = [f"{float(row['correct']):g}" for row in rows]
        self.assertEqual([tuple(found[k:k + 4]) for k in range(0, len(found), 4)], told)
        report = (self.folder / "trial/Sequence results.xls").read_text(encoding="utf-8")
        any_correct = re.findall(r"^\d+\t(\S+)\t\S+\t\S+$", report.partition("ESTIMATED")[2], re.M)
        self.assertEqual([f"{float(row['p_correct']):g}" for row in
                          table_of(self.folder / "trial/Sequence.tsv")], any_correct)
        self.assertIn("identical", self.kaldo("rerun", "trial").stdout)
        self.kaldo("export", "trial", "--as", "html", code=2)

    def test_every_column_is_described(self):
        self.lake("lake", "--also", "tsv,pedigree", "--sequence")
        self.ponds("ponds", "--also", "tsv,pedigree", "--sequence")
        text = (SOURCE / "docs/file-formats.md").read_text(encoding="utf-8")
        for path in self.folder.glob("*/*.tsv"):
            if path.name in ("Confidence.tsv", "Loci.tsv"):
                continue
            section = re.search(rf"^#+ [^\n]*{re.escape(path.name)}[^\n]*\n(.*?)^##", text,
                                re.M | re.S)
            self.assertIsNotNone(section, path.name)
            for head in path.read_text(encoding="utf-8").splitlines()[0].split("\t"):
                self.assertIn(f"`{head}`", section[1], path.name)


if __name__ == "__main__":
    unittest.main()
