// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/simulation_reports.h"

#include <fmt/format.h>

#include "genotypes/allele_listing.h"
#include "runs/run_record.h"
#include "simulation/iteration_portions.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_report_texts.h"
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

SimulationReports::SimulationReports(const SimulationSettings& settings)
    : texts_(TextsOf(settings.flow)),
      reports_(ProjectFolder(settings.project)),
      summary_(reports_.Add(kSummaryFile)) {}

void SimulationReports::AddOrRemove(std::string_view file, std::string_view text) {
  if (text.empty()) {
    reports_.Remove(file);
  } else {
    reports_.Add(file, text);
  }
}

void SimulationReports::WriteTables(const SimulationSettings& settings,
                                    const SimulationInput& input, const SimulationResult& result) {
  summary_.Append(SummaryReport(settings, input, result));
  for (std::size_t origin = 0; origin < result.origins.size(); ++origin) {
    reports_.Add(texts_.origins[origin].table_file,
                 IterationTableReport(settings, input, result, origin));
  }
  AddOrRemove(texts_.detailed_file,
              settings.print_iterations ? DetailedReport(texts_, result) : "");
  AddOrRemove(kSequenceResultsFile, settings.strategy == LociStrategy::kCumulative
                                        ? SimulationSequenceReport(settings, input, result)
                                        : "");
  AddOrRemove(kSteppingErrorFile, result.stepping.any_out_of_step ? result.stepping.text : "");
}

void SimulationReports::WriteIndividuals(const SimulationSettings& settings,
                                         const SimulationInput& input,
                                         const SimulationResult& result,
                                         const SimulatedIteration& last) {
  const KeptFiles kept = KeptFilesOf(settings);
  for (std::size_t k = 0; k < input.groups.size(); ++k) {
    const bool is_written = kept.parents && input.groups[k].sample;
    AddOrRemove(texts_.group_files[k],
                is_written ? ParentsText(last, input.groups[k].slots, input.digits_per_field)
                           : std::string());
  }
  AddOrRemove(kPseudoOffspringFile,
              kept.offspring ? PseudoOffspringText(last, input.digits_per_field) : "");
  LociList loci = input.loci;
  std::vector<std::string> names;
  for (const LocusIndex locus : last.Loci().loci) {
    names.push_back(input.loci.Name(locus));
  }
  (void)loci.Use(names);
  reports_.Add(kServiceFile, fmt::format("Seed of the random numbers :\t{}\n\n{}", result.seed,
                                         AlleleListing(loci, last.CataloguesOfAll(),
                                                       last.Table().NumberOfIndividuals())));
}

void SimulationReports::WriteMatrices(const SimulationSettings& settings,
                                      const SimulationInput& input, const SimulationResult& result,
                                      RunObserver& observer, Workforce& workforce) {
  if (!KeptFilesOf(settings).matrices || input.OffspringPerIteration() == 0) {
    reports_.Remove(texts_.matrices_file);
    return;
  }
  // The iterations run once more, so that their listings need not stay in memory.
  const IterationTask task(settings, input, IterationProduct::kMatrices);
  MatricesPlan plan(result, reports_.Add(texts_.matrices_file));
  observer.OnPart(kMatricesPart, result.states.size());
  workforce.Do({kMatricesPart, task, plan, [&] { return RecordOf(settings, input, result); }},
               settings.threads, observer);
}

void SimulationReports::Write(const SimulationSettings& settings, const SimulationInput& input,
                              const SimulationResult& result, const SimulatedIteration& last,
                              RunObserver& observer, Workforce& workforce) {
  WriteTables(settings, input, result);
  WriteIndividuals(settings, input, result, last);
  WriteMatrices(settings, input, result, observer, workforce);
  reports_.AddElsewhere(std::string(kSavedLociFile), SavedLociText(input.loci));
  reports_.Add(kRunRecordFile, FormatRunRecord(RecordOf(settings, input, result)));
  reports_.Commit();
}

}  // namespace kaldo
