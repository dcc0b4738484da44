// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace kaldo {

/// "process 4711 on node07", for a user who wonders which program that is.
std::string ThisProcess();

/// True when messages go to a terminal, not to a file.
bool MessagesGoToTerminal();

/// The words of the command behind the program's name, in UTF-8 on every system.
std::vector<std::string> ProgramArguments(int argc, char** argv);

/// While it lives, what the program prints arrives as it is: UTF-8, and lines that end as they do
/// in files.
class TextConsole {
 public:
  TextConsole();
  TextConsole(const TextConsole&) = delete;
  TextConsole& operator=(const TextConsole&) = delete;
  TextConsole(TextConsole&&) = delete;
  TextConsole& operator=(TextConsole&&) = delete;
  // NOLINTNEXTLINE(performance-trivially-destructible): only where there is nothing to put back
  ~TextConsole();

 private:
  [[maybe_unused]] unsigned earlier_code_page_ =
      0;  ///< of the console, where there is such a thing
};

/// For a program that was started without words: where that was a double click, whose console goes
/// with the program, opens the page beside the program, or else waits for Enter.
void StayForReader();

/// The working folder, or nothing when it has gone.
std::string CurrentFolder();

/// The processors that this process may run on.
unsigned UsableProcessors();

}  // namespace kaldo
