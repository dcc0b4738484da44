// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/problem_kind.h"

namespace kaldo {

/// What is wrong with the files or the choices of a user, as a value: its kind, and where to look.
/// A run does not start while there is a Problem. Made with designated initializers:
/// `Problem{.kind = ProblemKind::kNoLocus, .file = path}`.
struct Problem {
  ProblemKind kind;  ///< no default: compilers warn of a Problem made without one

  /// What stands for "{}" in the sentence of the kind, for instance the path of a file.
  std::string subject = {};

  // Where it is; empty or 0 where it does not apply.
  std::string file = {};
  std::uint32_t line = 0;       ///< counted from 1
  std::uint32_t record = 0;     ///< counted from 1, separators included
  std::string individual = {};  ///< the name at the head of the record
  std::string locus = {};

  /// What was found there and what to do, in plain words.
  std::string found = {};
};

/// The sentence shown first, for instance "Offspring file name is missing!".
std::string SentenceOf(const Problem& problem);

/// One line of detail below the sentence: `offspring.txt, line 12, record 11 (B07), locus Ssa85:
/// "95100" has 5 digits ...`. Control characters are shown escaped. Empty when there is nothing to
/// add to the sentence.
std::string DetailLine(const Problem& problem);

/// `text` between double quotes as it may be shown to a user: at most 40 bytes, and bytes that a
/// terminal would obey are escaped.
std::string Quoted(std::string_view text);

/// `text` with what a terminal would obey escaped: control characters, those of Unicode and stray
/// bytes included, and characters that turn the direction of writing. Names of files and whatever
/// stands in a run record pass through here before a user sees them: either may come from anybody.
std::string Escaped(std::string_view text);

/// The same for a text of several lines, whose line ends and tabs stay.
std::string EscapedLines(std::string_view text);

/// Ends a run from outside: a report that cannot be written, a folder that cannot be made.
class RunFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The user asked to stop.
class RunStopped : public std::runtime_error {
 public:
  RunStopped() : std::runtime_error("Stopped. The results of earlier runs are as they were.") {}
};

}  // namespace kaldo
