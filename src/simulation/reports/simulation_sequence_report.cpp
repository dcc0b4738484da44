// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "runs/project_folder.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_title.h"
#include "simulation/simulation_file_names.h"

namespace kaldo {

std::string SimulationSequenceReport(const SimulationSettings& settings,
                                     const SimulationInput& input, const SimulationFlow& flow,
                                     const SimulationResult& result) {
  const bool kept = KeptFilesOf(settings).offspring && input.OffspringPerIteration() > 0;
  const std::string offspring_file =
      kept ? ProjectFolder(settings.project).Path(kPseudoOffspringFile) : "(not kept)";
  std::string text = fmt::format(
      "{}\n\n{}\nOffspring file :\t\t{}\nName of loci file :\t\t{}\n\nCombinations of loci :\n",
      flow.SequenceTitle(), flow.TypeLine(settings.procedure), offspring_file, settings.loci_file);
  std::vector<std::vector<double>> figures;
  for (std::size_t j = 0; j < result.subsets.size(); ++j) {
    text += fmt::format("{}\t      ==>\t{}\n", j + 1, NamesOf(input.loci, result.subsets[j].loci));
    figures.push_back(result.subsets[j].figures);
  }
  return text + fmt::format("\n{}\n\n", flow.SequenceLegend()) + flow.SequenceSections(figures);
}

}  // namespace kaldo
