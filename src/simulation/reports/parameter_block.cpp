// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reports/parameter_block.h"

#include <fmt/format.h>

#include "base/number_text.h"
#include "simulation/allocation_model.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/reports/subset_title.h"

namespace kaldo {

namespace {

std::string LabelLine(std::string_view label, std::string_view value) {
  return fmt::format("{}\t{}\n", label, value);
}

/// A line for each set of parents: its label, and what `value_of` tells of the set.
template <typename ValueOf>
std::string SetLines(const SimulationSettings& settings, std::string_view SetTexts::*label,
                     ValueOf value_of) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  std::string lines;
  for (std::size_t set = 0; set < texts.sets.size(); ++set) {
    lines += LabelLine(texts.sets[set].*label, value_of(set));
  }
  return lines;
}

/// The lines from the files to the proportions.
std::string HeadLines(const SimulationSettings& settings, const SimulationInput& input) {
  const auto number = [&](std::size_t set) { return FormatDouble(input.collected_numbers[set]); };
  const auto set_of = [&](std::size_t set) -> const ParentalSet& { return settings.sets.at(set); };
  const bool parental = settings.procedure == Procedure::kParental;
  std::string lines;
  if (parental) {
    lines += SetLines(settings, &SetTexts::collected_file,
                      [&](std::size_t set) { return set_of(set).collected_file; });
  } else {
    lines += SetLines(settings, &SetTexts::pseudo_collected_sample,
                      [&](std::size_t set) { return set_of(set).pseudo_collected_sample; });
    lines += SetLines(settings, &SetTexts::pseudo_collected_number, number);
  }
  lines += SetLines(settings, &SetTexts::uncollected_sample,
                    [&](std::size_t set) { return set_of(set).uncollected_sample; });
  lines += LabelLine("Name of loci file :", settings.loci_file);
  if (parental) {
    lines += SetLines(settings, &SetTexts::collected_number, number);
  }
  lines += SetLines(settings, &SetTexts::uncollected_number,
                    [&](std::size_t set) { return FormatDouble(set_of(set).uncollected); });
  lines += LabelLine(TextsOf(settings.flow).iterations, std::to_string(settings.iterations));
  lines += LabelLine("Number of pseudo-offspring generated at each iteration :",
                     std::to_string(settings.offspring_per_iteration));
  return lines + SetLines(settings, &SetTexts::collected_share, [&](std::size_t set) {
           return FormatDouble(input.collected_shares[set]);
         });
}

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

/// What is told of random numbers and iterations where they are not as by default.
std::string RandomLines(const SimulationSettings& settings, const SimulationResult& result) {
  std::string lines;
  if (settings.random != RandomSource::kDefault) {
    lines += LabelLine("Random numbers :", "modern");
  }
  if (settings.subset_randoms != SubsetRandoms::kOwn) {
    lines += LabelLine("Random numbers of subsets :", "common");
  }
  if (settings.until_error) {
    lines +=
        LabelLine("Iterations until a standard error below :", FormatDouble(*settings.until_error));
    lines += LabelLine("Iterations run :", std::to_string(result.LastSubset().iterations));
  }
  return lines;
}

std::string DistributionLines(const SimulationSettings& settings, const SimulationInput& input) {
  std::string lines = "DISTRIBUTION OF PSEUDO-OFFSPRING ACCORDING TO PARENTAL ORIGIN :\n";
  for (std::size_t k = 0; k < input.class_sizes.size(); ++k) {
    const OriginTexts& texts = TextsOf(settings.flow).origins[k];
    lines += fmt::format("{}\t{}\t{}\n", texts.label, input.class_sizes[k], texts.label_text);
  }
  return lines;
}

/// What runs have that are not as by default.
std::string UnusualLines(const SimulationSettings& settings) {
  const SimulationSettings defaults;
  std::string lines;
  if (settings.flow == Flow::kNonSexed && settings.allocate_with != defaults.allocate_with) {
    lines += LabelLine("Error model of the allocation", Describe(AllocationModelOf(settings)));
  }
  if (settings.undefined > 0) {
    lines += LabelLine("Share of undefined loci :", FormatDouble(settings.undefined));
  }
  if (!settings.undefined_like.empty()) {
    lines += LabelLine("Undefined loci as in :", settings.undefined_like);
  }
  if (settings.undefined_in_sample == UndefinedInSample::kIgnore) {
    lines += LabelLine("Undefined alleles of samples :", "ignored");
  }
  return lines;
}

}  // namespace

std::string_view TypeLine(const SimulationSettings& settings) {
  const SimulationTexts& texts = TextsOf(settings.flow);
  return settings.procedure == Procedure::kParental ? texts.parental_type : texts.pre_parental_type;
}

std::string ParameterBlock(const SimulationSettings& settings, const SimulationInput& input,
                           const SimulationResult& result) {
  return fmt::format("PARAMETERS{}\n{}\n{}", LastCombinationNote(settings.strategy),
                     TypeLine(settings), HeadLines(settings, input)) +
         LabelLine("Error model", Describe(settings.error_model)) +
         LabelLine("Maximum offset tolerance :", std::to_string(settings.tolerance.Value())) +
         UnusualLines(settings) + RandomLines(settings, result) +
         LociLines(settings, input, result) + DistributionLines(settings, input);
}

}  // namespace kaldo
