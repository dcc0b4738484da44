// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "base/run_observer.h"
#include "confidence/explanation_shares.h"
#include "confidence/posterior.h"
#include "genotypes/catalogued_loci.h"
#include "method/error_model.h"
#include "runs/workforce.h"

namespace kaldo {

/// What a user chooses.
struct ConfidenceSettings {
  ErrorModel error_model;                  ///< of the run; see FreeReading for what is added
  double level = kDefaultConfidenceLevel;  ///< of the verdicts, see IsConfidenceLevel
  unsigned threads = 0;                    ///< in a process; 0: as many as fit
  bool relatives = false;                  ///< explain by full sibs of candidates too

  /// Also tells of misread loci and of relatives, which changes no probability and takes its time.
  bool advises = true;

  friend bool operator==(const ConfidenceSettings&, const ConfidenceSettings&) = default;
};

/// The individuals of a run and the loci on which it rests. It refers to all of them.
struct ConfidenceInput {
  Flow flow = Flow::kNonSexed;

  /// An indexed table: the collected parents in front, the offspring somewhere behind them.
  const GenotypeTable& table;
  SlotRange offspring;
  std::span<const CandidateGroup> groups;

  const AlleleCatalogues& catalogues;
  std::span<const LocusIndex> loci;  ///< of the run, in file order

  /// What an allocation says about each offspring, in file order; empty where nothing is asked
  /// about it. The leading process alone needs it.
  std::span<const ReportedParents> reported;

  /// What is known of each offspring, in file order; empty where nothing is known of any.
  std::span<const AllowedPairs> allowed = {};
};

/// How sure every offspring of a run is allocated.
struct ConfidenceResult {
  /// False where the error model has a negative probability: then nothing was computed.
  bool is_meaningful = true;

  std::vector<OffspringConfidence> offspring;  ///< in file order

  WaysOfExplanations ways;
  ExplanationShares shares;
  std::size_t informative_offspring = 0;  ///< on which the shares rest

  /// How often the evidence of some offspring was gathered, to keep what is left out small.
  int gatherings = 0;

  /// The estimated share of genes misread at each locus of the run, in its order; NaN where there
  /// is no estimate, empty without advice.
  std::vector<double> error_rates;

  /// By how much the logarithm of the likelihood grows when parents that were not collected may be
  /// full sibs of candidates; none where that was not tested. See RelativesNote.
  std::optional<double> relatives_gain;

  /// Of the parents that were not collected, the share that are full sibs of candidates; none
  /// unless relatives count.
  std::optional<double> sibs_of_candidates;
};

/// The part of a run in which the evidence is gathered.
inline constexpr std::string_view kWeighingPart = "Weighing the evidence";

/// The posterior probabilities of all offspring, nothing told but the files: the shares of the
/// explanations are estimated from all offspring together. The result is the same for any
/// workforce; `record` is for processes that have to make the task themselves, see EvidenceTask.
ConfidenceResult ComputeConfidence(const ConfidenceSettings& settings, const ConfidenceInput& input,
                                   Workforce& workforce, RunObserver& observer,
                                   const std::function<RunRecord()>& record);

/// Said where nothing is computed.
inline constexpr std::string_view kNegativeProbabilitySentence =
    "How sure the allocations are was not computed: the error model has a negative probability.";

}  // namespace kaldo
