// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/genotype_table.h"

#include <concepts>

#include <gtest/gtest.h>

namespace kaldo {
namespace {

// A size of 104 bp and the place 104 of a catalogue look alike; mixing them up must not compile.
template <typename A, typename B>
concept Mixable = std::convertible_to<A, B> || std::constructible_from<A, B> ||
    std::equality_comparable_with<A, B> || requires(A a, B b) {
  a < b;
} || requires(A a, B b) {
  a = b;
};

static_assert(Mixable<AlleleSize, AlleleSize>);
static_assert(!Mixable<AlleleSize, AlleleIndex> && !Mixable<AlleleIndex, AlleleSize>);
static_assert(!Mixable<LocusIndex, Slot> && !Mixable<Slot, LocusIndex>);
static_assert(!Mixable<BasePairs, UnitDistances> && !Mixable<UnitDistances, BasePairs>);
static_assert(!std::convertible_to<int, AlleleSize> && !std::convertible_to<AlleleSize, int>);
static_assert(std::totally_ordered<AlleleSize> && std::totally_ordered<UnitDistances>);
static_assert(UnitDistances{-1} < UnitDistances{0}, "offsets have a sign");

TEST(IndividualName, TenBytesMakeTheSameIndividual) {
  const IndividualName replicate_a("Salmo2025-a");
  EXPECT_TRUE(replicate_a.SameKeyAs(IndividualName("Salmo2025-b")));
  EXPECT_TRUE(replicate_a.SameKeyAs(IndividualName("Salmo2025-")));
  EXPECT_FALSE(replicate_a.SameKeyAs(IndividualName("Salmo2025")));
  EXPECT_FALSE(IndividualName("A1").SameKeyAs(IndividualName("A10")));
  EXPECT_TRUE(IndividualName("A1").SameKeyAs(IndividualName("A1")));
}

TEST(IndividualName, HoldsFifteenBytes) {
  EXPECT_EQ(IndividualName("B07").Text(), "B07");
  EXPECT_EQ(IndividualName("123456789012345").Text(), "123456789012345");
  EXPECT_EQ(IndividualName("*separators may be longer").Text(), "*separators may");
}

}  // namespace
}  // namespace kaldo
