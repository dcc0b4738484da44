// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <tuple>
#include <vector>

#include "confidence/evidence.h"
#include "confidence/verdict.h"

namespace kaldo {

/// A candidate and how probably it is the parent.
struct ProbableParent {
  Slot slot;
  double probability = 0;

  static auto Fields(auto& self) { return std::tie(self.slot, self.probability); }
};

/// How sure one parent of an offspring is. Sexed: the father, then the mother. Non-sexed: the two
/// most probable candidates, the more probable one first; the third one is the next of both.
struct SideConfidence {
  std::optional<ProbableParent> candidate;  ///< none where there is no candidate
  std::optional<ProbableParent> runner_up;

  /// That the parent of this side was not collected. Non-sexed: of the first side that neither
  /// parent was, of the second one that at most one was.
  double p_uncollected = 0;

  Verdict verdict = Verdict::kOpen;

  /// Candidates with the genotype of this one at all loci, itself included, which share their
  /// probability, and what they have together.
  std::uint32_t alike = 0;
  double p_all_alike = 0;

  /// How probably what the allocation says about this side is right; none unless it was asked for.
  std::optional<double> p_reported;
};

/// How sure the parents of one offspring are. Where every likelihood is 0 only the verdicts, all
/// open, mean anything.
struct OffspringConfidence {
  bool is_possible = true;  ///< false where every likelihood is 0
  bool is_typed = true;     ///< false where nothing is: these are the shares, no more

  std::array<SideConfidence, 2> sides;

  ByExplanation<double> p_explanation;  ///< of each explanation, all its ways together

  /// The single most probable assignment: an explanation with its candidates. None of a side that
  /// it holds for uncollected. Non-sexed: one collected parent stands on the first side.
  Explanation best_explanation = Explanation::kNone;
  std::array<std::optional<Slot>, 2> best;
  double p_best = 0;

  /// The natural logarithm of the likelihood of the best pair over that of the second best, 0 in a
  /// tie; none without two pairs.
  std::optional<double> ln_best_second;

  /// The same over the best pair with a stranger in the place of parent 1, and of parent 2.
  std::array<std::optional<double>, 2> ln_pair_unknown;

  std::uint64_t tied_pairs = 0;  ///< pairs exactly as likely as the best one, itself included
};

/// What the allocation says about an offspring, by side: the slot of a parent, none for UC.
using ReportedParents = std::array<std::optional<Slot>, 2>;

/// A candidate with its probability, and what all have together that no genotype tells apart.
struct RankedCandidate {
  Slot slot;
  double probability = 0;
  std::uint32_t alike = 1;
  double p_all_alike = 0;

  static auto Fields(auto& self) {
    return std::tie(self.slot, self.probability, self.alike, self.p_all_alike);
  }
};

/// The explanations of one offspring once their shares are known.
struct WeighedExplanations {
  bool is_possible = true;  ///< false where every likelihood is 0: nothing else means anything
  ByExplanation<double> p_explanation;

  /// By side, the most probable one first; in the non-sexed flow all stand on the first side.
  std::array<std::array<std::optional<RankedCandidate>, kCandidatesTold>, 2> ranked;

  std::array<std::optional<double>, 2> asked;  ///< the probability of a candidate asked for

  /// The most probable candidate of a side with a parent that was not collected, and how probable
  /// just that is.
  std::array<std::optional<ProbableParent>, 2> best_alone;

  /// What the likelihood of a pair of candidates is multiplied by to become its probability.
  double p_per_likelihood_of_pair = 0;

  static auto Fields(auto& self) {
    return std::tie(self.is_possible, self.p_explanation, self.ranked, self.asked, self.best_alone,
                    self.p_per_likelihood_of_pair);
  }
};

/// Puts down what follows for an offspring.
OffspringConfidence Conclude(const WeighedExplanations& weighed, const Evidence::Fixed& evidence,
                             Flow flow, double level,
                             const std::optional<ReportedParents>& reported);

/// The posterior probabilities of one offspring (Bayes' rule): a pair has
///
///   theta_both L(i,j) / pairs
///
/// over the total of all explanations, a candidate with a stranger theta_first L(i,U) / candidates,
/// two strangers theta_none L(U,U). The probability of a candidate is the sum over all that it is
/// part of. Equally probable candidates come in file order.
OffspringConfidence Posterior(const Evidence& evidence, Flow flow,
                              const ByExplanation<double>& theta, const WaysOfExplanations& ways,
                              double level, const std::optional<ReportedParents>& reported);

}  // namespace kaldo
