// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/locus_comparison.h"

#include <map>
#include <set>

#include <gtest/gtest.h>

#include "allocation/reports/condition_record.h"

namespace kaldo {
namespace {

LocusGenotype Genotype(std::uint32_t allele1, std::uint32_t allele2) {
  LocusGenotype genotype;
  genotype.allele1 = AlleleSize{allele1};
  genotype.allele2 = AlleleSize{allele2};
  return genotype;
}

/// The rules one after the other, each that holds overwriting the one before.
int ConditionByRules(int r, int j, int p1a, int p1b, int p2a, int p2b) {
  const bool r1 = r == p1a || r == p1b;
  const bool j1 = j == p1a || j == p1b;
  const bool r2 = r == p2a || r == p2b;
  const bool j2 = j == p2a || j == p2b;
  int condition = 0;
  if (!r1 && !j1 && !r2 && !j2) condition = 1;
  if ((r1 && j2) || (j1 && r2)) condition = 2;
  if (r != j) {
    if ((r1 && !j1 && r2 && !j2) || (!r1 && j1 && !r2 && j2)) condition = 3;
    if (!r1 && j1 && !r2 && !j2) condition = 8;
    if (!r1 && !j1 && !r2 && j2) condition = 9;
    if (r1 && !j1 && !r2 && !j2) condition = 6;
    if (!r1 && !j1 && r2 && !j2) condition = 7;
    if (r1 && j1 && !r2 && !j2) condition = 10;
    if (!r1 && !j1 && r2 && j2) condition = 11;
  }
  if (r == j && r1 && !r2) condition = 4;
  if (r == j && !r1 && r2) condition = 5;
  return condition;
}

/// Base pairs by which a parent misses the offspring alleles it is measured against.
int DistanceByTable(int condition, int parent, int r, int j, int pa, int pb) {
  const int to_r = std::min(std::abs(r - pa), std::abs(r - pb));
  const int to_j = std::min(std::abs(j - pa), std::abs(j - pb));
  const std::map<int, std::map<int, char>> measured = {
      {1, {{1, 'e'}, {2, 'e'}}}, {4, {{2, 'R'}}},  {5, {{1, 'R'}}},
      {6, {{2, 'J'}}},           {7, {{1, 'J'}}},  {8, {{2, 'R'}}},
      {9, {{1, 'R'}}},           {10, {{2, 'e'}}}, {11, {{1, 'e'}}}};
  const auto row = measured.find(condition);
  if (row == measured.end() || !row->second.contains(parent)) {
    return 0;
  }
  const char against = row->second.at(parent);
  return against == 'R' ? to_r : against == 'J' ? to_j : std::min(to_r, to_j);
}

TEST(LocusComparison, AgreesWithTheRulesForEveryGenotypeOfSixAlleles) {
  const std::vector<int> sizes = {150, 151, 152, 155, 156, 160};
  std::set<int> met;
  constexpr int kUnit = 2;
  for (const int r : sizes)
    for (const int j : sizes)
      for (const int a : sizes)
        for (const int b : sizes)
          for (const int c : sizes)
            for (const int d : sizes) {
              const auto u = [](int size) { return static_cast<std::uint32_t>(size); };
              const LocusComparison locus =
                  ClassifyLocus(Genotype(u(r), u(j)), Genotype(u(a), u(b)), Genotype(u(c), u(d)),
                                BasePairs{kUnit});
              const int condition = ConditionByRules(r, j, a, b, c, d);
              ASSERT_EQ(static_cast<int>(locus.condition), condition);
              const int d1 = DistanceByTable(condition, 1, r, j, a, b);
              const int d2 = DistanceByTable(condition, 2, r, j, c, d);
              ASSERT_EQ(locus.distance_par1.Value(), d1);
              ASSERT_EQ(locus.distance_par2.Value(), d2);
              ASSERT_EQ(locus.offset_par1.Value(), d1 / kUnit);
              ASSERT_EQ(locus.offset_par2.Value(), d2 / kUnit);
              met.insert(condition);
            }
  EXPECT_EQ(met.size(), 11U) << "every condition but the error mark";
}

TEST(LocusComparison, MissingLociAndLociWithASingleSizeHaveNoOffsets) {
  const LocusComparison missing =
      ClassifyLocus(Genotype(0, 0), Genotype(150, 154), Genotype(152, 152), BasePairs{2});
  EXPECT_EQ(missing.condition, LocusCondition::kNone);
  EXPECT_EQ(missing.offset_par1.Value(), 0);
  const LocusComparison single =
      ClassifyLocus(Genotype(0, 0), Genotype(150, 150), Genotype(150, 150), BasePairs{-150});
  EXPECT_EQ(single.offset_par2.Value(), 0);
  EXPECT_EQ(ConditionRecord(single), "cond_aucun\t\t[*,*]\t\t[*,*]\t/ -150\t[*,*]");
}

/// Nothing is asked of a parent that may carry anything, and little of its partner.
TEST(LocusComparison, MeasuresThePartnerOfAnUndefinedParentAgainstTheNearerAllele) {
  const auto record = [](LocusGenotype par1, LocusGenotype par2) {
    return ConditionRecord(ClassifyLocus(Genotype(150, 156), par1, par2, BasePairs{2}));
  };
  const LocusGenotype undefined = Genotype(0, 0);
  EXPECT_EQ(record(Genotype(150, 150), undefined),
            "cond_RJ_R_par1\t\t[[],[*,*]]\t\t[0,0]\t/ 2\t[0,0]");
  EXPECT_EQ(record(undefined, Genotype(140, 160)),
            "cond_aucun\t\t[[*,*],[160,156]]\t\t[0,4]\t/ 2\t[0,2]");
  EXPECT_EQ(record(undefined, undefined), "cond_aucun\t\t[[*,*],[*,*]]\t\t[0,0]\t/ 2\t[0,0]");
}

}  // namespace
}  // namespace kaldo
