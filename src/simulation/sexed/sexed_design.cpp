// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/sexed/sexed_design.h"

namespace kaldo {

namespace {

// Codes of sides: the male is bit 0, the female bit 1.
constexpr SideCode kNone = 0;
constexpr SideCode kMale = 1;
constexpr SideCode kFemale = 2;
constexpr SideCode kBoth = 3;

std::string_view LabelOf(SideCode sides) {
  switch (sides) {
    case kBoth:
      return "male, female";
    case kMale:
      return "male";
    case kFemale:
      return "female";
    default:
      return "none";
  }
}

OriginRow Row(SideCode allocated, SideCode correct, int weight) {
  return {allocated, correct, weight, LabelOf(allocated), LabelOf(correct)};
}

// The parental groups by their place in the parent table.
constexpr std::size_t kCollectedMales = 0;
constexpr std::size_t kCollectedFemales = 1;
constexpr std::size_t kUncollectedMales = 2;
constexpr std::size_t kUncollectedFemales = 3;

OriginClass MaleCollectedFemaleCollected() {
  return {
      kCollectedMales,
      kCollectedFemales,
      false,
      false,
      {Row(kBoth, kBoth, 2), Row(kBoth, kMale, 1), Row(kBoth, kFemale, 1), Row(kBoth, kNone, 0),
       Row(kMale, kMale, 1), Row(kMale, kNone, 0), Row(kFemale, kFemale, 1), Row(kFemale, kNone, 0),
       Row(kNone, kNone, 0)},
      {"MC x FC", "pseudo-offspring from a (pseudo)collected male and a (pseudo)collected female",
       "   MC X FC", "1 ) MC X FC",
       "pseudo-offspring from a (pseudo)collected male and a (pseudo)collected female",
       "1 / (pseudo)collected male X (pseudo)collected female", 5,
       "/Iterations-results_coll_m_coll_f.xls",
       "COLLECTED OR PSEUDO-COLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE", "Iteration",
       "standard deviation"}};
}

// In classes 2 and 3 an offspring that got nothing is half right: one side is uncollected indeed.
OriginClass MaleCollectedFemaleUncollected() {
  return {
      kCollectedMales,
      kUncollectedFemales,
      false,
      true,
      {Row(kBoth, kMale, 1), Row(kBoth, kNone, 0), Row(kMale, kMale, 2), Row(kMale, kNone, 1),
       Row(kFemale, kNone, 1), Row(kNone, kNone, 1)},
      {"MC x FU", "pseudo-offspring from a (pseudo)collected male and a uncollected female",
       "   MC X FU", "2 ) MC X FU",
       "pseudo-offspring from a (pseudo)collected male and an uncollected female",
       "2 / (pseudo)collected male X uncollected female", 4, "/Iterations-results_coll_m_unc_f.xls",
       "COLLECTED OR PSEUDO-COLLECTED MALE + UNCOLLECTED FEMALE", "Itération", "std deviation"}};
}

OriginClass MaleUncollectedFemaleCollected() {
  return {
      kUncollectedMales,
      kCollectedFemales,
      true,
      false,
      {Row(kBoth, kFemale, 1), Row(kBoth, kNone, 0), Row(kMale, kNone, 1), Row(kFemale, kFemale, 2),
       Row(kFemale, kNone, 1), Row(kNone, kNone, 1)},
      {"MU x FC", "pseudo-offspring from an uncollected male and a (pseudo)collected female",
       "   MU X FC", "3 ) MU X FC",
       "pseudo-offspring from an uncollected male and a (pseudo)collected female",
       "3 / uncollected male X (pseudo)collected female", 4, "/Iterations-results_unc_m_coll_f.xls",
       "UNCOLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE", "iteration",
       "standard deviation"}};
}

OriginClass MaleUncollectedFemaleUncollected() {
  return {
      kUncollectedMales,
      kUncollectedFemales,
      true,
      true,
      {Row(kBoth, kNone, 0), Row(kMale, kNone, 1), Row(kFemale, kNone, 1), Row(kNone, kNone, 2)},
      {"MU x FU", "pseudo-offspring from an uncollected male and an uncollected female",
       "   MU X FU", "4 ) MU X FU",
       "pseudo-offspring from an uncollected male and an uncollected female",
       "4 / uncollected male parent X uncollected female parent", 3,
       "/Iterations-results_unc_m_unc_f.xls", "UNCOLLECTED MALE + UNCOLLECTED FEMALE", "iteration",
       "std deviation"}};
}

}  // namespace

SimulationDesign SexedDesign() {
  SimulationDesign design;
  design.flow = Flow::kSexed;
  design.groups = {{0, true, "/pseudo-collected males.txt"},
                   {1, true, "/pseudo-collected females.txt"},
                   {0, false, "/uncollected males.txt"},
                   {1, false, "/uncollected females.txt"}};
  design.classes = {MaleCollectedFemaleCollected(), MaleCollectedFemaleUncollected(),
                    MaleUncollectedFemaleCollected(), MaleUncollectedFemaleUncollected()};
  design.global_rows = GlobalRows::kPooled;
  design.global_label = "GLOBAL : all offspring";
  design.global_size_row = 5;
  design.global_block_title = "GLOBAL :\tall offspring";
  design.statistics_heads = "Collected\tCollected\nAllocated\tCorrect\t   Average\t       SD\n";
  design.both_correct_label = "male,female";
  design.row_spread = SpreadKind::kSteps;
  design.table_spread = SpreadKind::kSquares;
  design.columns = {"Corr_pair",   "Incorr_pair",   "Corr_male", "Incorr_male",
                    "Corr_female", "Incorr_female", "Ambiguous", "Nulls"};
  design.ratio_columns = {"Corr_pair/all_assigned",   "Inc_pair/all_assigned",
                          "Corr_male/all_assigned",   "Inc_male/all_assigned",
                          "Corr_female/all_assigned", "Inc_female/all_assigned"};
  design.assigned_columns = 2;
  design.classes_have_ratios = false;
  design.short_columns = {"Corr_pair",   "Inc_pair",   "Corr_male", "Inc_male",
                          "Corr_female", "Inc_female", "Amb",       "Nulls"};
  design.short_ratio_columns = {"Corr_pair/all_assigned",   "Incorr_pair/all_assigned",
                                "Corr_male/all_assigned",   "Incorr_male/all_assigned",
                                "Corr_female/all_assigned", "Incorr_female/all_assigned"};
  design.global_file = "/Iterations-global results.xls";
  design.global_title = "GLOBAL RESULTS (after weighing of 4 cases)";
  design.global_word = "Iteration";
  design.global_deviation = "std deviation";
  design.figures = kSexedFigures;
  design.any_correct_figure = kSexedAnyCorrect;
  design.detailed_file = "/Detailed Iterations Results.xls";
  design.matrices_file = "/Iterations-transmission matrices.xls";
  design.closing_sentence = "Calculations completed!";
  return design;
}

}  // namespace kaldo
