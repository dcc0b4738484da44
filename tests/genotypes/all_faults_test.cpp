// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/all_faults.h"

#include <map>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

/// Line by line, from 1, in both what is sound and what is not.
std::string TextOf(const std::vector<std::string>& lines) {
  return fmt::format("{}\n", fmt::join(lines, "\n"));
}

std::string SoundLine(std::size_t k) { return fmt::format("A{} 100102 150152", k); }

/// A line of a file of two loci with the fault of that number.
std::string FaultyLine(std::size_t k, int fault) {
  static const std::vector<std::string> forms = {"A{} 100102",
                                                 "A{} 100102 150152 1",
                                                 "A{} 10010 150152",
                                                 "A{} 100102 000152",
                                                 "A{} 100102 NA",
                                                 "A{} 100102 15015150",
                                                 "A{} ? 150152",
                                                 "A{}-12345678901234 100102 150152",
                                                 "A{}\xf6 100102 150152",
                                                 "A{} 1002 000150",
                                                 "*"};
  return fmt::format(fmt::runtime(forms.at(static_cast<std::size_t>(fault))), k);
}

// Whatever is wrong with a record, it is found, and does not disturb the others. A run, which reads
// words and not lines, may tell its first fault in a line that the one before has shifted.
RC_GTEST_PROP(FindAllFaults, FindsEveryFaultyRecordAndNoOther, (bool of_parents)) {
  const auto faults_of =
      *rc::gen::suchThat(rc::gen::container<std::map<std::size_t, int>>(
                             rc::gen::inRange<std::size_t>(1, 31), rc::gen::inRange(0, 11)),
                         [](const auto& faults) { return faults.size() < 14; });
  std::vector<std::string> lines;
  std::set<std::size_t> faulty;
  for (std::size_t k = 1; k <= 30; ++k) {
    const auto fault = faults_of.find(k);
    lines.push_back(fault != faults_of.end() ? FaultyLine(k, fault->second) : SoundLine(k));
    if (fault != faults_of.end() && !(of_parents && lines.back() == "*")) {
      faulty.insert(k);
    }
  }
  const test::TempFolder folder;
  const LociList loci(*TokenFile::Read(folder.Write("loci.txt", "L1 L2")));
  const TokenFile file = *TokenFile::Read(folder.Write("f.txt", TextOf(lines)));
  const FaultSearch search{{{&file, of_parents ? Separators::kAllowed : Separators::kNone,
                             of_parents ? UndefinedAlleles::kNone : UndefinedAlleles::kWholeLoci}},
                           6,
                           false};
  AlikeGroups<Problem> faults;
  FindAllFaults(search, loci, faults);
  std::set<std::size_t> found;
  for (const auto& group : faults.Groups()) {
    for (const Problem& fault : group.kept) {
      found.insert(fault.line);
    }
  }
  RC_ASSERT(faults.IsEmpty() == faulty.empty());
  if (!faults.IsEmpty()) {
    faulty.insert(faults.Groups().front().kept.front().line);
  }
  RC_ASSERT(found == faulty);
}

TEST(FindAllFaults, KeepsSomeOfVeryManyAndCountsTheRest) {
  const test::TempFolder folder;
  const LociList loci(*TokenFile::Read(folder.Write("loci.txt", "L1 L2")));
  std::string text;
  for (int k = 0; k < 3000; ++k) {
    text += "A 100000 150152\n";
  }
  const TokenFile file = *TokenFile::Read(folder.Write("f.txt", text));
  AlikeGroups<Problem> faults;
  FindAllFaults({{{&file}}, 6, false}, loci, faults);
  ASSERT_EQ(faults.Groups().size(), 1U);
  EXPECT_EQ(faults.Groups().front().kept.size(), 1000U);
  EXPECT_EQ(faults.Groups().front().more, 2000U);
}

}  // namespace
}  // namespace kaldo
