// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "base/run_observer.h"
#include "method/allocation_outcome.h"
#include "method/allowed_pairs.h"
#include "method/transmission_scores.h"

namespace kaldo {

/// The candidates of a run, the same for every offspring. It refers to groups and names, which must
/// outlive it.
struct Candidates {
  Flow flow = Flow::kNonSexed;
  std::span<const CandidateGroup> groups;
  std::span<const IndividualName> names;  ///< by slot; none for simulated parents
};

/// The most likely pairs of collected parents of one offspring: every pair of every group, group by
/// group, first parents ascending and partners ascending inside. The likelihood of a pair is
///
///   L = product over the loci, in locus order, of (P_R1 x P_J2 + P_J1 x P_R2),
///
/// with the scores of TransmissionScores for parents 1 and 2. Without error this is the Mendelian
/// probability of the offspring's genotype given both parents, on which the likelihood of a parent
/// pair rests (Meagher & Thompson 1986, Theoretical Population Biology 29:87-106,
/// doi:10.1016/0040-5809(86)90006-7), times 4 per heterozygous and 8 per homozygous locus: a factor
/// of the offspring alone, which ranks pairs alike. It is no probability of parentage: neither
/// allele frequencies nor the parents that were not collected enter. Missing loci multiply by
/// exactly 1. At least one locus is needed.
///
/// Fills the search part of the outcome; throws RunStopped when the observer asks.
///
/// This is the plain scan that defines the result. Runs use PairSearcher, which finds the same.
/// Cost: pairs x loci multiplications; `scores` is read row by row.
AllocationOutcome ScanPairs(const TransmissionScores& scores, const Candidates& candidates,
                            const RunObserver& observer);

/// The same among the allowed pairs alone.
AllocationOutcome ScanPairs(const TransmissionScores& scores, const Candidates& candidates,
                            const AllowedPairs& allowed, const RunObserver& observer);

/// A stretch of a row of that scan: `first_parent` with the partners given. `kept` holds what the
/// scan has met before.
AfterPair ScanRowOfPairs(const TransmissionScores& scores, Slot first_parent, SlotRange partners,
                         KeptPairs& kept);

/// The search part of an outcome.
AllocationOutcome OutcomeOf(const KeptPairs& kept);

}  // namespace kaldo
