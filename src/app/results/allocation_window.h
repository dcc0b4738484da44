// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "allocation/allocation_run.h"
#include "app/results/finished_runs.h"
#include "app/results/results_window.h"

namespace kaldo {

class OffspringPage;
class SummaryPage;

/// Shows to which parents the offspring of a finished allocation were allocated, and why.
class AllocationWindow : public ResultsWindow {
 public:
  /// `folder` is the full path of the project folder.
  AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                   QWidget* parent = nullptr);

  /// Offers a simulation like this run, see TrialOf. `start` opens its screens; it is not called
  /// where there is none, which is told.
  void OfferTrial(std::function<void(const SimulationSettings&)> start);

  /// Shows the figures of such a simulation in the summary.
  void ShowTrial(const QString& figures);

 private:
  void AddSummary(const SharedAllocation& shared, OffspringPage& offspring);

  SharedAllocation allocation_;
  SummaryPage* summary_ = nullptr;
};

}  // namespace kaldo
