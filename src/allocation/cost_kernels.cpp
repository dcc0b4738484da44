// SPDX-License-Identifier: GPL-3.0-or-later
// This file is compiled once for every kind of vector; foreach_target.h includes it again and
// again.
#include "allocation/cost_kernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "allocation/cost_kernels.cpp"
#include <hwy/foreach_target.h>
//
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace kaldo::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Sums = hn::ScalableTag<std::uint16_t>;
using Words = hn::ScalableTag<std::uint64_t>;

void AddCostsImpl(const std::uint8_t* costs, std::uint16_t* sums, std::size_t count) {
  const Sums sum_tag;
  const hn::Rebind<std::uint8_t, Sums> cost_tag;
  const std::size_t lanes = hn::Lanes(sum_tag);
  for (std::size_t i = 0; i < count; i += lanes) {
    const auto added = hn::PromoteTo(sum_tag, hn::LoadU(cost_tag, costs + i));
    hn::StoreU(hn::Add(hn::LoadU(sum_tag, sums + i), added), sum_tag, sums + i);
  }
}

void AndBitsImpl(const std::uint64_t* bits, std::uint64_t* all, std::size_t words) {
  const Words tag;
  const std::size_t lanes = hn::Lanes(tag);
  std::size_t i = 0;
  for (; i + lanes <= words; i += lanes) {
    hn::StoreU(hn::And(hn::LoadU(tag, all + i), hn::LoadU(tag, bits + i)), tag, all + i);
  }
  for (; i < words; ++i) {
    all[i] &= bits[i];
  }
}

void BlockMinimaImpl(const std::uint16_t* costs, std::uint16_t* minima, std::size_t blocks) {
  const Sums tag;
  const std::size_t lanes = hn::Lanes(tag);
  HWY_ALIGN std::uint16_t smallest[kBlock];
  for (std::size_t block = 0; block < blocks; ++block) {
    const std::uint16_t* const begin = costs + block * kBlock;
    auto minimum = hn::LoadU(tag, begin);
    for (std::size_t i = lanes; i < kBlock; i += lanes) {
      minimum = hn::Min(minimum, hn::LoadU(tag, begin + i));
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

}  // namespace kaldo::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace kaldo {

HWY_EXPORT(AddCostsImpl);
HWY_EXPORT(AndBitsImpl);
HWY_EXPORT(BlockMinimaImpl);
HWY_EXPORT(MaskAtMostImpl);

void AddCosts(const std::uint8_t* costs, std::uint16_t* sums, std::size_t count) {
  HWY_DYNAMIC_DISPATCH(AddCostsImpl)(costs, sums, count);
}

void AndBits(const std::uint64_t* bits, std::uint64_t* all, std::size_t words) {
  HWY_DYNAMIC_DISPATCH(AndBitsImpl)(bits, all, words);
}

void BlockMinima(const std::uint16_t* costs, std::uint16_t* minima, std::size_t blocks) {
  HWY_DYNAMIC_DISPATCH(BlockMinimaImpl)(costs, minima, blocks);
}

std::uint64_t MaskAtMost(const std::uint16_t* costs, std::uint16_t limit) {
  return HWY_DYNAMIC_DISPATCH(MaskAtMostImpl)(costs, limit);
}

}  // namespace kaldo
#endif
