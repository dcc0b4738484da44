// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <tuple>

#include "genotypes/genotype_table.h"
#include "method/flow.h"

namespace kaldo {

/// A candidate pair by slots of the parents' table. In the sexed flow parent 1 is the male; in the
/// other one parent 1 stands before parent 2 in the file, which means nothing.
struct ParentPair {
  Slot parent1;
  Slot parent2;

  static auto Fields(auto& self) { return std::tie(self.parent1, self.parent2); }

  friend bool operator==(ParentPair, ParentPair) = default;
};

/// What the scan does after a pair has been shown to KeptPairs.
enum class AfterPair {
  kGoOn,
  kLeaveRow,  ///< skip the remaining partners of the current first parent
};

/// The most likely pairs of one offspring met so far. The rule, for pairs shown in scan order:
///
///  - a strictly larger likelihood empties the list and stores the pair;
///  - a pair of individuals that already stand in the list (by the first ten bytes of their names)
///    is passed over: the same fish genotyped twice is no second explanation;
///  - an equal likelihood is stored while there are fewer than five pairs; the sixth sets the mark
///    "more than five" and the rest of its row is left out. The mark stays, also when a better pair
///    empties the list later: it says that the scan has not seen everything.
///
/// Likelihoods are compared exactly: pairs of the same scores have the same product to the last
/// bit, so that a tie is a tie. One of 0, impossible under the model, never enters. Five and ten
/// are this program's conventions.
class KeptPairs {
 public:
  /// Pairs that are kept at most.
  static constexpr std::size_t kCapacity = 5;

  /// `names` by slot; without names (simulated parents have none) no pair is passed over.
  KeptPairs(Flow flow, std::span<const IndividualName> names) : flow_(flow), names_(names) {}

  /// True where `likelihood` can change what is kept; everything else need not be shown.
  bool Matters(double likelihood) const { return likelihood >= best_ && likelihood > 0; }

  /// Shows the next pair of the scan and tells how the scan goes on.
  AfterPair Show(ParentPair pair, double likelihood);

  /// The pairs kept, in the order in which they were shown, all with the best likelihood.
  std::span<const ParentPair> Pairs() const { return std::span(pairs_).first(count_); }

  /// The mark "more than five".
  bool MoreThanFive() const { return more_than_five_; }

  /// 0 as long as no pair is kept.
  double BestLikelihood() const { return best_; }

 private:
  bool IsStored(ParentPair pair) const;

  Flow flow_;
  std::span<const IndividualName> names_;
  std::array<ParentPair, kCapacity> pairs_{};
  std::size_t count_ = 0;
  bool more_than_five_ = false;
  double best_ = 0;
};

}  // namespace kaldo
