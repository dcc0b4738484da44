// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_command.h"
#include "allocation/allocation_confidence.h"
#include "allocation/allocation_record.h"
#include "allocation/findings.h"
#include "cli/short_result.h"
#include "confidence/effective_breeders.h"
#include "interchange/export/allocation_charts.h"
#include "interchange/export/allocation_tables.h"
#include "web/offspring_table.h"
#include "web/summary_json.h"

namespace kaldo {

namespace {

Json ChartJson(const CaptionedChart& chart) {
  Json bars = Json::array();
  for (const Bar& bar : chart.bars) {
    bars.push_back({{"label", bar.label}, {"value", FigureJson(bar.value)}});
  }
  return {{"title", chart.title}, {"caption", chart.caption}, {"bars", std::move(bars)}};
}

/// How the shares settle as loci are added: a line for each.
Json SequenceChartJson(const AllocationRun& run) {
  Json labels = Json::array();
  Json lines = Json::array();
  for (std::size_t k = 0; k < run.result.shares.size(); ++k) {
    labels.push_back("+ " + Escaped(run.input.loci.Name(run.input.combinations[k].back())));
    std::vector<AllocationShare> shares = run.result.shares[k].singles;
    shares.insert(shares.end(), run.result.shares[k].pairs.begin(),
                  run.result.shares[k].pairs.end());
    for (std::size_t j = 0; j < shares.size(); ++j) {
      if (k == 0) {
        lines.push_back({{"name", std::string(shares[j].name)}, {"values", Json::array()}});
      }
      lines[j]["values"].push_back(FigureJson(shares[j].share));
    }
  }
  return {{"title", "Allocations by number of loci"},
          {"caption", "Shares of the offspring as loci are added, in the order of the sequence."},
          {"labels", std::move(labels)},
          {"lines", std::move(lines)}};
}

Json CheckJson(const ShownAllocation& allocation, const AllocationFindings& findings) {
  const ExportedStudy study = allocation.Study();
  Json list = Json::array();
  for (const OffspringToCheck& check : findings.to_check) {
    const Slot slot{allocation.run.input.offspring.begin + static_cast<std::uint32_t>(check.place)};
    list.push_back({{"place", check.place},
                    {"name", Escaped(study.Name(slot))},
                    {"why", Escaped(DoubtText(allocation.run.input, allocation.run.result,
                                              allocation.settings.flow, check))}});
  }
  return list;
}

/// What follows from the posteriors, in charts and sentences.
void AddPosteriors(const ShownAllocation& allocation, Json& summary) {
  const ExportedStudy study = allocation.Study();
  const AllocationResult& result = allocation.run.result;
  const ConfidenceSummary sides =
      SummaryOf(result.confidence->offspring, ReportedBy(allocation.settings.flow, result));
  summary["charts"].push_back(ChartJson(VerdictChart(study, sides)));
  summary["charts"].push_back(ChartJson(ProbabilityChart(study, sides)));
  summary["notes"].push_back(SidesSentence(sides));
  const auto named = NamedParentsOf(result.confidence->offspring);
  summary["notes"].push_back(SibshipsSentence(SibshipsOf(named)));
  summary["notes"].push_back(BreedersSentence(EffectiveBreedersOf(named)));
}

}  // namespace

Json SummaryJson(const ShownAllocation& allocation) {
  const auto& [settings, run, names] = allocation;
  const ExportedStudy study = allocation.Study();
  const AllocationFindings findings = FindingsOf(run.result);
  Json summary = {
      {"title", settings.flow == Flow::kSexed ? "Sexed allocation" : "Non-sexed allocation"},
      {"headline", FindingsSentence(findings)},
      {"notes", Json::array()},
      {"check", CheckJson(allocation, findings)},
      {"warnings", RecordOf(settings, run.input, run.result).warnings},
      {"text", EscapedLines(ShortResult(settings, run, {}))},
      {"command", Escaped(CommandOf(settings))},
      {"certainty", findings.knows_certainty},
      {"charts", Json::array()},
      {"tables", {"offspring", "parents"}}};
  summary["charts"].push_back(ChartJson(ClassChart(study)));
  if (findings.knows_certainty) {
    AddPosteriors(allocation, summary);
    summary["tables"].push_back("loci");
  }
  summary["charts"].push_back(ChartJson(ParentsChart(study)));
  if (settings.sequence) {
    summary["charts"].push_back(SequenceChartJson(run));
    summary["tables"].push_back("sequence");
  }
  return summary;
}

Json ResultTableJson(const ShownAllocation& allocation, std::string_view name) {
  const ExportedStudy study = allocation.Study();
  if (name == "offspring") {
    return OffspringTableJson(allocation);
  }
  if (name == "parents") {
    return TableJson(ParentsTable(study));
  }
  if (name == "loci") {
    return TableJson(LociTable(study));
  }
  if (name == "sequence") {
    return TableJson(SequenceTable(study));
  }
  return {};
}

}  // namespace kaldo
