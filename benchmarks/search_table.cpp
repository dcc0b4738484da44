// SPDX-License-Identifier: GPL-3.0-or-later
// How much faster the production search is than the plain scan, in one run on one thread:
// microseconds per offspring of both and their ratio, for 20 loci with 12 alleles and 1 % typing
// errors. A quarter of the offspring has both true parents among the N collected ones, half one, a
// quarter none. Both searches must agree on every offspring that both have searched.
//
// build/release/benchmarks/kaldo_search_table [LARGEST_N [MODEL [portable]]]
// "portable" leaves out every vector instruction that not all processors of the kind have; a model
// of "" stands for all.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <hwy/targets.h>
#include <limits>
#include <random>
#include <string_view>

#include <fmt/format.h>

#include "base/number_text.h"
#include "genotypes/catalogued_loci.h"
#include "search/pair_searcher.h"

namespace kaldo {
namespace {

constexpr double kTypingError = 0.01;

/// What a study is made of.
struct Shape {
  std::string_view name;
  std::uint32_t parents = 1'000;
  std::uint32_t offspring = 100;
  std::uint32_t loci = 20;
  std::uint32_t alleles = 12;
  double missing = 0;         ///< share of the offspring's loci that are not typed
  std::uint32_t sibship = 1;  ///< collected parents that are full sibs of each other
};

/// N collected parents, as many uncollected ones that are not in the table, and their offspring.
class Study {
 public:
  explicit Study(const Shape& shape) : shape_(shape), table_(shape.loci), parents_(shape.parents) {
    for (std::uint32_t i = 0; i < parents_; ++i) {
      AddParent(i);
    }
    for (std::uint32_t i = 0; i < shape.offspring; ++i) {
      AddOffspring(i % 4 == 0, i % 4 < 3);
    }
    for (std::uint32_t locus = 0; locus < shape.loci; ++locus) {
      loci_.emplace_back(locus);
      catalogues_.push_back(AlleleCatalogue::Build(table_.Locus(LocusIndex{locus})).value());
      catalogues_.back().SortSizes();
      catalogues_.back().ReIndex(table_.Locus(LocusIndex{locus}));
    }
    groups_.push_back({{0, parents_}, {0, parents_}});
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
  Candidates Parents() const { return {.flow = Flow::kNonSexed, .groups = groups_, .names = {}}; }
  Slot Offspring(std::uint32_t i) const { return Slot{parents_ + i}; }

 private:
  std::uint32_t Draw(std::uint32_t count) { return static_cast<std::uint32_t>(random_() % count); }
  AlleleSize RandomAllele() { return AlleleSize{100 + 2 * Draw(shape_.alleles)}; }

  LocusGenotype RandomGenotype() {
    LocusGenotype genotype;
    genotype.allele1 = RandomAllele();
    genotype.allele2 = RandomAllele();
    return genotype;
  }

  double Share() { return std::uniform_real_distribution<>(0, 1)(random_); }

  AlleleSize Either(const LocusGenotype& parent) {
    return Draw(2) == 0 ? parent.allele1 : parent.allele2;
  }

  AlleleSize Inherited(const LocusGenotype& parent) {
    return Share() < kTypingError ? RandomAllele() : Either(parent);
  }

  /// Sibs take one allele from the first of their sibship and one from an individual drawn once.
  void AddParent(std::uint32_t number) {
    const Slot slot = table_.AddIndividual("");
    const std::uint32_t first = number / shape_.sibship * shape_.sibship;
    if (number == first) {
      other_.resize(shape_.loci);
      for (LocusGenotype& genotype : other_) {
        genotype = RandomGenotype();
      }
    }
    for (std::uint32_t l = 0; l < shape_.loci; ++l) {
      const LocusIndex locus{l};
      LocusGenotype genotype = RandomGenotype();
      if (number != first) {
        genotype.allele1 = Either(table_.Genotype(locus, Slot{first}));
        genotype.allele2 = Either(other_[l]);
      }
      table_.Genotype(locus, slot) = genotype;
    }
  }

  void AddOffspring(bool both_collected, bool one_collected) {
    const Slot slot = table_.AddIndividual("");
    const Slot mother{Draw(parents_)};
    const Slot father{Draw(parents_)};
    for (std::uint32_t l = 0; l < shape_.loci; ++l) {
      if (Share() < shape_.missing) {
        continue;
      }
      const LocusIndex locus{l};
      LocusGenotype& genotype = table_.Genotype(locus, slot);
      genotype.allele1 =
          Inherited(one_collected ? table_.Genotype(locus, mother) : RandomGenotype());
      genotype.allele2 =
          Inherited(both_collected ? table_.Genotype(locus, father) : RandomGenotype());
    }
  }

  Shape shape_;
  std::mt19937 random_{20260301};
  std::vector<LocusGenotype> other_;
  GenotypeTable table_;
  std::uint32_t parents_;
  std::vector<LocusIndex> loci_;
  AlleleCatalogues catalogues_;
  std::vector<CandidateGroup> groups_;
};

/// Time of the processor: other programs on the machine do not count.
double Microseconds(std::clock_t since) {
  return 1e6 * static_cast<double>(std::clock() - since) / CLOCKS_PER_SEC;
}

bool SameSearch(const AllocationOutcome& a, const AllocationOutcome& b) {
  return a.pair_entries == b.pair_entries && a.pairs == b.pairs &&
         a.more_than_five == b.more_than_five && a.best_likelihood == b.best_likelihood;
}

/// Scan and search take turns, and the quickest turn of each counts: what else the machine does
/// slows down some turns only.
constexpr int kTurns = 5;

// A scan among more takes seconds and is timed once.
constexpr std::uint32_t kMostParentsToScanAgain = 5'000;

/// The quickest of some turns, per offspring.
class Stopwatch {
 public:
  explicit Stopwatch(std::uint32_t offspring) : offspring_(offspring) {}

