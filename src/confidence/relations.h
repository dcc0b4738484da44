// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "confidence/explanations.h"

namespace kaldo {

/// Where a parent of an offspring comes from, when relatives count.
enum class Origin {
  kCollected = 0,
  kSib = 1,      ///< not collected, a full sib of a candidate
  kUnknown = 2,  ///< not collected, no sib of any
};

/// The origins of both parents. Without sex the order says nothing, and first <= second.
struct Origins {
  Origin first = Origin::kUnknown;
  Origin second = Origin::kUnknown;

  /// The explanation that it is a case of.
  constexpr Explanation Case() const {
    if (first == Origin::kCollected) {
      return second == Origin::kCollected ? Explanation::kBoth : Explanation::kFirst;
    }
    return second == Origin::kCollected ? Explanation::kSecond : Explanation::kNone;
  }
};

/// One value for each of the nine combinations.
template <typename Value>
class ByOrigins {
 public:
  constexpr Value& operator[](Origins o) { return values_[Place(o)]; }
  constexpr const Value& operator[](Origins o) const { return values_[Place(o)]; }

  static auto Fields(auto& self) { return std::tie(self.values_); }

  friend bool operator==(const ByOrigins&, const ByOrigins&) = default;

 private:
  static constexpr std::size_t Place(Origins o) {
    return 3 * static_cast<std::size_t>(o.first) + static_cast<std::size_t>(o.second);
  }
  std::array<Value, 9> values_{};
};

/// The combinations of a flow, pairs of candidates or their sibs first: nine, and six without sex.
std::span<const Origins> AllOrigins(Flow flow);

/// In how many ways each combination can be true, see WaysOfExplanations. Nobody is paired with its
/// own sib. A known parent, the first one without sex and the second with it, was collected.
ByOrigins<double> CountWaysOfOrigins(Flow flow, const WaysOfExplanations& ways,
                                     bool has_known_parent = false);

}  // namespace kaldo
