// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>

#include "runs/portions.h"
#include "simulation/iteration_states.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// Subset by subset, its iterations: finds where each iteration starts, and fills the figures of
/// the subsets and the states of a result. Ends with the first subset that reaches the criterion
/// where the strategy asks for that. The subsets share one stream of random numbers, unless the
/// settings want the same for all: each starts where the one before it ends after all iterations,
/// also where it had enough with fewer, so that no subset depends on how long another ran.
class CountsPlan final : public PortionPlan {
 public:
  CountsPlan(const SimulationSettings& settings, const SimulationInput& input,
             SimulationResult& result, RunObserver& observer);

  /// The counts of the subset taken last.
  Iterations LastIterations() const { return iterations_; }

  std::size_t Groups() const override { return input_.subsets.Count(); }
  std::size_t ItemsPerGroup() const override;
  std::size_t MostItemsPerPortion() const override;
  bool MayEndEarly() const override {
    return settings_.strategy == LociStrategy::kMinimal || settings_.until_error;
  }
  bool HasEnded(std::size_t group) const override { return group < result_.subsets.size(); }
  std::string Order(const Portion& portion) override;
  bool IsPossible(const Portion& portion, std::string_view result) const override;
  bool Take(const Portion& portion, std::string_view result) override;

 private:
  struct Ordered {
    Portion portion;
    std::vector<IterationStart> starts;
  };

  bool IsEnough();
  void BeginSubset(std::size_t subset);
  void EndSubset(std::size_t subset);

  const SimulationSettings& settings_;
  const SimulationInput& input_;
  const SimulationDesign& design_;
  SimulationResult& result_;
  RunObserver& observer_;

  const IterationStates stream_of_first_;
  IterationStates stream_;
  std::vector<IterationCounts> iterations_;
  std::vector<double> any_correct_;  ///< of each of them, where they are judged
  std::deque<Ordered> ordered_;      ///< the states of portions not yet taken
};

}  // namespace kaldo
