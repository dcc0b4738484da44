// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/allocation_summary.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/allocation_confidence.h"
#include "allocation/allocation_file_names.h"
#include "allocation/findings.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/allocation_classes.h"
#include "base/counted_text.h"
#include "confidence/confidence_summary.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"

namespace kaldo {

namespace {

QString ParentsText(Flow flow, const AllocationInput& input) {
  std::size_t males = 0;
  for (const CandidateGroup& group : input.groups) {
    males += group.first.Size();
  }
  const std::size_t all = input.NumberOfParents();
  const QString text = flow == Flow::kSexed
                           ? Tr("%1 males and %2 females").arg(males).arg(all - males)
                           : TrCount("%n parents", "%n parents", all);
  return input.groups.size() > 1 ? Tr("%1 in %2 groups").arg(text).arg(input.groups.size()) : text;
}

QString LociText(const AllocationInput& input) {
  QStringList names;
  for (const LocusIndex locus : input.loci.LociInUse()) {
    names += Text(input.loci.Name(locus));
  }
  return Tr("%1 of %2: ").arg(names.size()).arg(input.loci.Count()) + names.join(Text(", "));
}

void AddFiles(const AllocationSettings& settings, Summary& summary) {
  if (settings.flow == Flow::kSexed) {
    summary.lines.emplace_back(Tr("males file"), PathText(settings.males_file));
    summary.lines.emplace_back(Tr("females file"), PathText(settings.females_file));
  } else {
    summary.lines.emplace_back(Tr("parents file"), PathText(settings.parents_file));
  }
  summary.lines.emplace_back(Tr("offspring file"), PathText(settings.offspring_file));
  summary.lines.emplace_back(Tr("names of loci file"), PathText(settings.loci_file));
  for (const auto& [label, path] : {
           std::pair(Phrase("known mothers file"), settings.known_mother_file),
           std::pair(Phrase("candidates file"), settings.candidates_file),
           std::pair(Phrase("groups of offspring file"), settings.offspring_groups_file),
       }) {
    if (!path.empty()) {
      summary.lines.emplace_back(Tr(label), PathText(path));
    }
  }
}

void AddWarnings(const AllocationRun& run, Summary& summary) {
  for (const std::string& line : WarningLines(run.input.warnings)) {
    summary.warnings += TrCore(line);
  }
  const AllocationResult& result = run.result;
  const auto count = [&result](auto is_one) {
    return static_cast<std::size_t>(
        std::count_if(result.outcomes.begin(), result.outcomes.end(), is_one));
  };
  const auto ties = count(HasSeveralPairs);
  const auto marked = count([](const auto& outcome) { return outcome.more_than_five; });
  const auto without = count([](const auto& outcome) { return !outcome.HasPair(); });
  if (result.stepping.any_out_of_step) {
    summary.warnings += TrCore(kSteppingSentence);
  }
  if (ties > 0) {
    summary.warnings +=
        TrCount(
            "%n offspring have several equally likely pairs (%1 more than five): the first pair "
            "found decided. See them in the tab Offspring.",
            "%n offspring has several equally likely pairs (%1 more than five): the first pair "
            "found decided. See them in the tab Offspring.",
            ties)
            .arg(marked);
  }
  if (without > 0) {
    summary.warnings += TrCount(
        "%n offspring have no possible pair among the collected parents; both of their "
        "parents count as uncollected (UC).",
        "%n offspring has no possible pair among the collected parents; both of its "
        "parents count as uncollected (UC).",
        without);
  }
}

void AddFindings(const AllocationSettings& settings, const AllocationRun& run, Summary& summary) {
  const AllocationFindings findings = FindingsOf(run.result);
  summary.headline = TrCore(FindingsSentence(findings));
  if (!findings.knows_certainty) {
    return;
  }
  for (const OffspringToCheck& check : findings.to_check) {
    if (static_cast<std::size_t>(summary.to_check.size()) == kMostToCheck) {
      summary.to_check += Tr("... and %1 more").arg(findings.to_check.size() - kMostToCheck);
      break;
    }
    const Slot slot{run.input.offspring.begin + static_cast<std::uint32_t>(check.place)};
    summary.to_check +=
        Text("%1: %2").arg(Text(run.input.table.Name(slot).Text()),
                           TrCore(DoubtText(run.input, run.result, settings.flow, check)));
  }
  summary.notes += TrCore(SidesSentence(
      SummaryOf(run.result.confidence->offspring, ReportedBy(settings.flow, run.result))));
}

}  // namespace

Summary SummaryOf(const AllocationSettings& settings, const AllocationRun& run,
                  const QString& folder) {
  const AllocationInput& input = run.input;
  Summary summary;
  summary.title =
      settings.flow == Flow::kSexed ? Tr("Sexed allocation") : Tr("Non-sexed allocation");
  AddFindings(settings, run, summary);
  AddFiles(settings, summary);
  summary.lines.emplace_back(Tr("collected"), ParentsText(settings.flow, input));
  const std::size_t missing = input.NumberOfMissingGenotypes();
  summary.lines.emplace_back(Tr("offspring"),
                             Text("%1 (%2)")
                                 .arg(input.NumberOfOffspring())
                                 .arg(TrCount("%n undefined loci", "%n undefined locus", missing)));
  summary.lines.emplace_back(Tr("loci in use"), LociText(input));
  summary.lines.emplace_back(Tr("error model"), TrCore(ShortDescription(settings.error_model)));
  summary.lines.emplace_back(Tr("maximal offset tolerance"),
                             Text(std::to_string(settings.tolerance.Value())));
  AddWarnings(run, summary);
  if (settings.sequence) {
    summary.notes += Tr(
        "A cumulative sequence of loci was run. These results are those of its last combination; "
        "all of them are in the tab Sequence.");
  }
  summary.files_title = Tr("Files in \"%1\"").arg(folder);
  summary.files =
      FilesPresent(folder, {kAllocationResultsFile, kMaxLikePairsFile, kTransmissionMatricesFile,
                            kSteppingErrorFile, kSequenceResultsFile, kServiceFile, kConfidenceFile,
                            kLociFile, kRunRecordFile});
  return summary;
}

BarChart ProportionsChart(Flow flow, const AllocationResult& result) {
  BarChart chart;
  chart.texts = {Tr("Offspring by allocation of their parents"), Tr("class"),
                 Tr("share of the offspring"), true, TrCore(ClassLegend(flow))};
  chart.series.name = Tr("share");
  const std::vector<AllocationShare>& pairs = result.LastShares().pairs;
  std::vector<double> unsettled(pairs.size());
  for (std::size_t place = 0; place < result.outcomes.size(); ++place) {
    unsettled[ClassOf(flow, result.outcomes[place])] += IsTiedOrOpen(result, place) ? 1 : 0;
  }
  chart.settled_name = Tr("settled");
  chart.hatched.emplace().name = Tr("tied or open");
  for (std::size_t k = 0; k < pairs.size(); ++k) {
    chart.categories.push_back(Text(pairs[k].name));
    chart.series.values.push_back({pairs[k].share, {}});
    const double part = pairs[k].number > 0 ? unsettled[k] / pairs[k].number : 0;
    chart.hatched->values.push_back({pairs[k].share * part, {}});
  }
  return chart;
}

DataTable ProportionsTable(const AllocationShares& shares) {
  DataTable table{{Tr("allocation"), Tr("number"), Tr("share")}, {}};
  const auto add = [&table](const QString& name, const AllocationShare& share) {
    table.rows.push_back({name, ShortNumber(share.number), ShortNumber(share.share)});
  };
  for (const AllocationShare& single : shares.singles) {
    add(TrCore(single.name), single);
  }
  for (const AllocationShare& pair : shares.pairs) {
    add(Tr("pairs %1").arg(Text(pair.name)), pair);
  }
  return table;
}

LineChart SequenceChart(const AllocationInput& input, const AllocationResult& result) {
  LineChart chart;
  chart.texts = {Tr("Allocations by number of loci"), Tr("loci"), Tr("share"), true};
  chart.label_title = Tr("added");
  for (std::size_t k = 0; k < result.shares.size(); ++k) {
    chart.positions.push_back(static_cast<double>(k + 1));
    chart.labels.push_back(Text("+ ") + Text(input.loci.Name(input.combinations[k].back())));
    std::vector<AllocationShare> all = result.shares[k].singles;
    all.insert(all.end(), result.shares[k].pairs.begin(), result.shares[k].pairs.end());
    chart.series.resize(all.size());
    for (std::size_t j = 0; j < all.size(); ++j) {
      chart.series[j].name = Text(all[j].name);
      chart.series[j].values.push_back({all[j].share, {}});
    }
  }
  return chart;
}

}  // namespace kaldo
