// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>

namespace kaldo {

/// Parents are looked at in blocks of this many.
inline constexpr std::size_t kBlock = 64;

// The inner loops of the pair search. They work on integers and masks only, so that every processor
// gives the same result; the widest vectors that the machine has are chosen when the program runs.

/// sums[i] += costs[i] for the first `count` parents; `count` is a multiple of kBlock.
void AddCosts(const std::uint8_t* costs, std::uint16_t* sums, std::size_t count);

/// all[w] &= bits[w] for so many words.
void AndBits(const std::uint64_t* bits, std::uint64_t* all, std::size_t words);

/// The smallest of each block of costs.
void BlockMinima(const std::uint16_t* costs, std::uint16_t* minima, std::size_t blocks);

/// Bit i is set where costs[i] is at most `limit`, for one block.
std::uint64_t MaskAtMost(const std::uint16_t* costs, std::uint16_t limit);

}  // namespace kaldo
