// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/confidence_run.h"

#include <algorithm>

#include "confidence/confidence_matrix.h"
#include "confidence/confidence_portions.h"
#include "confidence/evidence_limits.h"
#include "confidence/locus_error_rates.h"
#include "confidence/relatives_run.h"

namespace kaldo {

namespace {

EvidenceOrder OrderFor(const ConfidenceInput& input, std::uint32_t offspring, bool with_error_rates,
                       std::optional<EvidenceLimits> limits) {
  return {offspring,
          {limits, input.reported.empty() ? AskedCandidates{} : input.reported[offspring],
           with_error_rates && TellsOfErrorRates(offspring, input.offspring.Size())}};
}

/// What tells something about the shares, in file order, each over its largest value.
std::vector<ByExplanation<double>> Informative(std::span<const Evidence> evidence) {
  std::vector<ByExplanation<double>> informative;
  for (const Evidence& one : evidence) {
    ByExplanation<double> mean = one.fixed.mean;
    double largest = 0;
    for (const Explanation k : kAllExplanations) {
      largest = std::max(largest, mean[k]);
    }
    if (one.fixed.is_typed && largest > 0) {
      for (const Explanation k : kAllExplanations) {
        mean[k] /= largest;
      }
      informative.push_back(mean);
    }
  }
  return informative;
}

/// The offspring whose evidence leaves out too much under these shares.
std::vector<EvidenceOrder> OrdersForMore(const ConfidenceInput& input, bool with_error_rates,
                                         std::span<const Evidence> evidence,
                                         const ByExplanation<double>& theta) {
  std::vector<EvidenceOrder> orders;
  for (std::uint32_t i = 0; i < evidence.size(); ++i) {
    if (LeavesOutTooMuch(evidence[i], theta)) {
      orders.push_back(
          OrderFor(input, i, with_error_rates, HalfOf(LimitsFor(theta, evidence[i].fixed.mean))));
    }
  }
  return orders;
}

std::vector<EvidenceOrder> FirstOrders(const ConfidenceInput& input, bool with_error_rates) {
  std::vector<EvidenceOrder> orders;
  for (std::uint32_t i = 0; i < input.offspring.Size(); ++i) {
    orders.push_back(OrderFor(input, i, with_error_rates, std::nullopt));
  }
  return orders;
}

}  // namespace

ConfidenceResult ComputeConfidence(const ConfidenceSettings& settings, const ConfidenceInput& input,
                                   Workforce& workforce, RunObserver& observer,
                                   const std::function<RunRecord()>& record) {
  ConfidenceResult result;
  const EvidenceTask task(settings, input);
  result.is_meaningful = AreProbabilities(task.Study().search.matrices);
  if (!result.is_meaningful) {
    return result;
  }
  result.ways = task.Study().ways;
  std::vector<Evidence> evidence(input.offspring.Size());
  for (std::vector<EvidenceOrder> orders = FirstOrders(input, settings.advises); !orders.empty();) {
    EvidencePlan plan(task, orders, evidence);
    observer.OnPart(kWeighingPart, orders.size());
    workforce.Do({kWeighingPart, task, plan, record}, settings.threads, observer);
    ++result.gatherings;
    const auto informative = Informative(evidence);
    result.informative_offspring = informative.size();
    result.shares = EstimateShares(informative, result.ways);
    orders = OrdersForMore(input, settings.advises, evidence, result.shares.theta);
  }
  if (settings.advises) {
    result.error_rates = EstimateErrorRates(input, result.ways, evidence);
  }
  std::vector<RelativesEvidence> with_relatives;
  if (settings.relatives || (settings.advises && IsRelativesTestQuick(input, result.ways))) {
    RelativesFindings found = FindRelatives(settings, input, task, workforce, observer, record);
    result.relatives_gain = found.gain;
    if (settings.relatives) {
      result.shares = found.shares.explanations;
      result.sibs_of_candidates = found.shares.origins.sibs;
      with_relatives = std::move(found.evidence);
    }
  }
  for (std::size_t i = 0; i < evidence.size(); ++i) {
    const auto reported =
        input.reported.empty() ? std::nullopt : std::optional<ReportedParents>(input.reported[i]);
    const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(i)};
    const WaysOfExplanations ways =
        CountWays(input.flow, input.groups, task.Study().AllowedFor(slot));
    result.offspring.push_back(settings.relatives
                                   ? Conclude(with_relatives[i].weighed, evidence[i].fixed,
                                              input.flow, settings.level, reported)
                                   : Posterior(evidence[i], input.flow, result.shares.theta, ways,
                                               settings.level, reported));
  }
  return result;
}

}  // namespace kaldo
