// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/this_process.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <io.h>

#include <fmt/format.h>

#include "base/path_text.h"
#include "base/windows/system_error.h"
//
#include <shellapi.h>

namespace kaldo {

namespace {

std::string Utf8(const wchar_t* text) {
  const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), '\0');  // with the zero at its end
  (void)::WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
  utf8.resize(utf8.empty() ? 0 : utf8.size() - 1);
  return utf8;
}

/// Lets a console understand the codes that erase a line.
void ObeyCodes(DWORD stream) {
  const HANDLE console = ::GetStdHandle(stream);
  DWORD mode = 0;
  if (::GetConsoleMode(console, &mode) != 0) {
    (void)::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

/// Lets a stream write what it was given at once: unbuffered, as it is on a console, it writes byte
/// by byte, of which a console makes no letter but those of English.
void WriteWhole(std::FILE* stream) {
  constexpr std::size_t kBytes = std::size_t{1} << 16U;
  (void)::_setmode(::_fileno(stream), _O_BINARY);
  (void)std::setvbuf(stream, nullptr, _IOFBF, kBytes);
}

/// The page that an installation puts beside the program.
std::filesystem::path PageBesideProgram() {
  std::wstring program(32768, L'\0');  // as long as a path may be
  program.resize(::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  return std::filesystem::path(program).replace_filename(L"kaldo.html");
}

}  // namespace

std::string ThisProcess() {
  std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> machine{};
  auto size = static_cast<DWORD>(machine.size());
  const bool known = ::GetComputerNameW(machine.data(), &size) != 0;
  return fmt::format("process {} on {}", ::GetCurrentProcessId(),
                     known ? Utf8(machine.data()) : "this machine");
}

bool MessagesGoToTerminal() {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

// The words that main() gets are in the code page of the user, which does not know every name.
std::vector<std::string> ProgramArguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  arguments.reserve(static_cast<std::size_t>(count));
  for (int word = 1; word < count; ++word) {
    arguments.push_back(Utf8(words[word]));
  }
  ::LocalFree(words);
  return arguments;
}

TextConsole::TextConsole() : earlier_code_page_(::GetConsoleOutputCP()) {
  WriteWhole(stdout);
  WriteWhole(stderr);
  (void)::SetConsoleOutputCP(CP_UTF8);
  ObeyCodes(STD_OUTPUT_HANDLE);
  ObeyCodes(STD_ERROR_HANDLE);
}

TextConsole::~TextConsole() {
  if (earlier_code_page_ != 0) {
    (void)::SetConsoleOutputCP(earlier_code_page_);
  }
}

void StayForReader() {
  std::array<DWORD, 2> processes{};
  if (::GetConsoleProcessList(processes.data(), static_cast<DWORD>(processes.size())) != 1) {
    return;  // somebody else's console, or none
  }
  const std::filesystem::path page = PageBesideProgram();
  std::error_code ignored;
  if (std::filesystem::exists(page, ignored) &&
      reinterpret_cast<INT_PTR>(
          ::ShellExecuteW(nullptr, L"open", page.c_str(), nullptr, nullptr, SW_SHOWNORMAL)) > 32) {
    return;
  }
  std::fputs("\nThis program is for a command line. Press Enter to close this window.\n", stderr);
  (void)std::fflush(stderr);
  (void)std::getchar();
}

std::string CurrentFolder() {
  std::error_code gone;
  return PathText(std::filesystem::current_path(gone));
}

}  // namespace kaldo
