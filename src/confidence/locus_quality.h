// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "confidence/confidence_run.h"
#include "confidence/locus_variability.h"

namespace kaldo {

/// Offspring beside those of their parents that have a probability of kSureLevel or more. Two
/// different homozygotes cannot be parent and offspring: one was misread, or carries an allele that
/// is never seen.
struct HomozygoteMismatches {
  std::size_t compared = 0;    ///< where both are typed
  std::size_t mismatches = 0;  ///< where both are homozygous, for different alleles
};

/// How well a locus serves an allocation.
struct LocusQuality {
  LocusIndex locus;

  // Of all sizes among parents and offspring.
  std::size_t alleles = 0;
  std::optional<BasePairs> unit_distance;  ///< none where there are no two sizes
  bool is_in_step = true;

  std::size_t typed_parents = 0;
  std::size_t typed_offspring = 0;

  // Of the collected parents, both sexes together; none where nobody is typed.
  std::optional<LocusVariability> variability;
  std::optional<ExclusionProbabilities> exclusions;

  std::optional<HomozygoteMismatches> mismatches;  ///< none where no posteriors were computed
  std::optional<double> error_rate;                ///< the estimated share of genes misread
};

/// The loci of a run, in its order.
std::vector<LocusQuality> QualityOfLoci(const ConfidenceInput& input,
                                        const ConfidenceResult& result);

// What makes a locus worth a look, each of which alone is enough. This program's convention.
inline constexpr double kNotableErrorRate = 0.05;
inline constexpr double kNotableNullAllele = 0.1;
inline constexpr double kNotableMismatches = 0.02;  ///< of the comparisons, and more than one

/// Whether something at a locus lies above one of these.
bool IsWorthALook(const LocusQuality& locus);

}  // namespace kaldo
