// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/typed_options.h"

#include <CLI/CLI.hpp>

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

template <typename Settings>
void TypedOptions::AddTo(CLI::App& command, SettingTable<Settings> table) {
  for (const Setting<Settings>& setting : table) {
    if (setting.option.empty()) {
      continue;
    }
    Slot& slot = slots_[setting.key];
    if (setting.IsFlag()) {
      command.add_flag(setting.option, slot.flag, setting.help)->group(setting.group);
      continue;
    }
    const std::string help = setting.help + (setting.MustBeGiven() ? " (required)" : "");
    CLI::Option* const option = command.add_option(setting.option, slot.text, help)
                                    ->type_name(setting.metavar)
                                    ->group(setting.group);
    if (setting.may_stand_alone) {
      option->expected(0, 1);
    }
    const auto by_default = setting.value.text(Settings{});
    if (by_default && !setting.needed) {
      option->default_str(*by_default);
    }
  }
}

template void TypedOptions::AddTo(CLI::App& command, SettingTable<AllocationSettings> table);
template void TypedOptions::AddTo(CLI::App& command, SettingTable<SimulationSettings> table);

TypedSettings TypedOptions::Given() const {
  TypedSettings typed;
  for (const auto& [key, slot] : slots_) {
    if (slot.text || slot.flag) {
      typed[key] = slot.text.value_or("");
    }
  }
  return typed;
}

}  // namespace kaldo
