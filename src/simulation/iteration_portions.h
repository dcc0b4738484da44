// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "runs/portions.h"
#include "simulation/iteration_states.h"
#include "simulation/locus_subsets.h"
#include "simulation/simulation_input.h"

namespace kaldo {

// The parts of a run in which iterations are simulated.
inline constexpr std::string_view kSimulatingPart = "Simulating";
inline constexpr std::string_view kReliabilityPart = "Scoring how sure the allocations are";
inline constexpr std::string_view kMatricesPart = "Writing the transmission matrices";

/// What a stretch of iterations gives back.
enum class IterationProduct {
  kCounts,       ///< the IterationCounts of each
  kReliability,  ///< the Reliability of each
  kMatrices,     ///< their listings of transmission matrices, as text
};

/// The product of a part of a run.
IterationProduct ProductOf(std::string_view part);

/// A stretch of iterations, as bytes: with which loci, and where its random numbers start. All a
/// worker needs beside settings and input.
std::string PackOrder(const LocusSubset& loci, std::span<const IterationStart> states);

/// The simulation of stretches of iterations.
class IterationTask final : public PortionTask {
 public:
  IterationTask(const SimulationSettings& settings, const SimulationInput& input,
                IterationProduct product)
      : settings_(settings), input_(input), product_(product) {}

  std::unique_ptr<PortionWorker> MakeWorker() const override;

 private:
  const SimulationSettings& settings_;
  const SimulationInput& input_;
  IterationProduct product_;
};

}  // namespace kaldo
