// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace kaldo {

/// Four 32-bit words.
using CounterBlock = std::array<std::uint32_t, 4>;

/// Philox 4x32 with ten rounds (Salmon et al. 2011, Parallel random numbers: as easy as 1, 2, 3,
/// DOI 10.1145/2063384.2063405): a counter, enciphered with a key, is a block of random bits. Any
/// place of any stream is found at once, and no two streams meet.
CounterBlock Philox(CounterBlock counter, std::array<std::uint32_t, 2> key);

/// The stream of 64-bit values of one iteration: blocks 0, 1, 2, ... under a key of the seed and
/// the number of the iteration.
class CounterStream {
 public:
  CounterStream() = default;
  CounterStream(std::uint32_t seed, std::uint32_t iteration) : key_{iteration, seed} {}

  std::uint64_t Next() {
    if (left_ == 0) {
      Refill();
    }
    --left_;
    return left_ == 1 ? Pair(0) : Pair(2);
  }

 private:
  std::uint64_t Pair(std::size_t word) const {
    return std::uint64_t{block_.at(word + 1)} << 32U | block_.at(word);
  }
  void Refill();

  std::array<std::uint32_t, 2> key_{};
  std::uint64_t next_block_ = 0;
  CounterBlock block_{};
  int left_ = 0;  ///< 64-bit values of the block that were not given out
};

}  // namespace kaldo
