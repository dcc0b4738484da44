// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/shell_text.h"

#include <algorithm>

namespace kaldo {

namespace {

/// Characters that mean nothing to any shell. Letters with accents are left out: whether they are
/// letters depends on the user's language.
bool IsPlain(char character) {
  constexpr std::string_view kPlain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+./,:@%=";
  return kPlain.find(character) != std::string_view::npos;
}

}  // namespace

std::string ShellQuoted(std::string_view text) {
  // Some shells look for a command behind a leading "=".
  if (!text.empty() && text.front() != '=' && std::all_of(text.begin(), text.end(), IsPlain)) {
    return std::string(text);
  }
  std::string quoted = "'";
  for (const char character : text) {
    if (character == '\'') {
      quoted += "'\\''";
    } else {
      quoted += character;
    }
  }
  return quoted + '\'';
}

void ShellCommand::Add(std::string_view option) { text_.append(" ").append(option); }

void ShellCommand::Add(std::string_view option, std::string_view value) {
  Add(option);
  text_.append(value.starts_with('-') ? "=" : " ").append(ShellQuoted(value));
}

void ShellCommand::AddIfAny(std::string_view option, std::string_view value) {
  if (!value.empty()) {
    Add(option, value);
  }
}

}  // namespace kaldo
