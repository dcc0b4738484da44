// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "simulation/flows/side_code.h"

namespace kaldo {

/// One kind of decision about a pseudo-offspring, a row of the reports.
struct OriginRow {
  SideCode allocated = 0;  ///< sides allocated to a collected parent
  SideCode correct = 0;    ///< sides allocated to a true parent

  /// How many of the two sides count as right: those allocated to a true parent, and those left as
  /// UC, as many of them as there are uncollected true parents. (This program's convention: who is
  /// missing is not looked at. A sexed offspring that is given to a wrong female, with its
  /// collected father missed and its mother uncollected, is half right.)
  int weight = 0;
};

/// Pseudo-offspring of one parental origin: which of their true parents are collected.
struct OriginClass {
  // The parental groups of the true parents, by their place in the parent table.
  std::size_t first_group = 0;
  std::size_t second_group = 0;

  /// True parents that are uncollected, for the first and the second side.
  bool first_uncollected = false;
  bool second_uncollected = false;

  /// Every decision that is possible in this class, in the order of the reports.
  std::vector<OriginRow> rows;

  /// Both true parents come from one group, so that two different ones must be drawn.
  bool SameGroup() const { return first_group == second_group; }

  int UncollectedParents() const {
    return (first_uncollected ? 1 : 0) + (second_uncollected ? 1 : 0);
  }

  /// The place of a possible decision among the rows.
  std::size_t RowOf(SideCode allocated, SideCode correct) const;
};

/// The class of offspring whose true parents come from these groups, with its rows: from decisions
/// on both sides to none, and among those of equal sides from the most to the least correct; the
/// male stands before the female. More sides than are collected cannot be correct.
OriginClass MakeOriginClass(Flow flow, std::size_t first_group, bool first_uncollected,
                            std::size_t second_group, bool second_uncollected);

}  // namespace kaldo
