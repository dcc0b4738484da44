// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/command_text.h"

#include "app/base/text.h"
#include "base/shell_text.h"
#include "base/this_process.h"

namespace kaldo {

QString CommandInFolder(const std::string& folder, const std::string& command) {
  return Text("cd " + ShellQuoted(folder) + " && " + command);
}

QString CommandHere(const std::string& command) {
  return CommandInFolder(CurrentFolder(), command);
}

}  // namespace kaldo
