// SPDX-License-Identifier: GPL-3.0-or-later
// Which sentence a user of the simulations reads for which fault, and in which order.
#include "simulation/simulation_input.h"

#include <functional>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

constexpr std::string_view kOdd =
    "Some parental loci are represented with an odd number of digits!";
constexpr std::string_view kTooFew = "There are too few parents for the pseudo-offspring!";

class SimulationInputTest : public testing::Test {
 protected:
  SimulationInputTest() { Start(Flow::kNonSexed, Procedure::kParental); }

  /// Settings and files without any fault: 9 pseudo-offspring, half of the parents collected.
  void Start(Flow flow, Procedure procedure) {
    settings_ = {};
    settings_.flow = flow;
    settings_.procedure = procedure;
    settings_.loci_file = folder_.Write("loci", "L1 L2");
    settings_.offspring_per_iteration = 9;
    for (std::size_t k = 0; k < 2; ++k) {
      ParentalSet& set = settings_.sets.at(k);
      set.collected_file = folder_.Write(fmt::format("collected{}", k), kSound);
      set.pseudo_collected_sample = folder_.Write(fmt::format("pseudo{}", k), kSound);
      set.uncollected_sample = folder_.Write(fmt::format("uncollected{}", k), kSound);
      set.pseudo_collected = 2;
      set.uncollected = 2;
      set.estimated_collected = 1;
      set.estimated_uncollected = 1;
    }
  }

  auto Load() const { return LoadSimulationInput(settings_); }
  std::string Sentence() const {
    const auto input = Load();
    return input ? "ok" : SentenceOf(input.error());
  }

  /// The sentence when one file has other contents; the file is sound again afterwards.
  std::string SentenceWith(const std::string& file, std::string_view text) const {
    const std::string sound = test::ReadFile(folder_.Path(file));
    folder_.Write(file, text);
    const std::string sentence = Sentence();
    folder_.Write(file, sound);
    return sentence;
  }

  static constexpr std::string_view kSound = "A 1012 2020\nB 1212 2022\n";

  test::TempFolder folder_;      // NOLINT(misc-non-private-member-variables-in-classes)
  SimulationSettings settings_;  // NOLINT(misc-non-private-member-variables-in-classes)
};

TEST_F(SimulationInputTest, LooksAtTheAllelesOfLociInUse) {
  const std::string_view no_allele = "A 0000 2020\nB 0000 2022\n";
  EXPECT_EQ(SentenceWith("uncollected0", no_allele), "A sample has no defined allele at a locus!");
  settings_.loci_in_use = {"L2"};
  EXPECT_EQ(SentenceWith("uncollected0", no_allele), "ok") << "nothing is drawn there";
  settings_.loci_in_use.reset();

  // A hundred sizes in the sample: any file by itself is fine, one more size in the other is not.
  std::string hundred;
  for (int size = 1000; size < 1100; ++size) {
    hundred += fmt::format("S {0}{0} 20202020\n", size);
  }
  folder_.Write("uncollected0", hundred);
  EXPECT_EQ(SentenceWith("collected0", "A 10001001 20202020\nB 10991099 20202020\n"), "ok");
  EXPECT_EQ(SentenceWith("collected0", "A 10001001 20202020\nB 11001099 20202020\n"),
            "More than 100 alleles at a locus!");
}

TEST_F(SimulationInputTest, NeedsTheParentsOfEveryClassWithOffspring) {
  settings_.sets[0].uncollected = 1;  // two thirds collected: 4 C x C, 4 C x U, 1 U x U
  EXPECT_EQ(Sentence(), kTooFew);
  settings_.offspring_per_iteration = 8;  // no U x U
  EXPECT_EQ(Sentence(), "ok");
  settings_.sets[0].uncollected = 0;
  EXPECT_EQ(Sentence(), "ok");
  EXPECT_EQ(SentenceWith("collected0", "A 1012 2020\n"), kTooFew);

  Start(Flow::kSexed, Procedure::kParental);
  settings_.sets[1].uncollected = 0;
  EXPECT_EQ(Sentence(), kTooFew);
  EXPECT_EQ(Load().error().found,
            "2 pseudo-offspring of origin MC x FU need one and one true parents, of which 2 and 0 "
            "are there");
  settings_.sets[1].estimated_uncollected = 0;
  EXPECT_EQ(Sentence(), "ok") << "no class draws an uncollected female";
}

