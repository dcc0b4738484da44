// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "method/flow.h"

namespace kaldo {

/// The sides of a decision as a small number, which the rows of an OriginClass are found by.
/// Sexed: bit 0 the male, bit 1 the female. Non-sexed: how many sides, 0 to 2.
using SideCode = std::uint8_t;

/// One kind of decision about a pseudo-offspring and how much of it is right.
struct OriginRow {
  SideCode allocated = 0;  ///< sides allocated to a collected parent
  SideCode correct = 0;    ///< sides allocated to a true parent
  int weight = 0;          ///< 2, 1 or 0: twice the share of the decision that counts as correct
  std::string_view allocated_label;
  std::string_view correct_label;
};

/// How a class is called in the reports.
struct OriginTexts {
  std::string_view label;        ///< in the distribution of pseudo-offspring
  std::string_view label_text;   ///< what the label stands for
  std::string_view column;       ///< over its column of correct frequencies
  std::string_view block_title;  ///< over its statistics, with the text behind a tab
  std::string_view block_text;
  std::string_view detailed;    ///< in the detailed file
  std::size_t size_row = 0;     ///< the row of the detailed file that tells the class size
  std::string_view table_file;  ///< the per-iteration table
  std::string_view table_title;
  std::string_view table_word;       ///< over its iteration column
  std::string_view table_deviation;  ///< before its row of standard deviations
};

/// Pseudo-offspring of one parental origin.
struct OriginClass {
  // The parental groups of the true parents, by their place in the parent table.
  std::size_t first_group = 0;
  std::size_t second_group = 0;

  /// True parents that are uncollected, for the first and the second side.
  bool first_uncollected = false;
  bool second_uncollected = false;

  std::vector<OriginRow> rows;
  OriginTexts texts;

  /// Both true parents come from one group, so that two different ones must be drawn.
  bool SameGroup() const { return first_group == second_group; }

  /// The place of a decision among the rows.
  std::size_t RowOf(SideCode allocated, SideCode correct) const;
};

}  // namespace kaldo
