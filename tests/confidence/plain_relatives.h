// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/confidence/plain_confidence.h"

namespace kaldo::test {

/// The same with full sibs of candidates among the parents: every way of every offspring.
class PlainRelatives {
 public:
  using Number = PlainConfidence::Number;

  PlainRelatives(const PlainConfidence& plain, const ConfidenceInput& input, bool with_sibs)
      : plain_(plain), input_(input), sibs_(with_sibs ? 0.1L : 0) {
    for (std::uint32_t slot = input.offspring.begin; slot < input.offspring.end; ++slot) {
      ListWays(Slot{slot});
    }
    Estimate(with_sibs);
  }

  Number Collected() const {
    return (HasCandidates(0) ? collected_[0] / 2 : 0) + (HasCandidates(1) ? collected_[1] / 2 : 0);
  }
  Number Sibs() const { return sibs_; }

  Number LogLikelihood() const {
    Number sum = 0;
    for (std::size_t i = 0; i < ways_.size(); ++i) {
      sum += plain_.IsTyped(i) ? std::log(Total(i)) : 0;
    }
    return sum;
  }

  Assignments All(std::size_t offspring) const {
    Assignments all;
    for (const Way& way : ways_[offspring]) {
      Assignment shown;
      for (std::size_t side = 0; side < 2; ++side) {
        if (way.origins[side] == kCollected) {
          shown.second[side] = way.parents[side];
        }
      }
      shown.first = shown.second[0] ? (shown.second[1] ? Explanation::kBoth : Explanation::kFirst)
                                    : (shown.second[1] ? Explanation::kSecond : Explanation::kNone);
      all[shown] += Weight(offspring, way) * way.likelihood / Total(offspring);
    }
    return all;
  }

 private:
  enum Origin { kCollected, kSib, kUnknown };
  using Scores = std::vector<PlainConfidence::Scores>;

  struct Way {
    std::array<Origin, 2> origins;
    std::array<std::optional<Slot>, 2> parents;
    Number likelihood;
  };

  bool IsSexed() const { return input_.flow == Flow::kSexed; }
  bool HasCandidates(std::size_t side) const {
    return std::any_of(input_.groups.begin(), input_.groups.end(), [&](const CandidateGroup& g) {
      return (side == 0 ? g.first : g.second).Size() > 0;
    });
  }

  Scores ScoresOf(Slot offspring, Origin origin, std::optional<Slot> parent) const {
    const Scores stranger = plain_.AllScores(offspring, std::nullopt);
    if (origin == kUnknown) {
      return stranger;
    }
    Scores scores = plain_.AllScores(offspring, parent);
    for (std::size_t k = 0; origin == kSib && k < scores.size(); ++k) {
      scores[k].r = (scores[k].r + stranger[k].r) / 2;
      scores[k].j = (scores[k].j + stranger[k].j) / 2;
    }
    return scores;
  }

  void ListWays(Slot offspring) {
    struct Parent {
      Origin origin;
      std::optional<Slot> slot;
      Scores scores;
    };
    std::vector<Way> ways;
    const Scores stranger = ScoresOf(offspring, kUnknown, {});
    std::optional<std::size_t> group_number;
    const auto add = [&](const Parent& a, const Parent& b) {
      const auto collected = [](const Parent& parent) {
        return parent.origin == kCollected ? parent.slot : std::nullopt;
      };
      if (!PlainConfidence::IsAllowed(input_, offspring, group_number, {a.slot, b.slot},
                                      {collected(a), collected(b)})) {
        return;
      }
      ways.push_back({{a.origin, b.origin},
                      {a.slot, b.slot},
                      PlainConfidence::Likelihood(a.scores, b.scores)});
    };
    const Parent unknown = {kUnknown, {}, stranger};
    add(unknown, unknown);
    for (const CandidateGroup& group : input_.groups) {
      group_number = group_number ? *group_number + 1 : 0;
      std::array<std::vector<Parent>, 2> sides;
      for (std::size_t side = 0; side < 2; ++side) {
        const SlotRange slots = side == 0 ? group.first : group.second;
        for (Slot slot{slots.begin}; slot < Slot{slots.end}; ++slot) {
          for (const Origin origin : {kCollected, kSib}) {
            sides[side].push_back({origin, slot, ScoresOf(offspring, origin, slot)});
          }
        }
      }
      for (const Parent& a : sides[0]) {
        add(a, unknown);
        for (const Parent& b : sides[1]) {
          const bool once = a.slot != b.slot &&
                            (a.origin < b.origin || (a.origin == b.origin && a.slot < b.slot));
          if (IsSexed() || once) {
            add(a, b);
          }
        }
      }
      for (const Parent& b : sides[1]) {
        if (IsSexed()) {
          add(unknown, b);
        }
      }
    }
    ways_.push_back(ways);
  }

