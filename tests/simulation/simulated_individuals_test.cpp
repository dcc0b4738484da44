// SPDX-License-Identifier: GPL-3.0-or-later
// Parents drawn from a sample and pseudo-offspring made from them, with draws followed by hand.
// Seed 1 draws 41, 18467, 6334, 26500, 19169, 15724, 11478, 29358; as fractions of three digits
// these are .041, .467, .334, .500, .169, .724, .478, .358.
#include <array>
#include <random>
#include <utility>

#include <gtest/gtest.h>

#include "simulation/simulated_parents.h"

namespace kaldo {
namespace {

using Sizes = std::pair<std::uint32_t, std::uint32_t>;

/// Individuals of one locus by their allele sizes.
GenotypeTable OneLocus(const std::vector<Sizes>& genotypes) {
  GenotypeTable table(1);
  for (const auto& [size1, size2] : genotypes) {
    LocusGenotype& genotype = table.Genotype(LocusIndex{0}, table.AddIndividual("S"));
    genotype.allele1 = AlleleSize{size1};
    genotype.allele2 = AlleleSize{size2};
  }
  return table;
}

AlleleCatalogue CatalogueOf(const std::vector<Sizes>& genotypes) {
  return AlleleCatalogue::Build(OneLocus(genotypes).Locus(LocusIndex{0})).value();
}

RepresentativeSample SampleOf(const std::vector<Sizes>& genotypes) {
  return {{CatalogueOf(genotypes)}, genotypes.size()};
}

std::uint32_t Drawn(const RepresentativeSample& sample, double u) {
  return sample.Draw(LocusIndex{0}, u).Value();
}

Sizes SizesOf(const GenotypeTable& table, std::uint32_t locus, std::uint32_t slot) {
  const LocusGenotype& genotype = table.Genotype(LocusIndex{locus}, Slot{slot});
  return {genotype.allele1.Value(), genotype.allele2.Value()};
}

TEST(CumulativeFrequencies, FollowFirstAppearanceAndCountMissingAllelesOnTheFirstPlace) {
  // First alleles 0, 156, 152, then second alleles 0, 152, 156: the two zeros count on 156.
  const std::vector<Sizes> genotypes = {{0, 0}, {156, 152}, {152, 156}};
  const CumulativeFrequencies cumulative =
      ComputeCumulativeFrequencies(CatalogueOf(genotypes), genotypes.size());
  EXPECT_EQ(cumulative[0], static_cast<float>(4.0 / 6.0));
  EXPECT_EQ(cumulative[1], 1.0F);
  EXPECT_EQ(cumulative[99], 1.0F);
  const RepresentativeSample sample = SampleOf(genotypes);
  EXPECT_EQ(Drawn(sample, 0.0), 156U);
  EXPECT_EQ(Drawn(sample, 0.5), 156U) << "the larger size came first and is the frequent one";
  EXPECT_EQ(Drawn(sample, 0.667), 152U);
}

TEST(CumulativeFrequencies, AreSummedInDoublePrecision) {
  // Ten alleles of frequency 0.1: summed in single precision they would make 1.0000001.
  std::vector<Sizes> genotypes;
  for (std::uint32_t size = 100; size < 110; size += 2) {
    genotypes.emplace_back(size, size + 1);
  }
  const auto cumulative = ComputeCumulativeFrequencies(CatalogueOf(genotypes), 5);
  EXPECT_EQ(cumulative[2], 0.3F);
  EXPECT_EQ(cumulative[9], 1.0F);
  EXPECT_EQ(cumulative[10], 1.0F);
}

TEST(RepresentativeSample, DrawsTheFirstAlleleWhoseRunningSumReachesTheDraw) {
  // 156 three times, 152 four times, 154 three times. In single precision 0.3 lies above 0.3, and
  // 0.7 below 0.7.
  const RepresentativeSample sample =
      SampleOf({{156, 152}, {156, 152}, {156, 154}, {152, 154}, {152, 154}});
  for (const auto& [u, size] : {std::pair(0.0, 156U),
                                {0.3, 156U},
                                {0.301, 152U},
                                {0.699, 152U},
                                {0.7, 154U},
                                {0.999, 154U},
                                {1.5, 154U}}) {
    EXPECT_EQ(Drawn(sample, u), size) << u << ": at the latest the last allele, never an empty one";
  }
  EXPECT_EQ(RepresentativeSample({AlleleCatalogue()}, 3).Draw(LocusIndex{0}, 0.5),
            kUndefinedAllele);
}

TEST(DrawParents, DrawsAtEveryLocusOfTheListInUseOrNot) {
  // 152 four times, 150 six times.
  const AlleleCatalogue catalogue =
      CatalogueOf({{152, 150}, {152, 150}, {152, 150}, {152, 150}, {150, 150}});
  const RepresentativeSample sample({catalogue, catalogue}, 5);
  for (const std::uint8_t first_in_use : {std::uint8_t{0}, std::uint8_t{1}}) {
    GenotypeTable table(2);
    for (int i = 0; i < 3; ++i) {
      table.AddIndividual("unnamed");
    }
    RandomNumbers random(1);
    const std::vector<std::uint8_t> in_use = {first_in_use, 1};
    DrawParents(table, {1, 3}, sample, in_use, UnitDraw(3), random);
    EXPECT_EQ(SizesOf(table, 0, 1), first_in_use != 0 ? Sizes(152, 150) : Sizes(0, 0));
    EXPECT_EQ(SizesOf(table, 1, 1), Sizes(152, 150));
    EXPECT_EQ(SizesOf(table, 0, 2), first_in_use != 0 ? Sizes(152, 150) : Sizes(0, 0));
    EXPECT_EQ(SizesOf(table, 1, 2), Sizes(150, 152));
    EXPECT_EQ(SizesOf(table, 1, 0), Sizes(0, 0)) << "not of the group";
    EXPECT_EQ(random.State(), RandomJump(2 * DrawsPerParent(2)).From(1));
  }
}

TEST(DrawTrueParents, DrawsBothAgainWhileTheyAreEqual) {
  // 41 and 18467 are odd, 6334 and 26500 even; 19169 is odd and 15724 even.
  RandomNumbers random(1);
  const ParentPair pair = DrawTrueParents({{5, 7}, {5, 7}, true}, random);
  EXPECT_EQ(pair, (ParentPair{Slot{6}, Slot{5}}));
  EXPECT_EQ(random.State(), RandomJump(6).From(1));
  // 41 = 13 x 3 + 2, 18467 = 4616 x 4 + 3.
  RandomNumbers other(1);
  EXPECT_EQ(DrawTrueParents({{2, 5}, {5, 9}, false}, other), (ParentPair{Slot{4}, Slot{8}}));
  EXPECT_EQ(other.State(), RandomJump(2).From(1));
}

TEST(Transmit, StopsWhereTheRunningSumIsNotZeroAndReachesTheDraw) {
  const auto received = [](const std::vector<double>& row, double u) {
    TransmissionMatrix matrix(row.size());
    for (std::size_t k = 0; k < row.size(); ++k) {
      matrix(1, k) = row[k];
    }
    return Transmit(matrix, AlleleIndex{1}, u).Value();
  };
  const std::vector<double> row = {0, 0.25, 0.5, 0.125};
  for (const auto& [u, allele] :
       {std::pair(0.0, 1), {0.25, 1}, {0.251, 2}, {0.75, 2}, {0.751, 3}, {0.875, 3}, {0.999, 3}}) {
    EXPECT_EQ(received(row, u), allele) << u;
  }
  EXPECT_EQ(received({0.5, 0.5}, 0), 0);
  EXPECT_EQ(received({0, 0, 0}, 0.5), 2) << "at the latest the last allele";
  EXPECT_EQ(received({0.5, 0.25, 0}, 0.9), 2) << "also where nothing speaks for it";
  EXPECT_EQ(received({-0.5, 1.5}, 0), 1) << "a negative sum reaches no draw";
}

TEST(ReadingTable, ReadsWhatTransmitReadsForEveryDraw) {
  std::mt19937 random(20260301);
  std::uniform_real_distribution<> share(0, 1);
  ReadingTable table;
  for (int round = 0; round < 600; ++round) {
    const UnitDraw draw(static_cast<std::size_t>(1 + round % 4));
    const std::size_t alleles = 1 + random() % 12;
    TransmissionMatrix matrix(alleles);
    for (std::size_t i = 0; i < alleles; ++i) {
      for (std::size_t j = 0; j < alleles; ++j) {
        // Sums that lie on the grid of the draws, beside it, at 0, below 0 and beyond 1.
        const std::array<double, 5> values = {0, draw.At(static_cast<std::uint32_t>(random() % 5)),
                                              share(random) / 4, 0.1, -0.05};
        matrix(i, j) = values[random() % (round % 3 == 0 ? 5 : 4)];
      }
    }
    table.Build(matrix, draw);
    for (std::uint32_t step = 0; step < draw.Steps(); ++step) {
      for (std::uint8_t parental = 0; parental < alleles; ++parental) {
        ASSERT_EQ(table.Read(AlleleIndex{parental}, step),
                  Transmit(matrix, AlleleIndex{parental}, draw.At(step)))
            << round << ' ' << step;
      }
    }
  }
}

TEST(ProducePseudoOffspring, DrawsBothChoicesAndThenBothReadingsAtEachLocus) {
  // Parents 0 and 1 at the second locus: 100102 and 104106. At the first one, not in use, four
  // numbers are drawn in vain. 19169 is odd: 102 of the first; 15724 is even: 104 of the second.
  GenotypeTable table(2);
  for (int i = 0; i < 3; ++i) {
    table.AddIndividual("unnamed");
  }
  const auto parents = OneLocus({{100, 102}, {104, 106}});
  for (std::uint32_t slot = 0; slot < 2; ++slot) {
    table.Genotype(LocusIndex{1}, Slot{slot}) = parents.Genotype(LocusIndex{0}, Slot{slot});
  }
  table.Genotype(LocusIndex{0}, Slot{2}).allele1 = AlleleSize{100};  // of an earlier iteration
  AlleleCatalogue catalogue = AlleleCatalogue::Build(table.Locus(LocusIndex{1}).first(2)).value();
  catalogue.SortSizes();
  catalogue.ReIndex(table.Locus(LocusIndex{1}).first(2));
  // .478 goes beyond the first entry of 102's row to the second; .358 is the first of 104's.
  TransmissionMatrix matrix(4);
  matrix(1, 0) = 0.4;
  matrix(1, 3) = 0.6;
  matrix(2, 1) = 0.358;
  matrix(2, 2) = 0.642;
  const std::vector<TransmissionMatrix> matrices = {TransmissionMatrix(), matrix};
  const std::vector<AlleleCatalogue> catalogues = {AlleleCatalogue(), catalogue};
  const std::vector<std::uint8_t> in_use = {0, 1};
  std::vector<ReadingTable> readings(2);
  for (const bool written_out : {false, true}) {
    if (written_out) {
      readings[1].Build(matrix, UnitDraw(3));
    }
    RandomNumbers random(1);
    ProducePseudoOffspring(table, Slot{2}, {Slot{0}, Slot{1}}, in_use, matrices, readings,
                           catalogues, UnitDraw(3), random);
    EXPECT_EQ(SizesOf(table, 0, 2), Sizes(0, 0));
    EXPECT_EQ(SizesOf(table, 1, 2), Sizes(106, 102)) << "the allele of the first parent first";
    EXPECT_EQ(random.State(), RandomJump(DrawsPerPseudoOffspring(2)).From(1));
  }
}

}  // namespace
}  // namespace kaldo
