// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/file_wide_checks.h"

#include <sstream>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

constexpr ProblemKind kOdd = ProblemKind::kOddDigitsInParents;
constexpr ProblemKind kUndefined = ProblemKind::kUndefinedInParents;

/// A file of parents (separators, no undefined allele) or of offspring, and a names-of-loci file.
class Files {
 public:
  explicit Files(int number_of_loci) {
    std::string names;
    for (int locus = 1; locus <= number_of_loci; ++locus) {
      names += 'L' + std::to_string(locus) + ' ';
    }
    loci_ = LociList(*TokenFile::Read(folder_.Write("loci.txt", names)));
  }

  const LociList& Loci() const { return loci_; }

  TokenFile Open(const std::string& text) const {
    return std::move(*TokenFile::Read(folder_.Write("genotypes.txt", text)));
  }

  std::optional<Problem> Check(const std::string& text, bool parents) const {
    const TokenFile file = Open(text);
    return CheckFileWide(MakeCheck(file, parents), loci_);
  }

  static FileWideCheck MakeCheck(const TokenFile& file, bool parents) {
    return {&file,
            parents ? Separators::kAllowed : Separators::kNone,
            parents ? UndefinedAlleles::kNone : UndefinedAlleles::kWholeLoci,
            kOdd,
            kUndefined,
            !parents};
  }

  /// The line of detail without the path of the file.
  std::string Detail(const Problem& problem) const {
    const std::string line = DetailLine(problem);
    const std::string path = folder_.Path("genotypes.txt");
    EXPECT_EQ(line.substr(0, path.size()), path);
    return line.substr(path.size());
  }

 private:
  TempFolder folder_;
  LociList loci_;
};

constexpr bool kParents = true;
constexpr bool kOffspring = false;

TEST(CheckFileWide, AcceptsGoodFiles) {
  const Files files(2);
  const std::string parents = "*\nA1 152156 100102\n*pond2\n* A2 152152 102102";
  EXPECT_FALSE(files.Check(parents, kParents));
  EXPECT_FALSE(files.Check("", kParents));
  const std::string offspring = "O1 152156 000000\n*x 100200 102102\n";
  EXPECT_FALSE(files.Check(offspring, kOffspring));
  // 10 is the size 10 with a zero in it, 0010 is one undefined allele.
  EXPECT_FALSE(files.Check("A1 1010 1020\n", kParents));
  // Only the sum over the file is tested: a gained field may even out.
  EXPECT_FALSE(
      files.Check("A1 100102 100104\nA2 100102 100104 100106\nA3 100102 100104\n", kParents));
  const Files one_locus(1);
  EXPECT_FALSE(one_locus.Check("A1 " + std::string(1000, '1'), kParents));
}

