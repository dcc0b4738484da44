#!/usr/bin/env python3
"""Imports workbooks and files that no writer of this program made, hostile ones among them.

    import_test.py KALDO [unittest options]
"""

import gzip
import shutil
import sys
import unittest
import zipfile
from pathlib import Path

sys.dont_write_bytecode = True   # leave the source folder as it is
sys.path.append(str(Path(__file__).resolve().parents[1] / "support"))

import programs
from programs import ProgramTest

KALDO, = programs.arguments(["KALDO"], __doc__)
SPACE = 'xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"'
HEAD = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
RELATION = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"


def row(number, *cells):
    """A row of cells such as 'A1 s 0' (a shared text), 'B1 i text', 'C1 n 124'."""
    text = ""
    for place, kind, value in (cell.split(" ", 2) for cell in cells):
        text += {"s": f'<c r="{place}" s="3" t="s"><v>{value}</v></c>',
                 "i": f'<c r="{place}" t="inlineStr"><is><t>{value}</t></is></c>',
                 "f": f'<c r="{place}" t="str"><f>A1&amp;""</f><v>{value}</v></c>',
                 "n": f'<c r="{place}"><v>{value}</v></c>'}[kind]
    return f'<row r="{number}" spans="1:6">{text}</row>'


def sheet(*rows):
    return (f'{HEAD}<worksheet {SPACE}><dimension ref="A1"/><cols><col min="1" max="2"/></cols>'
            f'<sheetData>{"".join(rows)}</sheetData><pageMargins left="0.7"/></worksheet>')


