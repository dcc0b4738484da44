// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <tl/expected.hpp>

#include "allocation/allocation_files.h"
#include "base/warning.h"
#include "genotypes/catalogued_loci.h"
#include "genotypes/genotype_table.h"
#include "genotypes/loci_list.h"
#include "method/allowed_pairs.h"
#include "runs/run_record.h"

namespace kaldo {

/// The checked and loaded files of an allocation.
struct AllocationInput {
  LociList loci;
  std::size_t digits_per_field = 0;  ///< both alleles of a locus together

  /// Parents first (sexed: males, then females), then the offspring.
  GenotypeTable table;
  SlotRange first_parents;   ///< all collected parents, or the males
  SlotRange second_parents;  ///< the females; empty in the non-sexed flow
  SlotRange offspring;
  std::vector<CandidateGroup> groups;

  /// What is known of each offspring, in file order; empty where nothing is known of any.
  std::vector<AllowedPairs> allowed;

  AlleleCatalogues catalogues;

  /// The loci of each combination in the order in which they entered. One combination of all loci
  /// in use, unless a cumulative sequence was chosen.
  std::vector<std::vector<LocusIndex>> combinations;

  std::vector<RecordedInput> files;

  std::vector<Warning> warnings;  ///< of files and choices that can run: every single case

  /// The slots of all collected parents, separators included.
  SlotRange Parents() const { return {0, offspring.begin}; }

  /// Collected parents without separators.
  std::size_t NumberOfParents() const;

  std::size_t NumberOfOffspring() const { return offspring.Size(); }

  /// Missing loci (in use) of the offspring.
  std::size_t NumberOfMissingGenotypes() const;
};

/// Tests the files and the choices of an allocation in the order of its screens, then each record
/// for itself, and loads them. Nothing is written. The first Problem ends the tests.
tl::expected<AllocationInput, Problem> LoadAllocationInput(const AllocationSettings& settings);
tl::expected<AllocationInput, Problem> LoadAllocationInput(const AllocationSettings& settings,
                                                           FileSource& source);

// The same in two steps: files that were opened and checked once serve every choice of loci.

/// Tests the open files and loads their genotypes. All loci are there, no choice is made, and what
/// is known of single offspring is not read.
tl::expected<AllocationInput, Problem> LoadGenotypes(const AllocationSettings& settings,
                                                     const AllocationFiles& files);

/// The same with what is known of single offspring.
tl::expected<AllocationInput, Problem> LoadIndividuals(const AllocationSettings& settings,
                                                       const AllocationFiles& files);

/// Tests error model, loci in use and sequence against the loci of the input, and chooses.
std::optional<Problem> CheckChoices(const AllocationSettings& settings, AllocationInput& input);

/// Tests error model, loci in use and sequence, and makes the input of these files ready for a run
/// with them: its combinations of loci and the alleles of the loci in use.
std::optional<Problem> ApplyChoices(const AllocationSettings& settings,
                                    const AllocationFiles& files, AllocationInput& input);

}  // namespace kaldo
