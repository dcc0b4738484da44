// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/relatives_shares.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "confidence/delta_method.h"

namespace kaldo {

namespace {

constexpr int kMostRounds = 10'000;
constexpr OriginShares kStart;

using Evidence = std::span<const ByOrigins<double>>;

/// The share of every origin on one side, by Origin.
using SideShares = std::array<double, 3>;

double At(const SideShares& side, Origin o) { return side[static_cast<std::size_t>(o)]; }

/// A run, as far as the shares see it.
struct Setting {
  Flow flow;
  std::array<bool, 2> has_candidates;

  Setting(Flow f, const WaysOfExplanations& ways)
      : flow(f),
        has_candidates{ways[Explanation::kFirst] > 0,
                       ways[f == Flow::kSexed ? Explanation::kSecond : Explanation::kFirst] > 0} {}

  SideShares Side(const OriginShares& shares, std::size_t side) const {
    if (!has_candidates[side]) {
      return {0, 0, 1};
    }
    const double c = shares.collected[side];
    return {c, (1 - c) * shares.sibs, (1 - c) * (1 - shares.sibs)};
  }

  double Product(Origins o, const SideShares& first, const SideShares& second) const {
    const double product = At(first, o.first) * At(second, o.second);
    return flow == Flow::kNonSexed && o.first != o.second ? 2 * product : product;
  }

  ByOrigins<double> Weights(const OriginShares& shares) const {
    const SideShares first = Side(shares, 0);
    const SideShares second = Side(shares, 1);
    ByOrigins<double> weights;
    for (const Origins o : AllOrigins(flow)) {
      weights[o] = Product(o, first, second);
    }
    return weights;
  }

  double Mixture(const ByOrigins<double>& weights, const ByOrigins<double>& evidence) const {
    double sum = 0;
    for (const Origins o : AllOrigins(flow)) {
      sum += weights[o] * evidence[o];
    }
    return sum;
  }
};

/// Expected numbers of sides.
struct SideCounts {
  std::array<double, 2> collected{};
  std::array<double, 2> uncollected{};
  double sibs = 0;

