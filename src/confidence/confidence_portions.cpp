// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_portions.h"

#include <algorithm>

#include "base/byte_packing.h"
#include "confidence/confidence_matrix.h"
#include "confidence/stranger_scores.h"

namespace kaldo {

namespace {

/// Offspring typed at few loci among many parents take a tenth of a second each.
constexpr std::size_t kMostOffspringPerPortion = 32;

class EvidenceWorker final : public PortionWorker {
 public:
  EvidenceWorker(const EvidenceStudy& study, SlotRange offspring)
      : finder_(study), offspring_(offspring) {}

  std::string Do(std::string_view order, RunObserver& observer) override {
    BytePacker packer;
    for (const auto& one : ByteUnpacker(order).GetAll<EvidenceOrder>()) {
      const Slot slot{offspring_.begin + one.offspring};
      finder_.Find(slot, one.wish, observer).Pack(packer);
      observer.OnSteps(1);
    }
    return packer.Take();
  }

 private:
  EvidenceFinder finder_;
  SlotRange offspring_;
};

std::vector<std::vector<double>> ScoresOfStrangers(const ConfidenceInput& input,
                                                   std::span<const TransmissionMatrix> matrices) {
  const auto parents = RangesOfParents(input.flow, input.groups);
  std::vector<std::vector<double>> scores(matrices.size());
  for (const LocusIndex locus : input.loci) {
    const TransmissionMatrix& matrix = matrices[locus.Value()];
    scores[locus.Value()] = StrangerScores(
        ParentFrequencies(input.table.Locus(locus), parents, matrix.Alleles()), matrix);
  }
  return scores;
}

/// The slots up to the last candidate; others may follow before the offspring.
std::size_t SlotsOfCandidates(const ConfidenceInput& input) {
  std::uint32_t slots = 0;
  for (const SlotRange range : RangesOfParents(input.flow, input.groups)) {
    slots = std::max(slots, range.end);
  }
  return slots;
}

std::vector<IdenticalParents> IdenticalOnEachSide(const ConfidenceInput& input) {
  std::array<std::vector<SlotRange>, 2> sides;
  for (const CandidateGroup& group : input.groups) {
    sides[0].push_back(group.first);
    sides[1].push_back(group.second);
  }
  std::vector<IdenticalParents> identical;
  identical.reserve(sides.size());
  for (const auto& side : sides) {
    identical.emplace_back(input.table, input.loci, side);
  }
  return identical;
}

}  // namespace

EvidenceTask::EvidenceTask(const ConfidenceSettings& settings, const ConfidenceInput& input)
    : offspring_(input.offspring),
      groups_(input.groups),
      matrices_(ConfidenceMatrices(settings.error_model, input.catalogues)),
      strangers_(ScoresOfStrangers(input, matrices_)),
      identical_(IdenticalOnEachSide(input)),
      study_{{input.table, SlotsOfCandidates(input), input.loci, matrices_},
             input.flow,
             input.groups,
             CountWays(input.flow, input.groups),
             strangers_,
             identical_} {}

std::unique_ptr<PortionWorker> EvidenceTask::MakeWorker() const {
  return std::make_unique<EvidenceWorker>(study_, offspring_);
}

std::size_t EvidencePlan::MostItemsPerPortion() const { return kMostOffspringPerPortion; }

std::string EvidencePlan::Order(const Portion& portion) {
  BytePacker packer;
  packer.AddAll(orders_.subspan(portion.begin, portion.Size()));
  return packer.Take();
}

bool EvidencePlan::Take(const Portion& portion, std::string_view result) {
  ByteUnpacker unpacker(result);
  for (const EvidenceOrder& order : orders_.subspan(portion.begin, portion.Size())) {
    evidence_[order.offspring] = Evidence::Unpack(unpacker);
  }
  return true;
}

}  // namespace kaldo
