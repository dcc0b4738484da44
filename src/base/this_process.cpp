// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/this_process.h"

#include <array>
#include <filesystem>
#include <unistd.h>

#include <fmt/format.h>

namespace kaldo {

std::string ThisProcess() {
  std::array<char, 256> machine{};
  const bool known = ::gethostname(machine.data(), machine.size() - 1) == 0;
  return fmt::format("process {} on {}", ::getpid(), known ? machine.data() : "this machine");
}

bool MessagesGoToTerminal() { return ::isatty(STDERR_FILENO) == 1; }

std::string CurrentFolder() {
  std::error_code gone;
  return std::filesystem::current_path(gone).string();
}

}  // namespace kaldo
