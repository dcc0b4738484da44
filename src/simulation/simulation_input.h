// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include <tl/expected.hpp>

#include "base/warning.h"
#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "runs/run_record.h"
#include "simulation/locus_subsets.h"
#include "simulation/representative_sample.h"
#include "simulation/simulation_files.h"
#include "simulation/simulation_settings.h"

namespace kaldo {

/// One parental group of a run: parents from a file, or parents drawn anew at every iteration.
struct ParentalGroup {
  SlotRange slots;                             ///< in the parent table of an iteration
  std::optional<RepresentativeSample> sample;  ///< nothing for collected parents
};

/// The checked and loaded files of a simulation, and what follows from them for every iteration.
struct SimulationInput {
  LociList loci;
  std::size_t digits_per_field = 0;

  std::vector<ParentalGroup> groups;  ///< as in SimulationDesign::groups
  SlotRange candidates;               ///< of the allocation: the collected groups, which come first
  GenotypeTable collected;            ///< PARENTAL: the parents of the collected groups, in slots

  std::vector<double> collected_numbers;  ///< per set: parents collected, or to be drawn, as typed
  std::vector<double> collected_shares;   ///< per set: proportion collected, see CollectedShares
  std::vector<double> weights;            ///< per class: its share in the population, 0 to 1
  std::vector<std::int32_t> class_sizes;  ///< per class: its pseudo-offspring in an iteration
  LocusSubsets subsets;

  /// Per locus of the list: the share of pseudo-offspring that are undefined there; empty where
  /// none are.
  std::vector<double> undefined_shares;

  std::vector<RecordedInput> files;

  std::vector<Warning> warnings;  ///< of files and choices that can run: every single case

  /// Collected, pseudo-collected and uncollected ones: the slots of the parent table.
  std::uint32_t NumberOfParents() const { return groups.back().slots.end; }

  /// Of all classes together: less than typed, by what truncation cuts off (see ClassSizes).
  std::uint32_t OffspringPerIteration() const;
};

/// Tests the settings and the files of a simulation in the order of its screens, then each record
/// for itself and the group sizes, and loads them. Nothing is written.
tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings);
tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings,
                                                           FileSource& source);

/// The same from files that are open already.
tl::expected<SimulationInput, Problem> LoadSimulationInput(const SimulationSettings& settings,
                                                           const SimulationFiles& files);

/// Makes it the input of a run with the numbers of uncollected parents of these settings, all else
/// being as it was loaded. A class of origin that lacks true parents is a Problem.
std::optional<Problem> DrawUncollected(const SimulationSettings& settings, SimulationInput& input);

/// Tests error model, loci in use, sequence and subsets against the loci of the input, and chooses.
std::optional<Problem> CheckChoices(const SimulationSettings& settings, SimulationInput& input);

}  // namespace kaldo