  Number SideShare(std::size_t side, Origin origin) const {
    if (!HasCandidates(side)) {
      return origin == kUnknown ? 1 : 0;
    }
    const Number c = collected_[side];
    return origin == kCollected ? c : (1 - c) * (origin == kSib ? sibs_ : 1 - sibs_);
  }

  /// The share of the combination over its ways.
  Number Weight(std::size_t offspring, const Way& way) const {
    const auto count = std::count_if(ways_[offspring].begin(), ways_[offspring].end(),
                                     [&](const Way& w) { return w.origins == way.origins; });
    const Number twice = !IsSexed() && way.origins[0] != way.origins[1] ? 2 : 1;
    return twice * SideShare(0, way.origins[0]) * SideShare(1, way.origins[1]) /
           static_cast<Number>(count);
  }

  Number Total(std::size_t offspring) const {
    Number total = 0;
    for (const auto& [origins, mean] : Means(offspring)) {
      const Number twice = !IsSexed() && origins[0] != origins[1] ? 2 : 1;
      total += twice * SideShare(0, origins[0]) * SideShare(1, origins[1]) * mean;
    }
    return total;
  }

  /// E by combination, worked out once.
  const std::map<std::array<Origin, 2>, Number>& Means(std::size_t offspring) const {
    auto& means = means_[offspring];
    if (means.empty()) {
      std::map<std::array<Origin, 2>, Number> counts;
      for (const Way& way : ways_[offspring]) {
        means[way.origins] += way.likelihood;
        counts[way.origins] += 1;
      }
      for (auto& [origins, mean] : means) {
        mean /= counts[origins];
      }
    }
    return means;
  }

  void Estimate(bool with_sibs) {
    for (Number change = 1; change >= 1e-13L;) {
      std::array<Number, 2> collected{};
      std::array<Number, 2> sides{};
      Number sibs = 0;
      Number uncollected = 0;
      for (std::size_t i = 0; i < ways_.size(); ++i) {
        for (const auto& [origins, mean] : Means(i)) {
          const Number twice = !IsSexed() && origins[0] != origins[1] ? 2 : 1;
          const Number share =
              twice * SideShare(0, origins[0]) * SideShare(1, origins[1]) * mean / Total(i);
          for (std::size_t side = 0; side < 2 && plain_.IsTyped(i); ++side) {
            const std::size_t own = IsSexed() ? side : 0;
            collected[own] += origins[side] == kCollected ? share : 0;
            sides[own] += share;
            sibs += origins[side] == kSib ? share : 0;
            uncollected += HasCandidates(side) && origins[side] != kCollected ? share : 0;
          }
        }
      }
      change = 0;
      for (std::size_t side = 0; side < 2; ++side) {
        const std::size_t own = IsSexed() ? side : 0;
        const Number next = (collected[own] + 0.5L) / (sides[own] + 1);
        change += std::abs(next - collected_[side]);
        collected_[side] = next;
      }
      const Number next = with_sibs ? (sibs + 0.1L) / (uncollected + 1) : 0;
      change += std::abs(next - sibs_);
      sibs_ = next;
    }
  }

  const PlainConfidence& plain_;
  ConfidenceInput input_;
  std::vector<std::vector<Way>> ways_;
  mutable std::map<std::size_t, std::map<std::array<Origin, 2>, Number>> means_;
  std::array<Number, 2> collected_ = {0.5L, 0.5L};
  Number sibs_;
};

}  // namespace kaldo::test
