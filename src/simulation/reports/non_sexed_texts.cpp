// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

constexpr std::string_view kDeviation = "standard deviation";
constexpr std::string_view kWeightedResults = "GLOBAL RESULTS AFTER WEIGHING OF 3 PARTIAL RESULTS ";

OriginTexts TwoCollected() {
  return {.label = "C X C :",
          .label_text = "TWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
          .column = "   C X C",
          .block_title = "C X C :\tTWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
          .detailed = "C X C : TWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
          .size_row = 4,
          .table_file = "/Iterations - results_2collpar.xls",
          .table_title = "TWO COLLECTED OR PSEUDO-COLLECTED PARENTS",
          .table_word = "Iteration",
          .table_spread = kDeviation,
          .first_pair_labels = {"2 correct", "1 correct", "0 correct"}};
}

OriginTexts OneCollected() {
  return {.label = "C X U :",
          .label_text = "ONE COLLECTED OR PSEUDO-COLLECTED PARENT",
          .column = "   C X U",
          .block_title = "C X U :\tONE COLLECTED OR PSEUDO-COLLECTED PARENT",
          .detailed = "C X U : ONE COLLECTED OR PSEUDO-COLLECTED PARENT",
          .size_row = 3,
          .table_file = "/Iterations - results_1collpar.xls",
          .table_title = "ONE COLLECTED OR PSEUDO-COLLECTED PARENT",
          .table_word = "Iteration",
          .table_spread = kDeviation,
          .first_pair_labels = {"correct", "incorrect"}};
}

OriginTexts ZeroCollected() {
  return {.label = "U X U :",
          .label_text = "ZERO COLLECTED OR PSEUDO-COLLECTED PARENT",
          .column = "   U X U",
          .block_title = "U X U :\tZERO COLLECTED OR PSEUDO-COLLECTED PARENT",
          .detailed = "U X U : ZERO COLLECTED OR PSEUDO-COLLECTED PARENT",
          .size_row = 2,
          .table_file = "/Iterations - results_0collpar.xls",
          .table_title = "ZERO COLLECTED OR PSEUDO-COLLECTED PARENT",
          .table_word = "Iteration",
          .table_spread = kDeviation,
          .first_pair_labels = {"counted"}};
}

OriginTexts AllTogether() {
  return {.label = "GLOBAL",
          .label_text = "the classes weighed by their share in the population",
          .column = "   GLOBAL",
          .block_title = kWeightedResults,
          .detailed = kWeightedResults,
          .size_row = 4,
          .table_file = "/Iterations - global results.xls",
          .table_title = "GLOBAL RESULTS (AFTER WEIGHING OF 3 PARTIAL RESULTS)",
          .table_word = "Iteration",
          .table_spread = kDeviation,
          .first_pair_labels = {"combined"}};
}

std::vector<OriginTexts> Origins() {
  return {TwoCollected(), OneCollected(), ZeroCollected(), AllTogether()};
}

std::vector<AverageSection> Averages() {
  constexpr std::string_view kGap = "\t\t\t\t";
  using F = const SubsetFigures&;
  return {
      {.title = "PROPORTIONS OF PAIR ALLOCATIONS",
       .gap = kGap,
       .sequence_title = "PROPORTIONS OF PAIR ALLOCATIONS",
       .averages =
           {{.label = "2 C", .column = "2 C", .value = [](F f) { return f.average.pairs[2]; }},
            {.label = "C + UC",
             .column = "C + UC",
             .value = [](F f) { return f.average.pairs[1]; }},
            {.label = "2 UC", .column = "2 UC", .value = [](F f) { return f.average.pairs[0]; }}}},
      {.title = "PROPORTIONS OF SINGLE ALLOCATIONS",
       .gap = kGap,
       .sequence_title = "PROPORTIONS OF SINGLE ALLOCATIONS",
       .averages = {{.label = "to coll",
                     .column = "to coll",
                     .value = [](F f) { return f.average.to_collected[0].made; }},
                    {.label = "to uncoll",
                     .column = "to uncoll",
                     .value = [](F f) { return f.average.to_uncollected.made; }}}},
      {.title = "ESTIMATED CORRECTNESS PROBABILITIES",
       .gap = kGap,
       .sequence_title = "ESTIMATED CORRECTNESS PROBABILITIES",
       .averages = {{.label = "any alloc",
                     .column = "any alloc",
                     .value = [](F f) { return f.probabilities.any; }},
                    {.label = "to coll",
                     .column = "to coll",
                     .value = [](F f) { return f.probabilities.to_collected[0]; }},
                    {.label = "to uncoll", .column = "to uncoll", .value = [](F f) {
                       return f.probabilities.to_uncollected;
                     }}}}};
}

constexpr std::string_view kDefinitions =
    "DEFINITIONS :\n"
    "Collected :\tallocation to a collected or pseudo-collected parent\n"
    "UC :\tnon-allocation, the parent is taken as uncollected\n"
    "Correct :\tallocation to a true parent, or UC for a true parent that is uncollected\n"
    "2 C :\tone collected + one collected\n"
    "C + UC :\tone collected + one uncollected\n"
    "2 UC :\tone uncollected + one uncollected\n"
    "\n\n"
    "AVERAGE RESULTS OVER ALL ITERATIONS AND OFFSPRING :\n";

constexpr std::string_view kLegend =
    "Average :\taverage frequency taken over all iterations.\n"
    "SD :\tstandard deviation of frequencies taken over all iterations.\n"
    "Allocation :\tallocation to a collected parent.\n"
    "First pair :\tmost likely pair found first, whatever its offsets.\n";

}  // namespace

SimulationTexts NonSexedTexts() {
  const std::vector<std::string_view> ratios = {
      "Corr_2_par/all_assigned", "Corr_1_par/all_assigned", "Corr_0_par/all_assigned"};
  return {.parental_type = "Type of simulations : non-sexed parental",
          .pre_parental_type = "Type of simulations : non-sexed preparental",
          .sets = {{.collected_file = "Collected parents file :",
                    .collected_number = "Size of collected parents group : ",
                    .pseudo_collected_sample = "Sample to generate pseudo-collected parents :",
                    .pseudo_collected_number = "Size of pseudo-collected parents group : ",
                    .uncollected_sample = "Sample to generate uncollected parents :",
                    .uncollected_number = "Estimated number of uncollected parents :",
                    .collected_share = "Proportion of collected or pseudo-collected parents :"}},
          .iterations = "Number of iterations : ",
          .group_files = {"/pseudo-collected parents.txt", "/uncollected parents.txt"},
          .origins = Origins(),
          .allocated = {"2 UC", "C + UC", "2 C"},
          .correct = {"0", "1", "2"},
          .both_correct = "2",
          .averages_head = kDefinitions,
          .averages = Averages(),
          .statistics_legend = kLegend,
          .statistics_heads = "Allocated\tCorrect\t   Average\t       SD\n",
          .columns = {"Corr_2_par", "Corr_1_par", "Corr_0_par", "Ambiguous", "Nulls"},
          .ratio_columns = ratios,
          .short_columns = {"Corr_2_par", "Corr_1_par", "Corr_0_par", "Amb", "Nulls"},
          .short_ratio_columns = ratios,
          .sequence_title = "NON-SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI",
          .sequence_legend = "C : Collected  /  UC : Uncollected",
          .detailed_file = "/Detailled summary.xls",
          .matrices_file = "/Iterations - transmission matrices.xls",
          .closing_sentence = "calculations completed!"};
}

}  // namespace kaldo
