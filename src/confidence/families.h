// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "confidence/certainty.h"
#include "confidence/posterior.h"

namespace kaldo {

/// The parents of an offspring where both sides are settled: named, or not collected.
struct SettledParents {
  ReportedParents parents;  ///< by side; none for one that was not collected

  /// Of both sides together, never open; nothing where it was not computed.
  std::optional<Certainty> certainty;
};

/// At the level of confidence; nothing where a side is open or nothing is known of the offspring.
std::optional<SettledParents> SettledBy(const OffspringConfidence& offspring);

/// The offspring that two parents have together.
struct Family {
  std::size_t row = 0;                 ///< places among the lines of Families
  std::size_t column = 0;              ///< where sexes are not known not before `row`
  std::vector<std::size_t> offspring;  ///< by their places in the file, ascending
  std::size_t likely = 0;              ///< of them no more than likely, see Certainty
};

/// A row or column of the table of matings.
struct FamilyLine {
  std::optional<Slot> parent;  ///< none: all parents that were not collected
  std::size_t offspring = 0;   ///< each once
};

/// Who had offspring with whom: a table of parents by parents.
struct Families {
  /// Sexed: males along the rows, females along the columns. Where sexes are not known both are all
  /// parents alike, and what stands at (i, j) stands at (j, i), too.
  bool is_symmetric = false;

  // Those with offspring, the largest number first, then in file order; last the ones that were not
  // collected, if there are any. So the busy corner is at the top left.
  std::vector<FamilyLine> rows;
  std::vector<FamilyLine> columns;

  std::vector<Family> families;  ///< each once, by row, then column
  std::size_t left_out = 0;      ///< offspring whose parents are not settled

  /// The family at a place of the table; nothing where there is none.
  const Family* At(std::size_t row, std::size_t column) const;
};

/// From the parents of all offspring, in their order.
Families FamiliesOf(std::span<const std::optional<SettledParents>> offspring, Flow flow);

}  // namespace kaldo