  void Add(std::size_t side, Origin origin, double share) {
    (origin == Origin::kCollected ? collected : uncollected)[side] += share;
    sibs += origin == Origin::kSib ? share : 0;
  }
};

SideCounts Expect(const Setting& setting, Evidence evidence, const OriginShares& shares) {
  const ByOrigins<double> weights = setting.Weights(shares);
  SideCounts counts;
  for (const auto& one : evidence) {
    const double total = setting.Mixture(weights, one);
    for (const Origins o : AllOrigins(setting.flow)) {
      const double share = weights[o] * one[o] / total;
      counts.Add(0, o.first, share);
      counts.Add(setting.flow == Flow::kSexed ? 1 : 0, o.second, share);
    }
  }
  return counts;
}

OriginShares NextShares(const Setting& setting, Evidence evidence, const OriginShares& shares,
                        bool with_sibs) {
  const SideCounts counts = Expect(setting, evidence, shares);
  OriginShares next;
  double uncollected = 0;
  for (std::size_t side = 0; side < 2; ++side) {
    next.collected[side] = (counts.collected[side] + kStart.collected[side]) /
                           (counts.collected[side] + counts.uncollected[side] + 1);
    uncollected += setting.has_candidates[side] ? counts.uncollected[side] : 0;
  }
  if (setting.flow == Flow::kNonSexed) {
    next.collected[1] = next.collected[0];
  }
  next.sibs = with_sibs ? (counts.sibs + kStart.sibs) / (uncollected + 1) : 0;
  return next;
}

double Change(const OriginShares& a, const OriginShares& b) {
  return std::abs(a.collected[0] - b.collected[0]) + std::abs(a.collected[1] - b.collected[1]) +
         std::abs(a.sibs - b.sibs);
}

/// The slopes of all weights along the estimated shares: collected, by side where it has
/// candidates, and sibs.
std::vector<ByOrigins<double>> Slopes(const Setting& setting, const OriginShares& shares,
                                      bool with_sibs) {
  const std::array<SideShares, 2> sides = {setting.Side(shares, 0), setting.Side(shares, 1)};
  const auto along = [&](const std::array<SideShares, 2>& slopes) {
    ByOrigins<double> slope;
    for (const Origins o : AllOrigins(setting.flow)) {
      slope[o] = setting.Product(o, slopes[0], sides[1]) + setting.Product(o, sides[0], slopes[1]);
    }
    return slope;
  };
  std::vector<ByOrigins<double>> all;
  std::array<SideShares, 2> of_collected{};
  std::array<SideShares, 2> of_sibs{};
  for (std::size_t side = 0; side < 2; ++side) {
    if (setting.has_candidates[side]) {
      of_collected[side] = {1, -shares.sibs, -(1 - shares.sibs)};
      of_sibs[side] = {0, 1 - shares.collected[side], -(1 - shares.collected[side])};
    }
  }
  if (setting.flow == Flow::kNonSexed) {
    all.push_back(along(of_collected));
  } else {
    all.push_back(along({of_collected[0], SideShares{}}));
    all.push_back(along({SideShares{}, of_collected[1]}));
  }
  if (with_sibs) {
    all.push_back(along(of_sibs));
  }
  return all;
}

/// The curvature of the prior, of the weight of one side at `start`.
double PriorInformation(double start, double share) {
  return start / (share * share) + (1 - start) / ((1 - share) * (1 - share));
}

double VarianceOfCollected(const Setting& setting, Evidence evidence, const OriginShares& shares,
                           bool with_sibs) {
  const auto slopes = Slopes(setting, shares, with_sibs);
  const std::size_t n = slopes.size();
  const std::size_t of_collected = n - (with_sibs ? 1 : 0);
  SquareMatrix information(n, std::vector<double>(n, 0.0));
  for (std::size_t a = 0; a < n; ++a) {
    information[a][a] = a < of_collected
                            ? PriorInformation(kStart.collected[a], shares.collected[a])
                            : PriorInformation(kStart.sibs, shares.sibs);
  }
  const ByOrigins<double> weights = setting.Weights(shares);
  for (const auto& one : evidence) {
    const double total = setting.Mixture(weights, one);
    for (std::size_t a = 0; a < n; ++a) {
      for (std::size_t b = 0; b < n; ++b) {
        information[a][b] +=
            setting.Mixture(slopes[a], one) / total * (setting.Mixture(slopes[b], one) / total);
      }
    }
  }
  std::vector<double> sum(n, 0.0);
  for (std::size_t side = 0; side < std::min<std::size_t>(of_collected, 2); ++side) {
    sum[side] = setting.has_candidates[side] ? 1.0 / static_cast<double>(of_collected) : 0;
  }
  return VarianceOfSum(information, sum);
}

}  // namespace

ByOrigins<double> Weights(const OriginShares& shares, Flow flow, const WaysOfExplanations& ways) {
  return Setting(flow, ways).Weights(shares);
}

RelativesShares EstimateRelatives(Evidence evidence, Flow flow, const WaysOfExplanations& ways,
                                  bool with_sibs, double smallest_change) {
  const Setting setting(flow, ways);
  RelativesShares result;
  OriginShares& shares = result.origins;
  shares.sibs = with_sibs ? kStart.sibs : 0;
  int& rounds = result.explanations.rounds;
  for (double change = 1; change >= smallest_change && rounds < kMostRounds; ++rounds) {
    const OriginShares next = NextShares(setting, evidence, shares, with_sibs);
    change = Change(next, shares);
    shares = next;
  }
  const ByOrigins<double> weights = setting.Weights(shares);
  for (const Origins o : AllOrigins(flow)) {
    result.explanations.theta[o.Case()] += weights[o];
  }
  result.explanations.collected_by_side = CollectedBySide(result.explanations.theta);
  for (const auto& one : evidence) {
    result.explanations.log_likelihood += std::log(setting.Mixture(weights, one));
  }
  for (std::size_t side = 0; side < 2; ++side) {
    result.explanations.collected += setting.has_candidates[side] ? shares.collected[side] / 2 : 0;
  }
  result.explanations.standard_error =
      std::sqrt(VarianceOfCollected(setting, evidence, shares, with_sibs));
  return result;
}

}  // namespace kaldo
