// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/usable_threads.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <string_view>

#include "base/number_text.h"
#include "base/this_process.h"

namespace kaldo {

namespace {

/// The first words of a file of the kernel; empty where there is no such file.
std::pair<std::string, std::string> WordsOf(const std::string& path) {
  std::ifstream file(path);
  std::pair<std::string, std::string> words;
  file >> words.first >> words.second;
  return words;
}

std::optional<double> Share(std::string_view quota, std::string_view period) {
  const auto granted = ParseDouble(quota);  // "max" and -1 are no quota
  const auto of = ParseDouble(period);
  return granted && of && *granted > 0 && *of > 0 ? std::optional(*granted / *of) : std::nullopt;
}

/// The quota that one group sets.
std::optional<double> QuotaOf(const std::string& folder, bool is_second_version) {
  if (is_second_version) {
    const auto [quota, period] = WordsOf(folder + "/cpu.max");
    return Share(quota, period);
  }
  return Share(WordsOf(folder + "/cpu.cfs_quota_us").first,
               WordsOf(folder + "/cpu.cfs_period_us").first);
}

bool HasWord(std::string_view list, std::string_view word) {
  return (',' + std::string(list) + ',').find(',' + std::string(word) + ',') != std::string::npos;
}

}  // namespace

std::optional<double> ProcessorsOfControlGroup(const std::string& root) {
  double least = std::numeric_limits<double>::infinity();
  std::ifstream groups(root + "/proc/self/cgroup");
  // "0::/system.slice/job" of the second version, "4:cpu,cpuacct:/job" of the first
  for (std::string line; std::getline(groups, line);) {
    const std::size_t list = line.find(':') + 1;
    const std::size_t path = line.find(':', list) + 1;
    if (list == 0 || path == 0) {
      continue;
    }
    const std::string controllers = line.substr(list, path - list - 1);
    const bool is_second_version = controllers.empty();
    if (!is_second_version && !HasWord(controllers, "cpu")) {
      continue;
    }
    const std::string mount =
        root + "/sys/fs/cgroup" + (is_second_version ? "" : "/" + controllers);
    std::string group = line.substr(path);
    for (bool is_top = false; !is_top; group.resize(std::min(group.rfind('/'), group.size()))) {
      is_top = group.find_first_not_of('/') == std::string::npos;
      least = std::min(least, QuotaOf(mount + group, is_second_version).value_or(least));
    }
  }
  return std::isinf(least) ? std::nullopt : std::optional(least);
}

unsigned UsableThreads() {
  double threads = UsableProcessors();
  if (const auto granted = ProcessorsOfControlGroup()) {
    threads = std::min(threads, std::ceil(*granted));
  }
  // NOLINTNEXTLINE(concurrency-mt-unsafe): nothing in the program changes the environment.
  if (const char* const promised = std::getenv("SLURM_CPUS_PER_TASK")) {
    const auto number = ParseDouble(promised);
    threads = number && *number >= 1 ? std::min(threads, *number) : threads;
  }
  return std::max(static_cast<unsigned>(threads), 1U);
}

}  // namespace kaldo
