// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "confidence/confidence_run.h"
#include "confidence/evidence_finder.h"
#include "confidence/identical_parents.h"
#include "confidence/relatives_finder.h"
#include "runs/portions.h"

namespace kaldo {

/// What of one offspring is to be found.
struct EvidenceOrder {
  std::uint32_t offspring = 0;  ///< counted from 0
  EvidenceWish wish;
};

/// The same when relatives count.
struct RelativesOrder {
  std::uint32_t offspring = 0;  ///< counted from 0
  RelativesWish wish;
};

/// The gathering of evidence for stretches of offspring. Every process can make it from settings
/// and input; what changes while the shares are estimated stands in the orders.
class EvidenceTask final : public PortionTask {
 public:
  EvidenceTask(const ConfidenceSettings& settings, const ConfidenceInput& input);

  std::unique_ptr<PortionWorker> MakeWorker() const override;

  const EvidenceStudy& Study() const { return study_; }

 private:
  SlotRange offspring_;
  std::span<const CandidateGroup> groups_;
  std::vector<TransmissionMatrix> matrices_;
  std::vector<std::vector<double>> strangers_;
  std::vector<IdenticalParents> identical_;
  EvidenceStudy study_;
};

/// One gathering for some offspring: fills their evidence, of one kind or the other.
template <typename GivenOrder, typename GivenEvidence>
class GatheringPlan final : public PortionPlan {
 public:
  GatheringPlan(const EvidenceTask& task, std::span<const GivenOrder> orders,
                std::span<GivenEvidence> evidence)
      : parents_(task.Study().search.parents), orders_(orders), evidence_(evidence) {}

  std::size_t Groups() const override { return 1; }
  std::size_t ItemsPerGroup() const override { return orders_.size(); }
  std::size_t MostItemsPerPortion() const override;
  std::string Order(const Portion& portion) override;
  bool IsPossible(const Portion& portion, std::string_view result) const override;
  bool Take(const Portion& portion, std::string_view result) override;

 private:
  std::size_t parents_;  ///< slots that a candidate may have
  std::span<const GivenOrder> orders_;
  std::span<GivenEvidence> evidence_;  ///< by offspring
};

using EvidencePlan = GatheringPlan<EvidenceOrder, Evidence>;
using RelativesPlan = GatheringPlan<RelativesOrder, RelativesEvidence>;

}  // namespace kaldo
