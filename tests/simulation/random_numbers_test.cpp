// SPDX-License-Identifier: GPL-3.0-or-later
// The stream of random numbers, and the jumps that find where each iteration starts in it.
#include "simulation/random_numbers.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace kaldo {
namespace {

/// The generator with all its arithmetic in view: nothing overflows 64 bits.
class PlainStream {
 public:
  explicit PlainStream(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ = (state_ * 214013 + 2531011) % 4294967296;
    return state_ / 65536 % 32768;
  }
  std::uint64_t State() const { return state_; }

 private:
  std::uint64_t state_;
};

TEST(RandomNumbers, GivesTheStreamOfItsSeed) {
  // 1 x 214013 + 2531011 = 2745024 = 41 x 65536 + 58048; and on from there.
  RandomNumbers random(1);
  for (const std::uint32_t value : {41U, 18467U, 6334U, 26500U, 19169U, 15724U, 11478U, 29358U}) {
    EXPECT_EQ(random.Next(), value);
  }
  for (const std::uint32_t seed : {0U, 2U, 1772323200U, 4294967295U}) {
    RandomNumbers numbers(seed);
    PlainStream plain(seed);
    for (int draw = 0; draw < 1000; ++draw) {
      ASSERT_EQ(numbers.Next(), plain.Next()) << seed << ", draw " << draw;
      ASSERT_EQ(numbers.State(), plain.State());
    }
  }
}

RC_GTEST_PROP(RandomJump, EndsWhereStepsEnd, ()) {
  const auto seed = *rc::gen::arbitrary<std::uint32_t>();
  const auto draws = *rc::gen::inRange<std::uint64_t>(0, 5000);
  PlainStream plain(seed);
  for (std::uint64_t draw = 0; draw < draws; ++draw) {
    plain.Next();
  }
  RC_ASSERT(RandomJump(draws).From(seed) == plain.State());

  // Long jumps add up, and the stream comes round after 2^32 draws.
  const auto first = *rc::gen::inRange<std::uint64_t>(0, std::uint64_t{1} << 60U);
  const auto second = *rc::gen::inRange<std::uint64_t>(0, std::uint64_t{1} << 60U);
  RC_ASSERT(RandomJump(second).From(RandomJump(first).From(seed)) ==
            RandomJump(first + second).From(seed));
  RC_ASSERT(RandomJump(first + (std::uint64_t{1} << 32U)).From(seed) ==
            RandomJump(first).From(seed));
}

// The vectors that the authors of the generator publish.
TEST(CounterStream, GivesThePublishedBlocks) {
  EXPECT_EQ(Philox({0, 0, 0, 0}, {0, 0}),
            (CounterBlock{0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8}));
  EXPECT_EQ(Philox({0xffffffff, 0xffffffff, 0xffffffff, 0xffffffff}, {0xffffffff, 0xffffffff}),
            (CounterBlock{0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd}));
  EXPECT_EQ(Philox({0x243f6a88, 0x85a308d3, 0x13198a2e, 0x03707344}, {0xa4093822, 0x299f31d0}),
            (CounterBlock{0xd16cfe09, 0x94fdcceb, 0x5001e420, 0x24126ea1}));
  CounterStream stream(7, 5);
  for (std::uint32_t block = 0; block < 5; ++block) {
    const CounterBlock words = Philox({block, 0, 0, 0}, {5, 7});
    EXPECT_EQ(stream.Next(), (std::uint64_t{words[1]} << 32U) + words[0]);
    EXPECT_EQ(stream.Next(), (std::uint64_t{words[3]} << 32U) + words[2]);
  }
}

// Of 3 x 2^30 things a remainder of 32 bits would prefer the first third, 2 to 1.
TEST(RandomNumbers, ModernIndicesPreferNothing) {
  RandomNumbers random(CounterStream(1, 2));
  constexpr int kDraws = 30'000;
  int in_first_third = 0;
  for (int draw = 0; draw < kDraws; ++draw) {
    const std::uint32_t index = random.Below(3U << 30U);
    ASSERT_LT(index, 3U << 30U);
    in_first_third += index < 1U << 30U ? 1 : 0;
  }
  EXPECT_NEAR(in_first_third, kDraws / 3.0, 5 * 82) << "the standard deviation is 82";
}

}  // namespace
}  // namespace kaldo
