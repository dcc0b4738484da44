// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "simulation/figures/spread.h"
#include "simulation/flows/origin_class.h"

namespace kaldo {

/// One kind of parental group.
struct GroupDesign {
  std::size_t set = 0;     ///< which of SimulationSettings::sets: males 0, females 1
  bool collected = false;  ///< candidates of the allocation; else only drawn as true parents
};

/// How the classes of origin are put together to the GLOBAL rows of the reports.
enum class GlobalRows {
  kPooled,    ///< all pseudo-offspring of the iteration together, however many each class has
  kWeighted,  ///< the frequencies of the classes weighted by their share in the population
};

/// The per-iteration tables: shares by the best pair, and the first of them as ratios to all
/// pseudo-offspring with a single best pair.
struct TableDesign {
  std::size_t columns = 0;
  std::size_t ratios = 0;            ///< of the first so many columns
  std::size_t assigned_columns = 0;  ///< leading columns that sum to "all assigned"
  bool classes_have_ratios = false;  ///< else only the global table has them
};

/// What is fixed for a flow, beside its texts (see SimulationTexts) and the few rules that stand in
/// files of their own under figures/.
struct SimulationDesign {
  Flow flow = Flow::kNonSexed;

  /// In the order in which they are drawn and stand in the parent table; collected groups first.
  std::vector<GroupDesign> groups;
  std::array<std::size_t, 2> candidate_groups{};  ///< the candidates of each side of a pair
  std::uint32_t fewest_pseudo_collected = 1;      ///< drawn in a group whatever was typed

  /// In the order in which they are made and reported.
  std::vector<OriginClass> classes;

  /// Whether the weighted averages of the summary are formed of the averages of the classes, or are
  /// averages of what was weighted in every iteration.
  bool averages_before_weighing = true;

  GlobalRows global_rows = GlobalRows::kPooled;
  SpreadKind frequency_spread = SpreadKind::kSteps;  ///< of the frequencies of the summary
  SpreadKind table_spread = SpreadKind::kSquares;    ///< of the per-iteration tables
  TableDesign table;
  bool tells_first_pairs = false;  ///< whether the summary has the first-pair lines

  /// Pseudo-offspring have this many sides that a parent of one set may take: both in the non-sexed
  /// flow, one in the sexed flow. Shares of single allocations are taken of them.
  double sides_per_set = 1;
};

/// The design of a flow: the one place that chooses between the two.
const SimulationDesign& DesignOf(Flow flow);

/// One set of parents. Three classes of origin: both, one, or none of the true parents collected.
SimulationDesign NonSexedDesign();

/// Males and females. Four classes of origin: the true father collected or not, the true mother
/// collected or not.
SimulationDesign SexedDesign();

}  // namespace kaldo
