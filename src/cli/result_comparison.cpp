// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/result_comparison.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <limits>
#include <set>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "base/path_text.h"
#include "runs/result_files.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

constexpr std::array kFlows = {kNonSexedAllocationFlow, kSexedAllocationFlow,
                               kNonSexedSimulationFlow, kSexedSimulationFlow};

/// No report names a file further down.
constexpr int kLinesWithPaths = 12;

/// The digest of a report as the recorded run would have written it.
FileDigest DigestWithPathsThen(const std::string& path, const PathsThen& then) {
  std::ifstream file(FilePath(path), std::ios::binary);
  RunningDigest digest;
  std::string line;
  for (int i = 0; i < kLinesWithPaths && std::getline(file, line); ++i) {
    const std::size_t begin = line.rfind('\t') + 1;
    if (const auto known = then.find(std::string_view(line).substr(begin)); known != then.end()) {
      line.resize(begin);
      line += known->second;
    }
    digest.Add(line);
    digest.Add(file.eof() ? "" : "\n");
  }
  std::array<char, std::size_t{1} << 16U> bytes{};
  while (file.read(bytes.data(), bytes.size()) || file.gcount() > 0) {
    digest.Add({bytes.data(), static_cast<std::size_t>(file.gcount())});
  }
  return digest.SoFar();
}

/// What is to be said of a result that should be there, or nothing when it is as recorded.
std::string Difference(const RecordedOutput& output, const std::string& path,
                       const PathsThen& then) {
  std::error_code ignored;
  if (!std::filesystem::exists(FilePath(path), ignored)) {
    return "is missing";
  }
  if (RefuseSpecialFile(path, std::numeric_limits<std::size_t>::max())) {
    return "is no regular file";
  }
  const auto now = DigestOfFile(path);
  if (!now) {
    return "cannot be read";
  }
  const bool is_same =
      *now == output.digest || (!then.empty() && DigestWithPathsThen(path, then) == output.digest);
  return is_same ? "" : "has other contents: it was edited, or is of another run";
}

}  // namespace

ResultComparison CompareResults(const RunRecord& record, const std::string& folder,
                                const PathsThen& then) {
  ResultComparison comparison;
  std::set<std::string> listed;
  for (const RecordedOutput& output : record.outputs) {
    listed.insert('/' + output.file);
    const std::string difference = Difference(output, folder + '/' + output.file, then);
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
      if (is_new && std::filesystem::exists(FilePath(folder + std::string(file)), ignored)) {
        comparison.differences.push_back(fmt::format(
            "{} is of another run: the record does not list it", Quoted(file.substr(1))));
      }
    }
  }
  return comparison;
}

}  // namespace kaldo
