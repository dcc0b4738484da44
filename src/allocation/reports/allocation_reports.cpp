// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/allocation_reports.h"

#include "allocation/allocation_file_names.h"
#include "allocation/allocation_record.h"
#include "allocation/findings.h"
#include "allocation/reports/confidence_report.h"
#include "allocation/reports/loci_report.h"
#include "allocation/reports/matrices_report.h"
#include "allocation/reports/max_like_report.h"
#include "allocation/reports/result_line.h"
#include "allocation/reports/results_report.h"
#include "allocation/reports/sequence_report.h"
#include "genotypes/allele_listing.h"
#include "runs/run_record.h"

namespace kaldo {

AllocationReports::AllocationReports(const AllocationSettings& settings,
                                     const AllocationInput& input, RunObserver& observer,
                                     AllocationExports* exports)
    : exports_(exports),
      reports_({ProjectFolder(settings.project), AllocationFlowName(settings.flow), input.files,
                settings.may_replace_other_flow, settings.kept_work},
               observer),
      results_(reports_.Add(kAllocationResultsFile)),
      pairs_(reports_.Add(kMaxLikePairsFile)),
      matrices_(reports_.Add(kTransmissionMatricesFile)),
      stepping_(reports_.Add(kSteppingErrorFile)),
      record_(reports_.Add(kRunRecordFile)) {
  if (settings.confidence.computed) {
    confidence_ = &reports_.AddIfAny(kConfidenceFile);
    loci_ = &reports_.Add(kLociFile);
  } else {
    reports_.Remove(kConfidenceFile);
    reports_.Remove(kLociFile);
  }
  if (settings.sequence) {
    sequence_ = &reports_.Add(kSequenceResultsFile);
    service_ = &reports_.Add(kServiceFile);
  } else {
    reports_.Remove(kSequenceResultsFile);
    reports_.Remove(kServiceFile);
  }
  if (exports_ != nullptr) {
    for (const std::string_view file : exports_->Files()) {
      further_[file] = &reports_.AddIfAny(file);
    }
  }
}

void AllocationReports::WriteOffspring(const AllocationSettings& settings,
                                       const AllocationInput& input, const AllocationResult& result,
                                       RunObserver& observer) {
  const MatricesReport matrices{settings.flow, settings.tolerance, input.digits_per_field,
                                input.table, result.loci};
  const bool has_confidence = KnowsCertainty(result);
  if (has_confidence) {
    confidence_->Append(ConfidenceHead(settings.flow));
  }
  observer.OnPart("Writing the reports", result.outcomes.size());
  for (std::size_t offspring = 0; offspring < result.outcomes.size(); ++offspring) {
    if (observer.StopRequested()) {
      throw RunStopped();
    }
    pairs_.Append(MaxLikeBlock(input, result, offspring));
    const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(offspring)};
    matrices_.Append(MatricesBlock(matrices, slot, result.outcomes[offspring]));
    results_.Append(ResultLine(settings.flow, input, result, offspring));
    if (has_confidence) {
      confidence_->Append(ConfidenceLine(settings.flow, input, result, offspring));
    }
    observer.OnSteps(1);
  }
}

void AllocationReports::Write(const AllocationSettings& settings, const AllocationInput& input,
                              const AllocationResult& result, RunObserver& observer) {
  results_.Append(ResultsHead(settings, input, result));
  WriteOffspring(settings, input, result, observer);
  results_.Append(ResultsProportions(settings.flow, result.LastShares()));

  stepping_.Append(result.stepping.text);
  if (loci_ != nullptr) {
    loci_->Append(LociReport(input.loci, result.loci_quality));
  }
  if (sequence_ != nullptr) {
    sequence_->Append(SequenceReport(settings, input, result));
    service_->Append(
        AlleleListing(input.loci, input.catalogues, input.table.NumberOfIndividuals()));
  }
  RunRecord record = RecordOf(settings, input, result);
  record.outputs = reports_.Outputs();
  if (!further_.empty()) {
    const Exported exported = exports_->Make(settings, input, result, record);
    for (const ExportedFile& file : exported.files) {
      further_.at(file.name)->Append(file.text);
    }
    TellExports(exported, observer);
    record.outputs = reports_.Outputs();
  }
  record_.Append(FormatRunRecord(record));
  reports_.Commit();
}

}  // namespace kaldo
