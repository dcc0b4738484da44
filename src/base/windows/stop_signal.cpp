// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/stop_signal.h"

#include <atomic>

#include "base/windows/system_error.h"

namespace kaldo {

namespace {

/// Terminals and launchers may both tell a program of one and the same Ctrl-C.
constexpr ULONGLONG kSameCtrlC = 50;  // milliseconds

/// What Windows grants a program whose window is closed.
constexpr DWORD kTimeToEnd = 5000;  // milliseconds

std::atomic<bool> stop_signalled{false};
std::atomic<ULONGLONG> first_ctrl_c{0};

/// Called in a thread of its own.
BOOL WINAPI OnConsoleEvent(DWORD event) {
  stop_signalled = true;
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
    ::Sleep(kTimeToEnd);  // when this returns the program is ended, be it ready or not
    return TRUE;
  }
  ULONGLONG first = 0;
  const ULONGLONG now = ::GetTickCount64();
  const bool is_first = first_ctrl_c.compare_exchange_strong(first, now);
  return is_first || now - first <= kSameCtrlC ? TRUE : FALSE;  // FALSE ends the program at once
}

}  // namespace

void CatchStopSignals() { (void)::SetConsoleCtrlHandler(OnConsoleEvent, TRUE); }

bool StopSignalled() { return stop_signalled; }

}  // namespace kaldo
