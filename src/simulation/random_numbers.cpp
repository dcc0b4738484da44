// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/random_numbers.h"

namespace kaldo {

RandomJump::RandomJump(std::uint64_t draws) {
  // Squaring the one-step map again and again gives the jumps of 1, 2, 4, ... draws.
  std::uint32_t multiplier = 214013U;
  std::uint32_t increment = 2531011U;
  for (; draws != 0; draws /= 2) {
    if (draws % 2 == 1) {
      multiplier_ *= multiplier;
      increment_ = increment_ * multiplier + increment;
    }
    increment = increment * multiplier + increment;
    multiplier *= multiplier;
  }
}

UnitDraw::UnitDraw(std::size_t digits_per_allele) {
  for (std::size_t digit = 0; digit < digits_per_allele; ++digit) {
    modulus_ *= 10;
  }
}

}  // namespace kaldo
