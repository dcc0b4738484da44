// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace kaldo {

/// `text` as one word for a POSIX shell: as it is where that is safe, else between single quotes.
/// Any bytes are kept, so that a folder named "lac d'été" is found again.
std::string ShellQuoted(std::string_view text);

/// A command in the making, to be copied into a terminal or into the notes of a study.
class ShellCommand {
 public:
  explicit ShellCommand(std::string program) : text_(std::move(program)) {}

  /// An option without a value.
  void Add(std::string_view option);

  /// An option with its value. A value that begins with "-" is joined to its option by "=", lest
  /// it is taken for an option itself.
  void Add(std::string_view option, std::string_view value);

  /// The same, but only when there is a value: a file that was not chosen is not mentioned.
  void AddIfAny(std::string_view option, std::string_view value);

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace kaldo
