// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "allocation/parent_classes.h"
#include "allocation/transmission_matrix.h"

namespace kaldo {

/// Units of a cost per factor of e in a likelihood.
inline constexpr double kCostsPerNat = 16;

/// What the parents can have given to one genotype of the offspring at one locus, shared by all
/// offspring with that genotype.
///
/// A factor of a likelihood, P_R1 P_J2 + P_J1 P_R2, is at most |v1| |v2| with v = (P_R, P_J)
/// (Cauchy-Schwarz). So each parent has a cost of its own, the logarithm of the largest |v| of the
/// locus over its own |v|, and the costs of two parents together bound the logarithm of their
/// factor. Costs are rounded down: a bound never promises too little.
struct LocusBounds {
  /// P_R and P_J, by class of parents.
  struct Scores {
    double r = 0;
    double j = 0;
  };
  std::vector<Scores> scores;

  /// By class: bit 0, the parent can hardly have given J; bit 1, it can hardly have given R.
  std::vector<std::uint8_t> one_sided;

  std::vector<std::uint8_t> costs;      ///< by slot, up to a multiple of kBlock
  std::vector<std::uint64_t> possible;  ///< bit by slot: the parent can have given something
  bool all_possible = true;
  double log_largest = 0;  ///< logarithm of the largest |v|

  /// Works them out. A class is one-sided where its smaller score is at most `side_ratio` times its
  /// larger one.
  void Build(const ParentClasses& parents, const TransmissionMatrix& matrix, AlleleIndex r,
             AlleleIndex j, double side_ratio);
};

}  // namespace kaldo
