// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kaldo {

/// Parents are looked at in blocks of this many.
inline constexpr std::uint32_t kBlock = 64;

// The inner loops of the pair search. They work on integers and masks only, so that every processor
// gives the same result; the widest vectors that the machine has are chosen when the program runs.

/// The parents that can have given the first and the second allele at one locus, bit by slot.
struct GiverRows {
  const std::uint64_t* first;
  const std::uint64_t* second;
};

/// Keeps, of the parents in `all`, those that can have given one of the two alleles at all of the
/// loci. Tells whether two or more are left. `all` and `left` may be the same.
bool KeepCommon(const std::uint64_t* all, std::span<const GiverRows> loci,
                std::span<std::uint64_t> left);

/// Adds up the costs of every parent over the rows, and finds the smallest sum of each block. A
/// parent whose bit in `possible` (a word per block) is not set gets `impossible`.
void SumCosts(std::span<const std::uint8_t* const> rows, std::span<const std::uint64_t> possible,
              std::uint16_t impossible, std::uint16_t* sums, std::uint16_t* minima);

/// Bit i is set where costs[i] is at most `limit`, for one block.
std::uint64_t MaskAtMost(const std::uint16_t* costs, std::uint16_t limit);

}  // namespace kaldo
