// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include <tl/expected.hpp>

#include "base/problem.h"
#include "simulation/simulation_settings.h"

namespace CLI {
class App;
}

namespace kaldo {

/// The options of one parental set, as typed.
struct ParentalSetOptions {
  std::optional<std::string> collected;
  std::optional<std::string> pseudo_collected_sample;
  std::optional<std::string> pseudo_collected;
  std::optional<std::string> uncollected_sample;
  std::optional<std::string> uncollected;
  std::optional<std::string> estimated_collected;
  std::optional<std::string> estimated_uncollected;
};

/// The options of `kaldo simulate`, as typed.
struct SimulationOptions {
  std::string project;
  std::string loci;
  bool sexed = false;
  ParentalSetOptions parents;
  ParentalSetOptions males;
  ParentalSetOptions females;
  std::optional<std::string> iterations;
  std::optional<std::string> offspring_per_iteration;
  std::string tolerance = "1";
  std::string error = "nonuniform";
  std::optional<std::string> use;
  std::string strategy = "choice";
  std::string criterion = "0.95";
  std::string start_with = "1";
  std::optional<std::string> sequence;
  bool print_iterations = false;
  bool print_subset_statistics = false;
  std::optional<std::string> keep;
  std::optional<std::string> seed;
  std::optional<std::string> threads;
};

/// Adds the options to a command.
void AddSimulationOptions(CLI::App& command, SimulationOptions& options);

/// The settings that the options stand for.
tl::expected<SimulationSettings, Problem> SettingsFrom(const SimulationOptions& options);

}  // namespace kaldo
