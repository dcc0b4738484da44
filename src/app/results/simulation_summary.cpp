// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/simulation_summary.h"

#include <cmath>

#include <fmt/format.h>

#include "app/base/text.h"
#include "base/number_text.h"
#include "confidence/intervals.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"
#include "simulation/allocation_model.h"
#include "simulation/reports/estimate_texts.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/reports/subset_title.h"
#include "simulation/simulation_banner.h"

namespace kaldo {

namespace {

/// A title of the reports as the name of a class: "C X U :" is "C X U".
QString ClassName(const OriginTexts& texts) {
  QString name = Text(texts.label).trimmed();
  if (name.endsWith(QLatin1Char(':'))) {
    name.chop(1);
  }
  return name.trimmed();
}

std::optional<double> NumberIfAny(double number) {
  return std::isnan(number) ? std::nullopt : std::optional(number);
}

void AddParents(const SimulationSettings& settings, Summary& summary) {
  const bool sexed = settings.flow == Flow::kSexed;
  const auto sets = settings.Sets();
  for (std::size_t k = 0; k < sets.size(); ++k) {
    const std::string who = !sexed ? "parents" : k == 0 ? "males" : "females";
    const ParentalSet& set = sets[k];
    if (settings.procedure == Procedure::kParental) {
      summary.lines.emplace_back(Text("collected " + who), PathText(set.collected_file));
    } else {
      summary.lines.emplace_back(Text("pseudo-collected " + who),
                                 Text(fmt::format("{} drawn from ", set.pseudo_collected)) +
                                     PathText(set.pseudo_collected_sample));
    }
    summary.lines.emplace_back(
        Text("uncollected " + who),
        Text(FormatDouble(set.uncollected) + " drawn from ") + PathText(set.uncollected_sample));
  }
  summary.lines.emplace_back(Text("names of loci file"), PathText(settings.loci_file));
}

void AddFigures(const SimulationSettings& settings, const SimulationRun& run, Summary& summary) {
  const SimulationResult& result = run.result;
  const SimulationInput& input = run.input;
  const auto add = [&summary](std::string_view label, const std::string& text) {
    summary.lines.emplace_back(Text(label), Text(text));
  };
  add("true parents",
      fmt::format("{} candidates, {} in all", input.candidates.Size(), input.NumberOfParents()));
  add("pseudo-offspring",
      fmt::format("{} x {} iterations", input.OffspringPerIteration(), settings.iterations));
  add("loci in use", fmt::format("{} of {}", input.loci.LociInUse().size(), input.loci.Count()));
  add("error model", ShortDescription(settings.error_model));
  if (settings.flow == Flow::kNonSexed && settings.error_model.kind != ErrorKind::kNoError) {
    add("allocated with", ShortDescription(AllocationModelOf(settings)));
  }
  add("maximal offset tolerance", std::to_string(settings.tolerance.Value()));
  add("seed", std::to_string(result.seed));
  add("last loci run", NamesOf(input.loci, result.LastSubset().loci));
  if (settings.random == RandomSource::kModern) {
    add("random numbers", "modern");
  }
  if (settings.until_error) {
    add("iterations run", std::to_string(result.LastSubset().iterations));
  }
  const Estimate& any =
      EstimateOfKind(result.LastSubset().estimates.population, AllocationKind::kAny);
  const std::string error = std::isnan(any.error) ? "NA" : FormatDouble(any.error);
  add("any allocation correct",
      fmt::format("{} (estimated probability in the population, standard error {})",
                  FormatDouble(result.LastSubset().probabilities.any), error));
}

/// "0.912 (0.88 to 0.95)"
QString WithInterval(const Estimate& estimate) {
  if (std::isnan(estimate.value)) {
    return Text("NA");
  }
  if (std::isnan(estimate.error)) {
    return Text(fmt::format("{:.3f} (NA after one iteration)", estimate.value));
  }
  const Interval interval = NormalInterval(estimate.value, estimate.error);
  return Text(fmt::format("{:.3f} ({:.3f} to {:.3f})", estimate.value, interval.from, interval.to));
}

void AddEstimates(const SimulationSettings& settings, const SimulationRun& run, Summary& summary) {
  summary.headline = Text(SimulationBanner(settings, run.input));
  summary.figures_title =
      Text("Estimated probability to be correct, in the population, with its 95 % interval:");
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    summary.figures.emplace_back(
        Text(kind.words),
        WithInterval(EstimateOfKind(run.result.LastSubset().estimates.population, kind.kind)));
  }
}

void AddSubsets(const SimulationSettings& settings, const SimulationResult& result,
                Summary& summary) {
  if (settings.strategy == LociStrategy::kChoice) {
    return;
  }
  summary.notes += Text(fmt::format("Subsets of loci run: {}.", result.subsets.size()));
  if (result.criterion_reached) {
    summary.notes +=
        Text(fmt::format("The criterion {} has been reached with {} loci.",
                         FormatDouble(settings.criterion), result.LastSubset().loci.size()));
  } else if (settings.strategy == LociStrategy::kMinimal) {
    summary.warnings +=
        Text(fmt::format("No subset reached the criterion {}.", FormatDouble(settings.criterion)));
  }
}

/// All files that a simulation of this flow may write.
std::vector<std::string_view> FilesOf(const SimulationTexts& texts) {
  std::vector<std::string_view> files = {kSummaryFile, texts.origins.back().table_file};
  for (std::size_t k = 0; k + 1 < texts.origins.size(); ++k) {
    files.push_back(texts.origins[k].table_file);
  }
  files.insert(files.end(), {texts.detailed_file, kScanFile, kSequenceResultsFile,
                             kSteppingErrorFile, kServiceFile, texts.matrices_file});
  files.insert(files.end(), texts.group_files.begin(), texts.group_files.end());
  files.insert(files.end(), {kPseudoOffspringFile, kSubsetsFile, kRunRecordFile});
  return files;
}

}  // namespace

