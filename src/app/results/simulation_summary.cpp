// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/simulation_summary.h"

#include <cmath>

#include <fmt/format.h>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
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

/// How the lines about a set of parents begin.
struct SetWords {
  Phrase collected;
  Phrase pseudo_collected;
  Phrase uncollected;
};

constexpr SetWords kParents{Phrase("collected parents"), Phrase("pseudo-collected parents"),
                            Phrase("uncollected parents")};
constexpr SetWords kMales{Phrase("collected males"), Phrase("pseudo-collected males"),
                          Phrase("uncollected males")};
constexpr SetWords kFemales{Phrase("collected females"), Phrase("pseudo-collected females"),
                            Phrase("uncollected females")};

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
    const SetWords& words = !sexed ? kParents : k == 0 ? kMales : kFemales;
    const ParentalSet& set = sets[k];
    if (settings.procedure == Procedure::kParental) {
      summary.lines.emplace_back(Tr(words.collected), PathText(set.collected_file));
    } else {
      summary.lines.emplace_back(
          Tr(words.pseudo_collected),
          Tr("%1 drawn from %2")
              .arg(NumberText(set.pseudo_collected), PathText(set.pseudo_collected_sample)));
    }
    summary.lines.emplace_back(Tr(words.uncollected), Tr("%1 drawn from %2")
                                                          .arg(Text(FormatDouble(set.uncollected)),
                                                               PathText(set.uncollected_sample)));
  }
  summary.lines.emplace_back(Tr("names of loci file"), PathText(settings.loci_file));
}

void AddFigures(const SimulationSettings& settings, const SimulationRun& run, Summary& summary) {
  const SimulationResult& result = run.result;
  const SimulationInput& input = run.input;
  const auto add = [&summary](const QString& label, const QString& text) {
    summary.lines.emplace_back(label, text);
  };
  add(Tr("true parents"),
      Tr("%1 candidates, %2 in all").arg(input.candidates.Size()).arg(input.NumberOfParents()));
  add(Tr("pseudo-offspring"),
      Tr("%1 x %2 iterations").arg(input.OffspringPerIteration()).arg(settings.iterations));
  add(Tr("loci in use"), Tr("%1 of %2").arg(input.loci.LociInUse().size()).arg(input.loci.Count()));
  add(Tr("error model"), TrCore(ShortDescription(settings.error_model)));
  if (settings.flow == Flow::kNonSexed && settings.error_model.kind != ErrorKind::kNoError) {
    add(Tr("allocated with"), TrCore(ShortDescription(AllocationModelOf(settings))));
  }
  add(Tr("maximal offset tolerance"), NumberText(settings.tolerance.Value()));
  add(Tr("seed"), QString::number(result.seed));
  add(Tr("last loci run"), Text(NamesOf(input.loci, result.LastSubset().loci)));
  if (settings.random == RandomSource::kModern) {
    add(Tr("random numbers"), Tr("modern"));
  }
  if (settings.until_error) {
    add(Tr("iterations run"), QString::number(result.LastSubset().iterations));
  }
  const Estimate& any =
      EstimateOfKind(result.LastSubset().estimates.population, AllocationKind::kAny);
  add(Tr("any allocation correct"),
      Tr("%1 (estimated probability in the population, standard error %2)")
          .arg(Text(FormatDouble(result.LastSubset().probabilities.any)), NumberOrNone(any.error)));
}

/// "0.912 (0.88 to 0.95)"
QString WithInterval(const Estimate& estimate) {
  if (std::isnan(estimate.value)) {
    return Text("NA");
  }
  if (std::isnan(estimate.error)) {
    return Tr("%1 (NA after one iteration)").arg(estimate.value, 0, 'f', 3);
  }
  const Interval interval = NormalInterval(estimate.value, estimate.error);
  return Tr("%1 (%2 to %3)")
      .arg(estimate.value, 0, 'f', 3)
      .arg(interval.from, 0, 'f', 3)
      .arg(interval.to, 0, 'f', 3);
}

void AddEstimates(const SimulationSettings& settings, const SimulationRun& run, Summary& summary) {
  summary.headline = TrCore(SimulationBanner(settings, run.input));
  summary.figures_title =
      Tr("Estimated probability to be correct, in the population, with its 95 % interval:");
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    summary.figures.emplace_back(
        TrCore(kind.words),
        WithInterval(EstimateOfKind(run.result.LastSubset().estimates.population, kind.kind)));
  }
}

