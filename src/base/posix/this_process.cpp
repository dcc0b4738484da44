// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/this_process.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <unistd.h>

#include <fmt/format.h>

#include "base/path_text.h"

namespace kaldo {

std::string ThisProcess() {
  std::array<char, 256> machine{};
  const bool known = ::gethostname(machine.data(), machine.size() - 1) == 0;
  return fmt::format("process {} on {}", ::getpid(), known ? machine.data() : "this machine");
}

bool MessagesGoToTerminal() { return ::isatty(STDERR_FILENO) == 1; }

std::vector<std::string> ProgramArguments(int argc, char** argv) {
  return {argv + std::min(argc, 1), argv + argc};
}

// Terminals take text as it is.
TextConsole::TextConsole() = default;
TextConsole::~TextConsole() = default;

void StayForReader() {}  // a terminal stays

std::string CurrentFolder() {
  std::error_code gone;
  return PathText(std::filesystem::current_path(gone));
}

}  // namespace kaldo
