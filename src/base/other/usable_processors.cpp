// SPDX-License-Identifier: GPL-3.0-or-later
#include <thread>

#include "base/this_process.h"

namespace kaldo {

unsigned UsableProcessors() { return std::thread::hardware_concurrency(); }

}  // namespace kaldo
