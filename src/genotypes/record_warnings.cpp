// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/record_warnings.h"

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include <fmt/format.h>

#include "genotypes/name_rules.h"

namespace kaldo {

namespace {

/// The two alleles of a locus without their order, which says nothing of the individual.
std::pair<AlleleSize, AlleleSize> Unordered(const LocusGenotype& genotype) {
  return std::minmax({genotype.allele1, genotype.allele2});
}

std::string_view KeyOf(std::string_view name) { return name.substr(0, kNameKeyLength); }

}  // namespace

void RecordWarnings::AddFile(const TokenFile& file, RecordLayout layout) {
  RecordCursor cursor(file.Tokens(), layout);
  while (!cursor.AtEnd()) {
    cursor.Next();
    places_.push_back({file.Path(), cursor.Name().line, cursor.Record(), cursor.IsSeparator()});
  }
}

std::vector<std::uint32_t> RecordWarnings::Individuals(SlotRange range) const {
  std::vector<std::uint32_t> slots;
  for (std::uint32_t slot = range.begin; slot < range.end; ++slot) {
    if (!places_[slot].is_separator) {
      slots.push_back(slot);
    }
  }
  return slots;
}

void RecordWarnings::Add(WarningKind kind, std::uint32_t slot, std::string found) {
  const Place& place = places_[slot];
  warnings_.push_back({.kind = kind,
                       .file = place.file,
                       .line = place.line,
                       .record = place.record,
                       .individual = std::string(NameAt(slot)),
                       .found = std::move(found)});
}

std::string RecordWarnings::ElsewhereText(std::uint32_t other, std::uint32_t slot) const {
  const Place& there = places_[other];
  const std::string file =
      there.file == places_[slot].file ? "" : fmt::format(" of {}", Escaped(there.file));
  return fmt::format("{} in line {}{}", Quoted(NameAt(other)), there.line, file);
}

template <typename Less, typename Clash>
void RecordWarnings::SearchRuns(WarningKind kind, std::vector<std::uint32_t> slots, Less less,
                                Clash clash) {
  std::stable_sort(slots.begin(), slots.end(), less);
  std::map<std::uint32_t, std::uint32_t> first_of;  // in the order of the files
  for (std::size_t begin = 0, i = 1; i < slots.size(); ++i) {
    if (less(slots[begin], slots[i])) {
      begin = i;
    } else if (clash(NameAt(slots[begin]), NameAt(slots[i]))) {
      first_of[slots[i]] = slots[begin];
    }
  }
  for (const auto& [slot, first] : first_of) {
    Add(kind, slot, fmt::format("{} is like {}", Quoted(NameAt(slot)), ElsewhereText(first, slot)));
  }
}

void RecordWarnings::SearchSameKeys(SlotRange parents) {
  SearchRuns(
      WarningKind::kSameNameKey, Individuals(parents),
      [this](auto one, auto other) { return KeyOf(NameAt(one)) < KeyOf(NameAt(other)); },
      std::not_equal_to<>());
}

void RecordWarnings::SearchNamesTwice(SlotRange individuals) {
  SearchRuns(
      WarningKind::kNameTwice, Individuals(individuals),
      [this](auto one, auto other) { return NameAt(one) < NameAt(other); }, std::equal_to<>());
}

void RecordWarnings::SearchSameGenotypes(SlotRange individuals) {
  const auto loci = loci_.LociInUse();
  auto typed = Individuals(individuals);
  std::erase_if(typed, [&](std::uint32_t slot) {
    return std::any_of(loci.begin(), loci.end(), [&](LocusIndex locus) {
      return table_.Genotype(locus, Slot{slot}).IsMissing();
    });
  });
  const auto less = [&](std::uint32_t one, std::uint32_t other) {
    for (const LocusIndex locus : loci) {
      const auto first = Unordered(table_.Genotype(locus, Slot{one}));
      const auto second = Unordered(table_.Genotype(locus, Slot{other}));
      if (first != second) {
        return first < second;
      }
    }
    return false;
  };
  SearchRuns(WarningKind::kSameGenotypes, std::move(typed), less, std::not_equal_to<>());
}

void RecordWarnings::SearchParentsAmong(SlotRange offspring, SlotRange parents) {
  std::map<std::string_view, std::uint32_t> slot_of;
  for (const std::uint32_t slot : Individuals(parents)) {
    slot_of.emplace(NameAt(slot), slot);
  }
  for (const std::uint32_t slot : Individuals(offspring)) {
    if (const auto parent = slot_of.find(NameAt(slot)); parent != slot_of.end()) {
      Add(WarningKind::kParentAmongOffspring, slot, ElsewhereText(parent->second, slot));
    }
  }
}

void RecordWarnings::SearchSignsOfNoParent(SlotRange offspring) {
  for (const std::uint32_t slot : Individuals(offspring)) {
    if (IsSignOfNoParent(NameAt(slot))) {
      Add(WarningKind::kOffspringNameOfNoParent, slot, Quoted(NameAt(slot)));
    }
  }
}

void RecordWarnings::SearchSpreadsheetNames(SlotRange individuals) {
  for (const std::uint32_t slot : Individuals(individuals)) {
    if (const auto reading = SpreadsheetReading(NameAt(slot))) {
      Add(WarningKind::kSpreadsheetName, slot,
          fmt::format("{} becomes {}; open reports with its column as text", Quoted(NameAt(slot)),
                      *reading));
    }
  }
}

}  // namespace kaldo
