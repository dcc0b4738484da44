// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_run.h"
#include "app/results/finished_runs.h"
#include "app/results/other_run.h"
#include "app/results/results_window.h"
#include "app/results/start_trial.h"

namespace kaldo {

class OffspringPage;
class SummaryPage;

/// Shows to which parents the offspring of a finished allocation were allocated, and why.
class AllocationWindow : public ResultsWindow {
 public:
  /// `folder` is the full path of the project folder.
  AllocationWindow(AllocationSettings settings, AllocationRun run, QString folder,
                   QWidget* parent = nullptr);

  /// Offers a simulation like this run, see TrialOf, and shows its figures in the summary. `start`
  /// is not called where there is none, which is told.
  void OfferTrial(StartTrial start);

  /// Offers to compare this run with another one, which `choose` asks for.
  void OfferComparison(ChooseOtherRun choose);

 private:
  void AddSummary(const SharedAllocation& shared, OffspringPage& offspring);

  SharedAllocation allocation_;
  SummaryPage* summary_ = nullptr;
};

}  // namespace kaldo
