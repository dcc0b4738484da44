// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "base/run_observer.h"
#include "method/allocation_outcome.h"
#include "method/candidate_groups.h"
#include "method/transmission_scores.h"

namespace kaldo {

/// The candidates of a run, the same for every offspring.
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
/// four times the Mendelian probability of the offspring's genotype per locus (Meagher & Thompson
/// 1986, Theor. Popul. Biol. 29:87-106), a constant factor that ranks pairs alike. At least one
/// locus is needed. Fills the search part of the outcome; throws RunStopped when the observer asks.
///
/// This is the plain scan that defines the result. Runs use PairSearcher, which finds the same.
/// Cost: pairs x loci multiplications; `scores` is read row by row.
AllocationOutcome ScanPairs(const TransmissionScores& scores, const Candidates& candidates,
                            const RunObserver& observer);

/// One row of that scan: `first_parent` with the partners given. `kept` holds what the scan has met
/// before.
void ScanRowOfPairs(const TransmissionScores& scores, Slot first_parent, SlotRange partners,
                    KeptPairs& kept);

/// The search part of an outcome.
AllocationOutcome OutcomeOf(const KeptPairs& kept);

}  // namespace kaldo
