// SPDX-License-Identifier: GPL-3.0-or-later
// Random studies, written for other programs and read again: the same individuals with the same
// genotypes, and the same parents allocated to the same offspring.
#include <random>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "allocation/allocation_run.h"
#include "interchange/export/genotype_export.h"
#include "interchange/import/import_run.h"
#include "tests/support/memory_files.h"

namespace kaldo {
namespace {

/// A study in the files of this program.
struct OwnStudy {
  AllocationSettings settings;
  std::map<std::string, std::string> texts;
  OriginalNames names;
};

class StudyMaker {
 public:
  /// `signs` are those that stand in names, beside letters and digits.
  StudyMaker(unsigned seed, std::string signs, std::uint32_t largest)
      : random_(seed), signs_(std::move(signs)), largest_(largest) {}

  OwnStudy Make(Flow flow) {
    OwnStudy study;
    study.settings.flow = flow;
    study.settings.allow_undefined_parents = Draw(0, 1) == 1;
    study.settings.confidence.computed = false;
    study.settings.offspring_file = "offspring.txt";
    study.settings.loci_file = "loci.txt";
    loci_ = Draw(1, 6);
    for (std::uint32_t k = 0; k < loci_; ++k) {
      study.texts["loci.txt"] += fmt::format("L{}\n", k);
      Rename(study.names, NameKind::kLocus, fmt::format("L{}", k));
    }
    const std::uint32_t groups = Draw(1, 3);
    for (std::uint32_t k = 1; k <= groups; ++k) {
      Rename(study.names, NameKind::kGroup, fmt::format("{}", k));
    }
    if (flow == Flow::kSexed) {
      study.settings.males_file = "males.txt";
      study.settings.females_file = "females.txt";
      AddParents(study, "males.txt", groups);
      AddParents(study, "females.txt", groups);
    } else {
      study.settings.parents_file = "parents.txt";
      AddParents(study, "parents.txt", groups);
    }
    AddIndividuals(study, "offspring.txt", Draw(1, 9), 8);
    return study;
  }

 private:
  std::uint32_t Draw(std::uint32_t low, std::uint32_t high) {
    return std::uniform_int_distribution<std::uint32_t>(low, high)(random_);
  }

  /// Every second one has a name of its own in the laboratory.
  void Rename(OriginalNames& names, NameKind kind, const std::string& code) {
    if (Draw(0, 1) == 0) {
      return;
    }
    std::string name = std::vector<std::string>{"*", "UC", "Adult of the pond ", "0"}[Draw(0, 3)];
    for (std::uint32_t k = Draw(0, 3); k > 0; --k) {
      name.append(Draw(1, 9), signs_[Draw(0, static_cast<std::uint32_t>(signs_.size()) - 1)]);
    }
    names.Add({kind, code, name + code + (Draw(0, 3) == 0 ? "_" : "")});
  }

  /// Groups may lack a sex; the last one lacks none.
  void AddParents(OwnStudy& study, const std::string& file, std::uint32_t groups) {
    const std::uint32_t one_in = study.settings.allow_undefined_parents ? 6 : 0;
    for (std::uint32_t k = 1; k <= groups; ++k) {
      study.texts[file] += k == 1 ? "" : "*\n";
      AddIndividuals(study, file, k == groups ? Draw(1, 6) : Draw(0, 4), one_in);
    }
  }

  void AddIndividuals(OwnStudy& study, const std::string& file, std::uint32_t count,
                      std::uint32_t one_in) {
    for (; count > 0; --count) {
      const std::string code = fmt::format("{}{}", file[0], ++individuals_);
      Rename(study.names, NameKind::kIndividual, code);
      std::string& text = study.texts[file] += code;
      for (std::uint32_t locus = 0; locus < loci_; ++locus) {
        const bool is_typed = locus == 0 || one_in == 0 || Draw(1, one_in) != 1;
        text += is_typed ? fmt::format(" {:04}{:04}", Allele(), Allele()) : " 00000000";
      }
      text += '\n';
    }
  }

  std::uint32_t Allele() { return largest_ - 2 * Draw(0, 3); }

