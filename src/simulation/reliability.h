// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/run_observer.h"
#include "confidence/posterior.h"
#include "method/kept_pairs.h"
#include "simulation/simulated_iteration.h"

namespace kaldo {

/// Sides of pseudo-offspring that name somebody: how many of the names are right, and how many
/// should be.
struct NamedSides {
  std::uint64_t sides = 0;
  std::uint64_t right = 0;  ///< the named one is a true parent (sexed: the true parent of the side)
  double probabilities = 0;  ///< summed up: so many should be right

  void Count(double probability, bool is_right);
  void Add(const NamedSides& other);

  std::uint64_t Wrong() const { return sides - right; }
  double ExpectedWrong() const { return static_cast<double>(sides) - probabilities; }
};

/// The levels at which posteriors are scored, in ascending order: 0.5, 0.8, 0.95 and the one that
/// the user wants.
std::vector<double> ReliabilityLevels(double wanted);
inline constexpr std::size_t kMostReliabilityLevels = 4;

/// Sides by the probability of their most probable candidate: from one limit to below the next, the
/// last one included.
inline constexpr std::array<double, 9> kReliabilityLimits = {0,   0.2,  0.4,  0.6, 0.8,
                                                             0.9, 0.95, 0.99, 1};

/// How well the posterior probabilities of pseudo-offspring agree with the truth.
struct Reliability {
  std::array<NamedSides, kMostReliabilityLevels> levels;  ///< named there, as ReliabilityLevels
  std::array<NamedSides, kReliabilityLimits.size() - 1> bins;
  std::uint64_t collected_sides = 0;  ///< whose true parent is a candidate: as many can be found

  void Add(const Reliability& other);
};

/// Counts one pseudo-offspring. `collected` tells by true parent whether it is a candidate.
void CountReliability(Flow flow, const OffspringConfidence& confidence, ParentPair truth,
                      std::array<bool, 2> collected, std::span<const double> levels,
                      Reliability& reliability);

/// Computes the posteriors of all pseudo-offspring of an iteration, as an allocation would for real
/// ones, and compares them with the truth. They rest on the model of ConfidenceModelOf, which must
/// have no negative probability.
Reliability ReliabilityOf(const SimulationSettings& settings, const SimulatedIteration& iteration,
                          const RunObserver& observer);

}  // namespace kaldo
