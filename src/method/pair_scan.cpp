// SPDX-License-Identifier: GPL-3.0-or-later
#include "method/pair_scan.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "base/problem.h"

namespace kaldo {

namespace {

// Partners whose likelihoods are computed together: they stay in the nearest cache, and the
// compiler computes several at a time without changing any of them.
constexpr std::size_t kPartnersAtOnce = 128;

using Likelihoods = std::array<double, kPartnersAtOnce>;

/// The likelihoods of `first_parent` with the partners begin, begin + 1, ... Every product runs in
/// locus order on its own.
void MultiplyLoci(const TransmissionScores& scores, std::size_t first_parent, std::size_t begin,
                  std::span<double> likelihoods) {
  const std::size_t count = likelihoods.size();
  for (std::size_t k = 0; k < scores.Loci(); ++k) {
    const double r1 = scores.R(k)[first_parent];
    const double j1 = scores.J(k)[first_parent];
    const double* const r2 = scores.R(k).subspan(begin, count).data();
    const double* const j2 = scores.J(k).subspan(begin, count).data();
    if (k == 0) {
      for (std::size_t i = 0; i < count; ++i) {
        likelihoods[i] = r1 * j2[i] + j1 * r2[i];
      }
      continue;
    }
    for (std::size_t i = 0; i < count; ++i) {
      likelihoods[i] *= r1 * j2[i] + j1 * r2[i];
    }
  }
}

}  // namespace

AfterPair ScanRowOfPairs(const TransmissionScores& scores, Slot first_parent, SlotRange partners,
                         KeptPairs& kept) {
  Likelihoods likelihoods;
  for (std::size_t begin = partners.begin; begin < partners.end; begin += kPartnersAtOnce) {
    const std::size_t count = std::min(kPartnersAtOnce, partners.end - begin);
    MultiplyLoci(scores, first_parent.Value(), begin, std::span(likelihoods).first(count));
    for (std::size_t i = 0; i < count; ++i) {
      if (!kept.Matters(likelihoods[i])) {
        continue;
      }
      const ParentPair pair{first_parent, Slot{static_cast<std::uint32_t>(begin + i)}};
      if (kept.Show(pair, likelihoods[i]) == AfterPair::kLeaveRow) {
        return AfterPair::kLeaveRow;
      }
    }
  }
  return AfterPair::kGoOn;
}

namespace {

/// The row among the candidates of one offspring.
void ScanRowOfCandidates(const TransmissionScores& scores, Slot first_parent, SlotRange partners,
                         const std::vector<Slot>& candidates, KeptPairs& kept) {
  auto partner = std::lower_bound(candidates.begin(), candidates.end(), Slot{partners.begin});
  for (; partner != candidates.end() && partner->Value() < partners.end; ++partner) {
    const SlotRange alone{partner->Value(), partner->Value() + 1};
    if (ScanRowOfPairs(scores, first_parent, alone, kept) == AfterPair::kLeaveRow) {
      return;
    }
  }
}

}  // namespace

AllocationOutcome ScanPairs(const TransmissionScores& scores, const Candidates& candidates,
                            const RunObserver& observer) {
  return ScanPairs(scores, candidates, {}, observer);
}

AllocationOutcome ScanPairs(const TransmissionScores& scores, const Candidates& candidates,
                            const AllowedPairs& allowed, const RunObserver& observer) {
  assert(scores.Loci() > 0 && "a likelihood needs a locus");
  KeptPairs kept(candidates.flow, candidates.names);
  const OffspringGroups groups(candidates.flow, candidates.groups, allowed);
  for (const CandidateGroup& group : groups.Groups()) {
    for (std::uint32_t parent = group.first.begin; parent < group.first.end; ++parent) {
      if (observer.StopRequested()) {
        throw RunStopped();
      }
      const SlotRange partners = PartnersOf(groups.Pairing(), group, parent);
      if (!allowed.candidates) {
        ScanRowOfPairs(scores, Slot{parent}, partners, kept);
      } else if (allowed.IsCandidate(Slot{parent})) {
        ScanRowOfCandidates(scores, Slot{parent}, partners, *allowed.candidates, kept);
      }
    }
  }
  return OutcomeOf(kept);
}

AllocationOutcome OutcomeOf(const KeptPairs& kept) {
  AllocationOutcome outcome;
  std::copy(kept.Pairs().begin(), kept.Pairs().end(), outcome.pairs.begin());
  outcome.pair_entries = 2 * static_cast<int>(kept.Pairs().size());
  outcome.more_than_five = kept.MoreThanFive();
  outcome.best_likelihood = kept.BestLikelihood();
  return outcome;
}

}  // namespace kaldo
