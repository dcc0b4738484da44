// SPDX-License-Identifier: GPL-3.0-or-later
#include <exception>
#include <iostream>

#include "base/stop_signal.h"
#include "base/this_process.h"
#include "cli/command_line.h"

int main(int argc, char** argv) {
  try {
    kaldo::CatchStopSignals();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const kaldo::CommandLineStreams streams{std::cout, std::cerr, kaldo::MessagesGoToTerminal()};
    kaldo::ExitCode code = kaldo::RunCommandLine(arguments, streams);
    std::cout.flush();
    if (!std::cout && code == kaldo::ExitCode::kDone) {
      std::cerr << "Cannot write to standard output.\n";
      code = kaldo::ExitCode::kFailed;
    }
    return static_cast<int>(code);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return static_cast<int>(kaldo::ExitCode::kFailed);
}
