// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/evidence.h"

#include <algorithm>
#include <functional>
#include <tuple>

namespace kaldo {

void Evidence::Pack(BytePacker& packer) const {
  packer.Add(fixed);
  for (const auto& shortlist : shortlists) {
    packer.AddAll(std::span<const ShortlistedCandidate>(shortlist));
  }
}

Evidence Evidence::Unpack(ByteUnpacker& unpacker) {
  Evidence evidence;
  evidence.fixed = unpacker.Get<Fixed>();
  for (auto& shortlist : evidence.shortlists) {
    shortlist = unpacker.GetAll<ShortlistedCandidate>();
  }
  return evidence;
}

void Shorten(std::vector<ShortlistedCandidate>& candidates) {
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
