// SPDX-License-Identifier: GPL-3.0-or-later
// What the reports say about the alleles of a locus: unit distance, stepping, frequencies.
#include <set>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "genotypes/allele_listing.h"
#include "genotypes/genotype_reader.h"
#include "genotypes/stepping_condition.h"
#include "genotypes/unit_distance.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::Lines;
using test::TempFolder;

std::vector<AlleleSize> Sizes(const std::vector<std::uint32_t>& values) {
  return {values.begin(), values.end()};
}

std::string NoteOn(const std::vector<std::uint32_t>& sizes) {
  return UnitDistanceNote(UnitDistance(Sizes(sizes)));
}

TEST(UnitDistanceNote, NamesTheRepeat) {
  EXPECT_EQ(NoteOn({100, 102}), "(Unit distance = 2    <=>  Di)");
  EXPECT_EQ(NoteOn({100, 106, 109}), "(Unit distance = 3    <=>  Tri)");
  EXPECT_EQ(NoteOn({100, 104, 112}), "(Unit distance = 4    <=>  Tetra)");
  EXPECT_EQ(NoteOn({100, 105, 111}), "(Unit distance = 5 )");
  EXPECT_EQ(NoteOn({100, 104, 105}), "(Unit distance = 1 )");
  EXPECT_EQ(NoteOn({150}), "(Unit distance = -150 )");
}

/// 100 slots of ascending sizes, the rest empty.
std::array<std::int64_t, 100> RandomSlots() {
  const auto drawn = *rc::gen::container<std::set<std::uint32_t>>(
      rc::gen::map(rc::gen::inRange<std::uint32_t>(50, 90),
                   [step = *rc::gen::inRange<std::uint32_t>(1, 5)](auto n) { return n * step; }));
  std::array<std::int64_t, 100> slots{};
  std::copy(drawn.begin(), drawn.end(), slots.begin());
  return slots;
}

std::vector<AlleleSize> Listed(const std::array<std::int64_t, 100>& slots) {
  std::vector<AlleleSize> sizes;
  for (std::size_t k = 0; slots.at(k) != 0; ++k) {
    sizes.emplace_back(static_cast<std::uint32_t>(slots.at(k)));
  }
  return sizes;
}

RC_GTEST_PROP(UnitDistance, AgreesWithWorkSlotBySlot, ()) {
  const auto slots = RandomSlots();
  std::int64_t distance = slots[1] - slots[0];
  for (std::size_t k = 2; k < 100 && slots.at(k) != 0; ++k) {
    const std::int64_t difference = slots.at(k) - slots.at(k - 1);
    if (difference >= 1 && difference <= distance - 1) {
      distance = difference;
    }
  }
  RC_ASSERT(UnitDistance(Listed(slots)).Value() == distance);
}

RC_GTEST_PROP(IsInStep, AgreesWithWorkSlotBySlot, ()) {
  const auto slots = RandomSlots();
  RC_PRE(slots[0] != 0);
  std::array<std::int64_t, 100> distances{};
  std::int64_t smallest = std::abs(slots[1] - slots[0]);
  for (std::size_t i = 0; i <= 98; ++i) {
    if (slots.at(i + 1) != 0) {
      distances.at(i) = std::abs(slots.at(i + 1) - slots.at(i));
      smallest = std::min(smallest, distances.at(i));
    }
  }
  bool in_step = true;
  for (const std::int64_t distance : distances) {
    in_step = in_step && distance != 1 && distance % smallest == 0;
  }
  RC_CLASSIFY(in_step, "in step");
  RC_ASSERT(IsInStep(Listed(slots)) == in_step);
}

TEST(IsInStep, TakesALocusWithoutDistances) {
  EXPECT_TRUE(IsInStep(Sizes({})));
  EXPECT_TRUE(IsInStep(Sizes({151})));
  EXPECT_FALSE(IsInStep(Sizes({100, 101})));
}

/// A small study: collected parents and offspring in one table, catalogued.
struct Study {
  Study(const std::string& locus_names, const std::vector<std::string>& in_use,
        const std::string& parents, const std::string& offspring)
      : loci(*TokenFile::Read(folder.Write("loci.txt", locus_names))), table(loci.Count()) {
    EXPECT_FALSE(loci.Use(in_use));
    AppendIndividuals(*TokenFile::Read(folder.Write("parents.txt", parents)),
                      {loci.Count(), Separators::kAllowed}, loci, table);
    AppendIndividuals(*TokenFile::Read(folder.Write("offspring.txt", offspring)),
                      {loci.Count(), Separators::kNone}, loci, table);
    catalogues = *CatalogueAlleles(table, loci);
  }

  TempFolder folder;
  LociList loci;
  GenotypeTable table;
  AlleleCatalogues catalogues;
};

TEST(AlleleListing, PutsCountsInOrderOfAppearanceBelowSortedSizes) {
  // L1: 156, 152 and 160 appear in this order; the separator adds 2 to the count of 156.
  // L3: the undefined locus of O1 and the separator add 4 to the count of 200.
  const Study study("L1 L2 L3", {"L1", "L3"},
                    "P1 156152 100100 200204\nP2 152160 100100 204204\n*\n",
                    "O1 160160 100100 000000\n");
  EXPECT_EQ(AlleleListing(study.loci, study.catalogues, study.table.NumberOfIndividuals()),
            Lines({"LIST OF ALLELES FOR EACH LOCUS", "", "L1\t152\t156\t160\t",
                   "frequency\t0.375\t0.25\t0.375\t", "sum total\t1", "", "L3\t200\t204\t",
                   "frequency\t0.625\t0.375\t", "sum total\t1", ""}));
}

TEST(CheckStepping, ListsTheLociOutOfStep) {
  const std::string head = Lines(
      {"STEPPING ERROR FILE :", "",
       "Stepping condition :\t\tWithin each locus, the smallest allelic distance (difference in "
       "nbp)",
       "\t\thas to be larger than one and all other distances have to be multiples",
       "\t\t(of the smallest allelic distance).", "",
       "The following loci do not satisfy the stepping condition :", ""});
  const std::string parents = "P1 110104 100102 100101 105101 100100\n";
  const std::string offspring = "O1 104100 102106 100100 100100 100100\n";
  const std::string names = "Six Fine Unused One Single";

  const Study some(names, {"Six", "Fine", "One", "Single"}, parents, offspring);
  const SteppingReport out_of_step = CheckStepping(some.loci, some.catalogues);
  EXPECT_TRUE(out_of_step.any_out_of_step);
  EXPECT_EQ(out_of_step.text,
            head + Lines({"Locus Six :", "\tAlleles : 100 104 110 ", "\tAllelic distances : 4  6  ",
                          "", "Locus One :", "\tAlleles : 100 101 105 ",
                          "\tAllelic distances : 1  4  ", ""}));

  const Study none(names, {"Fine", "Single"}, parents, offspring);
  const SteppingReport in_step = CheckStepping(none.loci, none.catalogues);
  EXPECT_FALSE(in_step.any_out_of_step);
  EXPECT_EQ(in_step.text, head);
}

}  // namespace
}  // namespace kaldo
