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

}  // namespace
}  // namespace kaldo
