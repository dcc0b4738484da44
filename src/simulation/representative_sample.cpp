// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/representative_sample.h"

namespace kaldo {

FineFrequencies ComputeFineFrequencies(const AlleleCatalogue& catalogue, std::size_t individuals) {
  const double gene_copies = 2.0 * static_cast<double>(individuals);
  FineFrequencies cumulative{};
  double running = 0;
  for (std::size_t place = 0; place < cumulative.size(); ++place) {
    running += static_cast<double>(catalogue.Counts()[place]) / gene_copies;
    cumulative.at(place) = running;
  }
  return cumulative;
}

CumulativeFrequencies ComputeCumulativeFrequencies(const AlleleCatalogue& catalogue,
                                                   std::size_t individuals) {
  const FineFrequencies fine = ComputeFineFrequencies(catalogue, individuals);
  CumulativeFrequencies cumulative{};
  for (std::size_t place = 0; place < fine.size(); ++place) {
    cumulative.at(place) = static_cast<float>(fine.at(place));
  }
  return cumulative;
}

RepresentativeSample::RepresentativeSample(std::vector<AlleleCatalogue> unsorted_catalogues,
                                           std::size_t individuals)
    : catalogues_(std::move(unsorted_catalogues)) {
  cumulative_.reserve(catalogues_.size());
  fine_.reserve(catalogues_.size());
  for (const AlleleCatalogue& catalogue : catalogues_) {
    fine_.push_back(ComputeFineFrequencies(catalogue, individuals));
    cumulative_.push_back(ComputeCumulativeFrequencies(catalogue, individuals));
  }
}

}  // namespace kaldo
