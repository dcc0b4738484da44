// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/kept_pairs.h"

#include <algorithm>

namespace kaldo {

bool KeptPairs::IsStored(ParentPair pair) const {
  if (names_.empty()) {
    return false;
  }
  const auto same = [this](Slot a, Slot b) {
    return names_[a.Value()].SameKeyAs(names_[b.Value()]);
  };
  const auto stored = Pairs();
  return std::any_of(stored.begin(), stored.end(), [&](ParentPair kept) {
    const bool in_order = same(pair.parent1, kept.parent1) && same(pair.parent2, kept.parent2);
    const bool crosswise = flow_ == Flow::kNonSexed && same(pair.parent1, kept.parent2) &&
                           same(pair.parent2, kept.parent1);
    return in_order || crosswise;
  });
}

AfterPair KeptPairs::Show(ParentPair pair, double likelihood) {
  if (likelihood > best_) {
    pairs_[0] = pair;
    count_ = 1;
    best_ = likelihood;
    return AfterPair::kGoOn;
  }
  if (likelihood != best_ || likelihood == 0 || IsStored(pair)) {
    return AfterPair::kGoOn;
  }
  if (count_ == kCapacity) {
    more_than_five_ = true;
    return AfterPair::kLeaveRow;
  }
  pairs_[count_] = pair;
  ++count_;
  return AfterPair::kGoOn;
}

}  // namespace kaldo
