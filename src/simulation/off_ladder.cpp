// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/off_ladder.h"

#include <map>

#include "simulation/flows/simulation_design.h"

namespace kaldo {

namespace {

using Frequencies = std::map<AlleleSize, double>;

/// Adds the alleles of a group, `weight` in all.
void AddGroup(const SimulationInput& input, const ParentalGroup& group, LocusIndex locus,
              double weight, Frequencies& frequencies) {
  if (group.sample) {
    const auto sizes = group.sample->Sizes(locus);
    for (std::size_t place = 0; place < sizes.size(); ++place) {
      frequencies[sizes[place]] += weight * group.sample->Frequency(locus, place);
    }
    return;
  }
  const auto genotypes =
      input.collected.Locus(locus).subspan(group.slots.begin, group.slots.Size());
  for (const LocusGenotype& genotype : genotypes) {
    if (!genotype.IsMissing()) {
      frequencies[genotype.allele1] += weight / (2.0 * static_cast<double>(genotypes.size()));
      frequencies[genotype.allele2] += weight / (2.0 * static_cast<double>(genotypes.size()));
    }
  }
}

/// Per group: how many true parents of an iteration come from it.
std::vector<double> TrueParentsByGroup(const SimulationDesign& design,
                                       const SimulationInput& input) {
  std::vector<double> parents(input.groups.size());
  for (std::size_t k = 0; k < design.classes.size(); ++k) {
    parents[design.classes[k].first_group] += input.class_sizes[k];
    parents[design.classes[k].second_group] += input.class_sizes[k];
  }
  return parents;
}

}  // namespace

AlleleIndex ReadBehindRow(const TransmissionMatrix& matrix, AlleleIndex parental) {
  return parental.Value() < matrix.Alleles()
             ? parental
             : AlleleIndex{static_cast<std::uint8_t>(matrix.Alleles() - 1)};
}

void FillUndefinedRow(std::span<const double> frequencies, TransmissionMatrix& matrix) {
  const std::size_t undefined = matrix.Alleles();
  for (std::size_t own = 0; own < matrix.Alleles(); ++own) {
    double missing = 1;
    for (std::size_t read = 0; read < matrix.Alleles(); ++read) {
      missing -= matrix(own, read);
    }
    matrix(undefined, own) += frequencies[own] * missing;
  }
}

std::optional<double> OffLadderShare(const ErrorModel& model,
                                     std::span<const AlleleSize> sorted_sizes,
                                     std::span<const double> frequencies) {
  const double wanted = model.minus2 + model.minus1 + model.plus1 + model.plus2;
  if (model.kind != ErrorKind::kNonUniform || !(wanted > 0)) {
    return std::nullopt;
  }
  const TransmissionMatrix matrix = BuildMatrix(model, sorted_sizes);
  double held = 0;
  for (std::size_t own = 0; own < matrix.Alleles(); ++own) {
    for (std::size_t read = 0; read < matrix.Alleles(); ++read) {
      held += own == read ? 0.0 : frequencies[own] * matrix(own, read);
    }
  }
  return 1 - held / wanted;
}

std::vector<std::optional<double>> OffLadderShares(const SimulationSettings& settings,
                                                   const SimulationInput& input) {
  std::vector<std::optional<double>> shares(input.loci.Count());
  const auto parents = TrueParentsByGroup(DesignOf(settings.flow), input);
  for (const LocusIndex locus : input.loci.LociInUse()) {
    Frequencies by_size;
    for (std::size_t k = 0; k < input.groups.size(); ++k) {
      if (input.groups[k].slots.Size() > 0) {
        AddGroup(input, input.groups[k], locus, parents[k], by_size);
      }
    }
    double all = 0;
    std::vector<AlleleSize> sizes;
    std::vector<double> frequencies;
    sizes.reserve(by_size.size());
    frequencies.reserve(by_size.size());
    for (const auto& [size, frequency] : by_size) {
      all += frequency;
      sizes.push_back(size);
      frequencies.push_back(frequency);
    }
    for (double& frequency : frequencies) {
      frequency /= all;
    }
    if (all > 0) {
      shares[locus.Value()] = OffLadderShare(settings.error_model, sizes, frequencies);
    }
  }
  return shares;
}

}  // namespace kaldo