std::vector<Correctness> CorrectnessOf(Flow flow, const SimulationResult& result) {
  std::vector<Correctness> classes;
  for (std::size_t k = 0; k < result.origins.size(); ++k) {
    const OriginTexts& texts = TextsOf(flow).origins[k];
    const OriginStatistics& origin = result.origins[k];
    Correctness& correctness = classes.emplace_back();
    correctness.name = ClassName(texts);
    correctness.text = Text(texts.label_text);
    correctness.offspring = origin.offspring;
    if (!origin.is_empty) {
      correctness.values = origin.correct.values;
      correctness.spread = origin.correct.spread;
    }
  }
  return classes;
}

Summary SummaryOf(const SimulationSettings& settings, const SimulationRun& run,
                  const QString& folder) {
  Summary summary;
  summary.title =
      Text(fmt::format("{} simulation, {}{}", settings.flow == Flow::kSexed ? "Sexed" : "Non-sexed",
                       settings.procedure == Procedure::kParental ? "PARENTAL" : "PRE-PARENTAL",
                       LastCombinationNote(settings.strategy)));
  AddEstimates(settings, run, summary);
  AddParents(settings, summary);
  AddFigures(settings, run, summary);
  if (const auto note = AllocatedWithoutErrorsNote(
          settings, "the choice \"with the same transmission error\" beside the tolerance")) {
    summary.warnings += Text(*note);
  }
  for (const std::string& line : WarningLines(run.input.warnings)) {
    summary.warnings += Text(line);
  }
  if (run.result.stepping.any_out_of_step) {
    summary.warnings += Text(kSteppingSentence);
  }
  AddSubsets(settings, run.result, summary);
  summary.files_title = Text("Files in \"%1\"").arg(folder);
  summary.files = FilesPresent(folder, FilesOf(TextsOf(settings.flow)));
  return summary;
}

