// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_command.h"

#include <algorithm>

namespace kaldo {

tl::expected<AllocationSettings, Problem> AllocationFrom(const TypedSettings& typed) {
  const bool sexed = typed.contains("males") || typed.contains("females");
  if (sexed && typed.contains("parents")) {
    return NotUnderstood(ProblemKind::kParentsAndSexes,
                         "--parents goes without --males and --females");
  }
  AllocationSettings settings;
  settings.flow = sexed ? Flow::kSexed : Flow::kNonSexed;
  if (auto problem = ReadTyped(AllocationSettingTable(), typed, settings)) {
    return tl::unexpected(std::move(*problem));
  }
  return settings;
}

std::string CommandOf(const AllocationSettings& settings) {
  AllocationSettings told = settings;
  told.threads = 0;
  // The parents before their offspring, which the table has the other way round.
  const auto table = AllocationSettingTable();
  std::vector<Setting<AllocationSettings>> order(table.begin(), table.end());
  std::stable_partition(order.begin(), order.end(), [](const auto& setting) {
    return setting.group == "Files" && setting.key != "offspring";
  });
  ShellCommand command("kaldo allocate");
  AddToCommand<AllocationSettings>(order, told, {}, command);
  return command.Text();
}

}  // namespace kaldo
