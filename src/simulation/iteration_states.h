// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "simulation/flows/origin_class.h"
#include "simulation/pseudo_offspring.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// The random numbers of an iteration.
RandomNumbers RandomNumbersAt(RandomSource source, IterationStart start);

/// Finds where each iteration starts, so that iterations can run in any order and on any thread.
/// Modern iterations have a stream each. The others share one, in which everything but the true
/// parents takes a known number of draws: no individual is made, they are jumped over.
class IterationStates {
 public:
  IterationStates(const SimulationSettings& settings, const SimulationInput& input,
                  std::uint32_t seed);

  /// The starts of the next so many iterations, which follow each other: the first one starts at
  /// the seed.
  std::vector<IterationStart> Next(std::size_t iterations);

  /// Leaves iterations out so that the next one is that of the number, counted from 0.
  void SkipTo(std::uint64_t iteration);

 private:
  IterationStart Start() const;
  void SkipIteration();

  struct ClassDraws {
    TrueParentRanges ranges;
    std::int32_t size = 0;
  };

  RandomSource source_;
  std::uint32_t seed_;
  std::uint64_t next_ = 0;  ///< the number of the next iteration
  RandomNumbers random_;
  RandomJump parents_;
  std::optional<std::uint64_t> draws_;  ///< of an iteration, where no parents are drawn again
  RandomJump offspring_;
  std::vector<ClassDraws> classes_;
};

/// The ranges of the true parents of a class in the parent table.
TrueParentRanges RangesOf(const OriginClass& origin, const SimulationInput& input);

}  // namespace kaldo
