// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/file_summary.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "genotypes/file_wide_checks.h"
#include "genotypes/record_checks.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

DiskFiles disk;
const FileOpener kFromDisk = OpenAnew(disk);

/// The line under a file of two loci.
std::string Describe(const std::string& text, Separators separators = Separators::kAllowed) {
  const TempFolder folder;
  return DescribeGenotypeFile(folder.Write("f.txt", text), folder.Write("loci.txt", "L1 L2"),
                              separators, kFromDisk);
}

TEST(FileSummary, OfSoundFilesIsAShortLine) {
  EXPECT_EQ(Describe("A1 152156 100102\n*\nA2 152156 100102\nA3 152154 100100\n"),
            "3 individuals in 2 groups, 2 loci, 6 digits per field, no missing genotypes");
  EXPECT_EQ(Describe("A1 0102 0000\nA2 0000 0000\n"),
            "2 individuals, 2 loci, 4 digits per field, 3 missing genotypes");
  EXPECT_EQ(Describe("*\n*\nA1\n010020\n000000\n", Separators::kAllowed),
            "1 individual in 3 groups (2 empty), 2 loci, 6 digits per field, 1 missing genotype");
  EXPECT_EQ(Describe("* 152156 100102", Separators::kNone),
            "1 individual, 2 loci, 6 digits per field, no missing genotypes");
  EXPECT_EQ(Describe("A 1112 1112 B 1112 1112 A 1112 1112 A 1112 1112"),
            "4 individuals, 2 loci, 4 digits per field, no missing genotypes; name twice: A");
  EXPECT_EQ(Describe("A 11 11 B 11 11 C 11 11 D 11 11 D 11 11 C 11 11 B 11 11 A 11 11"),
            "8 individuals, 2 loci, 2 digits per field, no missing genotypes; names twice: D, C, "
            "B, ...");
}

TEST(FileSummary, OfFaultyFilesTellsTheFault) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "the file is empty"},
      {"*\n*pond2\n", "no individual, only separators"},
      {"A 1112 1112\nB07 1112\nC 1112 1112\n",
       "the number of words does not fit 2 loci: 2 words left over, see line 2 (B07)"},
      {"A 1112\n1112 B 1112\n", "the number of words does not fit 2 loci: 2 words left over"},
      {"A 1112 1112\nB 1112\nC 1112 1112\nD 1112 1112 1112\nE 1112 1112\n",
       "line 2 (B) does not hold a name and 2 genotypes"},
      {"A 1112 NA\nB 1112 1112\n", "\"NA\" is no genotype, see line 1 (A)"},
      {"A 1112 1112\nB ? -9\n", "2 fields are no genotypes, first \"?\" in line 2 (B)"},
      {"A 096104 100102\nB 104104 96104\n", "fields of 5 and 6 digits, see line 2 (B)"},
      {"A 0 104104\nB 96104 104104\nC 96104 104104", "fields of 1 to 6 digits, see line 1 (A)"},
      {"A 1 0", "1 digit per field: both alleles need the same number of digits"},
      {"A 0100001000 0100001000", "10 digits per field: an allele has at most 4"},
      {"A 1112 1112\nB 1100 0011\n",
       "2 genotypes with only one allele defined, first \"1100\" in line 2 (B)"},
      {"A12345678901234 1112 1112\nB123456789012345 1112 1112",
       "1 name of more than 15 characters, first in line 2 (B123456789012345)"},
  };
  for (const auto& [text, line] : cases) {
    EXPECT_EQ(Describe(text), line) << text;
  }
  EXPECT_EQ(Describe("A 1112 1112\n*\nB 1112 1112\nC 1112 1112\n", Separators::kNone),
            "the number of words does not fit 2 loci: 1 word left over, see line 2 (*)");
}

TEST(FileSummary, NeedsTheNamesOfLoci) {
  const TempFolder folder;
  const std::string path = folder.Write("f.txt", "A1 152156 100102");
  const auto describe = [&](const std::string& loci) {
    return DescribeGenotypeFile(path, loci, Separators::kNone, kFromDisk);
  };
  EXPECT_EQ(describe(""), "3 words; choose the names-of-loci file to see what is in it");
  for (const std::string& loci : {folder.Path("nowhere"), folder.Write("l.txt", "A A")}) {
    EXPECT_EQ(describe(loci), "3 words; correct the names-of-loci file to see what is in it");
  }
  EXPECT_EQ(DescribeGenotypeFile(folder.Path("none"), path, Separators::kNone, kFromDisk),
            "cannot be read: No such file or directory");
  EXPECT_EQ(DescribeGenotypeFile("", path, Separators::kNone, kFromDisk), "");
}

