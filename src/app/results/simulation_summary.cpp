// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/simulation_summary.h"

#include <fmt/format.h>

#include "app/base/text.h"
#include "base/number_text.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"
#include "simulation/reports/subset_title.h"
#include "simulation/sexed/simulation_of.h"
#include "simulation/simulation_file_names.h"

namespace kaldo {

namespace {

/// A title of the reports as the name of a class: "C X U :" is "C X U".
QString ClassName(const OriginClass& origin) {
  QString name = Text(origin.texts.label).trimmed();
  if (name.endsWith(QLatin1Char(':'))) {
    name.chop(1);
  }
  return name.trimmed();
}

template <typename ValueOf>
Correctness Collect(const SimulationRun& run, SpreadKind kind, ValueOf value_of) {
  Correctness correctness;
  for (const IterationCounts& counts : run.result.iterations) {
    correctness.values.push_back(value_of(counts));
  }
  correctness.spread = SpreadOf(correctness.values, kind);
  return correctness;
}

Correctness OfClass(const SimulationFlow& flow, const SimulationRun& run, std::size_t k) {
  const SimulationDesign& design = flow.Design();
  const OriginClass& origin = design.classes[k];
  Correctness correctness;
  if (run.input.class_sizes[k] != 0) {
    correctness = Collect(run, design.row_spread, [&](const IterationCounts& counts) {
      return CorrectFrequency(origin, counts.at(k));
    });
  }
  correctness.name = ClassName(origin);
  correctness.text = Text(origin.texts.label_text);
  correctness.offspring = run.input.class_sizes[k];
  return correctness;
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
  const SimulationFlow& flow = SimulationOf(settings.flow);
  add("true parents", fmt::format("{} candidates, {} in all",
                                  input.Candidates(flow.Design()).Size(), input.NumberOfParents()));
  add("pseudo-offspring",
      fmt::format("{} x {} iterations", input.OffspringPerIteration(), settings.iterations));
  add("loci in use", fmt::format("{} of {}", input.loci.LociInUse().size(), input.loci.Count()));
  add("error model", ShortDescription(settings.error_model));
  add("maximum offset tolerance", std::to_string(settings.tolerance.Value()));
  add("seed", std::to_string(result.seed));
  add("last loci run", NamesOf(input.loci, result.LastSubset().loci));
  add("any allocation correct", fmt::format("{} (estimated probability)",
                                            FormatDouble(AnyCorrect(flow, result.LastSubset()))));
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
std::vector<std::string_view> FilesOf(const SimulationDesign& design) {
  std::vector<std::string_view> files = {kSummaryFile, design.global_file};
  for (const OriginClass& origin : design.classes) {
    files.push_back(origin.texts.table_file);
  }
  files.insert(files.end(), {design.detailed_file, kSequenceResultsFile, kSteppingErrorFile,
                             kServiceFile, design.matrices_file});
  for (const GroupDesign& group : design.groups) {
    files.push_back(group.file);
  }
  files.insert(files.end(), {kPseudoOffspringFile, kRunRecordFile});
  return files;
}

}  // namespace

double AnyCorrect(const SimulationFlow& flow, const SubsetFigures& subset) {
  return subset.figures[flow.Design().any_correct_figure];
}

std::vector<Correctness> CorrectnessOf(const SimulationFlow& flow, const SimulationRun& run) {
  const SimulationDesign& design = flow.Design();
  std::vector<Correctness> classes;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    classes.push_back(OfClass(flow, run, k));
  }
  Correctness global = Collect(run, design.row_spread, [&](const IterationCounts& counts) {
    return GlobalCorrectFrequency(design, run.input, counts);
  });
  global.name = Text("GLOBAL");
  global.text = design.global_rows == GlobalRows::kPooled
                    ? Text("all pseudo-offspring together")
                    : Text("the classes weighed by their share in the population");
  global.offspring = static_cast<std::int32_t>(run.input.OffspringPerIteration());
  classes.push_back(std::move(global));
  return classes;
}

Summary SummaryOf(const SimulationSettings& settings, const SimulationRun& run,
                  const QString& folder) {
  const SimulationFlow& flow = SimulationOf(settings.flow);
  Summary summary;
  summary.title =
      Text(fmt::format("{} simulation, {}{}", settings.flow == Flow::kSexed ? "Sexed" : "Non-sexed",
                       settings.procedure == Procedure::kParental ? "PARENTAL" : "PRE-PARENTAL",
                       LastCombinationNote(settings.strategy)));
  AddParents(settings, summary);
  AddFigures(settings, run, summary);
  if (run.result.stepping.any_out_of_step) {
    summary.warnings += Text(kSteppingSentence);
  }
  AddSubsets(settings, run.result, summary);
  summary.files_title = Text("Files in \"%1\"").arg(folder);
  summary.files = FilesPresent(folder, FilesOf(flow.Design()));
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

LineChart SequenceChart(const SimulationFlow& flow, const SimulationRun& run) {
  LineChart chart;
  chart.texts = {Text("Any allocation correct, by number of loci"), Text("loci"),
                 Text("estimated probability"), true};
  chart.label_title = Text("added");
  ChartSeries series{Text("any allocation correct"), {}};
  for (std::size_t k = 0; k < run.result.subsets.size(); ++k) {
    const SubsetFigures& subset = run.result.subsets[k];
    chart.positions.push_back(static_cast<double>(subset.loci.size()));
    chart.labels.push_back(Text("+ ") + Text(run.input.loci.Name(subset.loci.back())));
    series.values.push_back({AnyCorrect(flow, subset), {}});
  }
  chart.series.push_back(std::move(series));
  return chart;
}

}  // namespace kaldo
