// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "allocation/allocation_run.h"
#include "confidence/confidence_portions.h"

namespace kaldo {

/// The posteriors of an allocation rest on the loci of its last combination. Every process can make
/// this from settings and input; both must outlive it.
class AllocationEvidence {
 public:
  AllocationEvidence(const AllocationSettings& settings, const AllocationInput& input);

  ConfidenceSettings Settings() const;

  /// With what the allocation says about each offspring, or without.
  ConfidenceInput Input(std::span<const ReportedParents> reported) const;

 private:
  const AllocationSettings& settings_;
  const AllocationInput& input_;
  std::vector<LocusIndex> loci_;
};

/// What "/Allocation results.xls" says about the parents of every offspring.
std::vector<ReportedParents> ReportedBy(Flow flow, const AllocationResult& result);

/// Adds to an allocation how sure the parents of every offspring are, and how well each locus
/// serves.
void AddConfidence(const AllocationSettings& settings, const AllocationInput& input,
                   RunObserver& observer, Workforce& workforce, AllocationResult& result);

}  // namespace kaldo