  template <typename Work>
  void Time(Work work) {
    const auto start = std::clock();
    work();
    quickest_ = std::min(quickest_, Microseconds(start) / offspring_);
  }

  double Quickest() const { return quickest_; }

 private:
  double offspring_;
  double quickest_ = std::numeric_limits<double>::infinity();
};

void Row(const Shape& shape, std::string_view name, const ErrorModel& model,
         std::uint32_t scanned) {
  const Study study(shape);
  const auto matrices = study.Matrices(model);
  const RunObserver observer;
  std::vector<AllocationOutcome> of_scan(scanned);
  const auto scan_all = [&] {
    TransmissionScores scores(shape.loci, shape.parents);
    for (std::uint32_t i = 0; i < scanned; ++i) {
      ComputeTransmissionScores(study.Table(), study.Offspring(i), study.Loci(), matrices, scores);
      of_scan[i] = ScanPairs(scores, study.Parents(), observer);
    }
  };
  std::vector<AllocationOutcome> of_search(shape.offspring);
  const auto search_all = [&] {
    PairSearcher searcher;
    searcher.Prepare({.table = study.Table(),
                      .parents = shape.parents,
                      .loci = study.Loci(),
                      .matrices = matrices},
                     study.Parents());
    for (std::uint32_t i = 0; i < shape.offspring; ++i) {
      of_search[i] = searcher.Search(study.Offspring(i), observer);
    }
  };

  Stopwatch scan(scanned);
  Stopwatch search(shape.offspring);
  for (int turn = 0; turn < kTurns; ++turn) {
    if (turn == 0 || shape.parents <= kMostParentsToScanAgain) {
      scan.Time(scan_all);
    }
    search.Time(search_all);
  }
  for (std::uint32_t i = 0; i < scanned; ++i) {
    if (!SameSearch(of_scan[i], of_search[i])) {
      fmt::print("The searches differ for offspring {}.\n", i);
      std::exit(1);
    }
  }
  fmt::print("{:<12}{:<22}{:>8}{:>14.1f}{:>12.2f}{:>11.1f}\n", name, shape.name, shape.parents,
             scan.Quickest(), search.Quickest(), scan.Quickest() / search.Quickest());
}

void Table(std::int32_t largest, std::string_view wanted) {
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.02;
  const ErrorModel non_uniform;
  ErrorModel none;
  none.kind = ErrorKind::kNoError;
  fmt::print(
      "{} typing error; offspring with both, one, none of their parents collected: 1/4, 1/2, 1/4\n"
      "{:<12}{:<22}{:>8}{:>14}{:>12}{:>11}\n",
      kTypingError, "model", "study", "parents", "scan, us", "search, us", "ratio");
  const std::array<std::pair<std::string_view, const ErrorModel*>, 3> models = {
      {{"Uniform", &uniform}, {"Non Uniform", &non_uniform}, {"No Error", &none}}};
  const auto rows = [&](const Shape& shape, std::uint32_t scanned) {
    for (const auto& one : models) {
      if (wanted.empty() || wanted == one.first) {
        Row(shape, one.first, *one.second, scanned);
      }
    }
  };
  for (const std::uint32_t parents : {200U, 1'000U, 5'000U, 50'000U}) {
    if (parents > static_cast<std::uint32_t>(largest)) {
      break;
    }
    rows({.name = "20 loci, 12 alleles",
          .parents = parents,
          .offspring = parents > 1'000 ? 20'000U : 100'000U},
         parents >= 50'000  ? 1
         : parents >= 5'000 ? 8
                            : 100);
  }
  // What the bounds like least: the search should not fall behind the scan on any of them.
  for (const Shape& shape :
       {Shape{.name = "nothing typed", .missing = 1.0},
        Shape{.name = "sibships of 500", .sibship = 500}, Shape{.name = "2 alleles", .alleles = 2},
        Shape{.name = "5 loci", .loci = 5},
        Shape{.name = "5 loci, 2 alleles", .loci = 5, .alleles = 2},
        Shape{.name = "25 % missing", .missing = 0.25},
        Shape{.name = "50 loci, 100 alleles", .loci = 50, .alleles = 100},
        Shape{.name = "few parents", .parents = 20}}) {
    rows(shape, shape.offspring);
  }
}

}  // namespace
}  // namespace kaldo

int main(int argc, char** argv) {
  if (argc > 3 && std::string_view(argv[3]) == "portable") {
    hwy::SetSupportedTargetsForTest(HWY_STATIC_TARGET);
  }
  kaldo::Table(argc > 1 ? kaldo::ParseInteger(argv[1]).value_or(0) : 50'000,
               argc > 2 ? argv[2] : "");
}
