// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/alike.h"
#include "runs/setting.h"

namespace kaldo {

/// Reads what was typed into the settings as ReadTyped does, but tells every fault, in the same
/// order. A setting at fault stays as it was; a number that is missing is taken for 1, so that no
/// more is told of it.
template <typename Settings>
void ReadAllTyped(SettingTable<Settings> table, const TypedSettings& typed, Settings& settings,
                  AlikeGroups<Problem>& faults) {
  bool is_missing_told = false;
  for (const bool numbers : {true, false}) {
    for (const Setting<Settings>& setting : table) {
      if (setting.value.is_number != numbers || !setting.Applies(settings)) {
        continue;
      }
      const auto text = typed.find(setting.key);
      if (text != typed.end()) {
        if (auto problem = setting.value.parse(settings, setting.option, text->second)) {
          faults.Add(std::move(*problem));
        }
      } else if (setting.needed) {
        if (!is_missing_told) {
          faults.Add(MissingNumber(setting.option, MissingOptions(table, typed, settings)));
        }
        is_missing_told = true;
        setting.value.parse(settings, setting.option, "1");
      }
    }
  }
}

}  // namespace kaldo
