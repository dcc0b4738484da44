// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "method/allocation_decision.h"
#include "method/flow.h"

namespace kaldo {

/// What the blocks of one report have in common.
struct MatricesReport {
  Flow flow = Flow::kNonSexed;
  OffsetTolerance tolerance;
  std::size_t digits_per_field = 0;
  const GenotypeTable& table;
  const LociOfRun& loci;
};

/// The block of one offspring in "/Transmision matrices.xls": locus by locus its genotype beside
/// those of its first pair with the condition, the distances and the offsets, then the offsets of
/// each parent and the verdict against the tolerance.
std::string MatricesBlock(const MatricesReport& report, Slot offspring,
                          const AllocationOutcome& outcome);

}  // namespace kaldo