TEST(CheckFileWide, NamesTheFirstRecordAtFault) {
  struct Case {
    std::string text;
    bool parents;
    ProblemKind kind;
    std::string detail;
  };
  const std::vector<Case> cases = {
      {"A1 100102 100104\nA2 100102 10010\nA3 10010 100102\n", kParents, kOdd,
       ", line 2, record 2 (A2), locus L2: \"10010\" has 5 characters; both alleles need the same "
       "number of digits; is it \"010010\" without its leading zero?"},
      {"*\nA1 100102 100104\nA2 000102 100104\n", kParents, kUndefined,
       ", line 3, record 3 (A2), locus L1: \"000102\" holds an undefined allele"},
      {"A1 100102 102000\n", kParents, kUndefined,
       ", line 1, record 1 (A1), locus L2: \"102000\" holds an undefined allele"},
      {"A1 100102 000000\n", kParents, kUndefined,
       ", line 1, record 1 (A1), locus L2: \"000000\" holds an undefined allele"},
      {"O1 000000\n000156\n", kOffspring, kUndefined,
       ", line 2, record 1 (O1), locus L2: \"000156\" holds an undefined allele"},
      {"O1 156000 000000\n", kOffspring, kUndefined,
       ", line 1, record 1 (O1), locus L1: \"156000\" holds an undefined allele"},
      // A lost field makes the next name a genotype; the record that lost it is named.
      {"A1 100102 100104\nA2 100102\nA3 100102 100104\n", kParents, kOdd,
       ", line 2, record 2 (A2): fields after the name: 1, loci named: 2"},
      {"O11 100102 100104\n*\nO12 100102 100104\nO13 100102 100104\n", kOffspring, kOdd,
       ", line 2, record 2 (*): fields after the name: 0, loci named: 2; separators are read in "
       "parents files only"},
      {"A1 100102 100104 A2 100102", kParents, kOdd,
       ": 5 words do not make whole records of a name and 2 fields"},
      // Odd digits hide undefined alleles: they are told first.
      {"A1 000102 100104\nA2 100102 10010\n", kParents, kOdd,
       ", line 2, record 2 (A2), locus L2: \"10010\" has 5 characters; both alleles need the same "
       "number of digits; is it \"010010\" without its leading zero?"},
  };
  const Files files(2);
  for (const Case& one : cases) {
    const auto problem = files.Check(one.text, one.parents);
    ASSERT_TRUE(problem) << one.text;
    EXPECT_EQ(problem->kind, one.kind) << one.text;
    EXPECT_EQ(files.Detail(*problem), one.detail) << one.text;
  }
}

TEST(CheckFileWide, TakesAnOverlongFieldForAnOddOne) {
  const Files files(1);
  const auto problem = files.Check("A1 " + std::string(1002, '1'), kParents);
  ASSERT_TRUE(problem);
  EXPECT_EQ(problem->kind, kOdd);
  EXPECT_EQ(files.Detail(*problem), ", line 1, record 1 (A1), locus L1: \"" + std::string(40, '1') +
                                        "...\" has 1002 characters; both alleles need the same "
                                        "number of digits");
}

/// The counting rules once more, a reading of the text for each count.
std::optional<ProblemKind> CountByTheRules(const std::string& text, std::size_t loci,
                                           bool parents) {
  std::size_t words = 0;
  std::size_t separators = 0;
  std::string word;
  for (std::istringstream reading(text); reading >> word;) {
    ++words;
    separators += parents && word[0] == '*' ? 1 : 0;
  }
  const std::size_t records = separators + (words - separators) / (loci + 1);
  const auto next = [](std::istringstream& reading) {
    std::string taken;
    reading >> taken;
    return taken;
  };

  std::size_t even = 0;
  std::istringstream second_reading(text);
  for (std::size_t record = 0; record < records; ++record) {
    if (next(second_reading).starts_with('*') && parents) {
      continue;
    }
    for (std::size_t locus = 0; locus < loci; ++locus) {
      const std::string field = next(second_reading);
      for (std::size_t length = 0; length <= 1000; length += 2) {
        even += field.size() == length ? 1 : 0;
      }
    }
  }
  if (even != (words - separators) * loci / (loci + 1)) {
    return kOdd;
  }

  bool forbidden = false;
  std::istringstream third_reading(text);
  for (std::size_t record = 0; record < records; ++record) {
    if (next(third_reading).starts_with('*') && parents) {
      continue;
    }
    for (std::size_t locus = 0; locus < loci; ++locus) {
      const std::string field = next(third_reading);
      const std::size_t half = field.size() / 2;
      std::size_t zeros_in_first = 0;
      std::size_t zeros_in_second = 0;
      for (std::size_t i = 0; i < field.size(); ++i) {
        (i < half ? zeros_in_first : zeros_in_second) += field[i] == '0' ? 1 : 0;
      }
      const bool first = zeros_in_first == half;
      const bool second = zeros_in_second == half;
      forbidden = forbidden || (parents ? first || second : first != second);
    }
  }
  return forbidden ? std::optional(kUndefined) : std::nullopt;
}

