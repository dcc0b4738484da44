// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace kaldo {

/// Many steps of the generator at once.
class RandomJump {
 public:
  /// A jump over so many draws.
  explicit RandomJump(std::uint64_t draws);

  std::uint32_t From(std::uint32_t state) const { return state * multiplier_ + increment_; }

 private:
  std::uint32_t multiplier_ = 1;
  std::uint32_t increment_ = 0;
};

/// The stream of random numbers of a simulation: a linear-congruential generator with values from 0
/// to 32767 (state = state * 214013 + 2531011 modulo 2^32, of which bits 16 to 30 are shown; Knuth,
/// The Art of Computer Programming vol. 2, 3.2.1, this program's convention for the constants). The
/// same seed gives the same stream on every machine. Its 15 bits set the resolution of all draws;
/// frequencies below 1/32768 cannot be told apart.
class RandomNumbers {
 public:
  explicit RandomNumbers(std::uint32_t seed) : state_(seed) {}

  std::uint32_t Next() {
    state_ = state_ * 214013U + 2531011U;
    return (state_ >> 16U) & 0x7fffU;
  }

  void Skip(const RandomJump& jump) { state_ = jump.From(state_); }

  std::uint32_t State() const { return state_; }

 private:
  std::uint32_t state_;
};

/// Draws from 0 to just below 1 on a grid of 1/modulus. The modulus is 10 to the power of the
/// digits of an allele: 1000 for sizes of three digits (this program's convention).
class UnitDraw {
 public:
  explicit UnitDraw(std::size_t digits_per_allele);

  double operator()(RandomNumbers& random) const { return At(Step(random)); }

  /// The same draw as a number of steps from 0, and what so many steps are.
  std::uint32_t Steps() const { return modulus_; }
  std::uint32_t Step(RandomNumbers& random) const { return random.Next() % modulus_; }
  double At(std::uint32_t step) const {
    return static_cast<double>(step) / static_cast<double>(modulus_);
  }

 private:
  std::uint32_t modulus_ = 1;
};

}  // namespace kaldo
