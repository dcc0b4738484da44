// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/simulation_result_text.h"

#include <cmath>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/number_text.h"
#include "base/problem.h"
#include "base/version.h"
#include "confidence/confidence_run.h"
#include "runs/project_folder.h"
#include "simulation/allocation_model.h"
#include "simulation/figures/subset_ranking.h"
#include "simulation/off_ladder.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/scan_report.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

/// Four decimals; "NA" for what nothing can be said of.
std::string OrNone(double value) { return std::isnan(value) ? "NA" : fmt::format("{:.4f}", value); }

/// Four decimals; "nan" for a deviation that rounding made none, whatever its sign bit.
std::string Decimals(double value) {
  return std::isnan(value) ? "nan" : fmt::format("{:.4f}", value);
}

/// Per class and globally, from the last subset of loci.
std::string CorrectRows(const SimulationSettings& settings, const SimulationResult& result) {
  constexpr std::string_view kRow = "  {:<12}{:>10}{:>12}{:>12}\n";
  const SimulationTexts& texts = TextsOf(settings.flow);
  std::string text = fmt::format(kRow, "true parents", "offspring", "correct", "sd");
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    const OriginStatistics& origin = result.origins[k];
    const Spread& correct = origin.correct.spread;
    text += fmt::format(kRow, texts.origins[k].label, origin.offspring,
                        origin.is_empty ? "NA" : Decimals(correct.mean),
                        origin.is_empty ? "NA" : Decimals(correct.deviation));
  }
  const bool weighted = DesignOf(settings.flow).global_rows == GlobalRows::kWeighted;
  return text + fmt::format("  (GLOBAL is {})\n",
                            EstimateScopes(settings.flow).at(weighted ? 0 : 1).words);
}

/// Every estimated probability with its deviation and its error, from the last subset of loci.
std::string EstimateRows(const SimulationSettings& settings, const SimulationResult& result) {
  constexpr std::string_view kRow = "    {:<42}{:>8}{:>10}{:>10}\n";
  std::string text =
      fmt::format("\n  estimated probability that any allocation is correct: {:.4f}\n\n",
                  result.LastSubset().probabilities.any);
  text += fmt::format(kRow, "estimated probability to be correct", "mean", "sd", "se");
  const auto scopes = EstimateScopes(settings.flow);
  for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
    text += fmt::format("  {}:\n", scopes[scope].words);
    const KindEstimates& estimates = EstimatesIn(result.LastSubset().estimates, scope);
    for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
      const Estimate& estimate = EstimateOfKind(estimates, kind.kind);
      text += fmt::format(kRow, kind.words, OrNone(estimate.value), OrNone(estimate.deviation),
                          OrNone(estimate.error));
    }
  }
  if (settings.until_error) {
    text += fmt::format("  after {} iterations, of {} at most\n", result.LastSubset().iterations,
                        settings.iterations);
  }
  return text;
}

/// Subsets with their figures, at the places told.
template <typename Places>
std::string RankedRows(const SimulationRun& run, const Places& places) {
  std::string text;
  for (const std::size_t place : places) {
    const SubsetFigures& subset = run.result.subsets[place];
    const Estimate& any = EstimateOfKind(subset.estimates.population, AllocationKind::kAny);
    text +=
        fmt::format("  {:.4f}  se {:<6}  {:>2}  {}\n", subset.probabilities.any, OrNone(any.error),
                    subset.loci.size(), NamesOf(run.input.loci, subset.loci));
  }
  return text;
}

std::string CriterionText(const SimulationSettings& settings, const SimulationRun& run) {
  if (settings.strategy != LociStrategy::kMinimal) {
    return {};
  }
  if (run.result.criterion_reached) {
    return fmt::format("The criterion {} has been reached with {} loci.\n", settings.criterion,
                       run.result.LastSubset().loci.size());
  }
  std::string text = fmt::format("No subset reached the criterion {}.\n", settings.criterion);
  if (const auto& subsets = run.input.subsets; subsets.Count() < subsets.InAll()) {
    text +=
        fmt::format("The first {} of {} subsets were run; --start-with goes on with larger ones.\n",
                    subsets.Count(), subsets.InAll());
  }
  return text;
}

