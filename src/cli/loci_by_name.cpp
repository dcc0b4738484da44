// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/loci_by_name.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/number_text.h"
#include "genotypes/capacities.h"
#include "genotypes/loci_list.h"
#include "runs/value_kinds.h"

namespace kaldo {

namespace {

/// The names of the loci, or nothing where the run itself will tell what is wrong with the file.
std::optional<LociList> LociOf(const TypedSettings& typed) {
  const auto path = typed.find("loci");
  if (path == typed.end() || path->second.empty()) {
    return std::nullopt;
  }
  DiskFiles disk;
  const auto file = TokenFile::Read(path->second, disk, kMaxLociBytes);
  return file && !CheckLoci(*file) ? std::optional(LociList(*file)) : std::nullopt;
}

bool IsWholeNumber(const std::string& text) {
  const std::size_t digits = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
  return text.size() > digits &&
         std::all_of(text.begin() + static_cast<std::ptrdiff_t>(digits), text.end(),
                     [](char each) { return each >= '0' && each <= '9'; });
}

/// "2,1,3" for the second locus, the first and then the third.
std::string Positions(const LociList& loci, const std::vector<std::string>& order) {
  std::vector<std::size_t> positions;
  std::size_t behind = order.size();
  for (const std::string& name : loci.Names()) {
    const auto place = std::find(order.begin(), order.end(), name);
    positions.push_back(place != order.end() ? static_cast<std::size_t>(place - order.begin()) + 1
                                             : ++behind);
  }
  return fmt::format("{}", fmt::join(positions, ","));
}

/// All names but some; a Problem where one of these is unknown or none is left.
tl::expected<std::string, Problem> AllBut(const LociList& loci,
                                          const std::vector<std::string>& names) {
  LociList known = loci;
  if (auto problem = known.Use(names); problem && !names.empty()) {
    return tl::unexpected(std::move(*problem));
  }
  auto kept = loci.Names();
  std::erase_if(kept, [&](const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  });
  if (kept.empty()) {
    return NotUnderstood(ProblemKind::kNoLocusInUse, "--drop leaves none");
  }
  return TextOfNames(kept);
}

}  // namespace

tl::expected<TypedSettings, Problem> WithLociByName(TypedSettings typed) {
  const auto dropped = typed.extract(std::string(kDropKey));
  const auto sequence = typed.find("sequence");
  const auto order =
      sequence == typed.end() ? std::vector<std::string>() : NamesAtCommas(sequence->second);
  const bool is_by_name = !std::all_of(order.begin(), order.end(), IsWholeNumber);
  if (dropped && typed.contains("use")) {
    return NotUnderstood(ProblemKind::kUnknownLocus, "--drop goes without --use");
  }
  const auto loci = dropped || is_by_name ? LociOf(typed) : std::nullopt;
  if (!loci) {
    return typed;
  }
  if (dropped) {
    auto kept = AllBut(*loci, NamesAtCommas(dropped.mapped()));
    if (!kept) {
      return tl::unexpected(std::move(kept.error()));
    }
    typed["use"] = std::move(*kept);
  }
  const auto& names = loci->Names();
  const bool any_known = std::any_of(order.begin(), order.end(), [&](const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  });
  if (is_by_name && any_known) {  // else these are positions, and the tests of the run tell why not
    LociList known = *loci;
    if (auto problem = known.Use(order)) {
      return tl::unexpected(std::move(*problem));
    }
    typed["sequence"] = Positions(*loci, order);
  }
  return typed;
}

}  // namespace kaldo
