// SPDX-License-Identifier: GPL-3.0-or-later
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

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (AnswersAlone(arguments)) {
    return static_cast<int>(
        kaldo::RunCommandLine(arguments, {std::cout, std::cerr, kaldo::MessagesGoToTerminal()}));
  }
  kaldo::MpiSession session;
  // Launchers send them to all processes: process 0 hears them and tells the others.
  kaldo::CatchStopSignals();
  try {
    if (session.Rank() == 0) {
      return static_cast<int>(Lead(arguments, session));
    }
    kaldo::WorkForProcess0(session);
    return static_cast<int>(kaldo::ExitCode::kDone);
  } catch (const std::exception& error) {
    std::cerr << error.what() << std::endl;
  }
  // Without the orderly end, which waits for every process: the launcher then ends the others.
  std::_Exit(static_cast<int>(kaldo::ExitCode::kFailed));
}
