// SPDX-License-Identifier: GPL-3.0-or-later
// Sibships, families and the effective number of breeders against counts over all pairs.
#include "confidence/families.h"

#include <algorithm>
#include <random>
#include <tuple>

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

/// The offspring at a place of the table, one after the other.
Family SlowFamily(const std::vector<std::optional<SettledParents>>& offspring,
                  const Families& table, std::size_t row, std::size_t column) {
  const ReportedParents here = {table.rows[row].parent, table.columns[column].parent};
  const ReportedParents turned = {here[1], here[0]};
  Family family;
  for (std::size_t place = 0; place < offspring.size(); ++place) {
    if (offspring[place] && (offspring[place]->parents == here ||
                             (table.is_symmetric && offspring[place]->parents == turned))) {
      family.offspring.push_back(place);
      family.likely += offspring[place]->certainty == Certainty::kLikely ? 1U : 0U;
    }
  }
  return family;
}

/// Random families of whom some are only likely and some open.
std::vector<std::optional<SettledParents>> RandomSettled(std::mt19937& random, int round) {
  std::vector<std::optional<SettledParents>> offspring;
  for (const NamedParents& parents :
       RandomFamilies(random, 2 + static_cast<std::uint32_t>(round) % 9, 0.8)) {
    const auto certainty = random() % 3 == 0 ? Certainty::kLikely : Certainty::kSure;
    offspring.emplace_back(SettledParents{parents, certainty});
    if (random() % 6 == 0) {
      offspring.back() = std::nullopt;
    }
  }
  return offspring;
}

void ExpectInOrder(const std::vector<FamilyLine>& lines) {
  const auto key = [](const FamilyLine& line) {
    return std::tuple(!line.parent, ~line.offspring, line.parent.value_or(Slot{0}).Value());
  };
  EXPECT_TRUE(std::is_sorted(lines.begin(), lines.end(),
                             [&](const auto& a, const auto& b) { return key(a) < key(b); }));
  EXPECT_TRUE(std::all_of(lines.begin(), lines.end(),
                          [](const FamilyLine& line) { return line.offspring > 0; }));
}

/// Compares the cells of a row with a search for each; returns those that stand here only once.
std::size_t ExpectRow(const std::vector<std::optional<SettledParents>>& offspring,
                      const Families& table, std::size_t row) {
  std::size_t of_row = 0;
  std::size_t families = 0;
  for (std::size_t column = 0; column < table.columns.size(); ++column) {
    const Family expected = SlowFamily(offspring, table, row, column);
    of_row += expected.offspring.size();
    const Family* const found = table.At(row, column);
    const Family none;
    const Family& shown = found != nullptr ? *found : none;
    EXPECT_EQ(shown.offspring, expected.offspring);
    EXPECT_EQ(shown.likely, expected.likely);
    families += found != nullptr && (!table.is_symmetric || row <= column) ? 1U : 0U;
  }
  EXPECT_EQ(table.rows[row].offspring, of_row);
  return families;
}

TEST(Families, TheTableHasEveryOffspringInItsPlace) {
  std::mt19937 random(20'261'123);
  for (int round = 0; round < 300; ++round) {
    const auto offspring = RandomSettled(random, round);
    const Families table = FamiliesOf(offspring, round % 2 == 0 ? Flow::kSexed : Flow::kNonSexed);
    std::size_t families = 0;
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
      families += ExpectRow(offspring, table, row);
    }
    EXPECT_EQ(table.families.size(), families);
    std::size_t held = 0;
    for (const Family& family : table.families) {
      held += family.offspring.size();
    }
    EXPECT_EQ(held + table.left_out, offspring.size());
    EXPECT_EQ(table.left_out, static_cast<std::size_t>(
                                  std::count_if(offspring.begin(), offspring.end(),
                                                [](const auto& settled) { return !settled; })));
    ExpectInOrder(table.rows);
    ExpectInOrder(table.columns);
  }
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
