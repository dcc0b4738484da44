// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/input_warnings.h"

#include "genotypes/record_warnings.h"

namespace kaldo {

std::vector<Warning> InputWarnings(const AllocationSettings& settings, const AllocationFiles& files,
                                   const AllocationInput& input) {
  RecordWarnings records(input.table, input.loci);
  for (const AllocationFile& file : files.genotypes) {
    records.AddFile(file.tokens, {input.loci.Count(), file.SeparatorsHere()});
  }
  const SlotRange everybody{0, input.offspring.end};
  records.SearchSameKeys(input.first_parents);
  records.SearchSameKeys(input.second_parents);
  records.SearchNamesTwice(input.Parents());
  records.SearchNamesTwice(input.offspring);
  records.SearchParentsAmong(input.offspring, input.Parents());
  records.SearchSameGenotypes(input.Parents());
  records.SearchSameGenotypes(input.offspring);
  records.SearchSignsOfNoParent(input.offspring);
  records.SearchSpreadsheetNames(everybody);
  auto warnings = records.Take();
  if (auto warning = WarnOfNegative(settings.error_model)) {
    warnings.push_back(std::move(*warning));
  }
  return warnings;
}

}  // namespace kaldo
