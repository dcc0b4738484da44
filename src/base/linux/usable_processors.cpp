// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <sched.h>
#include <thread>

#include "base/this_process.h"

namespace kaldo {

unsigned UsableProcessors() {
  const unsigned all = std::thread::hardware_concurrency();
  cpu_set_t set;
  CPU_ZERO(&set);
  // Fails on machines of more than 1024 processors.
  return ::sched_getaffinity(0, sizeof(set), &set) == 0
             ? std::min(all, static_cast<unsigned>(CPU_COUNT(&set)))
             : all;
}

}  // namespace kaldo
