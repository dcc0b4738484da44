// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/sexed/sexed_simulation.h"

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/figures.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/sexed/sexed_design.h"

namespace kaldo {

namespace {

constexpr SideCode kMaleSide = 1;
constexpr SideCode kFemaleSide = 2;

/// The estimated share of collected parents among the males or the females of the population.
double CollectedShare(const ParentalSet& set) {
  return set.estimated_collected / (set.estimated_collected + set.estimated_uncollected);
}

/// Counts of sides over all rows of a class.
struct SexedSums {
  std::array<std::int32_t, 4> by_sides{};  ///< offspring by allocated sides
  std::int32_t right_male = 0;
  std::int32_t right_female = 0;
  std::int32_t unallocated = 0;
  std::int32_t right_unallocated = 0;
};

/// An unallocated side is right when the true parent of that sex is uncollected.
SexedSums SumSides(const OriginClass& origin, const ClassCounts& counts) {
  SexedSums sums;
  for (std::size_t row = 0; row < origin.rows.size(); ++row) {
    const OriginRow& kind = origin.rows[row];
    const std::int32_t count = counts.rows.at(row);
    const bool no_male = (kind.allocated & kMaleSide) == 0;
    const bool no_female = (kind.allocated & kFemaleSide) == 0;
    sums.by_sides.at(kind.allocated) += count;
    sums.right_male += (kind.correct & kMaleSide) != 0 ? count : 0;
    sums.right_female += (kind.correct & kFemaleSide) != 0 ? count : 0;
    sums.unallocated += (no_male ? count : 0) + (no_female ? count : 0);
    sums.right_unallocated += (no_male && origin.first_uncollected ? count : 0) +
                              (no_female && origin.second_uncollected ? count : 0);
  }
  return sums;
}

class Simulation final : public SimulationFlow {
 public:
  const SimulationDesign& Design() const override { return design_; }

  std::vector<double> Weights(const SimulationSettings& settings,
                              std::span<const double> /*collected*/) const override {
    const double pm = CollectedShare(settings.sets[0]);
    const double pf = CollectedShare(settings.sets[1]);
    return {pm * pf, pm * (1 - pf), (1 - pm) * pf, (1 - pm) * (1 - pf)};
  }

  std::vector<std::int32_t> ClassSizes(const SimulationSettings& settings,
                                       std::span<const double> /*collected*/) const override {
    const double pm = CollectedShare(settings.sets[0]);
    const double pf = CollectedShare(settings.sets[1]);
    const double n = settings.offspring_per_iteration;
    // Formed in this order and truncated; what is lost is not made up for.
    return {static_cast<std::int32_t>(n * pf * pm), static_cast<std::int32_t>((1 - pf) * n * pm),
            static_cast<std::int32_t>((1 - pm) * n * pf),
            static_cast<std::int32_t>((1 - pm) * (1 - pf) * n)};
  }

  void FillFigures(const OriginClass& origin, const ClassCounts& counts,
                   std::span<double> figures) const override {
    const SexedSums sums = SumSides(origin, counts);
    figures[kBothAllocated] = counts.Share(sums.by_sides[3]);
    figures[kMaleAllocated] = counts.Share(sums.by_sides[kMaleSide]);
    figures[kFemaleAllocated] = counts.Share(sums.by_sides[kFemaleSide]);
    figures[kNoneAllocated] = counts.Share(sums.by_sides[0]);
    figures[kToMale] = counts.Share(sums.by_sides[3] + sums.by_sides[kMaleSide]);
    figures[kToFemale] = counts.Share(sums.by_sides[3] + sums.by_sides[kFemaleSide]);
    figures[kRightToMale] = counts.Share(sums.right_male);
    figures[kRightToFemale] = counts.Share(sums.right_female);
    figures[kUnallocatedSides] = counts.Share(sums.unallocated);
    figures[kRightUnallocatedSides] = counts.Share(sums.right_unallocated);
    figures[kSexedAnyCorrect] = CorrectFrequency(origin, counts);
  }

