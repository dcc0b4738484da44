// SPDX-License-Identifier: GPL-3.0-or-later
// This file is compiled once for every kind of vector; foreach_target.h includes it again and
// again.
#include "search/cost_kernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "search/cost_kernels.cpp"
#include <hwy/foreach_target.h>
//
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace kaldo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Sums = hn::ScalableTag<std::uint16_t>;
using Words = hn::ScalableTag<std::uint64_t>;

bool KeepCommonImpl(const std::uint64_t* all, const GiverRows* loci, std::size_t count,
                    std::uint64_t* left, std::size_t words) {
  const Words tag;
  const std::size_t lanes = hn::Lanes(tag);
  const auto zero = hn::Zero(tag);
  const auto one = hn::Set(tag, 1);
  auto seen = zero;    // of each lane, all bits met
  auto second = zero;  // not 0 in a lane that has met two bits or more
  std::size_t i = 0;
  for (; i + lanes <= words; i += lanes) {
    auto common = hn::LoadU(tag, all + i);
    for (std::size_t k = 0; k < count; ++k) {
      const auto either =
          hn::Or(hn::LoadU(tag, loci[k].first + i), hn::LoadU(tag, loci[k].second + i));
      common = hn::And(common, either);
    }
    hn::StoreU(common, tag, left + i);
    const auto without_lowest = hn::And(common, hn::Sub(common, one));
    const auto as_well = hn::IfThenZeroElse(hn::Eq(seen, zero), common);
    second = hn::Or(second, hn::Or(without_lowest, as_well));
    seen = hn::Or(seen, common);
  }
  bool two = !hn::AllTrue(tag, hn::Eq(second, zero));
  std::size_t met = lanes - hn::CountTrue(tag, hn::Eq(seen, zero));
  for (; i < words; ++i) {
    std::uint64_t common = all[i];
    for (std::size_t k = 0; k < count; ++k) {
      common &= loci[k].first[i] | loci[k].second[i];
    }
    left[i] = common;
    two = two || (common & (common - 1)) != 0;
    met += common != 0 ? 1 : 0;
  }
  return two || met > 1;
}

// Arrays as C has them: the functions of std::array would be compiled for the least of the targets.
// NOLINTBEGIN(modernize-avoid-c-arrays)
void SumCostsImpl(const std::uint8_t* const* rows, std::size_t count, const std::uint64_t* possible,
                  std::size_t blocks, std::uint16_t impossible, std::uint16_t* sums,
                  std::uint16_t* minima) {
  const Sums tag;
  const hn::Rebind<std::uint8_t, Sums> cost_tag;
  const std::size_t lanes = hn::Lanes(tag);
  HWY_ALIGN std::uint16_t smallest[kBlock];
  for (std::size_t block = 0; block < blocks; ++block) {
    auto minimum = hn::Set(tag, impossible);
    for (std::size_t i = 0; i < kBlock; i += lanes) {
      const std::size_t at = block * kBlock + i;
      auto sum = hn::Zero(tag);
      for (std::size_t row = 0; row < count; ++row) {
        sum = hn::Add(sum, hn::PromoteTo(tag, hn::LoadU(cost_tag, rows[row] + at)));
      }
      const std::uint64_t bits = possible[block] >> i;
      std::uint8_t bytes[8];
      __builtin_memcpy(bytes, &bits, sizeof(bits));
      sum = hn::IfThenElse(hn::LoadMaskBits(tag, bytes), sum, hn::Set(tag, impossible));
      hn::StoreU(sum, tag, sums + at);
      minimum = hn::Min(minimum, sum);
    }
    hn::StoreU(minimum, tag, smallest);
    std::uint16_t least = smallest[0];
    for (std::size_t lane = 1; lane < lanes; ++lane) {
      least = smallest[lane] < least ? smallest[lane] : least;
    }
    minima[block] = least;
  }
}

std::uint64_t MaskAtMostImpl(const std::uint16_t* costs, std::uint16_t limit) {
  const Sums tag;
  const std::size_t lanes = hn::Lanes(tag);
  const auto limits = hn::Set(tag, limit);
  std::uint64_t mask = 0;
  for (std::size_t i = 0; i < kBlock; i += lanes) {
    std::uint8_t bytes[8] = {};
    const auto values = hn::LoadU(tag, costs + i);
    hn::StoreMaskBits(tag, hn::Eq(hn::Min(values, limits), values), bytes);
    std::uint64_t bits = 0;
    __builtin_memcpy(&bits, bytes, sizeof(bits));
    mask |= bits << i;
  }
  return mask;
}
// NOLINTEND(modernize-avoid-c-arrays)

}  // namespace kaldo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaldo {

namespace {

// For fewer words than this, finding the code for the processor takes longer than the words do.
constexpr std::size_t kFewWords = 8;

bool KeepCommonOfFew(const std::uint64_t* all, std::span<const GiverRows> loci,
                     std::span<std::uint64_t> left) {
  std::uint64_t seen = 0;
  std::uint64_t second = 0;  // not 0 when two bits or more were met
  const GiverRows& a = loci.front();
  const GiverRows& b = loci[loci.size() / 2];
  const GiverRows& c = loci.back();
  for (std::size_t i = 0; i < left.size(); ++i) {
    std::uint64_t common = all[i] & (a.first[i] | a.second[i]) & (b.first[i] | b.second[i]) &
                           (c.first[i] | c.second[i]);
    left[i] = common;
    second |= (common & (common - 1)) | (seen != 0 ? common : 0);
    seen |= common;
  }
  return second != 0;
}

}  // namespace

HWY_EXPORT(KeepCommonImpl);
HWY_EXPORT(SumCostsImpl);
HWY_EXPORT(MaskAtMostImpl);

bool KeepCommon(const std::uint64_t* all, std::span<const GiverRows> loci,
                std::span<std::uint64_t> left) {
  if (left.size() < kFewWords && loci.size() <= 3) {
    return KeepCommonOfFew(all, loci, left);
  }
  return HWY_DYNAMIC_DISPATCH(KeepCommonImpl)(all, loci.data(), loci.size(), left.data(),
                                              left.size());
}

void SumCosts(std::span<const std::uint8_t* const> rows, std::span<const std::uint64_t> possible,
              std::uint16_t impossible, std::uint16_t* sums, std::uint16_t* minima) {
  HWY_DYNAMIC_DISPATCH(SumCostsImpl)
  (rows.data(), rows.size(), possible.data(), possible.size(), impossible, sums, minima);
}

std::uint64_t MaskAtMost(const std::uint16_t* costs, std::uint16_t limit) {
  return HWY_DYNAMIC_DISPATCH(MaskAtMostImpl)(costs, limit);
}

}  // namespace kaldo
#endif
