// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/allele_catalogue.h"

#include <gtest/gtest.h>

#include "genotypes/catalogued_loci.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

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
