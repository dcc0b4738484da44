// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/evidence.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace kaldo {

namespace {

using Candidates = std::vector<ShortlistedCandidate>;

/// Leaves out most of those that three others surpass in both: the three with the largest product.
/// Candidates are many, and what is left is sorted.
void LeaveOutMost(Candidates& candidates) {
  CandidateEvidence largest;
  for (const ShortlistedCandidate& one : candidates) {
    largest.with_partners = std::max(largest.with_partners, one.evidence.with_partners);
    largest.with_stranger = std::max(largest.with_stranger, one.evidence.with_stranger);
  }
  if (candidates.size() <= kCandidatesTold || largest.with_partners == 0 ||
      largest.with_stranger == 0) {
    return;
  }
  const auto product = [&](const ShortlistedCandidate& one) {
    return one.evidence.with_partners / largest.with_partners *
           (one.evidence.with_stranger / largest.with_stranger);
  };
  std::array<ShortlistedCandidate, kCandidatesTold> three;
  std::partial_sort_copy(candidates.begin(), candidates.end(), three.begin(), three.end(),
                         [&](const auto& a, const auto& b) { return product(a) > product(b); });
  CandidateEvidence least = largest;
  for (const ShortlistedCandidate& one : three) {
    least.with_partners = std::min(least.with_partners, one.evidence.with_partners);
    least.with_stranger = std::min(least.with_stranger, one.evidence.with_stranger);
  }
  const auto is_surpassed = [&](const ShortlistedCandidate& one) {
    return one.evidence.with_partners < least.with_partners &&
           one.evidence.with_stranger < least.with_stranger;
  };
  candidates.erase(std::remove_if(candidates.begin(), candidates.end(), is_surpassed),
                   candidates.end());
}

}  // namespace

void Shorten(std::vector<ShortlistedCandidate>& candidates) {
  LeaveOutMost(candidates);
  const auto order = [](const ShortlistedCandidate& c) {
    return std::tuple(-c.evidence.with_partners, -c.evidence.with_stranger, c.slot);
  };
  std::sort(candidates.begin(), candidates.end(),
            [&](const auto& a, const auto& b) { return order(a) < order(b); });
  // The largest with_stranger of those before, in falling order. None is -1: below any likelihood.
  std::array<double, kCandidatesTold> largest;
  largest.fill(-1);
  const auto is_surpassed = [&](const ShortlistedCandidate& c) {
    const double own = c.evidence.with_stranger;
    if (largest.back() >= own) {
      return true;
    }
    largest.back() = own;
    std::sort(largest.begin(), largest.end(), std::greater<>());
    return false;
  };
  std::vector<ShortlistedCandidate> left;
  for (const ShortlistedCandidate& candidate : candidates) {
    if (!is_surpassed(candidate)) {
      left.push_back(candidate);
    }
  }
  candidates = std::move(left);
}

}  // namespace kaldo
