// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/counter_stream.h"

namespace kaldo {

namespace {

constexpr int kRounds = 10;
constexpr unsigned kWordBits = 32;

std::uint32_t Low(std::uint64_t product) { return static_cast<std::uint32_t>(product); }
std::uint32_t High(std::uint64_t product) {
  return static_cast<std::uint32_t>(product >> kWordBits);
}

}  // namespace

CounterBlock Philox(CounterBlock counter, std::array<std::uint32_t, 2> key) {
  for (int round = 0; round < kRounds; ++round) {
    const std::uint64_t first = std::uint64_t{0xD2511F53U} * counter[0];
    const std::uint64_t third = std::uint64_t{0xCD9E8D57U} * counter[2];
    counter = {High(third) ^ counter[1] ^ key[0], Low(third), High(first) ^ counter[3] ^ key[1],
               Low(first)};
    key = {key[0] + 0x9E3779B9U, key[1] + 0xBB67AE85U};
  }
  return counter;
}

void CounterStream::Refill() {
  block_ = Philox({Low(next_block_), High(next_block_), 0, 0}, key_);
  ++next_block_;
  left_ = 2;
}

}  // namespace kaldo
