// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reliability_plan.h"

#include <algorithm>
#include <cmath>

#include "base/byte_packing.h"
#include "simulation/iteration_portions.h"

namespace kaldo {

std::string ReliabilityPlan::Order(const Portion& portion) {
  return PackOrder(result_.LastSubset().loci,
                   std::span(result_.states).subspan(portion.begin, portion.Size()));
}

namespace {

bool IsPossible(const NamedSides& named) {
  return named.right <= named.sides && std::isfinite(named.probabilities) &&
         named.probabilities >= 0;
}

bool IsPossible(const Reliability& one) {
  const auto are_possible = [](const auto& all) {
    return std::all_of(all.begin(), all.end(),
                       [](const NamedSides& named) { return IsPossible(named); });
  };
  return are_possible(one.levels) && are_possible(one.bins);
}

}  // namespace

bool ReliabilityPlan::IsPossible(const Portion& portion, std::string_view result) const {
  ByteUnpacker unpacker(result);
  bool is_possible = result.size() == portion.Size() * sizeof(Reliability);
  while (is_possible && !unpacker.Rest().empty()) {
    is_possible = kaldo::IsPossible(unpacker.Get<Reliability>());
  }
  return is_possible;
}

bool ReliabilityPlan::Take(const Portion& portion, std::string_view result) {
  if (portion.begin == 0) {
    result_.reliability.emplace();
  }
  ByteUnpacker unpacker(result);
  for (std::size_t i = portion.begin; i < portion.end; ++i) {
    result_.reliability->Add(unpacker.Get<Reliability>());
  }
  return true;
}

}  // namespace kaldo