/// All faults at once; each sentence is followed by what mends its fault.
TEST_F(SimulationInputTest, TellsFaultsInTheOrderOfTheScreens) {
  for (const Flow flow : {Flow::kNonSexed, Flow::kSexed}) {
    Start(flow, Procedure::kParental);
    SimulationSettings& s = settings_;
    const SimulationSettings sound = s;
    s.loci_file = s.sets[0].collected_file = s.sets[0].uncollected_sample = "";
    s.tolerance = OffsetTolerance{-1};
    s.iterations = flow == Flow::kSexed ? 0 : 1000;
    s.criterion = 1.01;
    s.start_with = 0;
    s.offspring_per_iteration = 0;
    s.error_model = {ErrorKind::kUniform, 0.11};
    s.loci_in_use = {"L3"};
    s.strategy = LociStrategy::kCumulative;
    s.sequence = {1, 3};
    folder_.Write("uncollected0", "A 0000 202\n");
    using Step = std::pair<std::string, std::function<void()>>;
    const std::vector<Step> steps = {
        {"Names of loci file name is missing!", [&] { s.loci_file = folder_.Path("absent"); }},
        {"Parent file name is missing!", [&] { s.sets[0].collected_file = "nowhere"; }},
        {"File name is missing!",
         [&] { s.sets[0].uncollected_sample = sound.sets[0].uncollected_sample; }},
        {fmt::format("Cannot open file \"{}\"!", folder_.Path("absent")),
         [&] { s.loci_file = sound.loci_file; }},
        {"Cannot open file \"nowhere\"!",
         [&] { s.sets[0].collected_file = folder_.Path("pseudo0"); }},
        {"Enter a positive number", [&] { s.tolerance = OffsetTolerance{0}; }},
        {flow == Flow::kSexed ? "The number of iterations must be above 0!"
                              : "Number of iterations must be inferior to 1000",
         [&] { s.iterations = 1; }},
        {"Enter number between 0 and 1", [&] { s.criterion = 1; }},
        {"The minimum number of loci to start with is 1", [&] { s.start_with = 3; }},
        {"The number of pseudo-offspring must be above 0!", [&] { s.offspring_per_iteration = 9; }},
        {std::string(kOdd), [&] { folder_.Write("uncollected0", "A 0000 2020\n"); }},
        {"Espilon should be between 0 and 0.1",
         [&] { s.error_model = {ErrorKind::kNonUniform, 0, 0.1, 0.1, 0.5, 0.1, 0.1}; }},
        {"Focal allele must be between 0.9 and 1.0",
         // 1 when added from minus2 to plus2, but not with the focal probability last.
         [&] { s.error_model = {ErrorKind::kNonUniform, 0, 0.001, 0.005, 0.939, 0.004, 0.051}; }},
        {"Sum of probabilities must be 1", [&] { s.error_model = ErrorModel{}; }},
        {"There is no locus of that name!", [&] { s.loci_in_use.reset(); }},
        {"Set of indices has to run from 1 to the total number of loci. Not farther!",
         [&] {
           s.sequence = {0, 3};
         }},
        {"Set of indices has to run from 1 to the total number of loci. No zero! Only integers!",
         [&] {
           s.sequence = {1, 1};
         }},
        {"Set of indices has to run from 1 to the total number of loci.",
         [&] {
           s.sequence = {2, 1};
         }},
        {"Fewer loci are in use than the number of loci to start with!", [&] { s.start_with = 2; }},
        {"A sample has no defined allele at a locus!",
         [&] {
           folder_.Write("uncollected0", kSound);
           s.sets[0].uncollected = flow == Flow::kSexed ? 0 : 1;
         }},
        {std::string(kTooFew), [&] { s.sets[0].uncollected = 2; }},
        {"ok", [] {}},
    };
    for (const auto& [sentence, mend] : steps) {
      EXPECT_EQ(Sentence(), sentence);
      mend();
    }
  }
}

}  // namespace
}  // namespace kaldo
