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

std::uint32_t RandomNumbers::FairlyBelow(std::uint32_t count) {
  const std::uint32_t unfair = (0U - count) % count;  // of 2^32 values so many are too many
  std::uint64_t product = 0;
  do {
    product = (stream_.Next() >> 32U) * count;
  } while (static_cast<std::uint32_t>(product) < unfair);
  return static_cast<std::uint32_t>(product >> 32U);
}

UnitDraw::UnitDraw(std::size_t digits_per_allele, bool is_fine) : is_fine_(is_fine) {
  for (std::size_t digit = 0; digit < digits_per_allele; ++digit) {
    modulus_ *= 10;
  }
  steps_ = is_fine ? 0x1p53 : static_cast<double>(modulus_);
}

}  // namespace kaldo
