// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/parent_frequencies.h"

namespace kaldo {

namespace {

constexpr double kExtraCopies = 0.5;

}  // namespace

std::vector<double> ParentCopies(std::span<const LocusGenotype> genotypes,
                                 std::span<const SlotRange> parents, std::size_t alleles) {
  std::vector<double> copies(alleles);
  for (const SlotRange range : parents) {
    for (const LocusGenotype& genotype : genotypes.subspan(range.begin, range.Size())) {
      if (!genotype.IsMissing()) {
        copies[genotype.index1.Value()] += 1;
        copies[genotype.index2.Value()] += 1;
      }
    }
  }
  return copies;
}

AlleleFrequencies ParentFrequencies(std::span<const LocusGenotype> genotypes,
                                    std::span<const SlotRange> parents, std::size_t alleles) {
  std::vector<double> copies = ParentCopies(genotypes, parents, alleles);
  double total = 0;
  for (double& copy : copies) {
    copy += kExtraCopies;
    total += copy;
  }
  for (double& copy : copies) {
    copy /= total;
  }
  return copies;
}

std::vector<SlotRange> RangesOfParents(Flow flow, std::span<const CandidateGroup> groups) {
  std::vector<SlotRange> ranges;
  for (const CandidateGroup& group : groups) {
    ranges.push_back(group.first);
    if (flow == Flow::kSexed) {
      ranges.push_back(group.second);
    }
  }
  return ranges;
}

}  // namespace kaldo
