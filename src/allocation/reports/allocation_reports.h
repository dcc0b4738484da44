// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string_view>

#include "allocation/allocation_run.h"
#include "runs/report_set.h"

namespace kaldo {

/// All files of an allocation run. They are opened beside the earlier ones when this object is
/// made, and put in place together at the end of Write(); if it is never reached, nothing changes.
class AllocationReports {
 public:
  /// Opens every report. Throws RunFailure when the project folder cannot be written to, and
  /// RunRefused when the run would destroy an input file or the results of another flow. The input
  /// and the observer are used as long as this object lives.
  AllocationReports(const AllocationSettings& settings, const AllocationInput& input,
                    RunObserver& observer, AllocationExports* exports = nullptr);

  /// Where the run keeps what is done meanwhile.
  UnfinishedRun& Unfinished() { return reports_.Unfinished(); }

  /// Writes every report and the run record. Throws RunFailure or RunStopped.
  void Write(const AllocationSettings& settings, const AllocationInput& input,
             const AllocationResult& result, RunObserver& observer);

 private:
  void WriteOffspring(const AllocationSettings& settings, const AllocationInput& input,
                      const AllocationResult& result, RunObserver& observer);

  AllocationExports* exports_;
  ReportSet reports_;
  ReportFile& results_;
  ReportFile& pairs_;
  ReportFile& matrices_;
  ReportFile& stepping_;
  ReportFile* confidence_ = nullptr;  ///< only where it is wanted how sure all is, as the next
  ReportFile* loci_ = nullptr;
  ReportFile* sequence_ = nullptr;  ///< only with a sequence, as the next
  ReportFile* service_ = nullptr;
  std::map<std::string_view, ReportFile*> further_;  ///< those of the exports, by their names
  ReportFile& record_;
};

}  // namespace kaldo
