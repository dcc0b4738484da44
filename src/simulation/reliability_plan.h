// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/portions.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// Runs the iterations of the last subset of loci once more, as they were, and scores the
/// posteriors of their pseudo-offspring: fills the reliability of a result. The random numbers of
/// the run are those of one without it.
class ReliabilityPlan final : public PortionPlan {
 public:
  explicit ReliabilityPlan(SimulationResult& result) : result_(result) {}

  std::size_t Groups() const override { return 1; }
  std::size_t ItemsPerGroup() const override { return result_.states.size(); }
  std::size_t MostItemsPerPortion() const override { return 1; }
  std::string Order(const Portion& portion) override;
  bool IsPossible(const Portion& portion, std::string_view result) const override;
  bool Take(const Portion& portion, std::string_view result) override;

 private:
  SimulationResult& result_;
};

}  // namespace kaldo
