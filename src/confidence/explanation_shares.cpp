// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/explanation_shares.h"

#include <cmath>
#include <vector>

#include "confidence/delta_method.h"

namespace kaldo {

namespace {

constexpr double kSmallestChange = 1e-10;
constexpr int kMostRounds = 10'000;

using Evidence = std::span<const ByExplanation<double>>;

double Mixture(const ByExplanation<double>& theta, const ByExplanation<double>& evidence) {
  double sum = 0;
  for (const Explanation k : kAllExplanations) {
    sum += theta[k] * evidence[k];
  }
  return sum;
}

ByExplanation<double> NextShares(Evidence offspring, const ByExplanation<double>& theta,
                                 const ByExplanation<double>& theta0) {
  ByExplanation<double> next = theta0;
  for (const auto& evidence : offspring) {
    const double total = Mixture(theta, evidence);
    for (const Explanation k : kAllExplanations) {
      next[k] += theta[k] * evidence[k] / total;
    }
  }
  for (const Explanation k : kAllExplanations) {
    next[k] /= static_cast<double>(offspring.size()) + 1;
  }
  return next;
}

/// The weight of an explanation in the share of collected parents.
constexpr double CollectedShare(Explanation k) {
  return k == Explanation::kBoth ? 1 : k == Explanation::kNone ? 0 : 0.5;
}

/// The open explanations but kNone, whose share is what the others leave.
std::vector<Explanation> FreeExplanations(const ByExplanation<double>& theta) {
  std::vector<Explanation> free;
  for (const Explanation k : kAllExplanations) {
    if (k != Explanation::kNone && theta[k] > 0) {
      free.push_back(k);
    }
  }
  return free;
}

SquareMatrix Information(Evidence offspring, const ByExplanation<double>& theta,
                         const ByExplanation<double>& theta0, std::span<const Explanation> free) {
  const auto prior = [&](Explanation k) { return theta0[k] / (theta[k] * theta[k]); };
  SquareMatrix information(free.size(),
                           std::vector<double>(free.size(), prior(Explanation::kNone)));
  for (std::size_t a = 0; a < free.size(); ++a) {
    information[a][a] += prior(free[a]);
  }
  for (const auto& evidence : offspring) {
    const double total = Mixture(theta, evidence);
    const auto slope = [&](Explanation k) {
      return (evidence[k] - evidence[Explanation::kNone]) / total;
    };
    for (std::size_t a = 0; a < free.size(); ++a) {
      for (std::size_t b = 0; b < free.size(); ++b) {
        information[a][b] += slope(free[a]) * slope(free[b]);
      }
    }
  }
  return information;
}

}  // namespace

std::array<double, 2> CollectedBySide(const ByExplanation<double>& theta) {
  const double both = theta[Explanation::kBoth];
  return {both + theta[Explanation::kFirst], both + theta[Explanation::kSecond]};
}

ExplanationShares EstimateShares(std::span<const ByExplanation<double>> evidence,
                                 const WaysOfExplanations& ways) {
  const ByExplanation<double> theta0 = EqualShares(ways);
  ExplanationShares shares;
  shares.theta = theta0;
  for (double change = 1; change >= kSmallestChange && shares.rounds < kMostRounds;
       ++shares.rounds) {
    const ByExplanation<double> next = NextShares(evidence, shares.theta, theta0);
    change = 0;
    for (const Explanation k : kAllExplanations) {
      change += std::abs(next[k] - shares.theta[k]);
    }
    shares.theta = next;
  }
  for (const auto& one : evidence) {
    shares.log_likelihood += std::log(Mixture(shares.theta, one));
  }
  std::vector<double> weights;
  const auto free = FreeExplanations(shares.theta);
  for (const Explanation k : free) {
    shares.collected += CollectedShare(k) * shares.theta[k];
    weights.push_back(CollectedShare(k));
  }
  shares.collected_by_side = CollectedBySide(shares.theta);
  shares.standard_error =
      std::sqrt(VarianceOfSum(Information(evidence, shares.theta, theta0, free), weights));
  return shares;
}

}  // namespace kaldo
