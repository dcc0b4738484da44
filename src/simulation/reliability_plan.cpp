// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reliability_plan.h"

#include "base/byte_packing.h"
#include "simulation/iteration_portions.h"

namespace kaldo {

std::string ReliabilityPlan::Order(const Portion& portion) {
  return PackOrder(result_.LastSubset().loci,
                   std::span(result_.states).subspan(portion.begin, portion.Size()));
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
