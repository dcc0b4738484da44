// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "method/transmission_matrix.h"
#include "search/parent_classes.h"

namespace kaldo {

/// Units of a cost per factor of e in a likelihood.
inline constexpr double kCostsPerNat = 16;

/// The cost of a parent with this logarithm of |v| at a locus, rounded down.
std::uint8_t CostOf(double log_length, double log_largest);

/// What the parents can have given to one genotype of the offspring at one locus, shared by all
/// offspring with that genotype.
///
/// A factor of a likelihood, P_R1 P_J2 + P_J1 P_R2, is at most |v1| |v2| with v = (P_R, P_J)
/// (Cauchy-Schwarz). So each parent has a cost of its own, the logarithm of the largest |v| of the
/// locus over its own |v|, and the costs of two parents together bound the logarithm of their
/// factor. Costs are rounded down: a bound never promises too little. Marks tell where the factor
/// of two parents is smaller still.
struct LocusBounds {
  /// P_R and P_J of a class of parents.
  struct Scores {
    double r = 0;
    double j = 0;
  };

  double log_largest = 0;      ///< logarithm of the largest |v|
  std::vector<Scores> scores;  ///< by class
  std::vector<std::uint8_t> cost_of_class;
  std::vector<std::uint8_t> leaning_of_class;  ///< see leanings.h

  /// Costs by slot, up to a multiple of kBlock; empty until AddCostsOfParents().
  std::vector<std::uint8_t> costs;

  /// Works out all but the costs of the single parents. The two alleles may be exchanged: the
  /// factor of a pair stays the same to the last bit. For `side_ratio` see ClashCosts.
  void Build(const ParentClasses& parents, const TransmissionMatrix& matrix, AlleleIndex r,
             AlleleIndex j, double side_ratio);

  /// Spreads the costs of the classes over the parents, when they are first wanted.
  void AddCostsOfParents(const ParentClasses& parents);
};

}  // namespace kaldo
