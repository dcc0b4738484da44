// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_run.h"
#include "runs/report_set.h"

namespace kaldo {

/// All files of an allocation run. They are opened beside the earlier ones when this object is
/// made, and put in place together at the end of Write(); if it is never reached, nothing changes.
class AllocationReports {
 public:
  /// Throws RunFailure when the project folder cannot be written to.
  explicit AllocationReports(const AllocationSettings& settings);

  /// Writes every report and the run record. Throws RunFailure or RunStopped.
  void Write(const AllocationSettings& settings, const AllocationInput& input,
             const AllocationResult& result, RunObserver& observer);

 private:
  void WriteOffspring(const AllocationSettings& settings, const AllocationInput& input,
                      const AllocationResult& result, RunObserver& observer);

  ReportSet reports_;
  ReportFile& results_;
  ReportFile& pairs_;
  ReportFile& matrices_;
};

}  // namespace kaldo
