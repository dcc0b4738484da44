// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/non_sexed_simulation.h"

#include <algorithm>
#include <cassert>

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/figures.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/simulation_input.h"

namespace kaldo {

namespace {

/// The figures that are weighed over the classes, as shares of offspring or of their sides.
enum Figure : std::size_t {
  kBothCollected,
  kOneCollected,
  kNoneCollected,
  kToCollected,
  kToUncollected,
  kRightToCollected,
  kRightToUncollected,
  kAnyCorrect,
  kFigures,
};

constexpr std::string_view kTwoParents = "TWO COLLECTED OR PSEUDO-COLLECTED PARENTS";
constexpr std::string_view kOneParent = "ONE COLLECTED OR PSEUDO-COLLECTED PARENT";
constexpr std::string_view kZeroParents = "ZERO COLLECTED OR PSEUDO-COLLECTED PARENT";
constexpr std::string_view kDeviationWord = "standard deviation";

std::vector<OriginClass> Classes() {
  OriginClass both{
      0,
      0,
      false,
      false,
      {{2, 2, 2, "2 C", "2"},
       {2, 1, 1, "2 C", "1"},
       {2, 0, 0, "2 C", "0"},
       {1, 1, 1, "C + UC", "1"},
       {1, 0, 0, "C + UC", "0"},
       {0, 0, 0, "2 UC", "0"}},
      {"C X C :", kTwoParents, "   C X C", "C X C :", kTwoParents,
       "C X C : TWO COLLECTED OR PSEUDO-COLLECTED PARENTS", 4, "/Iterations - results_2collpar.xls",
       kTwoParents, "Iteration", kDeviationWord}};
  OriginClass one{0,
                  1,
                  false,
                  true,
                  {{2, 1, 1, "2 C", "1"},
                   {2, 0, 0, "2 C", "0"},
                   {1, 1, 2, "C + UC", "1"},
                   {1, 0, 1, "C + UC", "0"},
                   {0, 0, 1, "2 UC", "0"}},
                  {"C X U :", kOneParent, "   C X U", "C X U :", kOneParent,
                   "C X U : ONE COLLECTED OR PSEUDO-COLLECTED PARENT", 3,
                   "/Iterations - results_1collpar.xls", kOneParent, "Iteration", kDeviationWord}};
  OriginClass none{
      1,
      1,
      true,
      true,
      {{2, 0, 0, "2 C", "0"}, {1, 0, 1, "C + UC", "0"}, {0, 0, 2, "2 UC", "0"}},
      {"U X U :", kZeroParents, "   U X U", "U X U :", kZeroParents,
       "U X U : ZERO COLLECTED OR PSEUDO-COLLECTED PARENT", 2, "/Iterations - results_0collpar.xls",
       kZeroParents, "Iteration", kDeviationWord}};
  return {both, one, none};
}

SimulationDesign MakeDesign() {
  SimulationDesign design;
  design.flow = Flow::kNonSexed;
  design.groups = {{0, true, "/pseudo-collected parents.txt"},
                   {0, false, "/uncollected parents.txt"}};
  design.classes = Classes();
  design.global_rows = GlobalRows::kWeighted;
  design.global_label = "GLOBAL RESULTS AFTER WEIGHING OF 3 PARTIAL RESULTS ";
  design.global_size_row = 4;
  design.global_block_title = "GLOBAL RESULTS AFTER WEIGHING OF 3 PARTIAL RESULTS ";
  design.statistics_heads = "Allocated\tCorrect\t   Average\t       SD\n";
  design.both_correct_label = "2";
  design.row_spread = SpreadKind::kDifferences;
  design.table_spread = SpreadKind::kDifferences;
  design.columns = {"Corr_2_par", "Corr_1_par", "Corr_0_par", "Ambiguous", "Nulls"};
  design.ratio_columns = {"Corr_2_par/all_assigned", "Corr_1_par/all_assigned",
                          "Corr_0_par/all_assigned"};
  design.assigned_columns = 3;
  design.classes_have_ratios = true;
  design.short_columns = {"Corr_2_par", "Corr_1_par", "Corr_0_par", "Amb", "Nulls"};
  design.short_ratio_columns = design.ratio_columns;
  design.global_file = "/Iterations - global results.xls";
  design.global_title = "GLOBAL RESULTS (AFTER WEIGHING OF 3 PARTIAL RESULTS)";
  design.global_word = "Iteration";
  design.global_deviation = kDeviationWord;
  design.figures = kFigures;
  design.any_correct_figure = kAnyCorrect;
  design.detailed_file = "/Detailled summary.xls";
  design.matrices_file = "/Iterations - transmission matrices.xls";
  design.closing_sentence = "calculations completed!";
  return design;
}

/// Counts of sides over all rows of a class.
struct SideSums {
  std::int32_t collected = 0;
  std::int32_t right_collected = 0;
  std::int32_t uncollected = 0;
  std::int32_t right_uncollected = 0;
};

/// A side left unallocated is right as long as there is an uncollected true parent for it.
SideSums SumSides(const OriginClass& origin, const ClassCounts& counts) {
  const int uncollected_parents =
      (origin.first_uncollected ? 1 : 0) + (origin.second_uncollected ? 1 : 0);
  SideSums sums;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const std::int32_t count = counts.rows.at(row);
    const int unallocated = 2 - origin.rows[row].allocated;
    sums.collected += origin.rows[row].allocated * count;
    sums.right_collected += origin.rows[row].correct * count;
    sums.uncollected += unallocated * count;
    sums.right_uncollected += std::min(unallocated, uncollected_parents) * count;
  }
  return sums;
}

class Simulation final : public SimulationFlow {
 public:
  const SimulationDesign& Design() const override { return design_; }

