// SPDX-License-Identifier: GPL-3.0-or-later
// Files as other programs write them, oddities included, against what a geneticist makes of them by
// hand.
#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "interchange/original_names.h"
#include "tests/cli/command_support.h"

namespace kaldo {
namespace {

using test::Arguments;
using test::Outcome;
using test::ReadFile;
using test::RunCommand;
using test::Words;
using testing::HasSubstr;
using namespace std::string_literals;

using Files = std::map<std::string, std::string>;

class ImportTest : public testing::Test {
 protected:
  ImportTest() { std::filesystem::current_path(folder_.Path(".")); }
  ~ImportTest() override { std::filesystem::current_path("/"); }

  Outcome Import(const Files& files, const std::string& arguments) {
    for (const auto& [name, text] : files) {
      folder_.Write(name, text);
    }
    return RunCommand(Words("import --to out " + arguments));
  }

  /// All that was written but the report and, unless wanted, the names.
  Files Written(bool with_names = false) {
    Files written;
    for (const std::string& name : folder_.FilesIn("out")) {
      if (name != "Import report.txt" && (with_names || name != "names.tsv")) {
        written[name] = ReadFile(folder_.Path("out/" + name));
      }
    }
    return written;
  }

  test::TempFolder folder_;
};

struct Case {
  std::string what;
  Files files;
  std::string arguments;
  Files written;
};

const std::string kPairs = "id,role,L.1,L.2,Ma,Mb\n";

const std::string kVcf =
    "##fileformat=VCFv4.2\n#CHROM\tPOS\tID\tREF\tALT\tQUAL\tFILTER\tINFO\tFORMAT\tA\tB\tY\n";

const std::vector<Case> kCases = {
    {"VCF with sequences, numbers of repeats by allele and by call, and a SNP",
     {{"v", kVcf +
                "1\t10\tL\tCACACA\tCACA,CACACACA,*\t.\tPASS\t.\tGT:FT\t0/1:PASS\t1|2:q10\t./.\n"
                "1\t20\trs1\tA\tC\t.\tPASS\t.\tGT\t0/1\t0/0\t0/0\n"
                "2\t30\t.\tC\t<STR12>,<STR15>\t.\tLowDepth\tEND=9;REF=10;RU=CAG\tGT\t0/1\t2|1\t"
                ".\n"
                "3\t40\tM\tN\t<CNV:TR>\t.\t.\tRU=AT\tREPCN:GT\t20/21:0/1\t22,20:1/0\t20/.:1/.\n"},
      {"o", "Y\n"}},
     "v --offspring-list o --loci L,2_30,M",
     {{"loci.txt", "L\n2_30\nM\n"},
      {"parents.txt", "A 006004 030036 040042\nB 004008 045036 044040\n"},
      {"offspring.txt", "Y 000000 000000 000000\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"GENEPOP with two widths, lines continued, names with blanks or none",
     {{"g",
       "\r\nL, M\r\nN 1\r\nPoP\r\nA, 124128 0810 001002\r\n B 2 , 124130 0808\r\n001001\r\n"
       "pop\r\n, 128130\t0810 000002\r\n, 128128 0000 000000\r\n"}},
     "g --offspring-populations 2",
     {{"loci.txt", "L\nM\nLoc1\n"},
      {"parents.txt", "A 124128 008010 001002\nInd1 124130 008008 001001\n"},
      {"offspring.txt", "pop2_row1 128130 008010 000000\npop2_row2 128128 000000 000000\n"},
      {"names.tsv", "kind\tcode\toriginal\nindividual\tInd1\tB 2\nlocus\tLoc1\tN 1\n"}}},
    {"every word for a missing allele, and allele 120",
     {{"t",
       "id;role;L;;M.1;M.2;N\nA;adult;120;120.0;99;101,0;120/120\nB;offspring;NA;n/a;-9;-1;?\n"
       "C;young;0;00;.;-;X\nD;juvenile;120;0;-9.0;;000000\n"}},
     "t --missing X",
     {{"loci.txt", "L\nM\nN\n"},
      {"parents.txt", "A 120120 099101 120120\n"},
      {"offspring.txt", "B 000000 000000 000000\nC 000000 000000 000000\nD 000000 000000 000000\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"Windows-1252, quoted cells, sexes, groups of both sexes together, four digits",
     {{"t",
       "name,Sex,Pond,\"L\"\"1\"\n\"J\xf6rg\",M,b,998/1002\nK,male,a,998/1002\n"
       "L,1,b,998/1002\nM,f,\"c,d\",998/998\nN,2,a,1002/1002\n"},
      {"y", "ID\tL\"1\nY\t998/1002\n"}},
     "--parents t --offspring y",
     {{"loci.txt", "L\"1\n"},
      {"males.txt", "J\xc3\xb6rg 09981002\nL 09981002\n*\nK 09981002\n*\n"},
      {"females.txt", "*\nN 10021002\n*\nM 09980998\n"},
      {"offspring.txt", "Y 09981002\n"},
      {"names.tsv", "kind\tcode\toriginal\ngroup\t1\tb\ngroup\t2\ta\ngroup\t3\tc,d\n"}}},
    {"UTF-16 with groups of one sex",
     {{"t",
       "\xff\xfei\0d\0,\0s\0e\0x\0,\0p\0o\0p\0,\0L\0\n\0A\0,\0m\0,\0x\0,\0"
       "1\0/\0"
       "2\0\n\0B\0,\0f\0,\0y\0,\0"
       "1\0/\0"
       "1\0\n\0"s},
      {"y", "id,L\nY,1/2\n"}},
     "--parents t --offspring y",
     {{"loci.txt", "L\n"},
      {"males.txt", "A 001002\n*\n"},
      {"females.txt", "*\nB 001001\n"},
      {"offspring.txt", "Y 001002\n"},
      {"names.tsv", "kind\tcode\toriginal\ngroup\t1\tx\ngroup\t2\ty\n"}}},
    {"GenAlEx with other columns behind",
     {{"a",
       "2,4,2,2,2\n,,,old,young\nSample,Pop,L,,M,,,x\nA,old,124,128,96,96,,1\n"
       "B,old,126,126,98,96,,2\nY1,young,124,126,96,98,,3\nY2,young,0,0,96,98,,\n"}},
     "a --offspring-populations young",
     {{"loci.txt", "L\nM\n"},
      {"parents.txt", "A 124128 096096\nB 126126 098096\n"},
      {"offspring.txt", "Y1 124126 096098\nY2 000000 096098\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"GeneMapper with homozygotes, repeated calls and lines of samples mixed",
     {{"m",
       "Run\tSample Name\tMarker\tAllele 1\tAllele 2\tAllele 3\n1\tA\tL\t124\t128\t\n"
       "1\tB\tL\t126\t\t\n2\tA\tM\t96\t98\t\n2\tA\tL\t128\t124\t\n2\tB\tM\t96\t96\t\n"},
      {"y", "id,M,L\nY,96/96,124/126\n"}},
     "--parents m --offspring y",
     {{"loci.txt", "L\nM\n"},
      {"parents.txt", "A 128124 096098\nB 126126 096096\n"},
      {"offspring.txt", "Y 124126 096096\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"STRUCTURE in two rows, repeats made sizes",
     {{"s", "L M\nA 1 0 10 96\nA 1 0 12 98\nY 2 0 10 -9\nY 2 0 11 -9\n"}},
     "s --leading id,group,flag --offspring-populations 2 --repeat-length L=4",
     {{"loci.txt", "L\nM\n"},
      {"parents.txt", "A 040048 096098\n"},
      {"offspring.txt", "Y 040044 000000\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"STRUCTURE in one row",
     {{"s", "\tL\tM\nA\t124\t128\t96\t98\nB\t124\t124\t96\t96\n"}, {"y", "id,L,M\nY,1/2,3/4\n"}},
     "--parents s --offspring y",
     {{"loci.txt", "L\nM\n"},
      {"parents.txt", "A 124128 096098\nB 124124 096096\n"},
      {"offspring.txt", "Y 001002 003004\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"FSTAT",
     {{"f", "2 2 130 3\nL\nM\n 1 124128 096098\n 1 124124 96096\n 2 124128 0\n"}},
     "f --offspring-populations 2",
     {{"loci.txt", "L\nM\n"},
      {"parents.txt", "pop1_row1 124128 096098\npop1_row2 124124 096096\n"},
      {"offspring.txt", "pop2_row1 124128 000000\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"COLONY with a known father, a known mother and an excluded one",
     {{"c",
       "'d'\n'o'\n3 ! offspring\n2 ! loci\n1\n0\n2\n0\n0\n0 0\n0\n1\n0\n0\n1\n2\n0\n9\n0\n1\n3\n"
       "mk@\n0@\n0.0@\n0.01@\nY1 1 2 3 4\nY2 1 1 3 3\nY3 0 0 3 4\n\n0.5 0.5\n2 2\n"
       "M1 1 1 3 3\nM2 2 2 4 4\nF1 1 2 3 4\nF2 2 2 3 3\n1 0\nY1 M2\n1 0\nY2 F1\n0\n0\n0\n"
       "1\nY3 1 F2\n"}},
     "c",
     {{"loci.txt", "mk1\nmk2\n"},
      {"males.txt", "M1 001001 003003\nM2 002002 004004\n"},
      {"females.txt", "F1 001002 003004\nF2 002002 003003\n"},
      {"offspring.txt", "Y1 001002 003004\nY2 001001 003003\nY3 000000 003004\n"},
      {"known-mothers.txt", "Y2 F1\n"},
      {"candidates.txt", "Y1 M2 F1 F2\nY3 M1 M2 F1\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"a list of offspring with mothers and candidate fathers; X stands in no list",
     {{"t", "id,L\nY1,1/2\nY2,1/1\nY3,1/2\nF1,1/2\nM1,1/1\nM2,2/2\nX,1/1\nF2,2/2\nM3,1/2\n"},
      {"o",
       "Offspring ID,Mother ID,Candidate father,\nY1,F1,M1,M2\nY2,0,M3,\nY3,F2,,\nY4,F2,M1\n"}},
     "t --offspring-list o",
     {{"loci.txt", "L\n"},
      {"males.txt", "M1 001001\nM2 002002\nM3 001002\n"},
      {"females.txt", "F1 001002\nF2 002002\n"},
      {"offspring.txt", "Y1 001002\nY2 001001\nY3 001002\n"},
      {"known-mothers.txt", "Y1 F1\nY3 F2\n"},
      {"candidates.txt", "Y1 M1 M2 F1 F2\nY2 M3 F1 F2\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"a father per line, mothers per offspring, an offspring that became a mother",
     {{"t", "id,L\nY1,1/2\nY2,1/1\nF1,1/2\nM1,1/1\nM2,2/2\nF2,2/2\n"},
      {"o", "Y1\nY2\n"},
      {"f", "Candidates\nM1\nM2\nuntyped\n"},
      {"m", "Offspring;Mothers\nY1;F2;F1;F2\nY2;F2;Y1\n"}},
     "t --offspring-list o --father-list f --mother-list m",
     {{"loci.txt", "L\n"},
      {"males.txt", "M1 001001\nM2 002002\n"},
      {"females.txt", "F1 001002\nF2 002002\nY1 001002\n"},
      {"offspring.txt", "Y1 001002\nY2 001001\n"},
      {"candidates.txt", "Y1 M1 M2 F2 F1\nY2 M1 M2 F2 Y1\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"known parents and candidates without sexes",
     {{"t", "id,L\nY1,1/2\nY2,1/1\nP1,1/2\nP2,1/1\nP3,2/2\n"},
      {"o", "Offspring\tKnown parent\tCandidate\t\nY1\tP1\tP2\tP3\nY2\tP2\t\t\n"}},
     "t --offspring-list o",
     {{"loci.txt", "L\n"},
      {"parents.txt", "P1 001002\nP2 001001\nP3 002002\n"},
      {"offspring.txt", "Y1 001002\nY2 001001\n"},
      {"known-mothers.txt", "Y1 P1\nY2 P2\n"},
      {"candidates.txt", "Y1 P1 P2 P3\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
    {"names that get codes, an individual twice, loci chosen",
     {{"t", kPairs + "Station04_01,parent,1,2,x,\nStation04_02,parent,1,2,y,\nUC,parent,1,1,,\n"
                     "*A,parent,2,2,,\nB,parent,1,2,1,1\nB,parent,1,2,3,3\nY,offspring,1,1,,\n"}},
     "t --loci L",
     {{"loci.txt", "L\n"},
      {"parents.txt", "Ind1 001002\nInd2 001002\nInd3 001001\nInd4 002002\nB 001002\n"},
      {"offspring.txt", "Y 001001\n"},
      {"names.tsv",
       "kind\tcode\toriginal\nindividual\tInd1\tStation04_01\nindividual\tInd2\tStation04_02\n"
       "individual\tInd3\tUC\nindividual\tInd4\t*A\n"}}},
    {"the least loss: locus M rather than two parents, parent D rather than locus L",
     {{"t", kPairs + "A,parent,1,2,,\nB,parent,1,2,0,0\nC,parent,1,1,1,1\nD,parent,,,1,1\n"
                     "E,parent,1,1,0,0\nY,offspring,1,1,5,5\n"}},
     "t --missing-parents least",
     {{"loci.txt", "L\n"},
      {"parents.txt", "A 001002\nB 001002\nC 001001\nE 001001\n"},
      {"offspring.txt", "Y 001001\n"},
      {"names.tsv", "kind\tcode\toriginal\n"}}},
};

TEST_F(ImportTest, WritesWhatTheFilesMean) {
  for (const Case& each : kCases) {
    std::filesystem::remove_all("out");
    const Outcome outcome = Import(each.files, each.arguments);
    EXPECT_EQ(outcome.code, ExitCode::kDone) << each.what << '\n' << outcome.err;
    EXPECT_EQ(Written(true), each.written) << each.what;
  }
}

struct Refused {
  Files files;
  std::string arguments;
  std::string message;
};

TEST_F(ImportTest, TellsEveryFaultWithItsPlaceAndWritesNothing) {
  const std::vector<Refused> cases = {
      {{{"t", kPairs + "A,parent,206.84,1,\"95,4\",1\nB,parent,154*,1,A,1\nC,egg,12345,1,1,1\n"}},
       "t",
       "t, line 2, column \"L.1\" (A): \"206.84\" is a raw size; bin it to whole base pairs first\n"
       "t, line 2, column \"Ma\" (A): \"95,4\" is a raw size; bin it to whole base pairs first\n"
       "t, line 3, column \"L.1\" (B): \"154*\" is no allele"},
      {{{"t", "id,role,L\nA,parent,96104\n"}}, "t", "\"96104\" has 5 digits"},
      {{{"t", "id,role,L\nA,parent,124/x\nB,parent,124\n"}},
       "t",
       "t, line 3, column \"L\" (B): \"124\" has 3 digits: it is one allele alone"},
      {{{"t", kPairs + "A,parent,1,2,3,3\nA,parent,1,1,3,3\n"}},
       "t",
       "t, line 3 (A): the name stands in line 2 of t with other genotypes"},
      {{{"t", kPairs + "A,parent,1,2,3,0\n"}},
       "t --half-missing error",
       "t, line 2, column \"Mb\" (A): one allele is 3, the other one is missing"},
      {{{"t", kPairs + "A,parent,1,2,,\nB,parent,1,2,3,3\n"}},
       "t",
       "1 of 2 parents are undefined at some locus"},
      {{{"t", "id,L\nA,1/2\nB,1/2\n"}}, "t", "Who is a parent and who an offspring? Of 2 indiv"},
      {{{"g", "t\nL\nM\npop\nA, 001002\nB, 001002 0102\nC 001002 001001\n"}},
       "--parents g",
       "g, line 5 (A): it has 1 of 2 loci\n"},
      {{{"g", "t\nL\npop\nA, 0102\nB, 001002\nA, 01\n"}},
       "--parents g --unique-names",
       "g, line 5, column \"L\" (B): \"001002\" has 6 digits, the fields of the locus before have "
       "4\n"
       "g, line 6, column \"L\" (A): \"01\" holds one allele"},
      {{{"a", "1,3,2,1,2\n,,,x,y\nID,Pop,L,\nA,x,1,2\nB,y,1,2\n"}},
       "--parents a",
       "a, line 1: line 1 says 3 samples, there are 2: is the file whole?\n"
       "a, line 1: line 1 says 2 samples of population \"y\", there are 1"},
      {{{"m", "Sample Name,Marker,Allele 1,Allele 2,Allele 3\nA,L,1,2,\nA,L,1,1,\nB,L,1,2,3\n"}},
       "--parents m",
       "m, line 3, column \"L\" (A): line 2 calls this sample and marker otherwise\n"
       "m, line 4, column \"Allele 3\" (B): \"3\" is a third allele"},
      {{{"m", "Sample Name,Marker,Allele 1,Allele 2\nA,L,1,2\n,L,1,2\nA,M,1,2\n"}},
       "--parents m",
       "m, line 3: a line needs the name of a sample and a marker\n"},
      {{{"t", "id,L\nA,1/2\nB,1/2\nY,1/2\n"}, {"o", "Y,A\nY,B\n"}, {"f", "A\n"}, {"m", "B\nA\n"}},
       "t --offspring-list o --father-list f --mother-list m",
       "o, line 2: \"Y\" stands in an earlier line\nm, line 2: \"A\" has the other sex "
       "elsewhere\n"},
      {{{"t", "id,L\nA,1/2\nY,1/2\n"}, {"o", "Offspring,Weight\nY,A\n"}},
       "t --offspring-list o",
       "o, line 1: \"Weight\" is none of Mother, Father, Parent and Candidate"},
      {{{"t", "id,L\nA,1/2\n"}, {"y", "id,M\nY,1/2\n"}},
       "--parents t --offspring y",
       "y: the locus \"M\" is not in t"},
      {{{"v", kVcf + "1\t20\trs1\tA\tC\t.\tq\t.\tGT\t0/1\t0/0\t0/0\n"
                     "1\t30\tL\tCACA\tCA,<DEL>\t.\t.\t.\tGT\t0\t0/3\t2/2\n"}},
       "--parents v",
       "v, line 3, column \"rs1\": it is a SNP: single bases have no sizes; name the loci to be "
       "kept with --loci\n"
       "v, line 4, column \"L\" (A): \"0\" is no genotype of two alleles: haploid ones have no two "
       "parents\n"
       "v, line 4, column \"L\" (B): there is no allele \"3\" among 3\n"
       "v, line 4, column \"L\" (Y): nothing tells the length of allele \"<DEL>\""},
      {{{"v", kVcf + "1\t20\tL\tA\n"}}, "--parents v", "it has 4 columns, the heads are 12"},
      {{{"t", "id,L\n\"A,1/2\n"}},
       "--parents t",
       "t, line 2: a quotation mark is opened and never"},
      {{{"t", "id,L\nA,1\0/2\n"s}}, "--parents t", "t: it holds bytes of 0"},
      {{{"t", "\xd0\xcf\x11\xe0"}}, "--parents t", "t: it is a workbook of the old kind"},
      {{{"t", "PK\x03\x04 no archive"}}, "--parents t", "t: it is "},
      {{}, "--parents nowhere", "nowhere: Cannot open file"},
      {{{"t", "A 124128 166170\n"}}, "t", "t: its format is not known"},
      {{{"out/loci.txt", "mine"}, {"t", "id,L\nA,1/2\n"}},
       "--parents t",
       "\"out/loci.txt\" is there"},
  };
  for (const Refused& each : cases) {
    std::filesystem::remove_all("out");
    std::filesystem::create_directory("out");
    const Outcome outcome = Import(each.files, each.arguments);
    EXPECT_EQ(outcome.code, ExitCode::kBadInput) << each.message;
    EXPECT_THAT(outcome.err, HasSubstr(each.message));
    EXPECT_EQ(Written().size(), each.files.contains("out/loci.txt") ? 1U : 0U) << each.message;
  }
}

TEST_F(ImportTest, RunsGivenForeignFilesNameTheirFormatBehindTheirOwnSentence) {
  folder_.Write("g", "t\nL\nM\npop\nA, 001002 001002\npop\nY, 001001 001002\n");
  folder_.Write("y", "id;L\nY;1/2\n");
  folder_.Write("loci", "L\n");
  for (const std::string command : {"allocate --project p", "check"}) {
    const Outcome outcome = RunCommand(Words(command + " --loci loci --parents g --offspring y"));
    EXPECT_EQ(outcome.code, ExitCode::kBadInput);
    EXPECT_THAT(outcome.err, testing::StartsWith("Some offspring loci are represented"));
    EXPECT_THAT(outcome.err, testing::EndsWith("Convert it:\n  kaldo import --parents g "
                                               "--offspring y --to imported\n"));
  }
}

TEST(OriginalNames, AreReadAsTheyWereWritten) {
  OriginalNames names;
  names.Add({NameKind::kIndividual, "Ind1", "a\"b\tc\nd"});
  names.Add({NameKind::kLocus, "Ind1", " "});
  names.Add({NameKind::kGroup, "1", ""});
  const auto read = OriginalNames::FromText(names.Text(), "names.tsv");
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->All(), names.All());
  EXPECT_EQ(read->Original(NameKind::kIndividual, "Ind1"), "a\"b\tc\nd");
  EXPECT_EQ(read->Original(NameKind::kGroup, "Ind1"), "Ind1");
  EXPECT_FALSE(OriginalNames::FromText(names.Text() + "group\t1\tx\n", "names.tsv").has_value());
}

}  // namespace
}  // namespace kaldo
