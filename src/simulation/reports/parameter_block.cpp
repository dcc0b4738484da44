// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/parameter_block.h"

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

std::string LociLines(const SimulationSettings& settings, const SimulationInput& input,
                      const SimulationResult& result) {
  const LocusSubset& last = result.LastSubset().loci;
  if (settings.strategy == LociStrategy::kChoice) {
    return LabelLine("Choice of loci :", NamesOf(input.loci, last));
  }
  std::string lines =
      LabelLine(settings.strategy == LociStrategy::kAll ? "All combinations among the following :"
                                                        : "Combinations of the following loci :",
                NamesOf(input.loci, input.subsets.Loci()));
  const std::string criterion = FormatDouble(settings.criterion);
  if (settings.strategy == LociStrategy::kMinimal) {
    lines += fmt::format("Success criteria = {}\n", criterion);
  }
  if (result.criterion_reached) {
    lines += fmt::format("Your success criteria ( {} ) has been reached with {} loci.\n", criterion,
                         last.size());
  }
  return lines + SubsetTitle(input.loci, last);
}

std::string DistributionLines(const SimulationInput& input, const SimulationDesign& design) {
  std::string lines = "DISTRIBUTION OF PSEUDO-OFFSPRING ACCORDING TO PARENTAL ORIGIN :\n";
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    const OriginTexts& texts = design.classes[k].texts;
    lines += fmt::format("{}\t{}\t{}\n", texts.label, input.class_sizes[k], texts.label_text);
  }
  return lines;
}

}  // namespace

std::string LabelLine(std::string_view label, std::string_view value) {
  return fmt::format("{}\t{}\n", label, value);
}

std::string ParameterBlock(const SimulationSettings& settings, const SimulationInput& input,
                           const SimulationFlow& flow, const SimulationResult& result) {
  return fmt::format("PARAMETERS{}\n{}\n{}", LastCombinationNote(settings.strategy),
                     flow.TypeLine(settings.procedure), flow.ParameterHead(settings, input)) +
         LabelLine("Error model", Describe(settings.error_model)) +
         LabelLine("Maximum offset tolerance :", std::to_string(settings.tolerance.Value())) +
         LociLines(settings, input, result) + DistributionLines(input, flow.Design());
}

}  // namespace kaldo
