// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <CLI/CLI.hpp>

namespace kaldo {

/// Adds an option that takes one text to a group of a command's help.
template <typename Text>
CLI::Option* AddTextOption(CLI::App& command, const std::string& group, const std::string& name,
                           Text& text, const std::string& type, const std::string& help) {
  return command.add_option(name, text, help)->type_name(type)->group(group);
}

}  // namespace kaldo