void AddSubsets(const SimulationSettings& settings, const SimulationResult& result,
                Summary& summary) {
  if (settings.strategy == LociStrategy::kChoice) {
    return;
  }
  summary.notes += Tr("Subsets of loci run: %1.").arg(result.subsets.size());
  if (result.criterion_reached) {
    summary.notes += Tr("The criterion %1 has been reached with %2 loci.")
                         .arg(Text(FormatDouble(settings.criterion)))
                         .arg(result.LastSubset().loci.size());
  } else if (settings.strategy == LociStrategy::kMinimal) {
    summary.warnings +=
        Tr("No subset reached the criterion %1.").arg(Text(FormatDouble(settings.criterion)));
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
    correctness.text = TrCore(texts.label_text);
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
  const bool sexed = settings.flow == Flow::kSexed;
  const bool parental = settings.procedure == Procedure::kParental;
  summary.title =
      (sexed ? (parental ? Tr("Sexed simulation, PARENTAL") : Tr("Sexed simulation, PRE-PARENTAL"))
             : (parental ? Tr("Non-sexed simulation, PARENTAL")
                         : Tr("Non-sexed simulation, PRE-PARENTAL"))) +
      TrCore(LastCombinationNote(settings.strategy));
  AddEstimates(settings, run, summary);
  AddParents(settings, summary);
  AddFigures(settings, run, summary);
  if (const auto note = AllocatedWithoutErrorsNote(
          settings,
          Bytes(Tr("the choice \"with the same transmission error\" beside the tolerance")))) {
    summary.warnings += TrCore(*note);
  }
  for (const std::string& line : WarningLines(run.input.warnings)) {
    summary.warnings += TrCore(line);
  }
  if (run.result.stepping.any_out_of_step) {
    summary.warnings += TrCore(kSteppingSentence);
  }
  AddSubsets(settings, run.result, summary);
  summary.files_title = Tr("Files in \"%1\"").arg(folder);
  summary.files = FilesPresent(folder, FilesOf(TextsOf(settings.flow)));
  return summary;
}

BarChart CorrectnessChart(const SimulationSettings& settings,
                          const std::vector<Correctness>& classes) {
  BarChart chart;
  chart.texts = {Tr("Correct decisions by origin of the offspring") +
                     TrCore(LastCombinationNote(settings.strategy)),
                 Tr("true parents"), Tr("correct, mean and sd"), true};
  chart.series.name = Tr("correct");
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
  DataTable table{{Tr("true parents"), Tr("offspring"), Tr("correct"), Tr("sd")}, {}};
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
  chart.texts = {Tr("Correct allocations in the population, by number of loci"), Tr("loci"),
                 Tr("estimated probability"), true};
  chart.label_title = Tr("added");
  for (const SubsetFigures& subset : run.result.subsets) {
    chart.positions.push_back(static_cast<double>(subset.loci.size()));
    chart.labels.push_back(Text("+ ") + Text(run.input.loci.Name(subset.loci.back())));
  }
  const auto add = [&](const QString& name, std::size_t scope, AllocationKind kind) {
    ChartSeries& series = chart.series.emplace_back(ChartSeries{name, {}});
    for (const SubsetFigures& subset : run.result.subsets) {
      const Estimate& estimate = EstimateOfKind(EstimatesIn(subset.estimates, scope), kind);
      series.values.push_back({NumberIfAny(estimate.value), {}});
    }
  };
  for (const EstimateKind& kind : EstimateKinds(flow)) {
    add(TrCore(kind.column), 0, kind.kind);
  }
  add(Tr("any, of these pseudo-offspring"), 1, AllocationKind::kAny);
  return chart;
}

BarChart EstimatesChart(const SimulationSettings& settings, const SimulationResult& result) {
  BarChart chart;
  chart.texts = {Tr("Estimated probability to be correct, in the population") +
                     TrCore(LastCombinationNote(settings.strategy)),
                 Tr("allocation"), Tr("mean and sd"), true};
  chart.series.name = Tr("correct");
  for (const EstimateKind& kind : EstimateKinds(settings.flow)) {
    const Estimate& estimate = EstimateOfKind(result.LastSubset().estimates.population, kind.kind);
    chart.categories.push_back(TrCore(kind.column));
    chart.series.values.push_back({NumberIfAny(estimate.value), NumberIfAny(estimate.deviation)});
  }
  return chart;
}

DataTable EstimatesTable(Flow flow, const SimulationResult& result) {
  DataTable table{{Tr("pseudo-offspring"), Tr("allocation"), Tr("correct"), Tr("sd"), Tr("se"),
                   Tr("from"), Tr("to")},
                  {}};
  const auto scopes = EstimateScopes(flow);
  for (std::size_t scope = 0; scope < scopes.size(); ++scope) {
    const KindEstimates& estimates = EstimatesIn(result.LastSubset().estimates, scope);
    for (const EstimateKind& kind : EstimateKinds(flow)) {
      const Estimate& estimate = EstimateOfKind(estimates, kind.kind);
      const bool exact = !std::isnan(estimate.value) && !std::isnan(estimate.error);
      const Interval interval = exact ? NormalInterval(estimate.value, estimate.error)
                                      : Interval{Estimate::kNone, Estimate::kNone};
      table.rows.push_back({TrCore(scopes[scope].brief), TrCore(kind.words),
                            NumberOrNone(estimate.value), NumberOrNone(estimate.deviation),
                            NumberOrNone(estimate.error), NumberOrNone(interval.from),
                            NumberOrNone(interval.to)});
    }
  }
  return table;
}

QString NumberOrNone(double number) { return ShortNumber(NumberIfAny(number)); }

}  // namespace kaldo
