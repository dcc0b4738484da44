// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/simulation_reports.h"

#include <fmt/format.h>

#include "allocation/matrices_report.h"
#include "genotypes/allele_listing.h"
#include "genotypes/parallel_for.h"
#include "simulation/saved_loci.h"
#include "simulation/simulated_individuals.h"
#include "simulation/simulation_record.h"
#include "simulation/simulation_report_texts.h"

namespace kaldo {

namespace {

/// The names of the loci on one line, each followed by a blank.
std::string MatricesOf(const SimulationSettings& settings, const SimulationInput& input,
                       const SimulatedIteration& iteration) {
  const MatricesReport report{settings.flow, settings.tolerance, input.digits_per_field,
                              iteration.Table(), iteration.Loci()};
  std::string text;
  for (std::uint32_t i = 0; i < iteration.Outcomes().size(); ++i) {
    text += MatricesBlock(report, Slot{iteration.Offspring().begin + i}, iteration.Outcomes()[i]);
  }
  return text;
}

}  // namespace

SimulationReports::SimulationReports(const SimulationSettings& settings, const SimulationFlow& flow)
    : flow_(flow),
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
  const SimulationDesign& design = flow_.Design();
  summary_.Append(SummaryReport(settings, input, flow_, result));
  for (std::size_t table = 0; table <= design.classes.size(); ++table) {
    const std::string_view file = table == design.classes.size()
                                      ? design.global_file
                                      : design.classes[table].texts.table_file;
    reports_.Add(file, IterationTableReport(settings, input, flow_, result, table));
  }
  AddOrRemove(design.detailed_file,
              settings.print_iterations ? DetailedReport(input, flow_, result) : "");
  AddOrRemove(kSequenceResultsFile, settings.strategy == LociStrategy::kCumulative
                                        ? SimulationSequenceReport(settings, input, flow_, result)
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
    AddOrRemove(flow_.Design().groups[k].file,
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
                                      RunObserver& observer) {
  if (!KeptFilesOf(settings).matrices || input.OffspringPerIteration() == 0) {
    reports_.Remove(flow_.Design().matrices_file);
    return;
  }
  // The iterations run once more, a few at a time, so that their listings need not stay in memory.
  ReportFile& file = reports_.Add(flow_.Design().matrices_file);
  const std::size_t at_once = std::size_t{4} * result.threads;
  observer.OnPart("Writing the transmission matrices", result.states.size());
  for (std::size_t begin = 0; begin < result.states.size(); begin += at_once) {
    std::vector<std::string> texts(std::min(at_once, result.states.size() - begin));
    ParallelFor(texts.size(), result.threads, [&] {
      SimulatedIteration iteration(settings, input, flow_.Design());
      iteration.UseLoci(result.LastSubset().loci);
      return [&, iteration = std::move(iteration)](std::size_t i) mutable {
        iteration.Run(result.states[begin + i], observer);
        texts[i] = MatricesOf(settings, input, iteration);
        observer.OnSteps(1);
      };
    });
    for (const std::string& text : texts) {
      file.Append(text);
    }
  }
}

void SimulationReports::Write(const SimulationSettings& settings, const SimulationInput& input,
                              const SimulationResult& result, RunObserver& observer) {
  SimulatedIteration last(settings, input, flow_.Design());
  last.UseLoci(result.LastSubset().loci);
  last.Run(result.states.back(), observer);

  WriteTables(settings, input, result);
  WriteIndividuals(settings, input, result, last);
  WriteMatrices(settings, input, result, observer);
  reports_.AddElsewhere(std::string(kSavedLociFile), SavedLociText(input.loci));
  reports_.Add(kRunRecordFile, FormatRunRecord(RecordOf(settings, input, result)));
  reports_.Commit();
}

}  // namespace kaldo
