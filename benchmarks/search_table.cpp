// SPDX-License-Identifier: GPL-3.0-or-later
// How much faster the production search is than the plain scan, in one run on one thread:
// microseconds per offspring of both and their ratio, for 20 loci with 12 alleles and 1 % typing
// errors. A quarter of the offspring has both true parents among the N collected ones, half one, a
// quarter none. Both searches must agree on every offspring that both have searched.
//
// build/release/benchmarks/kaldo_search_table [LARGEST_N [MODEL]]
#include <array>
#include <chrono>
#include <cstdlib>
#include <random>
#include <string_view>

#include <fmt/format.h>

#include "allocation/pair_searcher.h"
#include "genotypes/catalogued_loci.h"
#include "genotypes/number_text.h"

namespace kaldo {
namespace {

constexpr std::uint32_t kLoci = 20;
constexpr std::uint32_t kAlleles = 12;
constexpr double kTypingError = 0.01;

/// N collected parents, as many uncollected ones that are not in the table, and their offspring.
class Study {
 public:
  Study(std::uint32_t parents, std::uint32_t offspring) : table_(kLoci), parents_(parents) {
    for (std::uint32_t i = 0; i < parents; ++i) {
      const Slot slot = table_.AddIndividual("");
      for (std::uint32_t locus = 0; locus < kLoci; ++locus) {
        table_.Genotype(LocusIndex{locus}, slot) = RandomGenotype();
      }
    }
    for (std::uint32_t i = 0; i < offspring; ++i) {
      AddOffspring(i % 4 == 0, i % 4 < 3);
    }
    for (std::uint32_t locus = 0; locus < kLoci; ++locus) {
      loci_.emplace_back(locus);
      catalogues_.push_back(AlleleCatalogue::Build(table_.Locus(LocusIndex{locus})).value());
      catalogues_.back().SortSizes();
      catalogues_.back().ReIndex(table_.Locus(LocusIndex{locus}));
    }
    groups_.push_back({{0, parents}, {0, parents}});
  }

  std::vector<TransmissionMatrix> Matrices(const ErrorModel& model) const {
    std::vector<TransmissionMatrix> matrices;
    for (const AlleleCatalogue& catalogue : catalogues_) {
      matrices.push_back(BuildMatrix(model, catalogue.Sizes()));
    }
    return matrices;
  }

  const GenotypeTable& Table() const { return table_; }
  std::span<const LocusIndex> Loci() const { return loci_; }
  Candidates Parents() const { return {Flow::kNonSexed, groups_, {}}; }
  Slot Offspring(std::uint32_t i) const { return Slot{parents_ + i}; }

 private:
  std::uint32_t Draw(std::uint32_t count) { return static_cast<std::uint32_t>(random_() % count); }
  AlleleSize RandomAllele() { return AlleleSize{100 + 2 * Draw(kAlleles)}; }

  LocusGenotype RandomGenotype() {
    LocusGenotype genotype;
    genotype.allele1 = RandomAllele();
    genotype.allele2 = RandomAllele();
    return genotype;
  }

  AlleleSize Inherited(const LocusGenotype& parent) {
    const bool misread = std::uniform_real_distribution<>(0, 1)(random_) < kTypingError;
    return misread ? RandomAllele() : Draw(2) == 0 ? parent.allele1 : parent.allele2;
  }

  void AddOffspring(bool both_collected, bool one_collected) {
    const Slot slot = table_.AddIndividual("");
    const Slot mother{Draw(parents_)};
    const Slot father{Draw(parents_)};
    for (std::uint32_t l = 0; l < kLoci; ++l) {
      const LocusIndex locus{l};
      LocusGenotype& genotype = table_.Genotype(locus, slot);
      genotype.allele1 =
          Inherited(one_collected ? table_.Genotype(locus, mother) : RandomGenotype());
      genotype.allele2 =
          Inherited(both_collected ? table_.Genotype(locus, father) : RandomGenotype());
    }
  }

  std::mt19937 random_{20260301};
  GenotypeTable table_;
  std::uint32_t parents_;
  std::vector<LocusIndex> loci_;
  AlleleCatalogues catalogues_;
  std::vector<CandidateGroup> groups_;
};

using Clock = std::chrono::steady_clock;

double Microseconds(Clock::time_point since) {
  return std::chrono::duration<double, std::micro>(Clock::now() - since).count();
}

bool SameSearch(const AllocationOutcome& a, const AllocationOutcome& b) {
  return a.pair_entries == b.pair_entries && a.pairs == b.pairs &&
         a.more_than_five == b.more_than_five && a.best_likelihood == b.best_likelihood;
}

void Row(std::uint32_t parents, std::string_view name, const ErrorModel& model) {
  const std::uint32_t scanned = parents >= 50'000 ? 1 : parents >= 5'000 ? 8 : 100;
  const std::uint32_t searched = parents > 1'000 ? 20'000 : 100'000;
  const Study study(parents, searched);
  const auto matrices = study.Matrices(model);
  const RunObserver observer;

  std::vector<AllocationOutcome> of_scan(scanned);
  const auto scan_start = Clock::now();
  TransmissionScores scores(kLoci, parents);
  for (std::uint32_t i = 0; i < scanned; ++i) {
    ComputeTransmissionScores(study.Table(), study.Offspring(i), study.Loci(), matrices, scores);
    of_scan[i] = ScanPairs(scores, study.Parents(), observer);
  }
  const double scan = Microseconds(scan_start) / scanned;

  std::vector<AllocationOutcome> of_search(searched);
  const auto search_start = Clock::now();
  PairSearcher searcher;
  searcher.Prepare(study.Table(), parents, study.Loci(), matrices, study.Parents());
  for (std::uint32_t i = 0; i < searched; ++i) {
    of_search[i] = searcher.Search(study.Offspring(i), observer);
  }
  const double search = Microseconds(search_start) / searched;

  for (std::uint32_t i = 0; i < scanned; ++i) {
    if (!SameSearch(of_scan[i], of_search[i])) {
      fmt::print("The searches differ for offspring {}.\n", i);
      std::exit(1);
    }
  }
  fmt::print("{:<12}{:>8}{:>14.1f}{:>14.2f}{:>12.0f}\n", name, parents, scan, search,
             scan / search);
}

void Table(std::int32_t largest, std::string_view wanted) {
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.02;
  const ErrorModel non_uniform;
  ErrorModel none;
  none.kind = ErrorKind::kNoError;
  fmt::print(
      "{} loci with {} alleles, {} typing error; offspring with both, one, none of their "
      "parents collected: 1/4, 1/2, 1/4\n",
      kLoci, kAlleles, kTypingError);
  fmt::print("{:<12}{:>8}{:>14}{:>14}{:>12}\n", "model", "parents", "scan, us", "search, us",
             "ratio");
  for (const std::uint32_t parents : {200U, 1'000U, 5'000U, 50'000U}) {
    if (parents > static_cast<std::uint32_t>(largest)) {
      break;
    }
    const std::array<std::pair<std::string_view, const ErrorModel*>, 3> models = {
        {{"Uniform", &uniform}, {"Non Uniform", &non_uniform}, {"No Error", &none}}};
    for (const auto& [name, model] : models) {
      if (wanted.empty() || wanted == name) {
        Row(parents, name, *model);
      }
    }
  }
}

}  // namespace
}  // namespace kaldo

int main(int argc, char** argv) {
  kaldo::Table(argc > 1 ? kaldo::ParseInteger(argv[1]).value_or(0) : 50'000,
               argc > 2 ? argv[2] : "");
}
