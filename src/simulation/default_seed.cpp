// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/default_seed.h"

#include <random>

#include "simulation/counter_stream.h"

namespace kaldo {

std::uint32_t DefaultSeed(RandomSource source, std::chrono::system_clock::time_point time) {
  if (source == RandomSource::kDefault) {
    return static_cast<std::uint32_t>(std::chrono::system_clock::to_time_t(time));
  }
  std::random_device machine;
  const auto ticks = static_cast<std::uint64_t>(time.time_since_epoch().count());
  return Philox({static_cast<std::uint32_t>(ticks), static_cast<std::uint32_t>(ticks >> 32U),
                 machine(), machine()},
                {machine(), machine()})[0];
}

}  // namespace kaldo
