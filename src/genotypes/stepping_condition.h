// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>

#include "genotypes/catalogued_loci.h"

namespace kaldo {

/// Whether the alleles of a locus are in step: its unit distance (see UnitDistance) is not 1 bp,
/// and every allelic distance is a multiple of it. That is what alleles of a microsatellite look
/// like that differ by whole repeats. Sizes out of step mostly are misread or come from another
/// laboratory's binning; offsets in unit distances then lose their meaning. A locus without any
/// size, or with a single one, is in step.
bool IsInStep(std::span<const AlleleSize> sorted_sizes);

/// What a run says when its stepping report lists a locus.
inline constexpr std::string_view kSteppingSentence =
    "Some allelic distances not in step with the smallest difference. Please read the stepping "
    "error file !";

/// The text of "/Stepping error file.xls", and whether it lists any locus.
struct SteppingReport {
  std::string text;
  bool any_out_of_step = false;
};

/// Looks for loci in use that are out of step, over the sorted catalogues of a run. They are told,
/// not refused: the run goes on with them.
SteppingReport CheckStepping(const LociList& loci, const AlleleCatalogues& catalogues);

}  // namespace kaldo
