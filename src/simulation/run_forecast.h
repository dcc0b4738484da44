// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "simulation/simulation_input.h"

namespace kaldo {

/// One class of origin of a run to come.
struct ClassForecast {
  std::string name;
  std::int32_t pseudo_offspring = 0;  ///< in an iteration, after truncation
  double weight = 0;                  ///< its share in the population
};

/// What a simulation will do, before it is run.
struct RunForecast {
  std::vector<ClassForecast> classes;
  std::uint64_t subsets = 0;         ///< to be run; the strategy minimal may end before
  std::uint64_t subsets_in_all = 0;  ///< that the strategy has
  std::int32_t iterations = 0;       ///< of each subset, at most
  double draws = 0;                  ///< of random numbers, see DrawsOfRun
  unsigned threads = 1;

  double seconds = 0;        ///< expected on this machine
  bool is_at_least = false;  ///< a single iteration took too long to be waited for
  bool is_at_most = false;   ///< the run may end before all iterations of all subsets
};

/// Tries single iterations with the smallest and the largest subset of loci for some seconds at
/// most. The time of the others is judged by their number of loci.
RunForecast ForecastRun(const SimulationSettings& settings, const SimulationInput& input);

}  // namespace kaldo
