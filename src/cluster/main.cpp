// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <exception>
#include <iostream>

#include "base/stop_signal.h"
#include "base/this_process.h"
#include "cli/command_line.h"
#include "cluster/cluster_worker.h"
#include "cluster/cluster_workforce.h"

namespace {

/// The command line of the program, in process 0 alone.
kaldo::ExitCode Lead(const std::vector<std::string>& arguments, kaldo::MpiSession& session) {
  kaldo::ClusterWorkforce workforce(session);
  const kaldo::CommandLineStreams streams{std::cout, std::cerr, kaldo::MessagesGoToTerminal()};
  kaldo::ExitCode code = kaldo::RunCommandLine(arguments, streams, workforce);
  std::cout.flush();
  if (!std::cout && code == kaldo::ExitCode::kDone) {
    std::cerr << "Cannot write to standard output.\n";
    code = kaldo::ExitCode::kFailed;
  }
  if (workforce.HasLostProcess()) {
    std::_Exit(static_cast<int>(code));  // an orderly end waits for every process
  }
  workforce.Dismiss();
  return code;
}

}  // namespace

int main(int argc, char** argv) {
  kaldo::MpiSession session;
  // Launchers send them to all processes: process 0 hears them and tells the others.
  kaldo::CatchStopSignals();
  try {
    if (session.Rank() == 0) {
      return static_cast<int>(Lead({argv + 1, argv + argc}, session));
    }
    kaldo::WorkForProcess0(session);
    return static_cast<int>(kaldo::ExitCode::kDone);
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
  }
  // Without the orderly end, which waits for every process: the launcher then ends the others.
  std::_Exit(static_cast<int>(kaldo::ExitCode::kFailed));
}
