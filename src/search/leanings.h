// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "genotypes/capacities.h"

namespace kaldo {

/// The leaning of a parent at one locus, in six bits: to which of the two alleles of the offspring,
/// R and J, what it can have given leans. Two parents that lean to the same one are an unlikely
/// pair, however well each of them fits alone.
namespace leaning {

inline constexpr std::uint8_t kOnlyR = 1;   ///< can hardly have given J
inline constexpr std::uint8_t kOnlyJ = 2;   ///< can hardly have given R
inline constexpr std::uint8_t kOneOf = 4;   ///< one of both above
inline constexpr std::uint8_t kEither = 8;  ///< R or J with about the same ease
inline constexpr std::uint8_t kNoJ = 16;    ///< cannot have given J at all
inline constexpr std::uint8_t kNoR = 32;    ///< cannot have given R at all

inline constexpr std::uint8_t kNothing = kNoJ | kNoR;

}  // namespace leaning

/// The leanings of a parent at this many loci stand in one word.
inline constexpr std::size_t kLeaningBits = 6;
inline constexpr std::size_t kLociPerLeaningWord = 10;
inline constexpr std::size_t kMaxLeaningWords =
    (kMaxLoci + kLociPerLeaningWord - 1) / kLociPerLeaningWord;

/// A word with the same six bits at every locus.
constexpr std::uint64_t AtEveryLocus(std::uint64_t bits) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < kLociPerLeaningWord; ++i) {
    word |= bits << (kLeaningBits * i);
  }
  return word;
}

/// The same leanings with kOneOf and kEither exchanged: what is looked for in a partner.
constexpr std::uint64_t WantedLeanings(std::uint64_t leanings) {
  constexpr std::uint64_t kOneOfBits = AtEveryLocus(leaning::kOneOf);
  constexpr std::uint64_t kEitherBits = AtEveryLocus(leaning::kEither);
  return (leanings & ~(kOneOfBits | kEitherBits)) | (leanings & kOneOfBits) << 1U |
         (leanings & kEitherBits) >> 1U;
}

/// Where the leanings of two parents speak against them as a pair.
struct LeaningClash {
  bool is_impossible = false;  ///< at some locus nobody can have given R, or nobody J
  std::size_t same_only = 0;   ///< loci where both can only have given the same allele
  std::size_t one_either = 0;  ///< loci where one gave either and the other only one of them
};

/// Compares the wanted leanings of one parent with the leanings of the other, word by word.
inline LeaningClash CompareLeanings(std::span<const std::uint64_t> wanted,
                                    const std::uint64_t* leanings) {
  constexpr std::uint64_t kFirst = AtEveryLocus(1);
  constexpr std::uint64_t kNever = AtEveryLocus(leaning::kNothing);
  // The product adds the lowest bits of all loci of a word up at the last of them.
  constexpr auto kCount = [](std::uint64_t bits) {
    constexpr std::uint64_t kOneLocus = (1U << kLeaningBits) - 1;
    return static_cast<std::size_t>(
        (bits & kFirst) * kFirst >> (kLeaningBits * (kLociPerLeaningWord - 1)) & kOneLocus);
  };
  LeaningClash clash;
  std::uint64_t agreed = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    agreed |= wanted[i] & leanings[i];
  }
  clash.is_impossible = (agreed & kNever) != 0;
  for (std::size_t i = 0; i < wanted.size() && !clash.is_impossible; ++i) {
    const std::uint64_t both = wanted[i] & leanings[i];
    clash.same_only += kCount(both | both >> 1U);
    clash.one_either += kCount(both >> 2U | both >> 3U);
  }
  return clash;
}

/// What a clash takes from the likelihood of a pair at least, in costs.
class ClashCosts {
 public:
  /// A class can hardly have given an allele where its score for it is at most `side_ratio` times
  /// the other one.
  explicit ClashCosts(double side_ratio = 1);

  std::int32_t Cost(const LeaningClash& clash) const {
    return same_only_[clash.same_only] + one_either_[clash.one_either];
  }

 private:
  std::array<std::int32_t, kMaxLoci + 1> same_only_{};
  std::array<std::int32_t, kMaxLoci + 1> one_either_{};
};

/// The leaning of a class of parents with the scores P_R and P_J. For `side_ratio` see ClashCosts.
std::uint8_t LeaningOf(double r, double j, double side_ratio);

}  // namespace kaldo
