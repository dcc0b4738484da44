// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>

namespace kaldo {

/// How long to wait before looking for messages again: short while they come, longer the longer
/// none has come. An idle process then takes a hundredth of a core and still answers at once.
class Pause {
 public:
  std::chrono::microseconds Next() {
    const auto pause = pause_;
    pause_ = std::min(pause_ * 2, kLongest);
    return pause;
  }

  void Reset() { pause_ = kShortest; }

 private:
  static constexpr std::chrono::microseconds kShortest{50};
  static constexpr std::chrono::microseconds kLongest{1000};

  std::chrono::microseconds pause_ = kShortest;
};

}  // namespace kaldo
