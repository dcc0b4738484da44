// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "simulation/flows/origin_class.h"
#include "simulation/pseudo_offspring.h"
#include "simulation/simulation_input.h"

namespace kaldo {

/// Finds where in the stream of random numbers each iteration starts, without making any
/// individual: everything but the true parents takes a known number of draws and is jumped over.
/// Iterations can then run in any order and on any thread.
class IterationStates {
 public:
  IterationStates(Flow flow, const SimulationInput& input, std::uint32_t seed);

  /// The states at the start of the next so many iterations, which follow each other in the stream:
  /// the first one starts at the seed.
  std::vector<std::uint32_t> Next(std::size_t iterations);

 private:
  void SkipIteration();

  struct ClassDraws {
    TrueParentRanges ranges;
    std::int32_t size = 0;
  };

  RandomNumbers random_;
  RandomJump parents_;
  RandomJump offspring_;
  std::vector<ClassDraws> classes_;
};

/// The ranges of the true parents of a class in the parent table.
TrueParentRanges RangesOf(const OriginClass& origin, const SimulationInput& input);

}  // namespace kaldo
