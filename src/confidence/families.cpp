// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/families.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>

namespace kaldo {

namespace {

/// Behind all slots, as those that were not collected stand behind all parents.
constexpr std::uint32_t kUncollectedKey = std::numeric_limits<std::uint32_t>::max();

std::uint32_t KeyOf(const std::optional<Slot>& parent) {
  return parent ? parent->Value() : kUncollectedKey;
}

using Counts = std::map<std::uint32_t, std::size_t>;

std::vector<FamilyLine> LinesOf(const Counts& counts) {
  std::vector<FamilyLine> lines;
  lines.reserve(counts.size());
  for (const auto& [key, offspring] : counts) {
    lines.push_back({key == kUncollectedKey ? std::nullopt : std::optional(Slot{key}), offspring});
  }
  std::stable_sort(lines.begin(), lines.end(), [](const auto& a, const auto& b) {
    return a.parent.has_value() != b.parent.has_value() ? a.parent.has_value()
                                                        : a.offspring > b.offspring;
  });
  return lines;
}

Counts PlacesOf(const std::vector<FamilyLine>& lines) {
  Counts places;
  for (std::size_t k = 0; k < lines.size(); ++k) {
    places[KeyOf(lines[k].parent)] = k;
  }
  return places;
}

/// Fills in rows, columns and who is left out.
void CountLines(std::span<const std::optional<SettledParents>> offspring, Families& found) {
  Counts rows;
  Counts columns;
  for (const auto& settled : offspring) {
    if (!settled) {
      ++found.left_out;
      continue;
    }
    const std::uint32_t first = KeyOf(settled->parents[0]);
    const std::uint32_t second = KeyOf(settled->parents[1]);
    ++rows[first];
    if (!found.is_symmetric) {
      ++columns[second];
    } else if (second != first) {
      ++rows[second];
    }
  }
  found.rows = LinesOf(rows);
  found.columns = found.is_symmetric ? found.rows : LinesOf(columns);
}

}  // namespace

std::optional<SettledParents> SettledBy(const OffspringConfidence& offspring) {
  const Certainty certainty = CertaintyOf(offspring);
  if (!offspring.is_typed || !offspring.is_possible || certainty == Certainty::kOpen) {
    return std::nullopt;
  }
  SettledParents settled;
  settled.certainty = certainty;
  for (std::size_t k = 0; k < settled.parents.size(); ++k) {
    const SideConfidence& side = offspring.sides.at(k);
    if (side.verdict == Verdict::kNamed) {
      settled.parents.at(k) = side.candidate->slot;
    }
  }
  return settled;
}

const Family* Families::At(std::size_t row, std::size_t column) const {
  const bool is_turned = is_symmetric && column < row;
  const auto wanted = is_turned ? std::pair(column, row) : std::pair(row, column);
  const auto place_of = [](const Family& family) { return std::pair(family.row, family.column); };
  const auto found = std::lower_bound(
      families.begin(), families.end(), wanted,
      [&](const Family& family, const auto& place) { return place_of(family) < place; });
  return found != families.end() && place_of(*found) == wanted ? &*found : nullptr;
}

Families FamiliesOf(std::span<const std::optional<SettledParents>> offspring, Flow flow) {
  Families found;
  found.is_symmetric = flow == Flow::kNonSexed;
  CountLines(offspring, found);
  std::map<std::pair<std::size_t, std::size_t>, Family> families;
  const auto row_places = PlacesOf(found.rows);
  const auto column_places = PlacesOf(found.columns);
  for (std::size_t place = 0; place < offspring.size(); ++place) {
    if (!offspring[place]) {
      continue;
    }
    std::size_t row = row_places.at(KeyOf(offspring[place]->parents[0]));
    std::size_t column = column_places.at(KeyOf(offspring[place]->parents[1]));
    if (found.is_symmetric && column < row) {
      std::swap(row, column);
    }
    Family& family = families[{row, column}];
    family.row = row;
    family.column = column;
    family.offspring.push_back(place);
    family.likely += offspring[place]->certainty == Certainty::kLikely ? 1U : 0U;
  }
  found.families.reserve(families.size());
  for (auto& [place, family] : families) {
    found.families.push_back(std::move(family));
  }
  return found;
}

}  // namespace kaldo
