// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_run.h"
#include "app/results/finished_runs.h"
#include "app/results/results_window.h"

namespace kaldo {

class OffspringPage;

/// Shows to which parents the offspring of a finished allocation were allocated, and why.
class AllocationWindow : public ResultsWindow {
 public:
  /// `folder` is the full path of the project folder.
  AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                   QWidget* parent = nullptr);

 private:
  void AddSummary(const SharedAllocation& shared, OffspringPage& offspring);
};

}  // namespace kaldo
