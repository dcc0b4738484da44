// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/subset_title.h"

#include <fmt/format.h>

namespace kaldo {

std::string NamesOf(const LociList& loci, const LocusSubset& subset) {
  std::vector<std::string_view> names;
  names.reserve(subset.size());
  for (const LocusIndex locus : subset) {
    names.emplace_back(loci.Name(locus));
  }
  return fmt::format("{}", fmt::join(names, " "));
}

std::string SubsetTitle(const LociList& loci, const LocusSubset& subset) {
  return fmt::format(" **********************{} loci***************** \nChoice of loci :\t{}\n",
                     subset.size(), NamesOf(loci, subset));
}

std::string_view LastCombinationNote(LociStrategy strategy) {
  return strategy == LociStrategy::kChoice ? ""
                                           : " (results for the last combination of loci only)";
}

}  // namespace kaldo
