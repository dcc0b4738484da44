// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/reports/results_report.h"

#include <fmt/format.h>

#include "base/number_text.h"
#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

constexpr std::string_view kErrorsLegend =
    "# Errors :\tNumber of loci for which genotype error(s) not exceeding the\n"
    "\tmaximum offset tolerance had to be assumed to allocate offspring.\n";

std::string InputLines(const AllocationSettings& settings) {
  if (settings.flow == Flow::kSexed) {
    return fmt::format(
        "Collected male parents file:\t\t\t{}\n"
        "Collected female parents file:\t\t\t{}\n"
        "Offspring file:\t\t\t{}\n"
        "Names of loci file: \t\t\t{}\n"
        "\n"
        "Maximal offset tolerance :            {}\n"
        "\n"
        "Choice of loci: \t\t",
        settings.males_file, settings.females_file, settings.offspring_file, settings.loci_file,
        settings.tolerance.Value());
  }
  return fmt::format(
      "Collected parents file:\t\t{}\n"
      "Offspring file:\t\t{}\n"
      "Names of loci file: \t\t{}\n"
      "\n"
      "Maximal offset tolerance :               {}\n"
      "\n"
      "Choice of loci :   \t\t",
      settings.parents_file, settings.offspring_file, settings.loci_file,
      settings.tolerance.Value());
}

std::string LociNotes(const AllocationInput& input, const LociOfRun& loci) {
  std::string notes;
  for (std::size_t k = 0; k < loci.loci.size(); ++k) {
    notes += fmt::format("{}\t{}\n\t\t", input.loci.Name(loci.loci[k]),
                         UnitDistanceNote(loci.unit_distances[k]));
  }
  return notes + '\n';
}

std::string LegendAndHeads(Flow flow) {
  const bool sexed = flow == Flow::kSexed;
  return fmt::format(
      "UC :{}Parent does not belong to the set of collected parents\n"
      "{}"
      "Indices :\t[N1,N2] N1, N2 refer to rank of {} in parental file.\n"
      "\n"
      "\n"
      "OFFSPRING\t{}\tINDICES\t# Errors\n"
      "\n",
      sexed ? " " : "\t", kErrorsLegend, sexed ? "male, female parent" : "parent",
      sexed ? "MALE\tFEMALE" : "PARENT 1\tPARENT 2");
}

constexpr std::string_view kNonSexedLegend =
    "\n"
    "SINGLE ALLOCATION PROPORTION\n"
    "Collected :\tproportion of the allocations to a collected parent (as opposed to uncollected "
    "parent)\n"
    "On a single basis the total number of allocations  =  2 X the number of offspring\n"
    "Collected\t{}\n"
    "\n"
    "Proportions of allocations classified on a parental pair basis\n"
    "On a pair basis the total number of allocations  =  the number of offspring\n"
    "2 C :\tone collected + one collected\n"
    "C + UC :\tone collected + one uncollected\n"
    "2 UC :\tone uncollected + one uncollected\n";

constexpr std::string_view kSexedLegend =
    "\n"
    "SINGLE ALLOCATION PROPORTIONS\n"
    "Coll Male :\tproportion of the allocations to a male collected parent (as opposed to male "
    "uncollected)\n"
    "Coll Fem  :\tproportion of the allocations to a female collected parent (as opposed to "
    "female uncollected)\n"
    "Coll Male :\t{}\n"
    "Coll Fem  :\t{}\n"
    "\n"
    "Proportions of allocations classified on a parental pair basis\n"
    "CM + CF :\tcollected male + collected female\n"
    "CM + UCF :\tcollected male + uncollected female\n"
    "UCM + CF :\tuncollected male + collected female\n"
    "UCM + UCF :\tuncollected male + uncollected female\n";

}  // namespace

std::string_view ResultsTitle(const AllocationSettings& settings) {
  if (settings.flow == Flow::kSexed) {
    return "SEXED ALLOCATION RESULTS (for the last combination of loci)";
  }
  return settings.sequence ? "NON-SEXED ALLOCATION RESULTS (for the last combination of loci)"
                           : "NON-SEXED ALLOCATION RESULTS";
}

std::string ResultsHead(const AllocationSettings& settings, const AllocationInput& input,
                        const AllocationResult& result) {
  return fmt::format("{}\n\n{}{}{}", ResultsTitle(settings), InputLines(settings),
                     LociNotes(input, result.loci), LegendAndHeads(settings.flow));
}

std::string ResultsProportions(Flow flow, const AllocationShares& shares) {
  const auto single = [&shares](std::size_t k) { return FormatDouble(shares.singles[k].share); };
  std::string text = flow == Flow::kSexed ? fmt::format(kSexedLegend, single(0), single(1))
                                          : fmt::format(kNonSexedLegend, single(0));
  for (const AllocationShare& pair : shares.pairs) {
    text += fmt::format("{}\t{}\n", pair.name, FormatDouble(pair.share));
  }
  return text;
}

}  // namespace kaldo
