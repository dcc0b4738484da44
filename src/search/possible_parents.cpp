// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/possible_parents.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <hwy/cache_control.h>

namespace kaldo {

namespace {

// Offspring follow each other in memory, but every locus is a stream of its own: too many for the
// processor to foresee. Genotypes are fetched this many offspring ahead.
constexpr std::size_t kAhead = 10;

}  // namespace

void PossibleParents::AddLocus(std::span<const LocusGenotype> parents,
                               const TransmissionMatrix& matrix) {
  const std::size_t alleles = matrix.Alleles();
  const std::size_t words = all_.size();
  carriers_.assign(matrix.Rows() * words, 0);
  for (std::size_t slot = 0; slot < parents.size(); ++slot) {
    const std::uint64_t bit = std::uint64_t{1} << slot % kBlock;
    carriers_[parents[slot].index1.Value() * words + slot / kBlock] |= bit;
    carriers_[parents[slot].index2.Value() * words + slot / kBlock] |= bit;
  }
  Locus& locus = loci_.emplace_back();
  locus.first_row = givers_.size();
  givers_.resize(givers_.size() + alleles * words, 0);
  std::uint64_t* givers = givers_.data() + locus.first_row;
  for (std::size_t given = 0; given < alleles; ++given, givers += words) {
    for (std::size_t carried = 0; carried < matrix.Rows(); ++carried) {
      if (matrix(carried, given) == 0) {
        locus.all_give_any = false;
        continue;
      }
      const std::uint64_t* const carriers = carriers_.data() + carried * words;
      std::transform(givers, givers + words, carriers, givers, std::bit_or<>());
    }
  }
}

void PossibleParents::Prepare(const SearchStudy& study) {
  assert(study.loci.size() <= kMaxLoci);
  individuals_ = study.table.NumberOfIndividuals();
  const std::size_t words = (study.parents + kBlock - 1) / kBlock;
  some_.resize(words);
  all_.assign(words, ~std::uint64_t{0});
  if (study.parents % kBlock != 0) {
    all_.back() = (std::uint64_t{1} << study.parents % kBlock) - 1;
  }
  loci_.clear();
  givers_.clear();
  for (std::size_t k = 0; k < study.loci.size(); ++k) {
    AddLocus(study.ParentGenotypes(k), study.Matrix(k));
    loci_.back().genotypes = study.Genotypes(k);
  }
}

bool PossibleParents::KeepGivers(std::size_t loci) {
  const bool two_left = KeepCommon(left_, std::span(rows_).first(loci), some_);
  left_ = some_.data();
  return two_left;
}

bool PossibleParents::KeepAmong(std::span<const Slot> candidates) {
  candidates_.assign(all_.size(), 0);
  std::size_t kept = 0;
  for (const Slot slot : candidates) {
    const std::size_t word = slot.Value() / kBlock;
    const std::uint64_t bit = left_[word] & std::uint64_t{1} << slot.Value() % kBlock;
    candidates_[word] |= bit;
    kept += bit != 0 ? 1 : 0;
  }
  left_ = candidates_.data();
  return kept >= 2;
}

bool PossibleParents::Find(Slot offspring) {
  left_ = all_.data();
  std::size_t typed = 0;
  std::size_t pending = 0;
  const std::size_t words = all_.size();
  const std::size_t ahead = std::min<std::size_t>(offspring.Value() + kAhead, individuals_ - 1);
  for (std::uint32_t k = 0; k < loci_.size(); ++k) {
    const Locus& locus = loci_[k];
    hwy::Prefetch(&locus.genotypes[ahead]);
    const LocusGenotype& genotype = locus.genotypes[offspring.Value()];
    // A missing locus multiplies every likelihood by exactly 1.
    if (genotype.IsMissing()) {
      continue;
    }
    typed_[typed] = k;
    ++typed;
    if (locus.all_give_any) {
      continue;
    }
    const std::uint64_t* const givers = givers_.data() + locus.first_row;
    rows_[pending] = {givers + genotype.index1.Value() * words,
                      givers + genotype.index2.Value() * words};
    ++pending;
    if (pending == kLociAtOnce) {
      if (!KeepGivers(pending)) {
        return false;
      }
      pending = 0;
    }
  }
  typed_count_ = typed;
  return pending == 0 || KeepGivers(pending);
}

}  // namespace kaldo
