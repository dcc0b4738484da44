// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "base/problem.h"

namespace CLI {
class App;
}

namespace kaldo {

/// The options of `kaldo allocate` and `kaldo check`, as typed. A file that was not given and one
/// with an empty name are told by the same sentence.
struct AllocationOptions {
  std::string project;
  std::string loci;
  std::string offspring;
  std::optional<std::string> parents;
  std::optional<std::string> males;
  std::optional<std::string> females;
  std::string tolerance = "1";
  std::string error = "nonuniform";
  std::optional<std::string> use;
  std::optional<std::string> sequence;  ///< empty text: file order
  std::optional<std::string> threads;
};

/// Adds the options to a command.
void AddAllocationOptions(CLI::App& command, AllocationOptions& options);

/// The settings that the options stand for. Their texts are read here; what they mean together is
/// tested by the run.
tl::expected<AllocationSettings, Problem> SettingsFrom(const AllocationOptions& options);

}  // namespace kaldo
