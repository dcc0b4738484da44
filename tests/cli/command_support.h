// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/command_line.h"

namespace kaldo::test {

using Arguments = std::vector<std::string>;

inline Arguments operator+(Arguments arguments, const Arguments& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// What a command did.
struct Outcome {
  ExitCode code;
  std::string out;
  std::string err;
};

inline Outcome RunCommand(const Arguments& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const ExitCode code = RunCommandLine(arguments, {out, err});
  return {code, out.str(), err.str()};
}

}  // namespace kaldo::test
