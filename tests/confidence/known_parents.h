// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <random>
#include <vector>

#include "confidence/confidence_run.h"

namespace kaldo::test {

struct PopulationShape {
  unsigned seed = 1;
  std::uint32_t loci = 6;
  std::uint32_t alleles = 8;
  double collected = 0.5;             ///< of the breeders
  std::uint32_t family = 1;           ///< breeders in each family of full sibs
  double error_at_last_locus = 0.01;  ///< at all others 0.01
};

/// A population with known parents: as many breeders of each sex as it takes to collect 40.
class KnownParents {
 public:
  explicit KnownParents(const PopulationShape& shape)
      : shape_(shape), random_(shape.seed), table_(shape.loci), breeders_(shape.loci) {
    constexpr int kOffspring = 400;
    const auto breeders = static_cast<std::uint32_t>(kCollected / shape.collected);
    for (std::uint32_t side = 0; side < 2; ++side) {
      AddBreeders(breeders);
      Collect(breeders);
    }
    for (int i = 0; i < kOffspring; ++i) {
      const Slot father{Draw(breeders)};
      const Slot mother{breeders + Draw(breeders)};
      AddOffspring(father, mother);
      truth_.push_back({collected_[father.Value()], collected_[mother.Value()]});
    }
    for (std::uint32_t locus = 0; locus < shape.loci; ++locus) {
      loci_.emplace_back(locus);
      catalogues_.push_back(AlleleCatalogue::Build(table_.Locus(LocusIndex{locus})).value());
      catalogues_.back().SortSizes();
      catalogues_.back().ReIndex(table_.Locus(LocusIndex{locus}));
    }
  }

  ConfidenceInput Input() const {
    return {Flow::kSexed,
            table_,
            {2 * kCollected, static_cast<std::uint32_t>(table_.NumberOfIndividuals())},
            groups_,
            catalogues_,
            loci_,
            {}};
  }
  bool IsParent(std::size_t offspring, std::size_t side, std::optional<Slot> slot) const {
    return truth_[offspring][side] == slot;
  }

 private:
  static constexpr std::uint32_t kCollected = 40;
  static constexpr double kTypingError = 0.01;

  std::uint32_t Draw(std::uint32_t count) { return static_cast<std::uint32_t>(random_() % count); }
  double Share() { return static_cast<double>(random_()) / 4294967296.0; }
  AlleleSize RandomAllele() { return AlleleSize{100 + 2 * Draw(shape_.alleles)}; }
  AlleleSize OneOf(const LocusGenotype& genotype) {
    return Draw(2) == 0 ? genotype.allele1 : genotype.allele2;
  }

  /// Families of full sibs, from two strangers each.
  void AddBreeders(std::uint32_t count) {
    std::vector<std::array<LocusGenotype, 2>> parents(shape_.loci);
    for (std::uint32_t i = 0; i < count; ++i) {
      const Slot slot = breeders_.AddIndividual("breeder");
      for (std::uint32_t l = 0; l < shape_.loci; ++l) {
        LocusGenotype& genotype = breeders_.Genotype(LocusIndex{l}, slot);
        for (LocusGenotype& parent : parents[l]) {
          if (i % shape_.family == 0) {
            parent.allele1 = RandomAllele();
            parent.allele2 = RandomAllele();
          }
        }
        genotype.allele1 = OneOf(parents[l][0]);
        genotype.allele2 = OneOf(parents[l][1]);
      }
    }
  }

  /// Takes some of the last breeders into the table.
  void Collect(std::uint32_t breeders) {
    std::vector<std::uint32_t> order(breeders);
    std::iota(order.begin(), order.end(), static_cast<std::uint32_t>(collected_.size()));
    for (std::uint32_t i = breeders; i > 1; --i) {
      std::swap(order[i - 1], order[Draw(i)]);
    }
    collected_.resize(collected_.size() + breeders);
    for (std::uint32_t i = 0; i < kCollected; ++i) {
      const Slot slot = table_.AddIndividual("parent");
      collected_[order[i]] = slot;
      for (std::uint32_t l = 0; l < shape_.loci; ++l) {
        table_.Genotype(LocusIndex{l}, slot) = breeders_.Genotype(LocusIndex{l}, Slot{order[i]});
      }
    }
  }

  AlleleSize Given(LocusIndex locus, Slot parent) {
    const bool is_last = locus.Value() + 1 == shape_.loci;
    const bool misread = Share() < (is_last ? shape_.error_at_last_locus : kTypingError);
    return misread ? RandomAllele() : OneOf(breeders_.Genotype(locus, parent));
  }

  void AddOffspring(Slot father, Slot mother) {
    const Slot slot = table_.AddIndividual("offspring");
    for (std::uint32_t l = 0; l < shape_.loci; ++l) {
      const AlleleSize one = Given(LocusIndex{l}, father);
      const AlleleSize other = Given(LocusIndex{l}, mother);
      table_.Genotype(LocusIndex{l}, slot).allele1 = one;
      table_.Genotype(LocusIndex{l}, slot).allele2 = other;
    }
  }

  PopulationShape shape_;
  std::mt19937 random_;
  GenotypeTable table_;
  GenotypeTable breeders_;
  std::vector<std::optional<Slot>> collected_;  ///< where a breeder stands in the table
  std::vector<LocusIndex> loci_;
  AlleleCatalogues catalogues_;
  std::vector<CandidateGroup> groups_ = {{{0, kCollected}, {kCollected, 2 * kCollected}}};
  std::vector<std::array<std::optional<Slot>, 2>> truth_;
};

}  // namespace kaldo::test
