// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/saved_loci.h"

#include "runs/report_set.h"
#include "simulation/reports/simulation_file_names.h"

namespace kaldo {

std::string SavedLociText(const LociList& loci) {
  std::string text;
  for (const std::string& name : loci.Names()) {
    text += name + ' ';
  }
  return text;
}

void SaveLoci(const LociList& loci) {
  ReportFile file{std::string(kSavedLociFile)};
  file.Append(SavedLociText(loci));
  file.Finish();
  file.PutInPlace();
}

}  // namespace kaldo
