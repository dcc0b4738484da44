// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/result_comparison.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <limits>
#include <set>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "runs/result_files.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

constexpr std::array kFlows = {kNonSexedAllocationFlow, kSexedAllocationFlow,
                               kNonSexedSimulationFlow, kSexedSimulationFlow};

/// What is to be said of a result that should be there, or nothing when it is as recorded.
std::string Difference(const RecordedOutput& output, const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) {
    return "is missing";
  }
  if (RefuseSpecialFile(path, std::numeric_limits<std::size_t>::max())) {
    return "is no regular file";
  }
  const auto now = DigestOfFile(path);
  if (!now) {
    return "cannot be read";
  }
  return *now == output.digest ? "" : "has other contents: it was edited, or is of another run";
}

}  // namespace

ResultComparison CompareResults(const RunRecord& record, const std::string& folder) {
  ResultComparison comparison;
  std::set<std::string> listed;
  for (const RecordedOutput& output : record.outputs) {
    listed.insert('/' + output.file);
    const std::string difference = Difference(output, folder + '/' + output.file);
    if (difference.empty()) {
      ++comparison.same;
    } else {
      comparison.differences.push_back(fmt::format("{} {}", Quoted(output.file), difference));
    }
  }
  for (const std::string_view flow : kFlows) {
    for (const std::string_view file : ResultFiles(flow)) {
      std::error_code ignored;
      const bool is_new = listed.emplace(file).second;
      if (is_new && std::filesystem::exists(folder + std::string(file), ignored)) {
        comparison.differences.push_back(fmt::format(
            "{} is of another run: the record does not list it", Quoted(file.substr(1))));
      }
    }
  }
  return comparison;
}

}  // namespace kaldo