/// The subsets that a strategy ran through: the best of each size, and the best of all.
std::string SubsetRows(const SimulationSettings& settings, const SimulationRun& run) {
  constexpr std::size_t kMostRows = 20;
  if (settings.strategy == LociStrategy::kChoice) {
    return {};
  }
  const std::vector<SubsetFigures>& subsets = run.result.subsets;
  std::string text =
      fmt::format("Subsets of loci run: {}; any allocation correct:\n", subsets.size());
  std::vector<std::size_t> best;
  for (const auto& [size, place] : BestSubsets(subsets)) {
    best.push_back(place);
  }
  const bool has_others = best.size() < subsets.size();
  text += (has_others ? " best of each size\n" : "") + RankedRows(run, best);
  if (has_others) {
    auto ranked = RankSubsets(subsets);
    ranked.resize(std::min(ranked.size(), kMostRows));
    text += " best of all\n" + RankedRows(run, ranked);
  }
  return text + fmt::format("All of them stand in {}.\n", kSubsetsFile.substr(1)) +
         CriterionText(settings, run) + "\nWith the last of them:\n";
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

/// A long sentence in lines that fit a terminal.
std::string Wrapped(std::string text) {
  constexpr std::size_t kWidth = 100;
  for (std::size_t begin = 0; text.size() > begin + kWidth;) {
    const std::size_t blank = text.rfind(' ', begin + kWidth);
    text[blank] = '\n';
    begin = blank + 1;
  }
  return text;
}

/// The simulations of a scan, the best marked.
std::string ScanText(const SimulationTexts& texts, const SimulationResult& result) {
  if (result.scan.empty()) {
    return {};
  }
  constexpr std::string_view kRow = "{:>3} {:>9}{:>14}{:>10}{:>10}";
  std::string text = "\nScan, any allocation correct:\n" +
                     fmt::format(kRow, "", "tolerance", "uncollected", "correct", "se");
  for (std::size_t k = 0; k + 1 < texts.origins.size(); ++k) {
    text += fmt::format("{:>10}", ClassColumn(texts.origins[k].label));
  }
  for (const ScanRow& row : result.scan) {
    std::vector<std::string> uncollected;
    uncollected.reserve(row.uncollected.size());
    for (const double number : row.uncollected) {
      uncollected.push_back(FormatDouble(number));
    }
    text += '\n' + fmt::format(kRow, row.is_best ? "*" : "", row.tolerance.Value(),
                               fmt::format("{}", fmt::join(uncollected, " + ")), Decimals(row.any),
                               row.any_error ? Decimals(*row.any_error) : "NA");
    for (const auto& of_class : row.by_class) {
      text += fmt::format("{:>10}", of_class ? Decimals(*of_class) : "NA");
    }
  }
  return text + "\n  *: the best; differences within two standard errors (se) may be chance\n";
}

/// Said where a tenth or more of the errors wanted cannot happen: those who chose the model should
/// know that fewer readings are wrong than it says.
std::string OffLadderText(const SimulationSettings& settings, const SimulationInput& input) {
  constexpr double kNegligible = 0.1;
  double sum = 0;
  double most = 0;
  std::size_t loci = 0;
  std::string where;
  const auto shares = OffLadderShares(settings, input);
  for (std::uint32_t k = 0; k < shares.size(); ++k) {
    if (shares[k]) {
      ++loci;
      sum += *shares[k];
      if (*shares[k] > most) {
        most = *shares[k];
        where = input.loci.Name(LocusIndex{k});
      }
    }
  }
  if (loci == 0 || sum < kNegligible * static_cast<double>(loci)) {
    return {};
  }
  return fmt::format(
      "\n{:.0f} % of the errors of this model would leave the ladder of sizes (at {} {:.0f} %) and "
      "do "
      "not\nhappen: the parent's own allele is read.\n",
      100 * sum / static_cast<double>(loci), Escaped(where), 100 * most);
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

std::string ShortResult(const SimulationSettings& settings, const SimulationRun& run,
                        const std::vector<std::string>& exports) {
  const bool modern = settings.random == RandomSource::kModern;
  std::string text = fmt::format("KALDO {}\n{}\n  {}  seed {}{}\n\n", Version(), TypeLine(settings),
                                 InputSummary(settings, run.input), run.result.seed,
                                 modern ? "\n  modern random numbers" : "");
  text += SubsetRows(settings, run) + CorrectRows(settings, run.result);
  text += EstimateRows(settings, run.result);
  text += ReliabilityText(settings, run.result);
  text += ScanText(TextsOf(settings.flow), run.result);
  text += OffLadderText(settings, run.input);
  if (const auto note = AllocatedWithoutErrorsNote(settings, "--allocate-with run")) {
    text += '\n' + Wrapped(*note) + '\n';
  }
  text +=
      fmt::format("\nFiles in \"{}\", first of all {}\n", settings.project, kSummaryFile.substr(1));
  for (const std::string& file : exports) {
    text += fmt::format("  {}\n", file);
  }
  text += '\n';
  if (run.result.stepping.any_out_of_step) {
    text.append(kSteppingSentence).append("\n");
  }
  return text.append(TextsOf(settings.flow).closing_sentence).append("\n");
}

}  // namespace kaldo
