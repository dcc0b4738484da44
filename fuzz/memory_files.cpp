// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/memory_files.h"

namespace kaldo::fuzz {

namespace {

constexpr std::string_view kIndividuals =
    "A 150152 200204 B 152156 204204\nC 150150 202206\nD 154152 200202\n";

}  // namespace

tl::expected<std::vector<char>, Problem> MemoryFiles::Read(const std::string& path) {
  const auto file = files_.find(path);
  if (file == files_.end()) {
    return tl::unexpected(CannotOpenFile(path, "there is no such file"));
  }
  return std::vector<char>(file->second.begin(), file->second.end());
}

MemoryFiles StudyWith(const std::string& file, std::string_view contents) {
  std::map<std::string, std::string> files = {{"loci", "L1 L2\n"}};
  for (const char* const each : {"parents", "males", "females", "sample", "offspring"}) {
    files[each] = kIndividuals;
  }
  files[file] = contents;
  return MemoryFiles(std::move(files));
}

AllocationSettings AllocationOfStudy(Flow flow) {
  AllocationSettings settings;
  settings.flow = flow;
  settings.project = "results";
  settings.parents_file = "parents";
  settings.males_file = "males";
  settings.females_file = "females";
  settings.offspring_file = "offspring";
  settings.loci_file = "loci";
  settings.error_model = {.kind = ErrorKind::kUniform, .epsilon = 0.01};
  settings.sequence = std::vector<std::int32_t>{};
  return settings;
}

SimulationSettings SimulationOfStudy(Flow flow) {
  SimulationSettings settings;
  settings.flow = flow;
  settings.project = "results";
  settings.loci_file = "loci";
  for (ParentalSet& set : settings.sets) {
    set = {.uncollected_sample = "sample",
           .uncollected = 2,
           .estimated_collected = 3,
           .estimated_uncollected = 2};
  }
  if (flow == Flow::kSexed) {
    settings.sets[0].collected_file = "males";
    settings.sets[1].collected_file = "females";
  } else {
    settings.sets[0].collected_file = "parents";
  }
  settings.error_model = {.kind = ErrorKind::kUniform, .epsilon = 0.01};
  settings.iterations = 1;
  settings.offspring_per_iteration = 8;
  settings.strategy = LociStrategy::kAll;
  return settings;
}

}  // namespace kaldo::fuzz
