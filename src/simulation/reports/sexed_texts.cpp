// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/simulation_texts.h"

namespace kaldo {

namespace {

// The words of single files differ in spelling; they are fixed like the names of the files.
OriginTexts MaleAndFemaleCollected() {
  return {
      .label = "MC x FC",
      .label_text = "pseudo-offspring from a (pseudo)collected male and a (pseudo)collected female",
      .column = "   MC X FC",
      .block_title =
          "1 ) MC X FC\tpseudo-offspring from a (pseudo)collected male and a "
          "(pseudo)collected female",
      .detailed = "1 / (pseudo)collected male X (pseudo)collected female",
      .size_row = 5,
      .table_file = "/Iterations-results_coll_m_coll_f.xls",
      .table_title = "COLLECTED OR PSEUDO-COLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
      .table_word = "Iteration",
      .table_spread = "standard deviation",
      .first_pair_labels = {}};
}

OriginTexts MaleCollected() {
  return {.label = "MC x FU",
          .label_text = "pseudo-offspring from a (pseudo)collected male and a uncollected female",
          .column = "   MC X FU",
          .block_title =
              "2 ) MC X FU\tpseudo-offspring from a (pseudo)collected male and an "
              "uncollected female",
          .detailed = "2 / (pseudo)collected male X uncollected female",
          .size_row = 4,
          .table_file = "/Iterations-results_coll_m_unc_f.xls",
          .table_title = "COLLECTED OR PSEUDO-COLLECTED MALE + UNCOLLECTED FEMALE",
          .table_word = "Itération",
          .table_spread = "std deviation",
          .first_pair_labels = {}};
}

OriginTexts FemaleCollected() {
  return {.label = "MU x FC",
          .label_text = "pseudo-offspring from an uncollected male and a (pseudo)collected female",
          .column = "   MU X FC",
          .block_title =
              "3 ) MU X FC\tpseudo-offspring from an uncollected male and a "
              "(pseudo)collected female",
          .detailed = "3 / uncollected male X (pseudo)collected female",
          .size_row = 4,
          .table_file = "/Iterations-results_unc_m_coll_f.xls",
          .table_title = "UNCOLLECTED MALE + COLLECTED OR PSEUDO-COLLECTED FEMALE",
          .table_word = "iteration",
          .table_spread = "standard deviation",
          .first_pair_labels = {}};
}

OriginTexts NoneCollected() {
  return {.label = "MU x FU",
          .label_text = "pseudo-offspring from an uncollected male and an uncollected female",
          .column = "   MU X FU",
          .block_title =
              "4 ) MU X FU\tpseudo-offspring from an uncollected male and an uncollected "
              "female",
          .detailed = "4 / uncollected male parent X uncollected female parent",
          .size_row = 3,
          .table_file = "/Iterations-results_unc_m_unc_f.xls",
          .table_title = "UNCOLLECTED MALE + UNCOLLECTED FEMALE",
          .table_word = "iteration",
          .table_spread = "std deviation",
          .first_pair_labels = {}};
}

OriginTexts AllTogether() {
  return {.label = "GLOBAL",
          .label_text = "all pseudo-offspring together",
          .column = "   GLOBAL",
          .block_title = "GLOBAL :\tall offspring",
          .detailed = "GLOBAL : all offspring",
          .size_row = 5,
          .table_file = "/Iterations-global results.xls",
          .table_title = "GLOBAL RESULTS (after weighing of 4 cases)",
          .table_word = "Iteration",
          .table_spread = "std deviation",
          .first_pair_labels = {}};
}

std::vector<OriginTexts> Origins() {
  return {MaleAndFemaleCollected(), MaleCollected(), FemaleCollected(), NoneCollected(),
          AllTogether()};
}

using F = const SubsetFigures&;

AverageSection PairSection() {
  return {.title = "AVERAGE FREQUENCIES OF TYPES OF ALLOCATIONS :",
          .gap = "\t\t\t\t",
          .sequence_title = "PROPORTIONS OF TYPES OF ALLOCATIONS\nPAIR ALLOCATIONS",
          .averages = {{.label = "two collected parents :",
                        .column = "M.C + F.C",
                        .value = [](F f) { return f.average.pairs[3]; }},
                       {.label = "one collected male parent and one uncollected (UC) :",
                        .column = "M.C + F.UC",
                        .value = [](F f) { return f.average.pairs[1]; }},
                       {.label = "one collected female parent and one uncollected (UC) :",
                        .column = "M.UC + F.C",
                        .value = [](F f) { return f.average.pairs[2]; }},
                       {.label = "two uncollected (UC) parents :",
                        .column = "M.UC + F.UC",
                        .value = [](F f) { return f.average.pairs[0]; }}}};
}

AverageSection SingleSection() {
  return {.title = "AVERAGE PROPORTION OF ALLOCATIONS :",
          .gap = "\t\t\t\t",
          .sequence_title = "SINGLE ALLOCATIONS",
          .averages = {{.label = "to a male collected parent   :",
                        .column = "Male coll",
                        .value = [](F f) { return f.average.to_collected[0].made; }},
                       {.label = "to a female collected parent   :",
                        .column = "Female coll",
                        .value = [](F f) { return f.average.to_collected[1].made; }}}};
}

AverageSection ProbabilitySection() {
  return {
      .title = "ESTIMATED CORRECTNESS PROBABILITIES :",
      .gap = "\t\t\t\t\t\t",
      .sequence_title = "ESTIMATED CORRECTNESS PROBABILITIES",
      .averages = {
          {.label = "estimated probability that any allocation is correct :",
           .column = "Any alloc",
           .value = [](F f) { return f.probabilities.any; }},
          {.label =
               "estimated probability that an allocation to a collected male parent is correct :",
           .column = "Coll M",
           .value = [](F f) { return f.probabilities.to_collected[0]; }},
          {.label =
               "estimated probability that an allocation to a collected female parent is correct :",
           .column = "Coll F",
           .value = [](F f) { return f.probabilities.to_collected[1]; }},
          {.label = "estimated probability that an allocation to an uncollected parent (UC) is "
                    "correct :",
           .column = "Uncoll",
           .value = [](F f) { return f.probabilities.to_uncollected; }}}};
}

std::vector<SetTexts> Sets() {
  return {{.collected_file = "Collected male parents file :",
           .collected_number = "Size of collected male parental group :",
           .pseudo_collected_sample = "Sample to generate pseudo-collected male parents :",
           .pseudo_collected_number = "Size of pseudo-collected male parental group :",
           .uncollected_sample = "Sample to generate uncollected male parents :",
           .uncollected_number = "Size of uncollected male parental group :",
           .collected_share = "Proportion of collected or pseudo-collected male parents :"},
          {.collected_file = "Collected female parents file :",
           .collected_number = "Size of collected female parental group :",
           .pseudo_collected_sample = "Sample to generate pseudo-collected female parents :",
           .pseudo_collected_number = "Size of pseudo-collected female parental group :",
           .uncollected_sample = "Sample to generate uncollected female parents :",
           .uncollected_number = "Size of uncollected female parental group :",
           .collected_share = "Proportion of collected or pseudo-collected female parents :"}};
}

constexpr std::string_view kLegend =
    "Correct :\tcorrect allocation of a (pseudo)parent or non-allocation of an uncollected "
    "parent.\n"
    "Average :\taverage frequency taken over all iterations.\n"
    "SD :\tstandard deviation of frequencies taken over all iterations.\n"
    "Allocation :\tallocation to a collected parent.\n";

}  // namespace

SimulationTexts SexedTexts() {
  return {.parental_type = "Type of simulations : sexed parental",
          .pre_parental_type = "Type of simulations : sexed preparental",
          .sets = Sets(),
          .iterations = "Number of iterations :",
          .group_files = {"/pseudo-collected males.txt", "/pseudo-collected females.txt",
                          "/uncollected males.txt", "/uncollected females.txt"},
          .origins = Origins(),
          .allocated = {"none", "male", "female", "male, female"},
          .correct = {"none", "male", "female", "male, female"},
          .both_correct = "male,female",
          .averages_head = "",
          .averages = {PairSection(), SingleSection(), ProbabilitySection()},
          .statistics_legend = kLegend,
          .statistics_heads = "Collected\tCollected\nAllocated\tCorrect\t   Average\t       SD\n",
          .columns = {"Corr_pair", "Incorr_pair", "Corr_male", "Incorr_male", "Corr_female",
                      "Incorr_female", "Ambiguous", "Nulls"},
          .ratio_columns = {"Corr_pair/all_assigned", "Inc_pair/all_assigned",
                            "Corr_male/all_assigned", "Inc_male/all_assigned",
                            "Corr_female/all_assigned", "Inc_female/all_assigned"},
          .short_columns = {"Corr_pair", "Inc_pair", "Corr_male", "Inc_male", "Corr_female",
                            "Inc_female", "Amb", "Nulls"},
          .short_ratio_columns = {"Corr_pair/all_assigned", "Incorr_pair/all_assigned",
                                  "Corr_male/all_assigned", "Incorr_male/all_assigned",
                                  "Corr_female/all_assigned", "Incorr_female/all_assigned"},
          .sequence_title = "SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI",
          .sequence_legend = "M : Male  /  F : Female  /  C : Collected  /  UC : Uncollected",
          .detailed_file = "/Detailed Iterations Results.xls",
          .matrices_file = "/Iterations-transmission matrices.xls",
          .closing_sentence = "Calculations completed!"};
}

}  // namespace kaldo