/// Records that are mostly in order, of which now and then a word is lost or gained.
std::string RandomText(int loci) {
  const auto field = rc::gen::weightedElement<std::string>({{40, "152156"},
                                                            {2, "000000"},
                                                            {2, "000156"},
                                                            {2, "156000"},
                                                            {1, "15215"},
                                                            {1, "1521560"},
                                                            {1, "*52156"}});
  std::vector<std::string> words;
  for (int record = *rc::gen::inRange(0, 7); record > 0; --record) {
    if (*rc::gen::inRange(0, 6) == 0) {
      words.push_back(*rc::gen::element<std::string>("*", "*pond"));
      continue;
    }
    words.push_back(*rc::gen::element<std::string>("A", "B0", "000"));
    for (int locus = 0; locus < loci; ++locus) {
      words.push_back(*field);
    }
  }
  const int damage = *rc::gen::inRange(0, 6);
  if (damage <= 1 && !words.empty()) {
    const auto place = words.begin() + *rc::gen::inRange<std::ptrdiff_t>(0, std::ssize(words));
    if (damage == 0) {
      words.erase(place);
    } else {
      words.insert(place, *field);
    }
  }
  std::string text;
  for (const std::string& word : words) {
    text += word + *rc::gen::element<std::string>(" ", "\n");
  }
  return text;
}

RC_GTEST_PROP(CheckFileWide, AgreesWithTheCountsOfSeparateReadings, ()) {
  const int loci = *rc::gen::inRange(1, 4);
  const bool parents = *rc::gen::arbitrary<bool>();
  const std::string text = RandomText(loci);
  const auto problem = Files(loci).Check(text, parents);
  const auto expected = CountByTheRules(text, static_cast<std::size_t>(loci), parents);
  RC_CLASSIFY(!expected, "good");
  RC_CLASSIFY(expected == kUndefined, "undefined");
  RC_ASSERT(problem.has_value() == expected.has_value());
  RC_ASSERT(!problem || problem->kind == *expected);
}

TEST(CheckFilesWide, ShowsTheLastFaultUnlessOffspringHaveOddDigits) {
  const TempFolder folder;
  const Files files(1);
  const TokenFile good = files.Open("A1 152156");
  const TokenFile odd = files.Open("A1 15215");
  const TokenFile undefined = files.Open("A1 000156");
  struct Case {
    const TokenFile* males;
    const TokenFile* females;
    const TokenFile* offspring;
    ProblemKind kind;
  };
  using enum ProblemKind;
  const std::vector<Case> cases = {
      {&good, &good, &good, kSeparatorsDiffer},
      {&odd, &good, &good, kOddDigitsInMales},
      {&undefined, &good, &good, kUndefinedInMales},
      {&odd, &undefined, &good, kUndefinedInFemales},
      {&undefined, &odd, &good, kOddDigitsInFemales},
      {&odd, &odd, &undefined, kHalfDefinedInOffspring},
      {&good, &good, &undefined, kHalfDefinedInOffspring},
      {&undefined, &undefined, &odd, kOddDigitsInOffspring},
      {&good, &good, &odd, kOddDigitsInOffspring},
  };
  for (const Case& one : cases) {
    auto males = Files::MakeCheck(*one.males, kParents);
    auto females = Files::MakeCheck(*one.females, kParents);
    auto offspring = Files::MakeCheck(*one.offspring, kOffspring);
    males.odd_digits = kOddDigitsInMales;
    males.undefined = kUndefinedInMales;
    females.odd_digits = kOddDigitsInFemales;
    females.undefined = kUndefinedInFemales;
    offspring.odd_digits = kOddDigitsInOffspring;
    offspring.undefined = kHalfDefinedInOffspring;
    const std::vector<FileWideCheck> checks = {males, females, offspring};
    const auto problem = CheckFilesWide(checks, files.Loci(), Problem{.kind = kSeparatorsDiffer});
    ASSERT_TRUE(problem);
    EXPECT_EQ(problem->kind, one.kind);
  }
  const std::vector<FileWideCheck> clean = {Files::MakeCheck(good, kParents)};
  EXPECT_FALSE(CheckFilesWide(clean, files.Loci()));
}

}  // namespace
}  // namespace kaldo
