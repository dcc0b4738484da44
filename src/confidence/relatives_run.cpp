// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/relatives_run.h"

#include <algorithm>

namespace kaldo {

namespace {

constexpr double kMostPairsOfQuickTest = 2e8;
constexpr double kDelta = 1e-6;
constexpr double kErrorOfGain = 0.1;
constexpr double kHopelessGain = 2;
constexpr double kSmallestChange = 1e-10;
constexpr double kSmallestChangeForGain = 1e-6;

using OneEvidence = ByOrigins<double>;

/// What tells something about the shares, in file order, each over its largest value.
std::vector<OneEvidence> Informative(std::span<const RelativesEvidence> evidence, Flow flow) {
  std::vector<OneEvidence> informative;
  for (const RelativesEvidence& one : evidence) {
    OneEvidence mean = one.mean;
    double largest = 0;
    for (const Origins o : AllOrigins(flow)) {
      largest = std::max(largest, mean[o]);
    }
    if (one.is_typed && largest > 0) {
      for (const Origins o : AllOrigins(flow)) {
        mean[o] /= largest;
      }
      informative.push_back(mean);
    }
  }
  return informative;
}

/// What two sibs are worth when nothing of one side said anything about the other.
double TwoSibsRoughly(const OneEvidence& mean, Flow flow) {
  const double unknown = mean[{Origin::kUnknown, Origin::kUnknown}];
  const double first = mean[{Origin::kSib, Origin::kUnknown}];
  const double second = flow == Flow::kSexed ? mean[{Origin::kUnknown, Origin::kSib}] : first;
  return unknown > 0 ? first / unknown * second : 0;
}

/// The gatherings of one run.
class RelativesRun {
 public:
  RelativesRun(const ConfidenceSettings& settings, const ConfidenceInput& input,
               const EvidenceTask& task, Workforce& workforce, RunObserver& observer,
               const std::function<RunRecord()>& record)
      : settings_(settings),
        input_(input),
        task_(task),
        workforce_(workforce),
        observer_(observer),
        record_(record),
        delta_(settings.relatives ? kDelta
                                  : kErrorOfGain / static_cast<double>(input.offspring.Size())),
        evidence_(input.offspring.Size()) {}

  RelativesFindings Run() {
    if (settings_.relatives) {
      return Find();
    }
    two_sibs_ = false;
    RelativesFindings first = Find();
    if (first.gain < kHopelessGain) {
      return first;
    }
    two_sibs_ = true;
    return Find();
  }

 private:
  RelativesFindings Find() {
    RelativesFindings findings;
    OriginShares& shares = findings.shares.origins;
    for (auto orders = OrdersWhere([](std::uint32_t) { return true; }, shares); !orders.empty();) {
      Gather(orders);
      const auto informative = Informative(evidence_, input_.flow);
      findings.shares = Estimate(informative, true);
      findings.gain = findings.shares.explanations.log_likelihood -
                      Estimate(informative, false).explanations.log_likelihood;
      const auto weights = Weights(shares, input_.flow, Ways());
      orders = OrdersWhere(
          [&](std::uint32_t i) {
            return LeavesOutTooMuch(evidence_[i], input_.flow, weights, delta_);
          },
          shares);
    }
    if (settings_.relatives) {
      Gather(OrdersWhere([](std::uint32_t) { return true; }, shares));
      findings.evidence = std::move(evidence_);
    }
    return findings;
  }

  RelativesShares Estimate(std::span<const OneEvidence> informative, bool with_sibs) const {
    return EstimateRelatives(informative, input_.flow, Ways(), with_sibs,
                             settings_.relatives ? kSmallestChange : kSmallestChangeForGain);
  }

  const WaysOfExplanations& Ways() const { return task_.Study().ways; }

  /// With half of what may be left out, so that a small change of the shares does not ask for the
  /// same anew.
  template <typename Condition>
  std::vector<RelativesOrder> OrdersWhere(const Condition& is_wanted,
                                          const OriginShares& shares) const {
    std::vector<RelativesOrder> orders;
    for (std::uint32_t i = 0; i < input_.offspring.Size(); ++i) {
      if (is_wanted(i)) {
        orders.push_back({i,
                          {shares, delta_ / 2, two_sibs_,
                           input_.reported.empty() ? AskedCandidates{} : input_.reported[i]}});
      }
    }
    return orders;
  }

  void Gather(const std::vector<RelativesOrder>& orders) {
    RelativesPlan plan(task_, orders, evidence_);
    observer_.OnPart(kWeighingPart, orders.size());
    workforce_.Do({kWeighingPart, task_, plan, record_}, settings_.threads, observer_);
    for (const RelativesOrder& order : orders) {
      OneEvidence& mean = evidence_[order.offspring].mean;
      if (!two_sibs_) {
        mean[{Origin::kSib, Origin::kSib}] = TwoSibsRoughly(mean, input_.flow);
      }
    }
  }

  const ConfidenceSettings& settings_;
  const ConfidenceInput& input_;
  const EvidenceTask& task_;
  Workforce& workforce_;
  RunObserver& observer_;
  const std::function<RunRecord()>& record_;
  double delta_;
  bool two_sibs_ = true;
  std::vector<RelativesEvidence> evidence_;
};

}  // namespace

bool IsRelativesTestQuick(const ConfidenceInput& input, const WaysOfExplanations& ways) {
  return ways[Explanation::kBoth] * static_cast<double>(input.offspring.Size()) <=
         kMostPairsOfQuickTest;
}

RelativesFindings FindRelatives(const ConfidenceSettings& settings, const ConfidenceInput& input,
                                const EvidenceTask& task, Workforce& workforce,
                                RunObserver& observer, const std::function<RunRecord()>& record) {
  return RelativesRun(settings, input, task, workforce, observer, record).Run();
}

}  // namespace kaldo
