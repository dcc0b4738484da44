// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/stop_signal.h"

#include <atomic>
#include <csignal>

namespace kaldo {

namespace {

// A signal handler can reach nothing but a static flag.
std::atomic<bool> stop_signalled{false};
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void OnStopSignal(int /*signal*/) { stop_signalled = true; }

}  // namespace

void CatchStopSignals() {
  (void)std::signal(SIGINT, OnStopSignal);
  (void)std::signal(SIGTERM, OnStopSignal);
}

bool StopSignalled() { return stop_signalled; }

}  // namespace kaldo
