// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/genotype_bounds.h"

#include <algorithm>
#include <optional>

namespace kaldo {

namespace {

// A class is one-sided at a ratio of its scores of no less than this.
constexpr double kLeastSideRatio = 0x1p-10;
constexpr double kLargestSideRatio = 0.25;

/// The largest share of a probability that goes to some other allele, twice (a parent has two),
/// over the smallest that stays: the ratio of scores of a parent that carries one of R and J
/// exactly. Nothing where a probability is negative.
std::optional<double> RatioOfExactCarriers(const SearchStudy& study) {
  double largest_other = 0;
  double smallest_own = 1;
  for (std::size_t k = 0; k < study.loci.size(); ++k) {
    const TransmissionMatrix& matrix = study.Matrix(k);
    for (std::size_t i = 0; i < matrix.Alleles(); ++i) {
      for (std::size_t j = 0; j < matrix.Alleles(); ++j) {
        if (!(matrix(i, j) >= 0)) {
          return std::nullopt;
        }
        if (i != j) {
          largest_other = std::max(largest_other, matrix(i, j));
        }
      }
      smallest_own = std::min(smallest_own, matrix(i, i));
    }
  }
  const double ratio = smallest_own > 0 ? 1.001 * 2 * largest_other / smallest_own : 1;
  return std::clamp(ratio, kLeastSideRatio, kLargestSideRatio);
}

}  // namespace

void GenotypeBounds::Prepare(const SearchStudy& study) {
  const auto ratio = RatioOfExactCarriers(study);
  sound_ = ratio.has_value();
  side_ratio_ = ratio.value_or(kLargestSideRatio);
  const std::size_t loci = study.loci.size();
  loci_.resize(loci);
  classes_by_parent_.resize(study.parents * loci);
  for (std::size_t k = 0; k < loci; ++k) {
    Locus& locus = loci_[k];
    locus.genotypes = study.Genotypes(k);
    locus.matrix = &study.Matrix(k);
    locus.alleles = locus.matrix->Alleles();
    locus.numbers.assign(locus.alleles * locus.alleles, kNoBounds);
    locus.classes.Sort(study.ParentGenotypes(k), locus.matrix->Rows());
    const auto of_parents = locus.classes.OfParents();
    for (std::size_t parent = 0; parent < study.parents; ++parent) {
      classes_by_parent_[parent * loci + k] = of_parents[parent];
    }
  }
  in_use_ = 0;
  LimitMemory(study.parents);
}

void GenotypeBounds::LimitMemory(std::size_t parents) {
  std::size_t classes = 0;
  for (const Locus& locus : loci_) {
    classes = std::max(classes, locus.classes.Count());
  }
  // Per class its scores, a cost and a leaning; per parent a cost.
  const std::size_t bytes_each =
      sizeof(LocusBounds) + classes * (sizeof(LocusBounds::Scores) + 2) + parents;
  most_ = std::max(bytes_ / bytes_each, loci_.size());
}

void GenotypeBounds::MakeRoom() {
  if (in_use_ + loci_.size() > most_) {
    for (Locus& locus : loci_) {
      std::fill(locus.numbers.begin(), locus.numbers.end(), kNoBounds);
    }
    in_use_ = 0;
  }
  // Room first, so that no bounds move while those of one offspring are collected.
  if (bounds_.size() < in_use_ + loci_.size()) {
    bounds_.resize(in_use_ + loci_.size());
  }
}

LocusBounds& GenotypeBounds::Add(std::size_t k, const LocusGenotype& offspring) {
  Locus& locus = loci_[k];
  // Both orders of the offspring's alleles share their bounds.
  const auto number = static_cast<std::int32_t>(in_use_);
  locus.numbers[Pair(locus, offspring.index1, offspring.index2)] = number;
  locus.numbers[Pair(locus, offspring.index2, offspring.index1)] = number;
  LocusBounds& bounds = bounds_[in_use_];
  ++in_use_;
  bounds.Build(locus.classes, *locus.matrix, offspring.index1, offspring.index2, side_ratio_);
  return bounds;
}

}  // namespace kaldo
