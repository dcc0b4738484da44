// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "runs/portions.h"
#include "simulation/iteration_states.h"
#include "simulation/scan.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// The part of a run in which they are simulated.
inline constexpr std::string_view kScanPart = "Scanning";

/// The iterations of a scan: one simulation after the other, each from the seed of the run. Fills
/// the scan of a result.
class ScanPlan final : public PortionPlan {
 public:
  ScanPlan(const SimulationSettings& settings, const SimulationInput& input,
           SimulationResult& result);

  std::size_t Groups() const override { return runs_.size(); }
  std::size_t ItemsPerGroup() const override;
  std::size_t MostItemsPerPortion() const override { return 1; }
  std::string Order(const Portion& portion) override;
  bool Take(const Portion& portion, std::string_view result) override;

 private:
  const SimulationInput& input_;
  SimulationResult& result_;
  std::vector<OffsetTolerance> tolerances_;
  std::vector<ScannedRun> runs_;
  std::optional<IterationStates> stream_;  ///< of the simulation whose orders were asked last
  std::vector<std::vector<IterationCounts>> iterations_;  ///< by tolerance, of the one taken last
};

/// The work of a scan: iterations of its simulations, judged by every tolerance.
class ScanTask final : public PortionTask {
 public:
  ScanTask(const SimulationSettings& settings, const SimulationInput& input)
      : tolerances_(ScannedTolerances(settings)), runs_(ScannedRuns(settings, input)) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override;

 private:
  std::vector<OffsetTolerance> tolerances_;
  std::vector<ScannedRun> runs_;
};

}  // namespace kaldo
