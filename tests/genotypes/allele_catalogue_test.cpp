// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/allele_catalogue.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "genotypes/catalogued_loci.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

/// The catalogue as 100 slots worked on one by one, and one slot behind them that stays empty.
struct SlotBySlot {
  static constexpr std::uint32_t kNotListed = 100;

  std::array<std::uint32_t, 101> sizes{};
  std::array<float, 101> counts{};

  std::uint32_t LookUp(std::uint32_t size) const {
    if (size == sizes[0] || size == 0) {
      return 0;
    }
    std::uint32_t k = 0;
    do {
      ++k;
    } while (k != kNotListed && sizes.at(k) != size);
    return k;
  }

  void Build(const std::vector<LocusGenotype>& genotypes) {
    std::size_t listed = 0;
    for (const bool first : {true, false}) {
      for (const LocusGenotype& genotype : genotypes) {
        const std::uint32_t size = (first ? genotype.allele1 : genotype.allele2).Value();
        const std::uint32_t place = LookUp(size);
        if (place == kNotListed) {
          sizes.at(listed) = size;
          counts.at(listed) += 1;
          ++listed;
        } else {
          counts.at(place) += 1;
        }
      }
    }
  }

  void Sort() {
    std::size_t n = 0;
    while (sizes.at(n) != 0) {
      ++n;
    }
    n = n == 0 ? 1 : n;
    for (std::size_t pass = 0; pass < n; ++pass) {
      for (std::size_t k = 0; k < n; ++k) {
        if (sizes.at(k + 1) < sizes.at(k) && sizes.at(k + 1) != 0) {
          std::swap(sizes.at(k), sizes.at(k + 1));
        }
      }
    }
  }
};

LocusGenotype Genotype(std::uint32_t allele1, std::uint32_t allele2) {
  return {AlleleSize{allele1}, AlleleSize{allele2}, {}, {}};
}

std::vector<std::uint32_t> Values(std::span<const AlleleSize> sizes) {
  std::vector<std::uint32_t> values;
  for (const AlleleSize size : sizes) {
    values.push_back(size.Value());
  }
  return values;
}

using Sizes = std::vector<std::uint32_t>;

TEST(AlleleCatalogue, SortMovesSizesNotCounts) {
  const std::vector<LocusGenotype> genotypes = {Genotype(156, 160), Genotype(152, 160),
                                                Genotype(160, 152)};
  auto catalogue = AlleleCatalogue::Build(genotypes);
  ASSERT_TRUE(catalogue.has_value());
  for (const Sizes& expected : {Sizes{156, 152, 160}, Sizes{152, 156, 160}}) {
    EXPECT_EQ(Values(catalogue->Sizes()), expected);
    EXPECT_EQ(catalogue->Counts()[0], 1);
    EXPECT_EQ(catalogue->Counts()[1], 2);
    EXPECT_EQ(catalogue->Counts()[2], 3);
    catalogue->SortSizes();
  }
  EXPECT_EQ(catalogue->LookUp(AlleleSize{156}), AlleleIndex{1});
  EXPECT_EQ(catalogue->LookUp(AlleleSize{158}), std::nullopt);
  EXPECT_EQ(catalogue->LookUp(kUndefinedAllele), AlleleIndex{0});
}

TEST(AlleleCatalogue, CountsUndefinedAllelesOnTheFirstSize) {
  const std::vector<LocusGenotype> genotypes = {Genotype(0, 0), Genotype(104, 100), Genotype(0, 0)};
  const auto catalogue = AlleleCatalogue::Build(genotypes);
  ASSERT_TRUE(catalogue.has_value());
  EXPECT_EQ(Values(catalogue->Sizes()), (Sizes{104, 100}));
  EXPECT_EQ(catalogue->Counts()[0], 5);
  EXPECT_EQ(catalogue->Counts()[1], 1);
}

