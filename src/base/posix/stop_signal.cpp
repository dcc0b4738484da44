// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/stop_signal.h"

#include <atomic>
#include <csignal>
#include <ctime>

namespace kaldo {

namespace {

/// Terminals and launchers may both tell a program of one and the same Ctrl-C.
constexpr long kSameCtrlC = 50;  // milliseconds

// A signal handler can reach nothing but static flags.
std::atomic<bool> stop_signalled{false};
std::atomic<long> first_ctrl_c{0};
static_assert(std::atomic<bool>::is_always_lock_free && std::atomic<long>::is_always_lock_free);

long Milliseconds() {
  timespec now{};
  (void)clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<long>(now.tv_sec) * 1000 + now.tv_nsec / 1'000'000;
}

extern "C" void OnStopSignal(int signal) {
  if (signal == SIGINT) {
    const long now = Milliseconds();
    if (first_ctrl_c == 0) {
      first_ctrl_c = now;
    } else if (now - first_ctrl_c > kSameCtrlC) {
      (void)std::signal(SIGINT, SIG_DFL);
      (void)std::raise(SIGINT);
    }
  }
  stop_signalled = true;
}

void Catch(int signal) {
  struct sigaction action {};
  if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN) {
    return;
  }
  action = {};
  action.sa_handler = OnStopSignal;  // and no SA_RESTART: what waits for a pipe is woken
  (void)sigemptyset(&action.sa_mask);
  (void)sigaction(signal, &action, nullptr);
}

}  // namespace

void CatchStopSignals() {
  Catch(SIGINT);
  Catch(SIGTERM);
  Catch(SIGHUP);
  (void)std::signal(SIGXFSZ, SIG_IGN);
}

bool StopSignalled() { return stop_signalled; }

}  // namespace kaldo