TEST(FileSummary, OfLociNamesThemOrTellsTheFault) {
  const TempFolder folder;
  const auto describe = [&](const std::string& text) {
    return DescribeLociFile(folder.Write("loci.txt", text), kFromDisk);
  };
  EXPECT_EQ(describe("Ssa85"), "1 locus: Ssa85");
  EXPECT_EQ(describe("A B\nC D\nE"), "5 loci: A, B, C, D, E");
  EXPECT_EQ(describe("A B C D E F"), "6 loci: A, B, C, D, E, ...");
  EXPECT_EQ(describe("A\nB\nA"), "Two loci have the same name! \"A\" stands in line 1 already");
  EXPECT_EQ(describe(""),
            "The names of loci file holds no locus! the file is empty; write one name per locus");
  EXPECT_EQ(DescribeLociFile(folder.Path(""), kFromDisk), "cannot be read: Is a directory");
}

TEST(FileSummary, KeepsTheFirstRecordsAsUnderstood) {
  const TempFolder folder;
  const auto file = TokenFile::Read(folder.Write("f.txt", "A 12\n14 * B 16 18 C 20 22 D 24"));
  const auto first = Summarize(*file, {2, Separators::kAllowed}).first_few;
  ASSERT_EQ(first.size(), 3U);
  EXPECT_EQ(first[0].name, "A");
  EXPECT_EQ(first[0].fields, (std::vector<std::string>{"12", "14"}));
  EXPECT_EQ(first[1].name, "*");
  EXPECT_TRUE(first[1].fields.empty());
  EXPECT_EQ(first[2].fields, (std::vector<std::string>{"16", "18"}));
}

/// Bytes from which genotype files are made, and others.
std::string RandomBytes() {
  const auto piece =
      rc::gen::oneOf(rc::gen::element<std::string>("A", "B07", "1112", "0000", "1100", "111", " ",
                                                   "\n", "\n*\n", "\r\n", "\t", " 1112 1112\nC "),
                     rc::gen::container<std::string>(rc::gen::arbitrary<char>()));
  std::string bytes;
  for (const std::string& each : *rc::gen::container<std::vector<std::string>>(piece)) {
    bytes += each;
  }
  return bytes;
}

RC_GTEST_PROP(FileSummary, IsOneShortLineWhateverTheBytes, (bool separated)) {
  const Separators separators = separated ? Separators::kAllowed : Separators::kNone;
  const TempFolder folder;
  const std::string path = folder.Write("f.txt", RandomBytes());
  const std::string loci = folder.Write("loci.txt", RandomBytes());
  for (const std::string& line : {DescribeGenotypeFile(path, loci, separators, kFromDisk),
                                  DescribeLociFile(path, kFromDisk)}) {
    RC_LOG(line);
    RC_ASSERT(!line.empty() && line.size() < 250);
    RC_ASSERT(std::none_of(line.begin(), line.end(),
                           [](unsigned char byte) { return byte < 0x20 || byte == 0x7f; }));
  }
}

/// The checks of a run and the line must agree: a line that tells of individuals is one for a file
/// that passes as offspring, and the other way round.
RC_GTEST_PROP(FileSummary, TellsAFaultExactlyWhereARunFindsOne, ()) {
  const TempFolder folder;
  std::string text;
  const int records = *rc::gen::inRange(1, 6);
  for (int record = 0; record < records; ++record) {
    text +=
        *rc::gen::weightedElement<std::string>({{9, "A1"}, {2, "*"}, {1, "A12345678901234567"}});
    for (int locus = *rc::gen::weightedElement<int>({{15, 0}, {1, 1}}); locus < 2; ++locus) {
      text += *rc::gen::weightedElement<std::string>(
          {{30, " 1112"}, {9, " 0000"}, {1, " 0011"}, {1, " 11112"}, {1, " NA"}, {1, " 101"}});
    }
    text += *rc::gen::element<std::string>("\n", " ");
  }
  const auto file = TokenFile::Read(folder.Write("f.txt", text));
  const LociList loci(*TokenFile::Read(folder.Write("loci.txt", "L1 L2")));
  const RecordLayout layout{2, *rc::gen::element(Separators::kNone, Separators::kAllowed)};
  const FileWideCheck check{&*file, layout.separators, UndefinedAlleles::kWholeLoci};
  const bool refused = CheckFileWide(check, loci) ||
                       CheckRecords(*file, layout, loci, DigitsPerField(*file, layout)) ||
                       CountIndividuals(*file, layout) == 0;
  const std::string line = SummaryLine(Summarize(*file, layout));
  RC_LOG(text + line);
  RC_CLASSIFY(refused);
  RC_ASSERT((line.find(" digits per field, ") == std::string::npos) == refused);
}

}  // namespace
}  // namespace kaldo
