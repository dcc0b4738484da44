// SPDX-License-Identifier: GPL-3.0-or-later
// Sibships and the effective number of breeders against a count over all pairs.
#include <random>

#include <gtest/gtest.h>

#include "confidence/effective_breeders.h"
#include "confidence/sibships.h"

namespace kaldo {
namespace {

using Offspring = std::vector<NamedParents>;

/// Offspring with random parents, some of them not named.
Offspring RandomFamilies(std::mt19937& random, std::uint32_t parents, double named) {
  std::bernoulli_distribution is_named(named);
  std::uniform_int_distribution<std::uint32_t> any(0, parents - 1);
  Offspring offspring(2 + random() % 40);
  for (auto& [first, second] : offspring) {
    const std::uint32_t father = any(random);
    std::uint32_t mother = any(random);
    mother = mother == father ? (mother + 1) % parents : mother;
    first = is_named(random) ? std::optional(Slot{father}) : std::nullopt;
    second = is_named(random) ? std::optional(Slot{mother}) : std::nullopt;
  }
  return offspring;
}

int Shared(const NamedParents& a, const NamedParents& b) {
  int shared = 0;
  for (const auto& parent : a) {
    shared += parent && (parent == b[0] || parent == b[1]) ? 1 : 0;
  }
  return shared;
}

bool IsWhole(const NamedParents& parents) { return parents[0] && parents[1]; }

TEST(Families, AreThoseOfACountOverAllPairs) {
  std::mt19937 random(20'261'122);
  int with_number = 0;
  for (int round = 0; round < 400; ++round) {
    const Offspring offspring =
        RandomFamilies(random, 2 + static_cast<std::uint32_t>(round) % 9, round % 2 == 0 ? 0.9 : 1);
    Sibships expected;
    std::vector<Slot> gametes;
    for (std::size_t i = 0; i < offspring.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const int shared = Shared(offspring[i], offspring[j]);
        const bool whole = IsWhole(offspring[i]) && IsWhole(offspring[j]);
        expected.full_sibs += shared == 2 ? 1U : 0U;
        expected.half_sibs += shared == 1 && whole ? 1U : 0U;
        expected.undecided += shared == 1 && !whole ? 1U : 0U;
      }
      for (const auto& parent : offspring[i]) {
        if (parent) {
          gametes.push_back(*parent);
        }
      }
    }
    const Sibships found = SibshipsOf(offspring);
    EXPECT_EQ(found.full_sibs, expected.full_sibs);
    EXPECT_EQ(found.half_sibs, expected.half_sibs);
    EXPECT_EQ(found.undecided, expected.undecided);

    // One over the chance that two gametes come from one parent.
    double same = 0;
    double pairs = 0;
    for (std::size_t i = 0; i < gametes.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        same += gametes[i] == gametes[j] ? 1 : 0;
        pairs += 1;
      }
    }
    const EffectiveBreeders breeders = EffectiveBreedersOf(offspring);
    EXPECT_EQ(breeders.named, gametes.size());
    EXPECT_EQ(breeders.sides, 2 * offspring.size());
    const bool enough = 10 * gametes.size() >= 8 * breeders.sides;
    ASSERT_EQ(breeders.number.has_value(), enough && same > 0);
    if (breeders.number) {
      EXPECT_NEAR(*breeders.number, pairs / same, 1e-9 * pairs / same);
      ++with_number;
    }
  }
  EXPECT_GT(with_number, 200);
}

TEST(Families, SentencesSayOnWhatTheyRest) {
  const Offspring offspring = {
      {Slot{0}, Slot{1}}, {Slot{1}, Slot{0}}, {Slot{0}, Slot{2}}, {Slot{0}, std::nullopt}};
  EXPECT_EQ(SibshipsSentence(SibshipsOf(offspring)),
            "By the named parents 1 pair of offspring are full sibs and 2 half sibs, from 2 pairs "
            "of parents; 3 more share one named parent, and whether they share the other one is "
            "open.");
  // k = 4, 2, 1: 7 x 6 / (4 x 3 + 2 x 1).
  EXPECT_EQ(BreedersSentence(EffectiveBreedersOf(offspring)),
            "Effective number of breeders: 3.0 (Waples and Waples 2011), from the 7 of 8 sides "
            "that are named; 1 left out.");
  const Offspring half_named = {{Slot{0}, std::nullopt}, {Slot{0}, std::nullopt}};
  EXPECT_EQ(BreedersSentence(EffectiveBreedersOf(half_named)),
            "Effective number of breeders: withheld, because only 2 of 4 sides are named; it takes "
            "80 %.");
  const Offspring strangers = {{Slot{0}, Slot{1}}, {Slot{2}, Slot{3}}};
  EXPECT_EQ(BreedersSentence(EffectiveBreedersOf(strangers)),
            "Effective number of breeders: none, because no parent is named for two offspring.");
}

}  // namespace
}  // namespace kaldo
