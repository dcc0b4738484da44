// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/simulation_reports.h"

#include <fmt/format.h>

#include "genotypes/allele_listing.h"
#include "runs/run_record.h"
#include "simulation/iteration_portions.h"
#include "simulation/reports/reliability_report.h"
#include "simulation/reports/scan_report.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subsets_report.h"
#include "simulation/saved_loci.h"
#include "simulation/simulated_individuals.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

/// Appends the listings of the iterations to their file, one iteration after the other.
class MatricesPlan final : public PortionPlan {
 public:
  MatricesPlan(const SimulationResult& result, ReportFile& file) : result_(result), file_(file) {}

  std::size_t Groups() const override { return 1; }
  std::size_t ItemsPerGroup() const override { return result_.states.size(); }
  /// A listing takes up to some megabytes: larger portions would only wait in memory.
  std::size_t MostItemsPerPortion() const override { return 1; }

  std::string Order(const Portion& portion) override {
    return PackOrder(result_.LastSubset().loci,
                     std::span(result_.states).subspan(portion.begin, portion.Size()));
  }

  bool Take(const Portion& /*portion*/, std::string_view text) override {
    file_.Append(text);
    return true;
  }

 private:
  const SimulationResult& result_;
  ReportFile& file_;
};

}  // namespace

SimulationReports::SimulationReports(const SimulationSettings& settings,
                                     const SimulationInput& input, RunObserver& observer,
                                     SimulationExports* exports)
    : texts_(TextsOf(settings.flow)),
      exports_(exports),
      reports_({ProjectFolder(settings.project), SimulationFlowName(settings.flow), input.files,
                settings.may_replace_other_flow, settings.kept_work},
               observer),
      summary_(reports_.Add(kSummaryFile)),
      detailed_(reports_.AddIfAny(texts_.detailed_file)),
      sequence_(reports_.AddIfAny(kSequenceResultsFile)),
      stepping_(reports_.AddIfAny(kSteppingErrorFile)),
      offspring_(reports_.AddIfAny(kPseudoOffspringFile)),
      matrices_(reports_.AddIfAny(texts_.matrices_file)),
      reliability_(reports_.AddIfAny(kReliabilityFile)),
      subsets_(reports_.AddIfAny(kSubsetsFile)),
      scan_(reports_.AddIfAny(kScanFile)),
      service_(reports_.Add(kServiceFile)),
      record_(reports_.Add(kRunRecordFile)) {
  for (const auto& origin : texts_.origins) {
    tables_.push_back(&reports_.Add(origin.table_file));
  }
  for (const std::string_view file : texts_.group_files) {
    parents_.push_back(&reports_.AddIfAny(file));
  }
  if (exports_ != nullptr) {
    for (const std::string_view file : exports_->Files()) {
      further_[file] = &reports_.AddIfAny(file);
    }
  }
  if (settings.saves_loci) {
    reports_.RefuseInput(std::string(kSavedLociFile));
    // Before the run: what cannot be saved is told while somebody is there to read it.
    if (const auto failure = SaveLoci(input.loci)) {
      observer.OnMessage(RunMessage::kWarning, *failure);
    }
  }
}

void SimulationReports::WriteTables(const SimulationSettings& settings,
                                    const SimulationInput& input, const SimulationResult& result) {
  WriteSummary(settings, input, result, summary_);
  for (std::size_t origin = 0; origin < result.origins.size(); ++origin) {
    tables_[origin]->Append(IterationTableReport(settings, input, result, origin));
  }
  if (settings.print_iterations) {
    detailed_.Append(DetailedReport(settings, result));
  }
  if (settings.strategy == LociStrategy::kCumulative) {
    sequence_.Append(SimulationSequenceReport(settings, input, result));
  }
  if (settings.strategy != LociStrategy::kChoice) {
    subsets_.Append(SubsetsReport(settings.flow, input.loci, result));
  }
  if (result.reliability) {
    reliability_.Append(ReliabilityReport(*result.reliability, settings.confidence_level));
  }
  if (!result.scan.empty()) {
    scan_.Append(ScanReport(settings.flow, result.scan));
  }
  if (result.stepping.any_out_of_step) {
    stepping_.Append(result.stepping.text);
  }
}

void SimulationReports::WriteIndividuals(const SimulationSettings& settings,
                                         const SimulationInput& input,
                                         const SimulationResult& result,
                                         const SimulatedIteration& last) {
  const KeptFiles kept = KeptFilesOf(settings);
  for (std::size_t k = 0; k < input.groups.size(); ++k) {
    if (kept.parents && input.groups[k].sample) {
      parents_[k]->Append(ParentsText(last, input.groups[k].slots, input.digits_per_field));
    }
  }
  if (kept.offspring) {
    offspring_.Append(PseudoOffspringText(last, input.digits_per_field));
  }
  LociList loci = input.loci;
  std::vector<std::string> names;
  for (const LocusIndex locus : last.Loci().loci) {
    names.push_back(input.loci.Name(locus));
  }
  (void)loci.Use(names);
  service_.Append(
      fmt::format("Seed of the random numbers :\t{}\n\n{}", result.seed,
                  AlleleListing(loci, last.CataloguesOfAll(), last.Table().NumberOfIndividuals())));
}

void SimulationReports::WriteMatrices(const SimulationSettings& settings,
                                      const SimulationInput& input, const SimulationResult& result,
                                      RunObserver& observer, Workforce& workforce) {
  if (!KeptFilesOf(settings).matrices || input.OffspringPerIteration() == 0) {
    return;
  }
  // The iterations run once more, so that their listings need not stay in memory.
  const IterationTask task(settings, input, IterationProduct::kMatrices);
  MatricesPlan plan(result, matrices_);
  observer.OnPart(kMatricesPart, result.states.size());
  workforce.Do({kMatricesPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
}

void SimulationReports::WriteExports(const SimulationSettings& settings,
                                     const SimulationInput& input, const SimulationResult& result,
                                     RunRecord& record, RunObserver& observer) {
  if (further_.empty()) {
    return;
  }
  const Exported exported = exports_->Make(settings, input, result, record);
  for (const ExportedFile& file : exported.files) {
    further_.at(file.name)->Append(file.text);
  }
  TellExports(exported, observer);
  record.outputs = reports_.Outputs();
}

void SimulationReports::Write(const SimulationSettings& settings, const SimulationInput& input,
                              const SimulationResult& result, const SimulatedIteration& last,
                              RunObserver& observer, Workforce& workforce) {
  WriteTables(settings, input, result);
  WriteIndividuals(settings, input, result, last);
  WriteMatrices(settings, input, result, observer, workforce);
  RunRecord record = RecordOf(settings, input, result);
  record.outputs = reports_.Outputs();
  WriteExports(settings, input, result, record, observer);
  record_.Append(FormatRunRecord(record));
  reports_.Commit();
}

}  // namespace kaldo
