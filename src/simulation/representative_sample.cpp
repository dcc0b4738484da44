// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/representative_sample.h"

namespace kaldo {

CumulativeFrequencies ComputeCumulativeFrequencies(const AlleleCatalogue& catalogue,
                                                   std::size_t individuals) {
  const double gene_copies = 2.0 * static_cast<double>(individuals);
  CumulativeFrequencies cumulative{};
  double running = 0;
  for (std::size_t place = 0; place < cumulative.size(); ++place) {
    running += static_cast<double>(catalogue.Counts()[place]) / gene_copies;
    cumulative.at(place) = static_cast<float>(running);
  }
  return cumulative;
}

RepresentativeSample::RepresentativeSample(std::vector<AlleleCatalogue> unsorted_catalogues,
                                           std::size_t individuals)
    : catalogues_(std::move(unsorted_catalogues)) {
  cumulative_.reserve(catalogues_.size());
  for (const AlleleCatalogue& catalogue : catalogues_) {
    cumulative_.push_back(ComputeCumulativeFrequencies(catalogue, individuals));
  }
}

}  // namespace kaldo
