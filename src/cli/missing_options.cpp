// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/missing_options.h"

#include <algorithm>

namespace kaldo {

namespace {

bool IsOfMissingName(ProblemKind kind) {
  return kind >= ProblemKind::kNoProject && kind <= ProblemKind::kNoSampleFile;
}

template <typename Settings>
std::vector<std::string> MissingNames(SettingTable<Settings> table, const Settings& settings,
                                      bool is_run) {
  std::vector<std::string> missing;
  for (const Setting<Settings>& setting : table) {
    const bool is_name = setting.metavar == "FILE" || (setting.metavar == "DIR" && is_run);
    const auto is_idle = [&](const Setting<Settings>& number) {
      return number.key == setting.not_needed_at_0 && number.value.text(settings) == "0";
    };
    if (is_name && setting.MustBeGiven() && setting.Applies(settings) &&
        std::none_of(table.begin(), table.end(), is_idle) &&
        setting.value.text(settings).value_or("").empty()) {
      missing.push_back(setting.option);
    }
  }
  return missing;
}

Problem WithOptions(Problem problem, const std::vector<std::string>& missing) {
  if (IsOfMissingName(problem.kind) && problem.found.empty() && !missing.empty()) {
    problem.found = MissingNumber(missing.front(), missing).found;
  }
  return problem;
}

}  // namespace

Problem WithMissingOptions(Problem problem, const AllocationSettings& settings, bool is_run) {
  auto missing = MissingNames(AllocationSettingTable(), settings, is_run);
  std::replace(missing.begin(), missing.end(), std::string("--parents"),
               std::string("--parents (or --males with --females)"));
  return WithOptions(std::move(problem), missing);
}

Problem WithMissingOptions(Problem problem, const SimulationSettings& settings, bool is_run) {
  return WithOptions(std::move(problem), MissingNames(SimulationSettingTable(), settings, is_run));
}

}  // namespace kaldo