  void FillColumns(const ClassCounts& counts, std::span<double> columns) const override {
    const double both = counts.Share(counts.single_pair[3]);
    const double male = counts.Share(counts.single_pair[kMaleSide]);
    const double female = counts.Share(counts.single_pair[kFemaleSide]);
    const double none = counts.Share(counts.single_pair[0]);
    columns[0] = both;
    columns[1] = male + female + none;
    columns[2] = both + male;
    columns[3] = female + none;
    columns[4] = both + female;
    columns[5] = male + none;
    columns[6] = counts.Share(counts.ambiguous);
    columns[7] = counts.Share(counts.nulls);
  }

  std::vector<std::string_view> ExtraLabels(const OriginClass& /*origin*/) const override {
    return {};
  }
  double ExtraFrequency(const OriginClass& /*origin*/, const ClassCounts& /*counts*/,
                        std::size_t /*extra*/) const override {
    return 0;
  }
  std::vector<std::string_view> GlobalExtraLabels() const override { return {}; }
  double GlobalExtraFrequency(const IterationCounts& /*counts*/) const override { return 0; }

  std::string_view TypeLine(Procedure procedure) const override {
    return procedure == Procedure::kParental ? "Type of simulations : sexed parental"
                                             : "Type of simulations : sexed preparental";
  }

  std::string ParameterHead(const SimulationSettings& settings,
                            const SimulationInput& input) const override;
  std::string AverageLines(std::span<const double> figures) const override;
  std::string StatisticsLegend() const override;
  std::string SequenceSections(
      std::span<const std::vector<double>> figures_of_combinations) const override;

  std::string_view SequenceTitle() const override {
    return "SEXED SIMULATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI";
  }
  std::string_view SequenceLegend() const override {
    return "M : Male  /  F : Female  /  C : Collected  /  UC : Uncollected";
  }

