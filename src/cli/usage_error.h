// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace CLI {
class App;
class ParseError;
}  // namespace CLI

namespace kaldo {

/// What is wrong with a command line, in one line and with the likely remedy: an unknown option or
/// command, an option without its value or given twice.
std::string UsageErrorText(const CLI::App& app, const CLI::ParseError& error);

}  // namespace kaldo
