// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/tell.h"

#include <ostream>

#include "runs/project_lock.h"

namespace kaldo {

ExitCode Tell(const Problem& problem, const CommandLineStreams& streams) {
  streams.err << SentenceOf(problem) << '\n';
  if (const std::string detail = DetailLine(problem); !detail.empty()) {
    streams.err << detail << '\n';
  }
  return ExitCode::kBadInput;
}

void TellWarnings(const std::vector<Warning>& warnings, const CommandLineStreams& streams) {
  for (const std::string& line : WarningLines(warnings)) {
    streams.err << "Warning: " << line << '\n';
  }
}

void SettleProject(const ProjectFolder& project, const CommandLineStreams& streams) {
  if (const auto recovered = RecoverProject(project)) {
    streams.err << Escaped(*recovered) << '\n';
  }
}

}  // namespace kaldo
