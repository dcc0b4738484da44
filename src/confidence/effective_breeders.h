// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>

#include "confidence/sibships.h"

namespace kaldo {

/// How many breeders, all with equal chances, would share parents among their offspring as often as
/// the named ones do.
struct EffectiveBreeders {
  std::size_t sides = 0;  ///< of all offspring, two each
  std::size_t named = 0;  ///< on which the number rests; the others are left out

  /// False where too many sides are left out for a number, see kLeastShareNamed.
  bool is_enough_named = false;

  /// None where that is withheld, and where no parent is named twice.
  std::optional<double> number;
};

/// Below this share of named sides the number is withheld: parents that were not collected may be
/// few with many offspring or many with few. This program's convention.
inline constexpr double kLeastShareNamed = 0.8;

/// The inbreeding effective size of the parents, from the number k of sides named for each parent
/// (Waples & Waples 2011, doi:10.1111/j.1755-0998.2010.02942.x, equation 2a):
///
///   (sum k - 1) / (sum k^2 / sum k - 1)  =  n (n - 1) / sum k (k - 1)   with n = sum k
///
/// It is one over the probability that two gametes of the offspring come from one parent. Parents
/// without offspring change nothing. Both sexes are counted together.
EffectiveBreeders EffectiveBreedersOf(std::span<const NamedParents> offspring);

/// The number with the sides it rests on, or why there is none.
std::string BreedersSentence(const EffectiveBreeders& breeders);

}  // namespace kaldo