  std::vector<double> Weights(const SimulationSettings& settings,
                              std::span<const double> collected) const override {
    const double p = collected[0] / (collected[0] + settings.sets[0].uncollected);
    return {p * p, 2 * p * (1 - p), (1 - p) * (1 - p)};
  }

  std::vector<std::int32_t> ClassSizes(const SimulationSettings& settings,
                                       std::span<const double> collected) const override {
    const double n = settings.offspring_per_iteration;
    const double total = collected[0] + settings.sets[0].uncollected;
    const double p = collected[0] / total;
    const double q = settings.sets[0].uncollected / total;
    return {static_cast<std::int32_t>(n * p * p), static_cast<std::int32_t>(2 * n * p * q),
            static_cast<std::int32_t>(n * q * q)};
  }

  void FillFigures(const OriginClass& origin, const ClassCounts& counts,
                   std::span<double> figures) const override {
    std::array<std::int32_t, 3> by_sides{};
    for (std::size_t row = 0; row < origin.rows.size(); ++row) {
      by_sides.at(origin.rows[row].allocated) += counts.rows.at(row);
    }
    const SideSums sides = SumSides(origin, counts);
    const double all_sides = 2.0 * counts.size;
    figures[kBothCollected] = counts.Share(by_sides[2]);
    figures[kOneCollected] = counts.Share(by_sides[1]);
    figures[kNoneCollected] = counts.Share(by_sides[0]);
    figures[kToCollected] = Ratio(sides.collected, all_sides);
    figures[kToUncollected] = Ratio(sides.uncollected, all_sides);
    figures[kRightToCollected] = Ratio(sides.right_collected, all_sides);
    figures[kRightToUncollected] = Ratio(sides.right_uncollected, all_sides);
    figures[kAnyCorrect] = CorrectFrequency(origin, counts);
  }

  void FillColumns(const ClassCounts& counts, std::span<double> columns) const override {
    columns[0] = counts.Share(counts.single_pair[2]);
    columns[1] = counts.Share(counts.single_pair[1]);
    columns[2] = counts.Share(counts.single_pair[0]);
    columns[3] = counts.Share(counts.ambiguous);
    columns[4] = counts.Share(counts.nulls);
  }

  std::vector<std::string_view> ExtraLabels(const OriginClass& origin) const override {
    if (!origin.second_uncollected) {
      return {"2 correct", "1 correct", "0 correct"};
    }
    if (!origin.first_uncollected) {
      return {"correct", "incorrect"};
    }
    return {"counted"};
  }

  double ExtraFrequency(const OriginClass& origin, const ClassCounts& counts,
                        std::size_t extra) const override {
    const std::size_t labels = ExtraLabels(origin).size();
    if (labels == 1) {
      return counts.Share(counts.size);
    }
    return counts.Share(counts.first_pair.at(labels - 1 - extra));
  }

  std::vector<std::string_view> GlobalExtraLabels() const override { return {"combined"}; }

  double GlobalExtraFrequency(const IterationCounts& counts) const override {
    const double sides =
        2.0 * counts[0].first_pair[2] + counts[1].first_pair[1] + counts[0].first_pair[1];
    return Ratio(sides * 0.5, counts[0].size + counts[1].size + counts[2].size);
  }

  std::string_view TypeLine(Procedure procedure) const override {
    return procedure == Procedure::kParental ? "Type of simulations : non-sexed parental"
                                             : "Type of simulations : non-sexed preparental";
  }

  std::string ParameterHead(const SimulationSettings& settings,
                            const SimulationInput& input) const override;
  std::string AverageLines(std::span<const double> figures) const override;
  std::string StatisticsLegend() const override;
  std::string SequenceSections(
      std::span<const std::vector<double>> figures_of_combinations) const override;

  std::string_view SequenceTitle() const override {
    return "NON-SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI";
  }
  std::string_view SequenceLegend() const override { return "C : Collected  /  UC : Uncollected"; }

