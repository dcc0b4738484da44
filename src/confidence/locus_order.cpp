// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/locus_order.h"

#include <algorithm>
#include <numeric>

#include <fmt/format.h>

#include "confidence/parent_frequencies.h"
#include "genotypes/allele_catalogue.h"

namespace kaldo {

namespace {

LocusInformation InformationAt(std::span<const LocusGenotype> genotypes,
                               std::span<const SlotRange> parents) {
  auto catalogue = AlleleCatalogue::Build(genotypes);
  if (!catalogue) {
    return std::nullopt;
  }
  catalogue->SortSizes();
  std::vector<LocusGenotype> indexed(genotypes.begin(), genotypes.end());
  catalogue->ReIndex(indexed);
  const auto copies = ParentCopies(indexed, parents, catalogue->Sizes().size());
  const double all = std::accumulate(copies.begin(), copies.end(), 0.0);
  return all > 0 ? LocusInformation(ExclusionsOf(copies)) : std::nullopt;
}

/// The places of the loci in the order in which they enter.
std::vector<std::size_t> OrderByInformation(std::span<const LocusInformation> loci) {
  std::vector<std::size_t> order(loci.size());
  std::iota(order.begin(), order.end(), 0U);
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return TellsMore(loci[a], loci[b]); });
  return order;
}

}  // namespace

bool TellsMore(const LocusInformation& locus, const LocusInformation& other) {
  return locus && (!other || locus->pair > other->pair);
}

std::vector<LocusInformation> InformationOfLoci(const GenotypeTable& table,
                                                std::span<const SlotRange> parents) {
  std::vector<LocusInformation> loci;
  loci.reserve(table.NumberOfLoci());
  for (std::uint32_t locus = 0; locus < table.NumberOfLoci(); ++locus) {
    loci.push_back(InformationAt(table.Locus(LocusIndex{locus}), parents));
  }
  return loci;
}

std::vector<std::int32_t> SequenceByInformation(std::span<const LocusInformation> loci) {
  const auto order = OrderByInformation(loci);
  std::vector<std::int32_t> positions(loci.size());
  for (std::size_t k = 0; k < order.size(); ++k) {
    positions[order[k]] = static_cast<std::int32_t>(k + 1);
  }
  return positions;
}

std::string SequenceSentence(const LociList& names, std::span<const LocusInformation> loci) {
  constexpr std::size_t kMostTold = 5;
  std::vector<std::string> told;
  for (const std::size_t k : OrderByInformation(loci)) {
    if (told.size() == kMostTold) {
      told.emplace_back("...");
      break;
    }
    told.push_back(fmt::format("{} ({})", names.Names()[k],
                               loci[k] ? fmt::format("{:.3f}", loci[k]->pair) : "unknown"));
  }
  return fmt::format("By the share of random pairs that each locus excludes: {}.",
                     fmt::join(told, ", "));
}

}  // namespace kaldo
