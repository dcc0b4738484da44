// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/unfinished_run.h"
#include "runs/workforce.h"

namespace kaldo {

/// Has a workforce do only what an unfinished run has not done, and keeps what it does for the case
/// that this run is not finished either. Every part of the run must go through it, in an order that
/// follows from the settings and the results alone.
class ResumingWorkforce final : public Workforce {
 public:
  ResumingWorkforce(Workforce& workforce, UnfinishedRun& unfinished, RunDifference difference)
      : Workforce(workforce.Pace()),
        workforce_(workforce),
        unfinished_(unfinished),
        difference_(std::move(difference)) {}

  unsigned Threads(unsigned wanted) const override { return workforce_.Threads(wanted); }
  FileSource& Files() override { return workforce_.Files(); }

  /// Also throws RunRefused when the unfinished run is not this one.
  void Do(const PortionJob& job, unsigned wanted, RunObserver& observer) override;

 private:
  Workforce& workforce_;
  UnfinishedRun& unfinished_;
  RunDifference difference_;
  std::uint64_t parts_ = 0;
};

}  // namespace kaldo
