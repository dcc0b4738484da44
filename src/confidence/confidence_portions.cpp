// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_portions.h"

#include <algorithm>
#include <cmath>
#include <concepts>

#include "base/field_packing.h"
#include "confidence/confidence_matrix.h"
#include "confidence/stranger_scores.h"

namespace kaldo {

namespace {

/// Offspring typed at few loci among many parents take a tenth of a second each.
constexpr std::size_t kMostOffspringPerPortion = 32;

/// What an order begins with.
enum class OrderKind : std::uint8_t { kEvidence, kRelatives };

constexpr OrderKind KindOf(const EvidenceOrder&) { return OrderKind::kEvidence; }
constexpr OrderKind KindOf(const RelativesOrder&) { return OrderKind::kRelatives; }

class EvidenceWorker final : public PortionWorker {
 public:
  EvidenceWorker(const EvidenceStudy& study, SlotRange offspring)
      : study_(study), finder_(study), offspring_(offspring) {}

  std::string Do(std::string_view order, RunObserver& observer) override {
    ByteUnpacker unpacker(order);
    BytePacker packer;
    if (unpacker.Get<OrderKind>() == OrderKind::kEvidence) {
      for (const auto& one : unpacker.GetAll<EvidenceOrder>()) {
        PackFields(finder_.Find(SlotAt(one.offspring), one.wish, observer), packer);
        observer.OnSteps(1);
      }
      return packer.Take();
    }
    if (!relatives_finder_) {
      relatives_finder_.emplace(study_);
    }
    for (const auto& one : unpacker.GetAll<RelativesOrder>()) {
      PackFields(relatives_finder_->Find(SlotAt(one.offspring), one.wish, observer), packer);
      observer.OnSteps(1);
    }
    return packer.Take();
  }

 private:
  Slot SlotAt(std::uint32_t offspring) const { return Slot{offspring_.begin + offspring}; }

  const EvidenceStudy& study_;
  EvidenceFinder finder_;
  std::optional<RelativesFinder> relatives_finder_;  ///< when it is first wanted
  SlotRange offspring_;
};

/// Whether a likelihood or probability, the slot of a candidate, or something else, may be one.
bool IsPossible(double value, std::size_t /*parents*/) {
  return std::isfinite(value) && value >= 0;
}
bool IsPossible(Slot slot, std::size_t parents) { return slot.Value() < parents; }
template <std::integral Count>
bool IsPossible(Count /*count*/, std::size_t /*parents*/) {
  return true;
}

template <typename Answers>
bool IsAnswered(const AskedCandidates& asked, const Answers& answers) {
  return std::equal(asked.begin(), asked.end(), answers.begin(),
                    [](auto& one, auto& answer) { return one.has_value() == answer.has_value(); });
}

/// Whether evidence answers what was asked.
bool IsAnswerTo(const EvidenceWish& wish, const Evidence& evidence) {
  return IsAnswered(wish.asked, evidence.fixed.asked);
}

bool IsAnswerTo(const RelativesWish& wish, const RelativesEvidence& evidence) {
  return !evidence.weighed.is_possible || IsAnswered(wish.asked, evidence.weighed.asked);
}

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
             identical_,
             input.allowed,
             Slot{input.offspring.begin}} {
  // A parent that is undefined at a locus gives what a stranger gives, for two equal alleles.
  for (std::size_t locus = 0; locus < matrices_.size(); ++locus) {
    std::vector<double> row = strangers_[locus];
    for (double& score : row) {
      score /= 2;
    }
    matrices_[locus].AddRow(row);
  }
}

std::unique_ptr<PortionWorker> EvidenceTask::MakeWorker() const {
  return std::make_unique<EvidenceWorker>(study_, offspring_);
}

template <typename GivenOrder, typename GivenEvidence>
std::size_t GatheringPlan<GivenOrder, GivenEvidence>::MostItemsPerPortion() const {
  return kMostOffspringPerPortion;
}

template <typename GivenOrder, typename GivenEvidence>
std::string GatheringPlan<GivenOrder, GivenEvidence>::Order(const Portion& portion) {
  BytePacker packer;
  packer.Add(KindOf(orders_.front()));
  packer.AddAll(orders_.subspan(portion.begin, portion.Size()));
  return packer.Take();
}

template <typename GivenOrder, typename GivenEvidence>
bool GatheringPlan<GivenOrder, GivenEvidence>::IsPossible(const Portion& portion,
                                                          std::string_view result) const {
  const auto evidence = UnpackUpToTheEnd<GivenEvidence>(result);
  bool is_possible = evidence.size() == portion.Size();
  for (std::size_t i = 0; is_possible && i < evidence.size(); ++i) {
    is_possible = IsAnswerTo(orders_[portion.begin + i].wish, evidence[i]);
    VisitPlain(evidence[i], [&](auto value) {
      is_possible = is_possible && kaldo::IsPossible(value, parents_);
    });
  }
  return is_possible;
}

template <typename GivenOrder, typename GivenEvidence>
bool GatheringPlan<GivenOrder, GivenEvidence>::Take(const Portion& portion,
                                                    std::string_view result) {
  ByteUnpacker unpacker(result);
  for (const GivenOrder& order : orders_.subspan(portion.begin, portion.Size())) {
    UnpackFields(evidence_[order.offspring], unpacker);
  }
  return true;
}

template class GatheringPlan<EvidenceOrder, Evidence>;
template class GatheringPlan<RelativesOrder, RelativesEvidence>;

}  // namespace kaldo
