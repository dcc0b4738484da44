// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/undefined_loci.h"

#include <algorithm>

#include "genotypes/genotype_reader.h"
#include "genotypes/record_cursor.h"

namespace kaldo {

namespace {

constexpr std::uint64_t kGoldenRatio = 0x9e3779b97f4a7c15;

/// The numbers of a counter made unlike each other: the finalizer of SplitMix64 (Steele, Lea &
/// Flood 2014, doi:10.1145/2714064.2660195).
std::uint64_t Mixed(std::uint64_t number) {
  number = (number ^ (number >> 30U)) * 0xbf58476d1ce4e5b9;
  number = (number ^ (number >> 27U)) * 0x94d049bb133111eb;
  return number ^ (number >> 31U);
}

}  // namespace

std::vector<double> UndefinedShares(const TokenFile& file, const LociList& loci) {
  GenotypeTable table(loci.Count());
  const SlotRange offspring =
      AppendIndividuals(file, {loci.Count(), Separators::kNone}, loci, table);
  std::vector<double> shares;
  shares.reserve(loci.Count());
  for (std::uint32_t locus = 0; locus < loci.Count(); ++locus) {
    const auto genotypes = table.Locus(LocusIndex{locus});
    const auto undefined = std::count_if(genotypes.begin(), genotypes.end(),
                                         [](const auto& one) { return one.IsMissing(); });
    shares.push_back(static_cast<double>(undefined) / static_cast<double>(offspring.Size()));
  }
  return shares;
}

UndefinedLoci::UndefinedLoci(std::span<const double> shares, std::uint64_t state)
    : shares_(shares), key_(Mixed(state + kGoldenRatio)) {}

bool UndefinedLoci::AreUndefined(std::uint32_t offspring, LocusIndex locus) const {
  if (shares_.empty()) {
    return false;
  }
  const std::uint64_t place = std::uint64_t{offspring} * shares_.size() + locus.Value();
  constexpr double kSteps = 1.0 / static_cast<double>(std::uint64_t{1} << 53U);
  const double u = static_cast<double>(Mixed(key_ + kGoldenRatio * (place + 1)) >> 11U) * kSteps;
  return u < shares_[locus.Value()];
}

}  // namespace kaldo