TEST(AlleleCatalogue, TakesAHundredSizesAndNamesTheSlotOfTheNext) {
  std::vector<LocusGenotype> genotypes;
  for (std::uint32_t i = 0; i < 50; ++i) {
    genotypes.push_back(Genotype(9999 - i, 100 + i));
  }
  auto full = AlleleCatalogue::Build(genotypes);
  ASSERT_TRUE(full.has_value());
  EXPECT_EQ(full->Sizes().size(), 100U);
  full->SortSizes();
  full->ReIndex(genotypes);
  EXPECT_EQ(genotypes[0].index1, AlleleIndex{99});
  EXPECT_EQ(genotypes[0].index2, AlleleIndex{0});

  // 51 first alleles, then 49 second ones fill the list: the second allele of slot 49 is too much.
  genotypes.push_back(Genotype(500, 501));
  const auto too_many = AlleleCatalogue::Build(genotypes);
  ASSERT_FALSE(too_many.has_value());
  EXPECT_EQ(too_many.error(), Slot{49});
}

RC_GTEST_PROP(AlleleCatalogue, AgreesWithWorkSlotBySlot, ()) {
  const auto distinct = *rc::gen::inRange<std::uint32_t>(1, 60);
  const auto allele =
      rc::gen::map(rc::gen::inRange<std::uint32_t>(0, distinct),
                   [](std::uint32_t rank) { return rank == 0 ? 0 : 100 + rank * 37 % 61; });
  std::vector<LocusGenotype> genotypes;
  for (int slots = *rc::gen::inRange(0, 150); slots > 0; --slots) {
    genotypes.push_back(Genotype(*allele, *allele));
  }
  SlotBySlot expected;
  expected.Build(genotypes);
  auto catalogue = AlleleCatalogue::Build(genotypes);
  RC_ASSERT(catalogue.has_value());
  for (const bool sorted : {false, true}) {
    if (sorted) {
      expected.Sort();
      catalogue->SortSizes();
    }
    for (std::uint32_t k = 0; k < 100; ++k) {
      const std::uint32_t size = k < catalogue->Sizes().size() ? catalogue->Sizes()[k].Value() : 0;
      RC_ASSERT(size == expected.sizes.at(k));
      RC_ASSERT(catalogue->Counts()[k] == expected.counts.at(k));
    }
    for (std::uint32_t size = 0; size < 170; ++size) {
      const auto found = catalogue->LookUp(AlleleSize{size});
      RC_ASSERT((found ? std::uint32_t{found->Value()} : SlotBySlot::kNotListed) ==
                expected.LookUp(size));
    }
  }
  catalogue->ReIndex(genotypes);
  float gene_copies = 0;
  for (const float count : catalogue->Counts()) {
    gene_copies += count;
  }
  RC_ASSERT(gene_copies == static_cast<float>(2 * genotypes.size()));
  for (const LocusGenotype& genotype : genotypes) {
    RC_ASSERT(genotype.index1.Value() == expected.LookUp(genotype.allele1.Value()));
    RC_ASSERT(genotype.index2.Value() == expected.LookUp(genotype.allele2.Value()));
  }
}

TEST(CatalogueAlleles, CataloguesLociInUseOnly) {
  const TempFolder folder;
  LociList loci(*TokenFile::Read(folder.Write("loci.txt", "L1 L2 L3")));
  ASSERT_FALSE(loci.Use({"L1", "L3"}));
  GenotypeTable table(3);
  for (std::uint32_t i = 0; i < 51; ++i) {
    const Slot slot = table.AddIndividual("A");
    table.Genotype(LocusIndex{0}, slot) = Genotype(104, 100);
    table.Genotype(LocusIndex{1}, slot) = Genotype(200 + 2 * i, 201 + 2 * i);
    table.Genotype(LocusIndex{2}, slot) = Genotype(300, 300);
  }
  const auto catalogues = CatalogueAlleles(table, loci);
  ASSERT_TRUE(catalogues.has_value()) << "102 sizes at a locus not in use do not matter";
  EXPECT_EQ(Values((*catalogues)[0].Sizes()), (Sizes{100, 104}));
  EXPECT_EQ(Values((*catalogues)[1].Sizes()), Sizes{});
  EXPECT_EQ(Values((*catalogues)[2].Sizes()), Sizes{300});
  EXPECT_EQ(table.Genotype(LocusIndex{0}, Slot{50}).index1, AlleleIndex{1});

  ASSERT_FALSE(loci.Use({"L2"}));
  const auto too_many = CatalogueAlleles(table, loci);
  ASSERT_FALSE(too_many.has_value());
  EXPECT_EQ(too_many.error().locus, LocusIndex{1});
  EXPECT_EQ(too_many.error().slot, Slot{49});
}

}  // namespace
}  // namespace kaldo
