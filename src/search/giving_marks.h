// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "genotypes/capacities.h"

namespace kaldo {

/// What a parent can have given to an offspring at one locus, in six bits. Two parents that can
/// both only have given the same one of the two alleles are an unlikely pair, however well each of
/// them fits alone.
namespace giving {

inline constexpr std::uint8_t kOnlyR = 1;   ///< can hardly have given J
inline constexpr std::uint8_t kOnlyJ = 2;   ///< can hardly have given R
inline constexpr std::uint8_t kOneOf = 4;   ///< one of both above
inline constexpr std::uint8_t kEither = 8;  ///< R or J with about the same ease
inline constexpr std::uint8_t kNoJ = 16;    ///< cannot have given J at all
inline constexpr std::uint8_t kNoR = 32;    ///< cannot have given R at all

inline constexpr std::uint8_t kNothing = kNoJ | kNoR;

}  // namespace giving

/// The marks of a parent at this many loci stand in one word.
inline constexpr std::size_t kMarkBits = 6;
inline constexpr std::size_t kLociPerMarkWord = 10;
inline constexpr std::size_t kMaxMarkWords = (kMaxLoci + kLociPerMarkWord - 1) / kLociPerMarkWord;

/// A bit that stands at every locus of a word.
constexpr std::uint64_t AtEveryLocus(std::uint64_t bits) {
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < kLociPerMarkWord; ++i) {
    word |= bits << (kMarkBits * i);
  }
  return word;
}

/// The same marks with kOneOf and kEither exchanged: what is looked for in a partner.
constexpr std::uint64_t WantedMarks(std::uint64_t marks) {
  constexpr std::uint64_t kOneOfBits = AtEveryLocus(giving::kOneOf);
  constexpr std::uint64_t kEitherBits = AtEveryLocus(giving::kEither);
  return (marks & ~(kOneOfBits | kEitherBits)) | (marks & kOneOfBits) << 1U |
         (marks & kEitherBits) >> 1U;
}

/// How the marks of two parents agree.
struct MarkClash {
  bool is_impossible = false;  ///< at some locus nobody can have given R, or nobody J
  std::size_t same_only = 0;   ///< loci where both can only have given the same allele
  std::size_t one_either = 0;  ///< loci where one gave either and the other only one of them
};

/// Compares the wanted marks of one parent with the marks of the other, word by word.
inline MarkClash CompareMarks(std::span<const std::uint64_t> wanted, const std::uint64_t* marks) {
  constexpr std::uint64_t kFirst = AtEveryLocus(1);
  constexpr std::uint64_t kNever = AtEveryLocus(giving::kNothing);
  // The product adds the lowest bits of all loci of a word up at the last of them.
  constexpr auto kCount = [](std::uint64_t bits) {
    constexpr std::uint64_t kOneLocus = (1U << kMarkBits) - 1;
    return static_cast<std::size_t>(
        (bits & kFirst) * kFirst >> (kMarkBits * (kLociPerMarkWord - 1)) & kOneLocus);
  };
  MarkClash clash;
  std::uint64_t agreed = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    agreed |= wanted[i] & marks[i];
  }
  clash.is_impossible = (agreed & kNever) != 0;
  for (std::size_t i = 0; i < wanted.size() && !clash.is_impossible; ++i) {
    const std::uint64_t both = wanted[i] & marks[i];
    clash.same_only += kCount(both | both >> 1U);
    clash.one_either += kCount(both >> 2U | both >> 3U);
  }
  return clash;
}

/// What marks that clash take from the likelihood of a pair at least, in costs.
class MarkCosts {
 public:
  /// A class can hardly have given an allele where its score for it is at most `side_ratio` times
  /// the other one.
  explicit MarkCosts(double side_ratio = 1);

  std::int32_t Of(const MarkClash& clash) const {
    return same_only_[clash.same_only] + one_either_[clash.one_either];
  }

 private:
  std::array<std::int32_t, kMaxLoci + 1> same_only_{};
  std::array<std::int32_t, kMaxLoci + 1> one_either_{};
};

/// The marks of a class of parents with the scores P_R and P_J.
std::uint8_t MarksOf(double r, double j, double side_ratio);

}  // namespace kaldo
