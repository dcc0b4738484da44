// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_summary.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/allocation_file_names.h"
#include "app/base/text.h"
#include "app/results/allocation_classes.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"

namespace kaldo {

namespace {

/// The shares of the single allocations, under the names that the reports give them.
std::vector<std::pair<QString, double>> SingleShares(Flow flow,
                                                     const AllocationCounters& counters) {
  if (flow == Flow::kSexed) {
    return {{Text("collected male"), MaleProportion(counters)},
            {Text("collected female"), FemaleProportion(counters)}};
  }
  return {{Text("sides collected"), SingleProportion(counters)}};
}

QString ParentsText(Flow flow, const AllocationInput& input) {
  std::size_t males = 0;
  for (const CandidateGroup& group : input.groups) {
    males += group.first.Size();
  }
  std::string text = flow == Flow::kSexed ? fmt::format("{} males and {} females", males,
                                                        input.NumberOfParents() - males)
                                          : fmt::format("{} parents", input.NumberOfParents());
  if (input.groups.size() > 1) {
    text += fmt::format(" in {} groups", input.groups.size());
  }
  return Text(text);
}

QString LociText(const AllocationInput& input) {
  QStringList names;
  for (const LocusIndex locus : input.loci.LociInUse()) {
    names += Text(input.loci.Name(locus));
  }
  return Text(fmt::format("{} of {}: ", names.size(), input.loci.Count())) + names.join(Text(", "));
}

void AddFiles(const AllocationSettings& settings, Summary& summary) {
  if (settings.flow == Flow::kSexed) {
    summary.lines.emplace_back(Text("males file"), PathText(settings.males_file));
    summary.lines.emplace_back(Text("females file"), PathText(settings.females_file));
  } else {
    summary.lines.emplace_back(Text("parents file"), PathText(settings.parents_file));
  }
  summary.lines.emplace_back(Text("offspring file"), PathText(settings.offspring_file));
  summary.lines.emplace_back(Text("names of loci file"), PathText(settings.loci_file));
}

void AddWarnings(const AllocationResult& result, Summary& summary) {
  const auto count = [&result](auto is_one) {
    return std::count_if(result.outcomes.begin(), result.outcomes.end(), is_one);
  };
  const auto ties = count(HasSeveralPairs);
  const auto marked = count([](const auto& outcome) { return outcome.more_than_five; });
  const auto without = count([](const auto& outcome) { return !outcome.HasPair(); });
  if (result.stepping.any_out_of_step) {
    summary.warnings += Text(kSteppingSentence);
  }
  if (ties > 0) {
    summary.warnings += Text(fmt::format(
        "{} offspring {} several equally likely pairs ({} more than five): the first pair found "
        "decided. See them in the tab Offspring.",
        ties, ties == 1 ? "has" : "have", marked));
  }
  if (without > 0) {
    summary.warnings +=
        Text(fmt::format("{} offspring {} no possible pair among the collected parents; both of "
                         "{} parents count as uncollected (UC).",
                         without, without == 1 ? "has" : "have", without == 1 ? "its" : "their"));
  }
}

}  // namespace

Summary SummaryOf(const AllocationSettings& settings, const AllocationRun& run,
                  const QString& folder) {
  const AllocationInput& input = run.input;
  Summary summary;
  summary.title =
      settings.flow == Flow::kSexed ? Text("Sexed allocation") : Text("Non-sexed allocation");
  AddFiles(settings, summary);
  summary.lines.emplace_back(Text("collected"), ParentsText(settings.flow, input));
  summary.lines.emplace_back(Text("offspring"),
                             Text(fmt::format("{} ({} missing loci)", input.NumberOfOffspring(),
                                              input.NumberOfMissingGenotypes())));
  summary.lines.emplace_back(Text("loci in use"), LociText(input));
  summary.lines.emplace_back(Text("error model"), Text(ShortDescription(settings.error_model)));
  summary.lines.emplace_back(Text("maximal offset tolerance"),
                             Text(std::to_string(settings.tolerance.Value())));
  AddWarnings(run.result, summary);
  if (settings.sequence) {
    summary.notes += Text(
        "A cumulative sequence of loci was run. These results are those of its last combination; "
        "all of them are in the tab Sequence.");
  }
  summary.files_title = Text("Files in \"%1\"").arg(folder);
  summary.files = FilesPresent(
      folder, {kAllocationResultsFile, kMaxLikePairsFile, kTransmissionMatricesFile,
               kSteppingErrorFile, kSequenceResultsFile, kServiceFile, kRunRecordFile});
  return summary;
}

BarChart ProportionsChart(Flow flow, const AllocationCounters& counters) {
  BarChart chart;
  chart.texts = {Text("Offspring by allocation of their parents"), Text("class"),
                 Text("share of the offspring"), true};
  chart.categories = ClassNames(flow);
  chart.series.name = Text("share");
  for (const double number : ClassNumbers(flow, counters)) {
    chart.series.values.push_back({number / counters.Offspring(), {}});
  }
  return chart;
}

DataTable ProportionsTable(Flow flow, const AllocationCounters& counters) {
  DataTable table{{Text("allocation"), Text("number"), Text("share")}, {}};
  const double n = counters.Offspring();
  const double per_offspring = flow == Flow::kSexed ? 1 : 2;
  for (const auto& [name, share] : SingleShares(flow, counters)) {
    table.rows.push_back({name, ShortNumber(share * per_offspring * n), ShortNumber(share)});
  }
  const std::vector<QString> names = ClassNames(flow);
  const std::vector<double> numbers = ClassNumbers(flow, counters);
  for (std::size_t k = 0; k < names.size(); ++k) {
    table.rows.push_back(
        {Text("pairs ") + names[k], ShortNumber(numbers[k]), ShortNumber(numbers[k] / n)});
  }
  return table;
}

LineChart SequenceChart(Flow flow, const AllocationInput& input, const AllocationResult& result) {
  LineChart chart;
  chart.texts = {Text("Allocations by number of loci"), Text("loci"), Text("share"), true};
  chart.label_title = Text("added");
  for (const auto& [name, share] : SingleShares(flow, result.LastCounters())) {
    chart.series.push_back({name, {}});
  }
  const std::size_t singles = chart.series.size();
  for (const QString& name : ClassNames(flow)) {
    chart.series.push_back({name, {}});
  }
  for (std::size_t k = 0; k < result.counters.size(); ++k) {
    const AllocationCounters& counters = result.counters[k];
    chart.positions.push_back(static_cast<double>(k + 1));
    chart.labels.push_back(Text("+ ") + Text(input.loci.Name(input.combinations[k].back())));
    const auto shares = SingleShares(flow, counters);
    for (std::size_t j = 0; j < singles; ++j) {
      chart.series[j].values.push_back({shares[j].second, {}});
    }
    const std::vector<double> numbers = ClassNumbers(flow, counters);
    for (std::size_t j = 0; j < numbers.size(); ++j) {
      chart.series[singles + j].values.push_back({numbers[j] / counters.Offspring(), {}});
    }
  }
  return chart;
}

}  // namespace kaldo
