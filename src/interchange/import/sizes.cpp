// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/sizes.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "base/problem.h"
#include "genotypes/capacities.h"

namespace kaldo {

namespace {

/// No microsatellite with its primers is shorter, in base pairs.
constexpr ForeignAllele kShortestSize = 50;

void Multiply(ForeignStudy& study, std::size_t locus, unsigned length, ImportLog& log) {
  for (ForeignIndividual& individual : study.individuals) {
    ForeignGenotype& genotype = individual.genotypes[locus];
    for (ForeignAllele* const allele : {&genotype.first, &genotype.second}) {
      const unsigned size = *allele * length;
      if (size > kLargestAlleleSize) {
        log.faults.Add({.file = study.files[individual.file].path,
                        .line = individual.line,
                        .column = study.loci[locus],
                        .sample = individual.name,
                        .found = fmt::format("{} repeats of {} bp are {} bp, and no allele is: are "
                                             "they counts of repeats?",
                                             *allele, length, size)});
        return;
      }
      *allele = static_cast<ForeignAllele>(size);
    }
  }
  log.notes.push_back(fmt::format("locus {}: counts of repeats were multiplied by {} bp",
                                  study.loci[locus], length));
}

void LookAtAlleles(const ForeignStudy& study, std::size_t locus, ImportLog& log) {
  std::set<ForeignAllele> sizes;
  for (const ForeignIndividual& individual : study.individuals) {
    const ForeignGenotype& genotype = individual.genotypes[locus];
    if (!genotype.IsUndefined()) {
      sizes.insert({genotype.first, genotype.second});
    }
  }
  const std::string& name = study.loci[locus];
  if (sizes.size() > kMaxAlleles) {
    log.faults.Add({.found = fmt::format("locus {}: it has {} alleles, a run takes {}; usually raw "
                                         "sizes that were not binned; leave it out with --loci",
                                         Quoted(name), sizes.size(), kMaxAlleles)});
  }
  const bool has_neighbours =
      std::adjacent_find(sizes.begin(), sizes.end(), [](ForeignAllele one, ForeignAllele next) {
        return next - one == 1;
      }) != sizes.end();
  if (!sizes.empty() && *sizes.rbegin() < kShortestSize && has_neighbours) {
    log.warnings.push_back(fmt::format(
        "Locus {}: alleles {} to {} look like codes or counts of repeats, not like sizes; counts "
        "become sizes with --repeat-length {}=4, 4 bp being the length of a repeat.",
        name, *sizes.begin(), *sizes.rbegin(), name));
  }
}

}  // namespace

void SettleSizes(ForeignStudy& study, const ImportChoices& choices, ImportLog& log) {
  for (const auto& [name, length] : choices.repeat_lengths) {
    const auto found = std::find(study.loci.begin(), study.loci.end(), name);
    if (found == study.loci.end()) {
      log.faults.Add({.found = fmt::format("--repeat-length: there is no locus {}", Quoted(name))});
    } else {
      Multiply(study, static_cast<std::size_t>(found - study.loci.begin()), length, log);
    }
  }
  for (std::size_t locus = 0; locus < study.loci.size(); ++locus) {
    LookAtAlleles(study, locus, log);
  }
}

}  // namespace kaldo
