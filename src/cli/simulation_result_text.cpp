// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/simulation_result_text.h"

#include <cmath>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/version.h"
#include "confidence/confidence_run.h"
#include "runs/project_folder.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

/// Four decimals; "nan" for a deviation that rounding made none, whatever its sign bit.
std::string Decimals(double value) {
  return std::isnan(value) ? "nan" : fmt::format("{:.4f}", value);
}

/// Per class and globally, from the last subset of loci.
std::string CorrectRows(const SimulationTexts& texts, const SimulationResult& result) {
  constexpr std::string_view kRow = "  {:<12}{:>10}{:>12}{:>12}\n";
  std::string text = fmt::format(kRow, "true parents", "offspring", "correct", "sd");
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    const OriginStatistics& origin = result.origins[k];
    const Spread& correct = origin.correct.spread;
    text += fmt::format(kRow, texts.origins[k].label, origin.offspring,
                        origin.is_empty ? "NA" : Decimals(correct.mean),
                        origin.is_empty ? "NA" : Decimals(correct.deviation));
  }
  return text + fmt::format("\n  estimated probability that any allocation is correct: {:.4f}\n",
                            result.LastSubset().probabilities.any);
}

/// The subsets that a strategy ran through; of very many only the last.
std::string SubsetRows(const SimulationSettings& settings, const SimulationRun& run) {
  constexpr std::size_t kMostRows = 50;
  const SimulationInput& input = run.input;
  const SimulationResult& result = run.result;
  if (settings.strategy == LociStrategy::kChoice) {
    return {};
  }
  std::string text =
      fmt::format("Subsets of loci run: {}; any allocation correct:\n", result.subsets.size());
  const std::size_t first =
      result.subsets.size() > kMostRows ? result.subsets.size() - kMostRows : 0;
  if (first > 0) {
    text += "  ...\n";
  }
  for (std::size_t j = first; j < result.subsets.size(); ++j) {
    text += fmt::format("  {:.4f}  {}\n", result.subsets[j].probabilities.any,
                        NamesOf(input.loci, result.subsets[j].loci));
  }
  if (result.criterion_reached) {
    text += fmt::format("The criterion {} has been reached with {} loci.\n", settings.criterion,
                        result.LastSubset().loci.size());
  } else if (settings.strategy == LociStrategy::kMinimal) {
    text += fmt::format("No subset reached the criterion {}.\n", settings.criterion);
  }
  return text + "\nWith the last of them:\n";
}

/// Whether the posteriors are as good as they say.
std::string ReliabilityText(const SimulationSettings& settings, const SimulationResult& result) {
  if (!settings.scores_confidence) {
    return {};
  }
  if (!result.reliability) {
    return fmt::format("\n{}\n", kNegativeProbabilitySentence);
  }
  constexpr std::string_view kRow = "  {:<14}{:>10}{:>10}{:>16}{:>16}\n";
  const Reliability& found = *result.reliability;
  std::string text = fmt::format("\nHow sure allocations are ({} sides have a collected parent):\n",
                                 found.collected_sides);
  text += fmt::format(kRow, "named at", "named", "found", "wrong predicted", "wrong counted");
  const auto at = ReliabilityLevels(settings.confidence_level);
  for (std::size_t k = 0; k < at.size(); ++k) {
    text += fmt::format(
        kRow, fmt::format("{:g} or more", at[k]), found.levels[k].sides, found.levels[k].right,
        fmt::format("{:.1f}", found.levels[k].ExpectedWrong()), found.levels[k].Wrong());
  }
  return text;
}

}  // namespace

std::string InputSummary(const SimulationSettings& settings, const SimulationInput& input) {
  return fmt::format(
      "{}, {} in all, {} pseudo-offspring x {}\n"
      "  {} of {} in use, error model {}, maximum offset tolerance {}\n",
      Counted(input.candidates.Size(), "candidate parent", "candidate parents"),
      Counted(input.NumberOfParents(), "true parent", "true parents"),
      input.OffspringPerIteration(),
      Counted(static_cast<std::size_t>(settings.iterations), "iteration", "iterations"),
      input.loci.LociInUse().size(), Counted(input.loci.Count(), "locus", "loci"),
      ShortDescription(settings.error_model), settings.tolerance.Value());
}

std::string ShortResult(const SimulationSettings& settings, const SimulationRun& run) {
  std::string text = fmt::format("KALDO {}\n{}\n  {}  seed {}\n\n", Version(), TypeLine(settings),
                                 InputSummary(settings, run.input), run.result.seed);
  text += SubsetRows(settings, run) + CorrectRows(TextsOf(settings.flow), run.result);
  text += ReliabilityText(settings, run.result);
  text += fmt::format("\nFiles in \"{}\", first of all {}\n\n", settings.project,
                      kSummaryFile.substr(1));
  if (run.result.stepping.any_out_of_step) {
    text.append(kSteppingSentence).append("\n");
  }
  return text.append(TextsOf(settings.flow).closing_sentence).append("\n");
}

}  // namespace kaldo
