// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include "base/number_text.h"
#include "runs/project_folder.h"
#include "simulation/reports/parameter_block.h"
#include "simulation/reports/simulation_file_names.h"
#include "simulation/reports/simulation_report_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

/// The averages of a section, a row for each combination of loci.
std::string SectionText(const AverageSection& section, std::span<const SubsetFigures> subsets) {
  std::string text = std::string(section.sequence_title) + "\nCombin #";
  for (const AverageText& average : section.averages) {
    text.append("\t").append(average.column);
  }
  text += '\n';
  for (std::size_t j = 0; j < subsets.size(); ++j) {
    text += std::to_string(j + 1);
    for (const AverageText& average : section.averages) {
      text += '\t' + FormatDouble(average.value(subsets[j]));
    }
    text += '\n';
  }
  return text;
}

}  // namespace

std::string SimulationSequenceReport(const SimulationSettings& settings,
                                     const SimulationInput& input, const SimulationResult& result) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  const bool kept = KeptFilesOf(settings).offspring && input.OffspringPerIteration() > 0;
  const std::string offspring_file =
      kept ? ProjectFolder(settings.project).Path(kPseudoOffspringFile) : "(not kept)";
  std::string text = fmt::format(
      "{}\n\n{}\nOffspring file :\t\t{}\nName of loci file :\t\t{}\n\nCombinations of loci :\n",
      texts.sequence_title, TypeLine(settings), offspring_file, settings.loci_file);
  for (std::size_t j = 0; j < result.subsets.size(); ++j) {
    text += fmt::format("{}\t      ==>\t{}\n", j + 1, NamesOf(input.loci, result.subsets[j].loci));
  }
  text += fmt::format("\n{}\n", texts.sequence_legend);
  for (const AverageSection& section : texts.averages) {
    text += '\n' + SectionText(section, result.subsets);
  }
  return text;
}

}  // namespace kaldo
