// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/cluster_program.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "base/stop_signal.h"
#include "base/this_process.h"
#include "cli/command_line.h"
#include "cluster/cluster_worker.h"
#include "cluster/cluster_workforce.h"

namespace kaldo {

namespace {

/// The command line of the program, in process 0 alone.
ExitCode Lead(const std::vector<std::string>& arguments, KeepingPace pace, MpiSession& session) {
  ClusterWorkforce workforce(session, pace);
  const CommandLineStreams streams{std::cout, std::cerr, MessagesGoToTerminal()};
  ExitCode code = RunCommandLine(arguments, streams, workforce);
  std::cout.flush();
  if (!std::cout && code == ExitCode::kDone) {
    std::cerr << "Cannot write to standard output.\n";
    code = ExitCode::kFailed;
  }
  if (workforce.HasLostProcess()) {
    std::_Exit(static_cast<int>(code));  // an orderly end waits for every process
  }
  workforce.Dismiss();
  return code;
}

/// Words on the program itself need no other process, and a login node has no launcher. Where one
/// started this process, process 0 alone answers.
bool AnswersAlone(const std::vector<std::string>& arguments) {
  constexpr std::array kLaunched = {"OMPI_COMM_WORLD_SIZE", "PMI_SIZE", "PMIX_RANK",
                                    "SLURM_STEP_ID"};
  const bool launched = std::any_of(kLaunched.begin(), kLaunched.end(), [](const char* name) {
    return std::getenv(name) != nullptr;  // NOLINT(concurrency-mt-unsafe): there is one thread yet
  });
  return !launched && std::any_of(arguments.begin(), arguments.end(), [](const auto& word) {
    return word == "--version" || word == "--help" || word == "-h";
  });
}

}  // namespace

int RunClusterProgram(int argc, char** argv, KeepingPace pace) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (AnswersAlone(arguments)) {
    return static_cast<int>(
        RunCommandLine(arguments, {std::cout, std::cerr, MessagesGoToTerminal()}));
  }
  MpiSession session;
  // Launchers send them to all processes: process 0 hears them and tells the others.
  CatchStopSignals();
  try {
    if (session.Rank() == 0) {
      return static_cast<int>(Lead(arguments, pace, session));
    }
    WorkForProcess0(session);
    return static_cast<int>(ExitCode::kDone);
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
  }
  // Without the orderly end, which waits for every process: the launcher then ends the others.
  std::_Exit(static_cast<int>(ExitCode::kFailed));
}

}  // namespace kaldo
