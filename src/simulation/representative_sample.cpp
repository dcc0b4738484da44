// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/representative_sample.h"

namespace kaldo {

FineFrequencies ComputeFineFrequencies(const AlleleCatalogue& catalogue, std::size_t individuals,
                                       std::size_t left_out) {
  const double gene_copies = 2.0 * static_cast<double>(individuals) - static_cast<double>(left_out);
  FineFrequencies cumulative{};
  double running = 0;
  for (std::size_t place = 0; place < cumulative.size(); ++place) {
    const double copies = static_cast<double>(catalogue.Counts()[place]);
    running += (place == 0 ? copies - static_cast<double>(left_out) : copies) / gene_copies;
    cumulative.at(place) = running;
  }
  return cumulative;
}

CumulativeFrequencies ComputeCumulativeFrequencies(const AlleleCatalogue& catalogue,
                                                   std::size_t individuals, std::size_t left_out) {
  const FineFrequencies fine = ComputeFineFrequencies(catalogue, individuals, left_out);
  CumulativeFrequencies cumulative{};
  for (std::size_t place = 0; place < fine.size(); ++place) {
    cumulative.at(place) = static_cast<float>(fine.at(place));
  }
  return cumulative;
}

RepresentativeSample::RepresentativeSample(std::vector<AlleleCatalogue> unsorted_catalogues,
                                           std::size_t individuals,
                                           std::span<const std::size_t> left_out)
    : catalogues_(std::move(unsorted_catalogues)) {
  cumulative_.reserve(catalogues_.size());
  fine_.reserve(catalogues_.size());
  for (std::size_t locus = 0; locus < catalogues_.size(); ++locus) {
    fine_.push_back(ComputeFineFrequencies(catalogues_[locus], individuals, left_out[locus]));
    cumulative_.push_back(
        ComputeCumulativeFrequencies(catalogues_[locus], individuals, left_out[locus]));
  }
}

}  // namespace kaldo