 private:
  SimulationDesign design_ = MakeDesign();
};

std::string Simulation::ParameterHead(const SimulationSettings& settings,
                                      const SimulationInput& input) const {
  const ParentalSet& set = settings.sets[0];
  const bool parental = settings.procedure == Procedure::kParental;
  const std::string collected = FormatDouble(input.collected_numbers[0]);
  std::string lines;
  if (parental) {
    lines += LabelLine("Collected parents file :", set.collected_file);
  } else {
    lines +=
        LabelLine("Sample to generate pseudo-collected parents :", set.pseudo_collected_sample);
    lines += LabelLine("Size of pseudo-collected parents group : ", collected);
  }
  lines += LabelLine("Sample to generate uncollected parents :", set.uncollected_sample);
  lines += LabelLine("Name of loci file :", settings.loci_file);
  if (parental) {
    lines += LabelLine("Size of collected parents group : ", collected);
  }
  lines += LabelLine("Estimated number of uncollected parents :", FormatDouble(set.uncollected));
  lines += LabelLine("Number of iterations : ", std::to_string(settings.iterations));
  lines += LabelLine("Number of pseudo-offspring generated at each iteration :",
                     std::to_string(settings.offspring_per_iteration));
  const double p = input.collected_numbers[0] / (input.collected_numbers[0] + set.uncollected);
  return lines +
         LabelLine("Proportion of collected or pseudo-collected parents :", FormatDouble(p));
}

std::string Simulation::AverageLines(std::span<const double> figures) const {
  const auto line = [](std::string_view label, double value) {
    return fmt::format("{}\t\t\t\t{}\n", label, FormatDouble(value));
  };
  return "DEFINITIONS :\n"
         "Collected :\tallocation to a collected or pseudo-collected parent\n"
         "UC :\tnon-allocation, the parent is taken as uncollected\n"
         "Correct :\tallocation to a true parent, or UC for a true parent that is uncollected\n"
         "2 C :\tone collected + one collected\n"
         "C + UC :\tone collected + one uncollected\n"
         "2 UC :\tone uncollected + one uncollected\n"
         "\n\n"
         "AVERAGE RESULTS OVER ALL ITERATIONS AND OFFSPRING :\n"
         "PROPORTIONS OF PAIR ALLOCATIONS\n" +
         line("2 C", figures[kBothCollected]) + line("C + UC", figures[kOneCollected]) +
         line("2 UC", figures[kNoneCollected]) + "\n\nPROPORTIONS OF SINGLE ALLOCATIONS\n" +
         line("to coll", figures[kToCollected]) + line("to uncoll", figures[kToUncollected]) +
         "\n\nESTIMATED CORRECTNESS PROBABILITIES\n" + line("any alloc", figures[kAnyCorrect]) +
         line("to coll", Ratio(figures[kRightToCollected], figures[kToCollected])) +
         line("to uncoll", Ratio(figures[kRightToUncollected], figures[kToUncollected])) + "\n\n";
}

std::string Simulation::StatisticsLegend() const {
  return "Average :\taverage frequency taken over all iterations.\n"
         "SD :\tstandard deviation of frequencies taken over all iterations.\n"
         "Allocation :\tallocation to a collected parent.\n"
         "First pair :\tmost likely pair found first, whatever its offsets.\n";
}

std::string Simulation::SequenceSections(
    std::span<const std::vector<double>> figures_of_combinations) const {
  std::string pairs = "PROPORTIONS OF PAIR ALLOCATIONS\nCombin #\t2 C\tC + UC\t2 UC\n";
  std::string singles = "PROPORTIONS OF SINGLE ALLOCATIONS\nCombin #\tto coll\tto uncoll\n";
  std::string correct =
      "ESTIMATED CORRECTNESS PROBABILITIES\nCombin #\tany alloc\tto coll\tto uncoll\n";
  for (std::size_t j = 0; j < figures_of_combinations.size(); ++j) {
    const auto& figures = figures_of_combinations[j];
    pairs +=
        fmt::format("{}\t{}\t{}\t{}\n", j + 1, FormatDouble(figures[kBothCollected]),
                    FormatDouble(figures[kOneCollected]), FormatDouble(figures[kNoneCollected]));
    singles += fmt::format("{}\t{}\t{}\n", j + 1, FormatDouble(figures[kToCollected]),
                           FormatDouble(figures[kToUncollected]));
    correct +=
        fmt::format("{}\t{}\t{}\t{}\n", j + 1, FormatDouble(figures[kAnyCorrect]),
                    FormatDouble(Ratio(figures[kRightToCollected], figures[kToCollected])),
                    FormatDouble(Ratio(figures[kRightToUncollected], figures[kToUncollected])));
  }
  return pairs + '\n' + singles + '\n' + correct;
}

}  // namespace

const SimulationFlow& NonSexedSimulation() {
  static const Simulation flow;
  return flow;
}

}  // namespace kaldo
