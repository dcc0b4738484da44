// SPDX-License-Identifier: GPL-3.0-or-later
// The stream of random numbers, and the jumps that find where each iteration starts in it.
#include "simulation/random_numbers.h"

#include <array>
#include <cmath>
#include <set>

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "simulation/iteration_states.h"
#include "simulation/non_sexed_simulation.h"
#include "simulation/sexed/sexed_simulation.h"
#include "tests/support/temp_folder.h"

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

TEST(UnitDraw, LiesOnAGridAsFineAsTheSizesHaveDigits) {
  const std::array<std::uint64_t, 5> moduli = {1, 10, 100, 1000, 10000};
  for (std::size_t digits = 0; digits < moduli.size(); ++digits) {
    const UnitDraw draw(digits);
    RandomNumbers random(7);
    PlainStream plain(7);
    std::set<double> met;
    for (int i = 0; i < 2000; ++i) {
      const auto modulus = moduli.at(digits);
      const double u = draw(random);
      ASSERT_EQ(u, static_cast<double>(plain.Next() % modulus) / static_cast<double>(modulus));
      met.insert(u);
    }
    EXPECT_LT(*met.rbegin(), 1.0);
    if (digits <= 2) {
      EXPECT_EQ(met.size(), moduli.at(digits)) << "every place of the grid is met";
    }
  }
}

/// Draws every number of every individual of one iteration and counts the redraws of equal parents.
int WalkOneIteration(const SimulationInput& input, const SimulationDesign& design,
                     PlainStream& stream) {
  const std::size_t loci = input.loci.Count();
  const auto draw = [&stream](std::size_t times) {
    for (std::size_t i = 0; i < times; ++i) {
      stream.Next();
    }
  };
  for (const ParentalGroup& group : input.groups) {
    for (std::uint32_t slot = group.slots.begin; group.sample && slot < group.slots.end; ++slot) {
      draw(2 * loci);
    }
  }
  int redraws = 0;
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    const SlotRange first = input.groups[design.classes[k].first_group].slots;
    const SlotRange second = input.groups[design.classes[k].second_group].slots;
    for (std::int32_t i = 0; i < input.class_sizes[k]; ++i, draw(4 * loci)) {
      while (first.begin + stream.Next() % first.Size() ==
             second.begin + stream.Next() % second.Size()) {
        ++redraws;
      }
    }
  }
  return redraws;
}

TEST(IterationStates, AreThoseOfAWalkThatDrawsEveryNumber) {
  const test::TempFolder folder;
  RandomNumbers choice(20260301);
  for (const SimulationFlow* flow : {&NonSexedSimulation(), &SexedSimulation()}) {
    const SimulationDesign& design = flow->Design();
    int redraws = 0;
    for (std::uint32_t round = 0; round < 60; ++round) {
      SimulationInput input;
      std::string names;
      for (std::uint32_t locus = 0; locus <= round % 5; ++locus) {
        names += fmt::format("L{} ", locus);
      }
      input.loci = LociList(TokenFile::Read(folder.Write("loci", names)).value());
      std::uint32_t end = 0;
      for (const GroupDesign& group : design.groups) {
        const std::uint32_t begin = end;
        end += 2 + choice.Next() % 4;
        const bool is_drawn = !group.collected || round % 2 == 0;
        input.groups.push_back({{begin, end}, {}});
        if (is_drawn) {
          input.groups.back().sample.emplace();
        }
      }
      for (std::size_t k = 0; k < design.classes.size(); ++k) {
        input.class_sizes.push_back(static_cast<std::int32_t>(choice.Next() % 9));
      }
      const std::uint32_t seed = choice.Next() << 16U | choice.Next();
      PlainStream stream(seed);
      IterationStates states(input, design, seed);
      for (const std::size_t iterations : {3U, 2U}) {  // two subsets share one stream
        for (const std::uint32_t state : states.Next(iterations)) {
          ASSERT_EQ(state, stream.State()) << "round " << round;
          redraws += WalkOneIteration(input, design, stream);
        }
      }
    }
    EXPECT_EQ(redraws > 100, design.flow == Flow::kNonSexed) << redraws;
  }
}

}  // namespace
}  // namespace kaldo