  std::mt19937 random_;
  std::string signs_;
  std::uint32_t largest_;
  std::uint32_t loci_ = 0;
  std::uint32_t individuals_ = 0;
};

std::string NameOf(const AllocationInput& input, const OriginalNames& names, Slot slot) {
  return names.Original(NameKind::kIndividual, std::string(input.table.Name(slot).Text()));
}

using Texts = std::vector<std::string>;

/// The loci, the individuals of each group, side by side, and the offspring; groups without anybody
/// left out.
std::vector<Texts> TellStudy(const AllocationInput& input, const OriginalNames& names) {
  std::vector<SlotRange> ranges;
  for (const CandidateGroup& group : input.groups) {
    if (group.first.Size() + group.second.Size() > 0) {
      ranges.insert(ranges.end(), {group.first, group.second});
    }
  }
  ranges.push_back(input.offspring);
  std::vector<Texts> told(1 + ranges.size());
  for (std::uint32_t k = 0; k < input.loci.Count(); ++k) {
    told[0].push_back(names.Original(NameKind::kLocus, input.loci.Name(LocusIndex{k})));
  }
  for (std::size_t range = 0; range < ranges.size(); ++range) {
    for (Slot slot{ranges[range].begin}; slot < Slot{ranges[range].end}; ++slot) {
      std::string text = NameOf(input, names, slot);
      for (std::uint32_t k = 0; k < input.loci.Count(); ++k) {
        const LocusGenotype& genotype = input.table.Genotype(LocusIndex{k}, slot);
        text += fmt::format(" {}/{}", genotype.allele1.Value(), genotype.allele2.Value());
      }
      told[1 + range].push_back(std::move(text));
    }
  }
  return told;
}

/// What an allocation of the study finds, offspring by offspring.
Texts TellAllocation(const AllocationSettings& settings, const AllocationInput& input,
                     const OriginalNames& names) {
  RunObserver nobody;
  LocalThreads threads;
  Texts told;
  for (const AllocationOutcome& outcome : Allocate(settings, input, nobody, threads).outcomes) {
    std::string text =
        fmt::format("{} {} {} {} {} {}", outcome.best_likelihood, outcome.more_than_five,
                    outcome.par1_uncollected, outcome.par2_uncollected, outcome.errors_par1,
                    outcome.errors_par2);
    for (const ParentPair& pair : outcome.Pairs()) {
      text += fmt::format(" [{}, {}]", NameOf(input, names, pair.parent1),
                          NameOf(input, names, pair.parent2));
    }
    told.push_back(std::move(text));
  }
  return told;
}

/// The files that an import of the text writes. Of populations, the last are the offspring.
OwnStudy Imported(const std::string& text, const AllocationSettings& settings) {
  ImportChoices choices;
  choices.files = {{"foreign"}};
  choices.folder = "out";
  choices.missing_parents = MissingParents::kKeep;
  std::size_t populations = 0;
  for (std::size_t at = text.find("\nPOP\n"); at != std::string::npos;
       at = text.find("\nPOP\n", at + 1)) {
    choices.offspring_populations = {fmt::format("pop{}", ++populations)};
  }
  test::MemoryFiles files({{"foreign", text}});
  const auto study = ImportStudy(choices, files);
  OwnStudy imported{settings, {}, {}};
  if (!study) {
    ADD_FAILURE() << study.error().Text() << text;
    return imported;
  }
  for (const StudyFile& file : study->files) {
    imported.texts[std::string(file.name.substr(1))] = file.text;
  }
  imported.texts.erase("Import report.txt");
  imported.names = OriginalNames::FromText(imported.texts["names.tsv"], "names").value();
  return imported;
}

AllocationInput Loaded(const OwnStudy& study) {
  test::MemoryFiles files(study.texts);
  return LoadAllocationInput(study.settings, files).value();
}

std::string Csv(const AllocationInput& input, const OriginalNames& names, Flow flow) {
  return GenotypesCsv(input, names, flow);
}

std::string Genepop(const AllocationInput& input, const OriginalNames& names, Flow flow) {
  return GenepopText(input, names, flow).value();
}

struct RoundTrip {
  std::string (*write)(const AllocationInput&, const OriginalNames&, Flow);
  std::string signs;  ///< that its names may hold
  std::uint32_t largest_allele;
  std::vector<Flow> flows;  ///< GENEPOP knows no sexes
};

TEST(RoundTrip, GivesTheSameStudyAndTheSameAllocation) {
  const std::string any_name = " '\".-_();/=";
  const std::vector<RoundTrip> trips = {
      {Csv, any_name + ",\t\n\r", 9999, {Flow::kNonSexed, Flow::kSexed}},
      {Genepop, any_name, 999, {Flow::kNonSexed}}};
  for (const RoundTrip& trip : trips) {
    for (unsigned seed = 0; seed < 400 && !testing::Test::HasFailure(); ++seed) {
      SCOPED_TRACE(seed);
      const Flow flow = trip.flows[seed % trip.flows.size()];
      const OwnStudy own = StudyMaker(seed, trip.signs, trip.largest_allele).Make(flow);
      const AllocationInput input = Loaded(own);
      const OwnStudy once = Imported(trip.write(input, own.names, flow), own.settings);
      ASSERT_FALSE(testing::Test::HasFailure());
      const AllocationInput again = Loaded(once);
      EXPECT_EQ(TellStudy(again, once.names), TellStudy(input, own.names));
      EXPECT_EQ(TellAllocation(once.settings, again, once.names),
                TellAllocation(own.settings, input, own.names));
      const OwnStudy twice = Imported(trip.write(again, once.names, flow), own.settings);
      EXPECT_EQ(twice.texts, once.texts);
    }
  }
}

}  // namespace
}  // namespace kaldo
