// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/locus_subsets.h"

#include <numeric>

#include <fmt/format.h>

#include "method/cumulative_sequence.h"

namespace kaldo {

namespace {

/// Ways to choose so many of `count` loci; exact, since 50 over 25 fits.
std::uint64_t WaysToChoose(std::size_t count, std::size_t chosen) {
  std::uint64_t ways = 1;
  for (std::size_t i = 0; i < chosen; ++i) {
    ways = ways * (count - i) / (i + 1);
  }
  return ways;
}

std::uint64_t SubsetsFrom(std::size_t count, std::size_t start_with) {
  std::uint64_t subsets = 0;
  for (std::size_t size = start_with; size <= count; ++size) {
    subsets += WaysToChoose(count, size);
  }
  return subsets;
}

/// Every choice of `size` places of `count`, in lexicographic order of the places, until there are
/// as many as may be run.
void AppendChoices(std::size_t count, std::size_t size, std::vector<std::uint64_t>& choices) {
  std::vector<std::size_t> places(size);
  std::iota(places.begin(), places.end(), std::size_t{0});
  while (choices.size() < kMostSubsets) {
    std::uint64_t choice = 0;
    for (const std::size_t place : places) {
      choice |= std::uint64_t{1} << place;
    }
    choices.push_back(choice);
    // The last place that can still move on moves; those behind it follow closely.
    std::size_t moving = size;
    while (moving > 0 && places[moving - 1] == count - size + moving - 1) {
      --moving;
    }
    if (moving == 0) {
      return;
    }
    ++places[moving - 1];
    std::iota(places.begin() + static_cast<std::ptrdiff_t>(moving), places.end(),
              places[moving - 1] + 1);
  }
}

}  // namespace

tl::expected<LocusSubsets, Problem> LocusSubsets::Choose(const SimulationSettings& settings,
                                                         const LociList& loci) {
  LocusSubsets subsets;
  subsets.loci_ = loci.LociInUse();
  const std::size_t count = subsets.loci_.size();
  const auto start_with = static_cast<std::size_t>(settings.start_with);
  if (settings.strategy == LociStrategy::kChoice) {
    subsets.first_prefix_ = count;
    return subsets;
  }
  if (start_with > count) {
    return tl::unexpected(Problem{
        .kind = ProblemKind::kTooFewLociInUse,
        .found = fmt::format("{} loci in use, the subsets start with {}", count, start_with)});
  }
  if (settings.strategy == LociStrategy::kCumulative) {
    subsets.first_prefix_ = start_with;
    if (!settings.sequence.empty()) {
      subsets.loci_ = OrderOfEntry(subsets.loci_, settings.sequence);
    }
    return subsets;
  }
  const std::uint64_t wanted = SubsetsFrom(count, start_with);
  if (settings.strategy == LociStrategy::kAll && wanted > kMostSubsets) {
    return tl::unexpected(Problem{
        .kind = ProblemKind::kTooManySubsets,
        .subject = fmt::format("{}", wanted),
        .found = fmt::format("at most {} are run; use fewer loci or start with more of them",
                             kMostSubsets)});
  }
  subsets.all_ = wanted;
  for (std::size_t size = start_with; size <= count && subsets.choices_.size() < kMostSubsets;
       ++size) {
    AppendChoices(count, size, subsets.choices_);
  }
  return subsets;
}

std::size_t LocusSubsets::Count() const {
  return choices_.empty() ? loci_.size() - first_prefix_ + 1 : choices_.size();
}

LocusSubset LocusSubsets::At(std::size_t subset) const {
  if (choices_.empty()) {
    return {loci_.begin(), loci_.begin() + static_cast<std::ptrdiff_t>(first_prefix_ + subset)};
  }
  LocusSubset loci;
  for (std::size_t place = 0; place < loci_.size(); ++place) {
    if ((choices_[subset] >> place & 1U) != 0) {
      loci.push_back(loci_[place]);
    }
  }
  return loci;
}

}  // namespace kaldo
