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
  if (row == measured.end() || row->second.count(parent) == 0) {
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

struct RecordCase {
  LocusGenotype offspring;
  LocusGenotype par1;
  LocusGenotype par2;
  int unit;
  std::string_view record;
};

TEST(ConditionRecord, WritesEveryNotation) {
  const std::vector<RecordCase> cases = {
      {Genotype(150, 154), Genotype(160, 166), Genotype(147, 147), 2,
       "cond_aucun\t\t[[dm=6],[dm=3]]\t\t[6,3]\t/ 2\t[3,1]"},
      {Genotype(150, 154), Genotype(150, 160), Genotype(154, 166), 2,
       "cond_complet\t\t[[],[]]\t\t[0,0]\t/ 2\t[0,0]"},
      {Genotype(150, 154), Genotype(150, 150), Genotype(150, 160), 2,
       "cond_un_a_chacun\t\t[['#'],['#']]\t\t[#,#]\t/ 2\t[0,0]"},
      {Genotype(150, 150), Genotype(150, 154), Genotype(152, 156), 2,
       "cond_RR_par1_seul\t\t[[],[152,150]]\t\t[0,2]\t/ 2\t[0,1]"},
      {Genotype(150, 150), Genotype(148, 152), Genotype(150, 156), 4,
       "cond_RR_par2_seul\t\t[[dm=2,150],[]]\t\t[2,0]\t/ 4\t[0,0]"},
      {Genotype(150, 154), Genotype(150, 160), Genotype(157, 157), 2,
       "cond_RJ_R_par1\t\t[[],[157,154]]\t\t[0,3]\t/ 2\t[0,1]"},
      {Genotype(150, 154), Genotype(160, 166), Genotype(140, 150), 2,
       "cond_RJ_R_par2\t\t[[160,154],[]]\t\t[6,0]\t/ 2\t[3,0]"},
      {Genotype(150, 154), Genotype(154, 160), Genotype(148, 152), 2,
       "cond_RJ_J_par1\t\t[[],[dm=2,150]]\t\t[0,2]\t/ 2\t[0,1]"},
      {Genotype(150, 154), Genotype(90, 100), Genotype(154, 154), 2,
       "cond_RJ_J_par2\t\t[[100,150],[]]\t\t[50,0]\t/ 2\t[25,0]"},
      {Genotype(150, 154), Genotype(150, 154), Genotype(158, 160), 2,
       "cond_RJ_RJ_par1\t\t[[],[158,154]]\t\t[0,4]\t/ 2\t[0,2]"},
      {Genotype(150, 154), Genotype(150, 154), Genotype(148, 156), 2,
       "cond_RJ_RJ_par1\t\t[[],[dm=2]]\t\t[0,2]\t/ 2\t[0,1]"},
      {Genotype(150, 154), Genotype(152, 152), Genotype(154, 150), 2,
       "cond_RJ_RJ_par2\t\t[[dm=2],[]]\t\t[2,0]\t/ 2\t[1,0]"},
      {Genotype(150, 154), Genotype(156, 156), Genotype(154, 150), 2,
       "cond_RJ_RJ_par2\t\t[[156,154],[]]\t\t[2,0]\t/ 2\t[1,0]"},
      // Alleles stand unpadded here.
      {Genotype(98, 98), Genotype(98, 98), Genotype(96, 112), 2,
       "cond_RR_par1_seul\t\t[[],[96,98]]\t\t[0,2]\t/ 2\t[0,1]"},
  };
  for (const RecordCase& one : cases) {
    EXPECT_EQ(
        ConditionRecord(ClassifyLocus(one.offspring, one.par1, one.par2, BasePairs{one.unit})),
        one.record);
  }
}

}  // namespace
}  // namespace kaldo
