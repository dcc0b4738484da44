// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "allocation/allocation_settings.h"
#include "base/file_source.h"
#include "simulation/simulation_settings.h"

namespace kaldo::fuzz {

/// Input files that are nowhere on disk.
class MemoryFiles final : public FileSource {
 public:
  explicit MemoryFiles(std::map<std::string, std::string> files) : files_(std::move(files)) {}

  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override;

 private:
  std::map<std::string, std::string> files_;
};

/// A small sound study with one of its files replaced: "loci", "parents", "males", "females",
/// "sample" or "offspring".
MemoryFiles StudyWith(const std::string& file, std::string_view contents);

AllocationSettings AllocationOfStudy(Flow flow);

/// Parents collected in "parents" or "males" and "females", the others drawn from "sample".
SimulationSettings SimulationOfStudy(Flow flow);

}  // namespace kaldo::fuzz
