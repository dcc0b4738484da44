// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "allocation/allocation_run.h"
#include "method/transmission_matrix.h"
#include "runs/portions.h"

namespace kaldo {

/// A combination of loci as it runs: in file order, with their unit distances.
LociOfRun LociOfCombination(const AllocationInput& input, std::vector<LocusIndex> loci);

/// The transmission matrices of the run, one per locus of the names-of-loci file.
std::vector<TransmissionMatrix> BuildMatrices(const AllocationSettings& settings,
                                              const AllocationInput& input);

/// The allocation of stretches of offspring, each with the loci of one combination.
class AllocationTask final : public PortionTask {
 public:
  AllocationTask(const AllocationSettings& settings, const AllocationInput& input);

  std::unique_ptr<PortionWorker> MakeWorker() const override;

 private:
  const AllocationSettings& settings_;
  const AllocationInput& input_;
  std::vector<TransmissionMatrix> matrices_;
};

/// Combination by combination, its offspring in file order: fills the counters, the pairs, the
/// loci and the outcomes of a result.
class AllocationPlan final : public PortionPlan {
 public:
  AllocationPlan(Flow flow, const AllocationInput& input, AllocationResult& result)
      : flow_(flow), input_(input), result_(result) {}

  std::size_t Groups() const override { return input_.combinations.size(); }
  std::size_t ItemsPerGroup() const override { return input_.NumberOfOffspring(); }
  std::size_t MostItemsPerPortion() const override;
  std::string Order(const Portion& portion) override;
  bool IsPossible(const Portion& portion, std::string_view result) const override;
  bool Take(const Portion& portion, std::string_view result) override;

 private:
  Flow flow_;
  const AllocationInput& input_;
  AllocationResult& result_;
};

}  // namespace kaldo
