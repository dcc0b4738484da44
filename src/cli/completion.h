// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace kaldo {

/// The shells that can complete the words of a command line.
std::vector<std::string_view> CompletedShells();

/// A script for one of them that completes the commands of the program, their options and, behind
/// an option, its files, folders or names. All of it is taken from the commands themselves. Nothing
/// for another shell.
std::optional<std::string> CompletionScript(const CLI::App& app, std::string_view shell);

}  // namespace kaldo