BarChart CorrectnessChart(const SimulationSettings& settings,
                          const std::vector<Correctness>& classes) {
  BarChart chart;
  chart.texts = {Text("Correct decisions by origin of the offspring") +
                     Text(LastCombinationNote(settings.strategy)),
                 Text("true parents"), Text("correct, mean and sd"), true};
  chart.series.name = Text("correct");
  for (const Correctness& of_class : classes) {
    chart.categories.push_back(of_class.name);
    ChartValue value;
    value.deviation = std::optional<double>();
    if (of_class.spread) {
      value = {of_class.spread->mean, of_class.spread->deviation};
    }
    chart.series.values.push_back(value);
  }
  return chart;
}

DataTable CorrectnessTable(const std::vector<Correctness>& classes) {
  DataTable table{{Text("true parents"), Text("offspring"), Text("correct"), Text("sd")}, {}};
  for (const Correctness& of_class : classes) {
    std::optional<double> mean;
    std::optional<double> deviation;
    if (of_class.spread) {
      mean = of_class.spread->mean;
      deviation = of_class.spread->deviation;
    }
    table.rows.push_back({of_class.name, ShortNumber(of_class.offspring), ShortNumber(mean),
                          ShortNumber(deviation)});
  }
  return table;
}

LineChart SequenceChart(Flow flow, const SimulationRun& run) {
  LineChart chart;
  chart.texts = {Text("Correct allocations in the population, by number of loci"), Text("loci"),
                 Text("estimated probability"), true};
  chart.label_title = Text("added");
  for (const SubsetFigures& subset : run.result.subsets) {
    chart.positions.push_back(static_cast<double>(subset.loci.size()));
    chart.labels.push_back(Text("+ ") + Text(run.input.loci.Name(subset.loci.back())));
  }
  const auto add = [&](const std::string& name, std::size_t scope, AllocationKind kind) {
    ChartSeries& series = chart.series.emplace_back(ChartSeries{Text(name), {}});
    for (const SubsetFigures& subset : run.result.subsets) {
      const Estimate& estimate = EstimateOfKind(EstimatesIn(subset.estimates, scope), kind);
      series.values.push_back({NumberIfAny(estimate.value), {}});
    }
  };
  for (const EstimateKind& kind : EstimateKinds(flow)) {
    add(kind.column, 0, kind.kind);
  }
  add("any, of these pseudo-offspring", 1, AllocationKind::kAny);
  return chart;
}

BarChart EstimatesChart(const SimulationSettings& settings, const SimulationResult& result) {
  BarChart chart;
  chart.texts = {Text("Estimated probability to be correct, in the population") +
                     Text(LastCombinationNote(settings.strategy)),
                 Text("allocation"), Text("mean and sd"), true};
  chart.series.name = Text("correct");
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    const Estimate& estimate = EstimateOfKind(result.LastSubset().estimates.population, kind.kind);
    chart.categories.push_back(Text(kind.column));
    chart.series.values.push_back({NumberIfAny(estimate.value), NumberIfAny(estimate.deviation)});
  }
  return chart;
}

DataTable EstimatesTable(Flow flow, const SimulationResult& result) {
  DataTable table{{Text("pseudo-offspring"), Text("allocation"), Text("correct"), Text("sd"),
                   Text("se"), Text("from"), Text("to")},
                  {}};
  const auto scopes = EstimateScopes(flow);
  for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
    const KindEstimates& estimates = EstimatesIn(result.LastSubset().estimates, scope);
    for (const EstimateKind& kind : EstimateKinds(flow)) {
      const Estimate& estimate = EstimateOfKind(estimates, kind.kind);
      const bool exact = !std::isnan(estimate.value) && !std::isnan(estimate.error);
      const Interval interval = exact ? NormalInterval(estimate.value, estimate.error)
                                      : Interval{Estimate::kNone, Estimate::kNone};
      table.rows.push_back({Text(scopes[scope].brief), Text(kind.words),
                            NumberOrNone(estimate.value), NumberOrNone(estimate.deviation),
                            NumberOrNone(estimate.error), NumberOrNone(interval.from),
                            NumberOrNone(interval.to)});
    }
  }
  return table;
}

QString NumberOrNone(double number) { return ShortNumber(NumberIfAny(number)); }

}  // namespace kaldo
