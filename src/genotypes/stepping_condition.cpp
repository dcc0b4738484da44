// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/stepping_condition.h"

#include <algorithm>

#include <fmt/format.h>

#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

constexpr std::string_view kHeading =
    "STEPPING ERROR FILE :\n"
    "\n"
    "Stepping condition :\t\tWithin each locus, the smallest allelic distance (difference in nbp)\n"
    "\t\thas to be larger than one and all other distances have to be multiples\n"
    "\t\t(of the smallest allelic distance).\n"
    "\n"
    "The following loci do not satisfy the stepping condition :\n"
    "\n";

}  // namespace

bool IsInStep(std::span<const AlleleSize> sorted_sizes) {
  const auto distances = AllelicDistances(sorted_sizes);
  const std::int32_t unit = UnitDistance(sorted_sizes).Value();
  return distances.empty() ||
         (unit != 1 && std::all_of(distances.begin(), distances.end(), [unit](BasePairs distance) {
            return distance.Value() % unit == 0;
          }));
}

SteppingReport CheckStepping(const LociList& loci, const AlleleCatalogues& catalogues) {
  SteppingReport report{std::string(kHeading), false};
  for (const LocusIndex locus : loci.LociInUse()) {
    const auto sizes = catalogues[locus.Value()].Sizes();
    if (IsInStep(sizes)) {
      continue;
    }
    report.any_out_of_step = true;
    report.text += fmt::format("Locus {} :\n\tAlleles : ", loci.Name(locus));
    for (const AlleleSize size : sizes) {
      report.text += fmt::format("{} ", size.Value());
    }
    report.text += "\n\tAllelic distances : ";
    for (const BasePairs distance : AllelicDistances(sizes)) {
      report.text += fmt::format("{}  ", distance.Value());
    }
    report.text += "\n\n";
  }
  return report;
}

}  // namespace kaldo
