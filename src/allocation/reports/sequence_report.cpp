// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/sequence_report.h"

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

std::string Heading(const AllocationSettings& settings) {
  const bool sexed = settings.flow == Flow::kSexed;
  const std::string parents =
      sexed ? fmt::format(
                  "Collected male parents file :\t\t{}\n"
                  "Collected female parents file :\t\t{}\n",
                  settings.males_file, settings.females_file)
            : fmt::format("Collected parents file :\t\t{}\n", settings.parents_file);
  return fmt::format(
      "{} ALLOCATION RESULTS FOR A CUMULATIVE SEQUENCE OF LOCI\n"
      "\n"
      "{}"
      "Offspring file :\t\t{}\n"
      "Name of loci file :\t\t{}\n"
      "Maximal offset tolerance : {}\n"
      "\n",
      sexed ? "SEXED" : "NON-SEXED", parents, settings.offspring_file, settings.loci_file,
      settings.tolerance.Value());
}

std::string CombinationLines(const AllocationInput& input) {
  std::string lines = "Combinations of loci :\n";
  for (std::size_t k = 0; k < input.combinations.size(); ++k) {
    std::vector<std::string> names;
    for (const LocusIndex locus : input.combinations[k]) {
      names.push_back(input.loci.Name(locus));
    }
    lines += fmt::format("{}\t      ==>\t{}\n", k + 1, fmt::join(names, " "));
  }
  return lines + '\n';
}

std::string Cells(const std::vector<AllocationShare>& shares) {
  std::string cells;
  for (const AllocationShare& share : shares) {
    cells += '\t' + FormatDouble(share.share);
  }
  return cells;
}

}  // namespace

std::string SequenceReport(const AllocationSettings& settings, const AllocationInput& input,
                           const AllocationResult& result) {
  std::string text = Heading(settings) + CombinationLines(input);
  text += "SHORT REPORT ON SINGLE ALLOCATION PROPORTIONS\n";
  text += settings.flow == Flow::kSexed
              ? "Combin #\tColl Male\tColl Fem\tCM + CF\tCM + UCF\tUCM+CF\tUCM+UCF\n"
              : "Combin #\tCollected\t2 C\tC + UC\t2 UC\n";
  for (std::size_t k = 0; k < result.shares.size(); ++k) {
    const AllocationShares& shares = result.shares[k];
    text += std::to_string(k + 1) + Cells(shares.singles) + Cells(shares.pairs) + '\n';
  }
  return text;
}

}  // namespace kaldo
