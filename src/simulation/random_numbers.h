// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "simulation/counter_stream.h"

namespace kaldo {

/// Where the random numbers of an iteration start: the state of the stream that all share or,
/// modern, the seed above the number of the iteration.
using IterationStart = std::uint64_t;

/// Many steps of the generator at once: the map state -> a state + c of one step, applied n times,
/// is such a map again (Knuth, The Art of Computer Programming vol. 2, 3.2.1). So a simulation
/// knows where in the stream each iteration starts before any of them has run.
class RandomJump {
 public:
  /// A jump over so many draws, found in about log2(draws) multiplications.
  explicit RandomJump(std::uint64_t draws);

  /// The state that is reached from `state` by as many calls of RandomNumbers::Next().
  std::uint32_t From(std::uint32_t state) const { return state * multiplier_ + increment_; }

 private:
  std::uint32_t multiplier_ = 1;
  std::uint32_t increment_ = 0;
};

/// The stream of random numbers of a simulation: a linear congruential generator (Knuth, The Art of
/// Computer Programming vol. 2, 3.2.1) with values from 0 to 32767:
///
///     state = (214013 state + 2531011) modulo 2^32,  value = bits 16 to 30 of the state
///
/// The constants are this program's convention; the increment is odd and the multiplier one more
/// than a multiple of 4, so that the stream comes round only after 2^32 draws, whatever the seed
/// (there, theorem A of 3.2.1.2). The upper bits are shown since the lower ones come round sooner.
/// The same seed gives the same stream on every machine. Its 15 bits set the resolution of all
/// draws; frequencies below 1/32768 cannot be told apart.
class RandomNumbers {
 public:
  explicit RandomNumbers(std::uint32_t seed) : state_(seed) {}

  /// The next value of the stream, 0 to 32767.
  std::uint32_t Next() {
    if (is_modern_) {
      return static_cast<std::uint32_t>(stream_.Next() >> 49U);
    }
    state_ = state_ * 214013U + 2531011U;
    return (state_ >> 16U) & 0x7fffU;
  }

  /// Leaves out as many values as the jump is long.
  void Skip(const RandomJump& jump) { state_ = jump.From(state_); }

  /// What a stream that goes on from here is made of.
  std::uint32_t State() const { return state_; }

  /// The modern numbers of an iteration instead: values of 15 bits are the upper ones of 64.
  explicit RandomNumbers(CounterStream stream) : is_modern_(true), stream_(stream) {}

  /// One of `count` things, 0 to count - 1: a value modulo their number, which prefers the first
  /// ones by a part in 32768 / count. Modern: all alike, by the product of 32 bits and their number
  /// and another draw where that would be unfair (Lemire 2019, Fast random integer generation in an
  /// interval, DOI 10.1145/3230636).
  std::uint32_t Below(std::uint32_t count) {
    return is_modern_ ? FairlyBelow(count) : Next() % count;
  }

  /// 53 bits of a modern value: as many as a fraction in double precision holds.
  std::uint64_t Next53() { return stream_.Next() >> 11U; }

 private:
  std::uint32_t FairlyBelow(std::uint32_t count);

  std::uint32_t state_ = 0;
  bool is_modern_ = false;
  CounterStream stream_;
};

/// Draws from 0 to just below 1 on a grid of 1/modulus: a value of the stream modulo the modulus,
/// which is 10 to the power of the digits of an allele: 1000 for sizes of three digits. So a
/// frequency is told as finely as an allele size is written (this program's convention). Values
/// from 0 to 32767 do not fill all places of the grid equally often: with three digits 0 to 0.767
/// come up in 33 of 32768 draws, the others in 32. Modern draws lie on a grid of 2^-53, whose
/// places all come up alike.
class UnitDraw {
 public:
  /// `is_fine` for modern random numbers.
  explicit UnitDraw(std::size_t digits_per_allele, bool is_fine = false);

  double operator()(RandomNumbers& random) const { return At(Step(random)); }

  /// The same draw as a number of steps from 0, and what so many steps are.
  std::uint64_t Step(RandomNumbers& random) const {
    return is_fine_ ? random.Next53() : random.Next() % modulus_;
  }
  double At(std::uint64_t step) const { return static_cast<double>(step) / steps_; }

  /// The number of steps up to 1, where they are so few that one may count them.
  std::uint32_t Steps() const { return modulus_; }
  bool IsFine() const { return is_fine_; }

 private:
  std::uint32_t modulus_ = 1;
  bool is_fine_ = false;
  double steps_ = 1;
};

}  // namespace kaldo
