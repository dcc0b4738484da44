// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_command.h"

#include <algorithm>

#include "runs/all_typed.h"

namespace kaldo {

namespace {

bool IsSexed(const TypedSettings& typed) {
  return typed.contains("males") || typed.contains("females");
}

std::optional<Problem> CheckFlow(const TypedSettings& typed) {
  if (!IsSexed(typed) || !typed.contains("parents")) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kParentsAndSexes,
                 .found = "--parents goes without --males and --females"};
}

}  // namespace

tl::expected<AllocationSettings, Problem> AllocationFrom(const TypedSettings& typed) {
  if (auto problem = CheckFlow(typed)) {
    return tl::unexpected(std::move(*problem));
  }
  AllocationSettings settings;
  settings.flow = IsSexed(typed) ? Flow::kSexed : Flow::kNonSexed;
  if (auto problem = ReadTyped(AllocationSettingTable(), typed, settings)) {
    return tl::unexpected(std::move(*problem));
  }
  return settings;
}

AllocationSettings ReadableAllocation(const TypedSettings& typed, AlikeGroups<Problem>& faults) {
  if (auto problem = CheckFlow(typed)) {
    faults.Add(std::move(*problem));
  }
  AllocationSettings settings;
  settings.flow = IsSexed(typed) ? Flow::kSexed : Flow::kNonSexed;
  ReadAllTyped(AllocationSettingTable(), typed, settings, faults);
  return settings;
}

std::string CommandOf(const AllocationSettings& settings) {
  AllocationSettings told = settings;
  told.threads = 0;
  // The parents before their offspring, which the table has the other way round.
  const auto table = AllocationSettingTable();
  std::vector<Setting<AllocationSettings>> order(table.begin(), table.end());
  std::stable_partition(order.begin(), order.end(), [](const auto& setting) {
    return setting.group == "Files" && setting.key != "offspring" && !setting.may_be_left_out;
  });
  ShellCommand command("kaldo allocate");
  AddToCommand<AllocationSettings>(order, told, {}, command);
  return command.Text();
}

}  // namespace kaldo
