// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/tell.h"

#include <ostream>

namespace kaldo {

ExitCode Tell(const Problem& problem, const CommandLineStreams& streams) {
  streams.err << SentenceOf(problem) << '\n';
  if (const std::string detail = DetailLine(problem); !detail.empty()) {
    streams.err << detail << '\n';
  }
  return ExitCode::kBadInput;
}

}  // namespace kaldo
