// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "genotypes/allele_catalogue.h"

namespace kaldo {

/// Running sums of the allele frequencies of a sample at one locus, in the order in which the
/// alleles first appear in the file; behind the last allele they repeat the total, about 1. Single
/// precision: a sum may lie a hair above or below a place of the grid of the draws (see UnitDraw),
/// and which it is decides a draw (this program's convention).
using CumulativeFrequencies = std::array<float, kMaxAlleles>;

/// The same in double precision, for modern random numbers.
using FineFrequencies = std::array<double, kMaxAlleles>;
FineFrequencies ComputeFineFrequencies(const AlleleCatalogue& catalogue, std::size_t individuals,
                                       std::size_t left_out = 0);

/// Sums count / (2 x individuals) over the places of a catalogue. The sum runs in double precision
/// and each entry is rounded to single precision. Undefined alleles count on the first place.
/// `left_out`: as many of them count for nothing instead, see UndefinedInSample.
CumulativeFrequencies ComputeCumulativeFrequencies(const AlleleCatalogue& catalogue,
                                                   std::size_t individuals,
                                                   std::size_t left_out = 0);

/// Individuals whose allele frequencies stand for a part of the population that nobody sampled.
/// Alleles are drawn from it independently, as under Hardy-Weinberg proportions without linkage.
class RepresentativeSample {
 public:
  RepresentativeSample() = default;

  /// Takes the catalogue of each locus, in the order of the names-of-loci file (empty at loci not
  /// in use), and how many undefined alleles of it count for nothing. The catalogues must not be
  /// sorted: sizes would part from their counts.
  RepresentativeSample(std::vector<AlleleCatalogue> unsorted_catalogues, std::size_t individuals,
                       std::span<const std::size_t> left_out);

  /// The size of the first allele whose running sum reaches `u`, at the latest the last one. At a
  /// locus without any allele it is undefined.
  AlleleSize Draw(LocusIndex locus, double u) const {
    return DrawFrom(cumulative_[locus.Value()], locus, u);
  }

  /// The same by the sums in double precision.
  AlleleSize DrawFinely(LocusIndex locus, double u) const {
    return DrawFrom(fine_[locus.Value()], locus, u);
  }

  std::span<const AlleleSize> Sizes(LocusIndex locus) const {
    return catalogues_[locus.Value()].Sizes();
  }

  /// The frequency of the size at that place, as it is drawn.
  double Frequency(LocusIndex locus, std::size_t place) const {
    const CumulativeFrequencies& cumulative = cumulative_[locus.Value()];
    return static_cast<double>(cumulative.at(place)) -
           (place == 0 ? 0.0 : static_cast<double>(cumulative.at(place - 1)));
  }

 private:
  AlleleSize DrawFrom(const auto& cumulative, LocusIndex locus, double u) const {
    const auto sizes = catalogues_[locus.Value()].Sizes();
    if (sizes.empty()) {
      return kUndefinedAllele;
    }
    std::size_t place = 0;
    while (place + 1 < sizes.size() && u > static_cast<double>(cumulative[place])) {
      ++place;
    }
    return sizes[place];
  }

  std::vector<AlleleCatalogue> catalogues_;
  std::vector<CumulativeFrequencies> cumulative_;
  std::vector<FineFrequencies> fine_;
};

}  // namespace kaldo
