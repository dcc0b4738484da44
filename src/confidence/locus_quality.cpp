// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/locus_quality.h"

#include <algorithm>
#include <cmath>

#include "confidence/parent_frequencies.h"
#include "genotypes/stepping_condition.h"
#include "genotypes/unit_distance.h"

namespace kaldo {

namespace {

bool IsHomozygous(const LocusGenotype& genotype) { return genotype.allele1 == genotype.allele2; }

/// An offspring and a parent that is named for it.
struct NamedSide {
  Slot offspring;
  Slot parent;
};

std::vector<NamedSide> SurelyNamed(const ConfidenceInput& input, const ConfidenceResult& result) {
  std::vector<NamedSide> named;
  for (std::uint32_t i = 0; i < result.offspring.size(); ++i) {
    for (const SideConfidence& side : result.offspring[i].sides) {
      if (side.candidate && side.candidate->probability >= kSureLevel) {
        named.push_back({Slot{input.offspring.begin + i}, side.candidate->slot});
      }
    }
  }
  return named;
}

HomozygoteMismatches MismatchesAt(std::span<const LocusGenotype> genotypes,
                                  std::span<const NamedSide> named) {
  HomozygoteMismatches found;
  for (const NamedSide& side : named) {
    const LocusGenotype& offspring = genotypes[side.offspring.Value()];
    const LocusGenotype& parent = genotypes[side.parent.Value()];
    if (offspring.IsMissing() || parent.IsMissing()) {
      continue;
    }
    ++found.compared;
    found.mismatches +=
        IsHomozygous(offspring) && IsHomozygous(parent) && offspring.allele1 != parent.allele1 ? 1U
                                                                                               : 0U;
  }
  return found;
}

LocusQuality WithoutPosteriors(const ConfidenceInput& input, LocusIndex locus) {
  const auto genotypes = input.table.Locus(locus);
  const auto sizes = input.catalogues[locus.Value()].Sizes();
  const auto parents = RangesOfParents(input.flow, input.groups);
  LocusQuality quality;
  quality.locus = locus;
  quality.alleles = sizes.size();
  if (sizes.size() > 1) {
    quality.unit_distance = UnitDistance(sizes);
  }
  quality.is_in_step = IsInStep(sizes);
  std::size_t heterozygotes = 0;
  for (const SlotRange range : parents) {
    for (const LocusGenotype& genotype : genotypes.subspan(range.begin, range.Size())) {
      quality.typed_parents += genotype.IsMissing() ? 0U : 1U;
      heterozygotes += IsHomozygous(genotype) ? 0U : 1U;
    }
  }
  const auto offspring = genotypes.subspan(input.offspring.begin, input.offspring.Size());
  quality.typed_offspring = static_cast<std::size_t>(
      std::count_if(offspring.begin(), offspring.end(),
                    [](const LocusGenotype& genotype) { return !genotype.IsMissing(); }));
  if (quality.typed_parents > 0) {
    const auto copies = ParentCopies(genotypes, parents, sizes.size());
    quality.variability = VariabilityOf(copies, static_cast<double>(heterozygotes));
    quality.exclusions = ExclusionsOf(copies);
  }
  return quality;
}

}  // namespace

std::vector<LocusQuality> QualityOfLoci(const ConfidenceInput& input,
                                        const ConfidenceResult& result) {
  const auto named = SurelyNamed(input, result);
  std::vector<LocusQuality> loci;
  for (std::size_t k = 0; k < input.loci.size(); ++k) {
    LocusQuality quality = WithoutPosteriors(input, input.loci[k]);
    if (result.is_meaningful) {
      quality.mismatches = MismatchesAt(input.table.Locus(input.loci[k]), named);
    }
    if (k < result.error_rates.size() && !std::isnan(result.error_rates[k])) {
      quality.error_rate = result.error_rates[k];
    }
    loci.push_back(quality);
  }
  return loci;
}

bool IsWorthALook(const LocusQuality& locus) {
  const bool misread = locus.error_rate.value_or(0) >= kNotableErrorRate;
  const bool null =
      locus.variability && locus.variability->null_allele_frequency >= kNotableNullAllele;
  const HomozygoteMismatches found = locus.mismatches.value_or(HomozygoteMismatches{});
  const bool mismatched =
      found.mismatches > 1 && static_cast<double>(found.mismatches) >=
                                  kNotableMismatches * static_cast<double>(found.compared);
  return misread || null || mismatched;
}

}  // namespace kaldo