 private:
  SimulationDesign design_ = SexedDesign();
};

std::string Simulation::ParameterHead(const SimulationSettings& settings,
                                      const SimulationInput& input) const {
  const ParentalSet& males = settings.sets[0];
  const ParentalSet& females = settings.sets[1];
  const bool parental = settings.procedure == Procedure::kParental;
  const std::string male_count = FormatDouble(input.collected_numbers[0]);
  const std::string female_count = FormatDouble(input.collected_numbers[1]);
  std::string lines;
  if (parental) {
    lines += LabelLine("Collected male parents file :", males.collected_file) +
             LabelLine("Collected female parents file :", females.collected_file);
  } else {
    lines += LabelLine("Sample to generate pseudo-collected male parents :",
                       males.pseudo_collected_sample) +
             LabelLine("Sample to generate pseudo-collected female parents :",
                       females.pseudo_collected_sample) +
             LabelLine("Size of pseudo-collected male parental group :", male_count) +
             LabelLine("Size of pseudo-collected female parental group :", female_count);
  }
  lines +=
      LabelLine("Sample to generate uncollected male parents :", males.uncollected_sample) +
      LabelLine("Sample to generate uncollected female parents :", females.uncollected_sample) +
      LabelLine("Name of loci file :", settings.loci_file);
  if (parental) {
    lines += LabelLine("Size of collected male parental group :", male_count) +
             LabelLine("Size of collected female parental group :", female_count);
  }
  return lines +
         LabelLine("Size of uncollected male parental group :", FormatDouble(males.uncollected)) +
         LabelLine("Size of uncollected female parental group :",
                   FormatDouble(females.uncollected)) +
         LabelLine("Number of iterations :", std::to_string(settings.iterations)) +
         LabelLine("Number of pseudo-offspring generated at each iteration :",
                   std::to_string(settings.offspring_per_iteration)) +
         LabelLine("Proportion of collected or pseudo-collected male parents :",
                   FormatDouble(CollectedShare(males))) +
         LabelLine("Proportion of collected or pseudo-collected female parents :",
                   FormatDouble(CollectedShare(females)));
}

std::string Simulation::AverageLines(std::span<const double> figures) const {
  const auto line = [](std::string_view label, std::string_view tabs, double value) {
    return fmt::format("{}{}{}\n", label, tabs, FormatDouble(value));
  };
  constexpr std::string_view kFour = "\t\t\t\t";
  constexpr std::string_view kSix = "\t\t\t\t\t\t";
  return "AVERAGE FREQUENCIES OF TYPES OF ALLOCATIONS :\n" +
         line("two collected parents :", kFour, figures[kBothAllocated]) +
         line("one collected male parent and one uncollected (UC) :", kFour,
              figures[kMaleAllocated]) +
         line("one collected female parent and one uncollected (UC) :", kFour,
              figures[kFemaleAllocated]) +
         line("two uncollected (UC) parents :", kFour, figures[kNoneAllocated]) +
         "\n\nAVERAGE PROPORTION OF ALLOCATIONS :\n" +
         line("to a male collected parent   :", kFour, figures[kToMale]) +
         line("to a female collected parent   :", kFour, figures[kToFemale]) +
         "\n\nESTIMATED CORRECTNESS PROBABILITIES :\n" +
         line("estimated probability that any allocation is correct :", kSix,
              figures[kSexedAnyCorrect]) +
         line("estimated probability that an allocation to a collected male parent is correct :",
              kSix, Ratio(figures[kRightToMale], figures[kToMale])) +
         line("estimated probability that an allocation to a collected female parent is correct :",
              kSix, Ratio(figures[kRightToFemale], figures[kToFemale])) +
         line("estimated probability that an allocation to an uncollected parent (UC) is correct :",
              kSix, Ratio(figures[kRightUnallocatedSides], figures[kUnallocatedSides])) +
         "\n\n";
}

std::string Simulation::StatisticsLegend() const {
  return "Correct :\tcorrect allocation of a (pseudo)parent or non-allocation of an uncollected "
         "parent.\n"
         "Average :\taverage frequency taken over all iterations.\n"
         "SD :\tstandard deviation of frequencies taken over all iterations.\n"
         "Allocation :\tallocation to a collected parent.\n";
}

std::string Simulation::SequenceSections(
    std::span<const std::vector<double>> figures_of_combinations) const {
  std::string pairs =
      "PROPORTIONS OF TYPES OF ALLOCATIONS\nPAIR ALLOCATIONS\n"
      "Combin #\tM.C + F.C\tM.C + F.UC\tM.UC + F.C\tM.UC + F.UC\n";
  std::string singles = "SINGLE ALLOCATIONS\nCombin #\tMale coll\tFemale coll\n";
  std::string correct =
      "ESTIMATED CORRECTNESS PROBABILITIES\nCombin #\tAny alloc\tColl M\tColl F\tUncoll\n";
  for (std::size_t j = 0; j < figures_of_combinations.size(); ++j) {
    const auto& figures = figures_of_combinations[j];
    pairs +=
        fmt::format("{}\t{}\t{}\t{}\t{}\n", j + 1, FormatDouble(figures[kBothAllocated]),
                    FormatDouble(figures[kMaleAllocated]), FormatDouble(figures[kFemaleAllocated]),
                    FormatDouble(figures[kNoneAllocated]));
    singles += fmt::format("{}\t{}\t{}\n", j + 1, FormatDouble(figures[kToMale]),
                           FormatDouble(figures[kToFemale]));
    correct += fmt::format(
        "{}\t{}\t{}\t{}\t{}\n", j + 1, FormatDouble(figures[kSexedAnyCorrect]),
        FormatDouble(Ratio(figures[kRightToMale], figures[kToMale])),
        FormatDouble(Ratio(figures[kRightToFemale], figures[kToFemale])),
        FormatDouble(Ratio(figures[kRightUnallocatedSides], figures[kUnallocatedSides])));
  }
  return pairs + '\n' + singles + '\n' + correct;
}

}  // namespace

const SimulationFlow& SexedSimulation() {
  static const Simulation flow;
  return flow;
}

}  // namespace kaldo