class Imports(ProgramTest):
    def book(self, sheets, shared=()):
        """A workbook as spreadsheets put it together."""
        parts = {"xl/workbook.xml": f'{HEAD}<workbook {SPACE} xmlns:r="{RELATION}"><sheets>' +
                 "".join(f'<sheet name="{name}" sheetId="{k}" r:id="rId{k}"/>'
                         for k, name in enumerate(sheets)) + "</sheets></workbook>",
                 "xl/_rels/workbook.xml.rels": f"{HEAD}<Relationships>" + "".join(
                     f'<Relationship Id="rId{k}" Target="worksheets/s{k}.xml"/>'
                     for k in range(len(sheets))) + "</Relationships>",
                 "xl/sharedStrings.xml": f'{HEAD}<sst {SPACE}>' + "".join(
                     f"<si>{text}</si>" for text in shared) + "</sst>"}
        parts |= {f"xl/worksheets/s{k}.xml": text for k, text in enumerate(sheets.values())}
        path = self.folder / "book.xlsx"
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as archive:
            for name, text in parts.items():
                archive.writestr(name, text)
        return path

    def imported(self, *arguments):
        done = programs.run([KALDO, "import", *map(str, arguments), "--to", "out"], self.folder,
                            text=True)
        if "libzip and pugixml" in done.stderr:
            self.skipTest("built without libzip and pugixml")
        return done

    def test_workbooks_are_read_as_spreadsheets_write_them(self):
        shared = ["<t>id</t>", "<t>role</t>",
                  "<r><rPr><b/></rPr><t>Ssa</t></r><r><t>85</t></r><rPh sb='0'><t>no</t></rPh>",
                  '<t xml:space="preserve"> Ann &amp; Bo </t>', "<t>parent</t>", "<t>young</t>"]
        genotypes = sheet(
            '<row r="1" spans="1:6"/>',
            row(2, "A2 s 0", "B2 s 1", "C2 s 2", "E2 i M"),
            row(3, "A3 s 3", "B3 s 4", "C3 n 124", "D3 n 128.0", "E3 n 96", "F3 i 98"),
            row(7, "A7 n 12", "B7 s 5", "C7 f 124", "D7 n 124", "F7 n 98"),
            '<row><c t="inlineStr"><is><r><t>Y</t></r><r><t>2</t></r></is></c>'
            '<c t="s"><v>5</v></c><c/><c/><c><v>96</v></c><c><v>96</v></c></row>')
        book = self.book({"Notes": sheet(row(1, "A1 i nothing", "B1 i here")),
                          "Loci &amp; all": genotypes}, shared)
        done = self.imported(book, "--sheet", "Loci & all")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        written = {path.name: path.read_text(encoding="utf-8")
                   for path in (self.folder / "out").iterdir()}
        self.assertIn("row 7", written.pop("Import report.txt").replace("line", "row"))
        self.assertEqual(written, {
            "loci.txt": "Ssa85\nM\n", "parents.txt": "Ind1 124128 096098\n",
            "offspring.txt": "12 124124 000000\nY2 000000 096096\n",
            "names.tsv": "kind\tcode\toriginal\nindividual\tInd1\tAnn & Bo\n"})
        self.assertIn("format is not known", self.imported("--parents", book).stderr)
        self.assertIn('no sheet "Gone", but "Notes", "Loci & all"',
                      self.imported(book, "--sheet", "Gone").stderr)

    def refused(self, path, message):
        done = self.imported("--parents", path)
        self.assertEqual((done.returncode, done.stdout), (2, ""), message)
        self.assertIn(message, done.stderr)
        self.assertLess(len(done.stderr), 1000)
        self.assertFalse((self.folder / "out").exists(), message)

    def test_hostile_workbooks_are_refused(self):
        head = row(1, "A1 i id", "B1 i L")
        for rows, message in (
                (head + " " * 70_000_000, "swells beyond any study"),
                (head + row(2, "A2 i " + "x" * 3_000_000), "swells beyond any study"),
                (head + f"<row><c>{'<a>' * 200_000}", "it is cut off"),
                (head + f"<row><c>{'<a>' * 200_000}</row>", "the row is no XML"),
                (head + "<row>" + "<c/>" * 400_000 + "</row>", "more than 20000 cells"),
                (row(1, "A1 i id", "BDWGN1 i L"), "more than 20000 cells"),
                (head + row(2, "A2 s 7"), "names a text that is not in the workbook"),
                (head + '<row><c t="e"><v>#REF!</v></c></row>', "a formula in it has failed"),
                (head + "<row r='2'><c r='A2'><v>A</v></c></row", "it is cut off")):
            self.refused(self.book({"S": sheet(rows)}), message)
        book = self.book({"S": sheet(head, row(2, "A2 i A", "B2 i 1/2"))})
        whole = book.read_bytes()
        for end in range(4, len(whole), len(whole) // 9):
            book.write_bytes(whole[:end])
            self.refused(book, "packed as a workbook")
        damaged = bytearray(whole)
        damaged[whole.index(b"s0.xml") + 20] ^= 0xff
        book.write_bytes(damaged)
        self.refused(book, "damaged")

    def test_packed_files_are_unpacked(self):
        path = self.folder / "table.csv.gz"
        blocks = [gzip.compress(text) for text in (b"id,L\nA,1", b"24/128\n", b"")]
        path.write_bytes(b"".join(blocks))
        done = self.imported("--parents", path)
        if "zlib was not there" in done.stderr:
            self.skipTest("built without zlib")
        self.assertEqual((self.folder / "out/parents.txt").read_text(encoding="utf-8"),
                         "A 124128\n")
        shutil.rmtree(self.folder / "out")
        for data, message in ((blocks[0] + blocks[1][:-9], "cut off or damaged"),
                              (blocks[0] + b"rest", "cut off or damaged"),
                              (gzip.compress(b"BCF\2\2"), "save it as VCF"),
                              (gzip.compress(b"a,b\n" * 17_000_000), "holds more than 64 MB")):
            path.write_bytes(data)
            self.refused(path, message)

    def test_hostile_texts_are_refused(self):
        path = self.folder / "table.csv"
        for text, message in ((b"id,L\nA,1/2\0\n", "bytes of 0"),
                              (b"id" + b",L" * 1_000_000 + b"\n", "more than 20000 cells"),
                              (b'id,L\n"A,1/2\n' * 5, "text behind the closing quotation mark"),
                              (b"\xff\xfeid,", "cut off in the middle of a character"),
                              (b"\x81id,L\n", "which no text")):
            path.write_bytes(text)
            self.refused(path, message)
        with open(path, "wb") as file:
            file.truncate(2 << 30)
        self.refused(path, "it holds more than 65536 kB")


if __name__ == "__main__":
    unittest.main()
