// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/sibships.h"

#include <algorithm>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "base/counted_text.h"

namespace kaldo {

namespace {

std::uint64_t PairsAmong(std::uint64_t count) { return count < 2 ? 0 : count * (count - 1) / 2; }

template <typename Counts>
std::uint64_t PairsWithin(const Counts& counts) {
  std::uint64_t pairs = 0;
  for (const auto& [key, count] : counts) {
    pairs += PairsAmong(count);
  }
  return pairs;
}

}  // namespace

std::vector<NamedParents> NamedParentsOf(std::span<const OffspringConfidence> offspring) {
  std::vector<NamedParents> named(offspring.size());
  for (std::size_t i = 0; i < offspring.size(); ++i) {
    for (std::size_t k = 0; k < 2; ++k) {
      const SideConfidence& side = offspring[i].sides.at(k);
      if (side.verdict == Verdict::kNamed) {
        named[i].at(k) = side.candidate->slot;
      }
    }
  }
  return named;
}

Sibships SibshipsOf(std::span<const NamedParents> offspring) {
  std::map<std::uint32_t, std::uint64_t> by_parent;
  std::map<std::uint32_t, std::uint64_t> by_parent_with_mate;
  std::map<std::pair<std::uint32_t, std::uint32_t>, std::uint64_t> by_couple;
  for (const auto& [first, second] : offspring) {
    for (const auto& parent : {first, second}) {
      if (parent) {
        ++by_parent[parent->Value()];
      }
    }
    if (first && second) {
      ++by_parent_with_mate[first->Value()];
      ++by_parent_with_mate[second->Value()];
      ++by_couple[std::minmax({first->Value(), second->Value()})];
    }
  }
  Sibships sibships;
  sibships.couples = by_couple.size();
  sibships.full_sibs = PairsWithin(by_couple);
  // A pair that shares both parents was met at either of them.
  const std::uint64_t with_mates = PairsWithin(by_parent_with_mate);
  sibships.half_sibs = with_mates - 2 * sibships.full_sibs;
  sibships.undecided = PairsWithin(by_parent) - with_mates;
  return sibships;
}

std::string SibshipsSentence(const Sibships& sibships) {
  std::string sentence = fmt::format(
      "By the named parents {} of offspring are full sibs and {} half sibs, from {} of parents",
      Counted(sibships.full_sibs, "pair", "pairs"), sibships.half_sibs,
      Counted(sibships.couples, "pair", "pairs"));
  if (sibships.undecided > 0) {
    sentence += fmt::format(
        "; {} more share one named parent, and whether they share the other "
        "one is open",
        sibships.undecided);
  }
  return sentence + ".";
}

}  // namespace kaldo
