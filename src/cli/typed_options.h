// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>

#include "runs/setting.h"

namespace CLI {
class App;
}

namespace kaldo {

/// The options of a command and, once it has been parsed, what was typed for them.
class TypedOptions {
 public:
  /// Adds an option per declared setting. Two commands with the same settings may share them.
  template <typename Settings>
  void AddTo(CLI::App& command, SettingTable<Settings> table);

  TypedSettings Given() const;

 private:
  struct Slot {
    std::optional<std::string> text;
    bool flag = false;
  };

  std::map<std::string, Slot> slots_;  ///< by the keys of the settings; a slot stays where it is
};

}  // namespace kaldo
