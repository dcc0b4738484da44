// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/program.h"

#include <exception>
#include <iostream>

#include "base/stop_signal.h"
#include "base/this_process.h"
#include "cli/command_line.h"

namespace kaldo {

int RunProgram(int argc, char** argv, KeepingPace pace) {
  try {
    CatchStopSignals();
    const TextConsole console;
    const std::vector<std::string> arguments = ProgramArguments(argc, argv);
    const CommandLineStreams streams{std::cout, std::cerr, MessagesGoToTerminal()};
    LocalThreads threads(pace);
    ExitCode code = RunCommandLine(arguments, streams, threads);
    std::cout.flush();
    if (!std::cout && code == ExitCode::kDone) {
      std::cerr << "Cannot write to standard output.\n";
      code = ExitCode::kFailed;
    }
    if (arguments.empty()) {
      StayForReader();
    }
    return static_cast<int>(code);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return static_cast<int>(ExitCode::kFailed);
}

}  // namespace kaldo
