// SPDX-License-Identifier: GPL-3.0-or-later
// The pair search of one offspring among N collected parents, 15 loci with 10 alleles.
// build/release/benchmarks/kaldo_benchmarks
#include <random>

#include <benchmark/benchmark.h>

#include "genotypes/catalogued_loci.h"
#include "search/pair_searcher.h"

namespace kaldo {
namespace {

constexpr std::uint32_t kLoci = 15;
constexpr std::uint32_t kAlleles = 10;
constexpr std::uint32_t kOffspring = 16;

/// Parents at random and offspring bred from two of them.
struct Study {
  explicit Study(std::uint32_t parents, const ErrorModel& model) : table(kLoci) {
    std::mt19937 random(20260301);
    const auto draw = [&random](std::uint32_t count) {
      return static_cast<std::uint32_t>(random() % count);
    };
    for (std::uint32_t i = 0; i < parents + kOffspring; ++i) {
      const Slot slot = table.AddIndividual("");
      const std::uint32_t mother = draw(parents);
      const std::uint32_t father = draw(parents);
      for (std::uint32_t locus = 0; locus < kLoci; ++locus) {
        LocusGenotype& genotype = table.Genotype(LocusIndex{locus}, slot);
        if (i < parents) {
          genotype.allele1 = AlleleSize{100 + 2 * draw(kAlleles)};
          genotype.allele2 = AlleleSize{100 + 2 * draw(kAlleles)};
        } else {
          genotype.allele1 = table.Genotype(LocusIndex{locus}, Slot{mother}).allele1;
          genotype.allele2 = table.Genotype(LocusIndex{locus}, Slot{father}).allele2;
        }
      }
    }
    for (std::uint32_t locus = 0; locus < kLoci; ++locus) {
      loci.emplace_back(locus);
      auto catalogue = AlleleCatalogue::Build(table.Locus(LocusIndex{locus})).value();
      catalogue.SortSizes();
      catalogue.ReIndex(table.Locus(LocusIndex{locus}));
      matrices.push_back(BuildMatrix(model, catalogue.Sizes()));
    }
    groups.push_back({{0, parents}, {0, parents}});
  }

  GenotypeTable table;
  std::vector<LocusIndex> loci;
  std::vector<TransmissionMatrix> matrices;
  std::vector<CandidateGroup> groups;
};

void SearchOneOffspring(benchmark::State& state, ErrorKind kind) {
  ErrorModel model;
  model.kind = kind;
  model.epsilon = 0.02;
  const auto parents = static_cast<std::uint32_t>(state.range(0));
  const Study study(parents, model);
  TransmissionScores scores(kLoci, parents);
  const RunObserver observer;
  std::uint32_t offspring = 0;
  for ([[maybe_unused]] auto _ : state) {
    ComputeTransmissionScores(study.table, Slot{parents + offspring % kOffspring}, study.loci,
                              study.matrices, scores);
    benchmark::DoNotOptimize(
        ScanPairs(scores, {Flow::kNonSexed, study.groups, study.table.Names()}, observer));
    ++offspring;
  }
  const double pairs = 0.5 * parents * (parents - 1.0);
  state.counters["pairs/s"] = benchmark::Counter(pairs * static_cast<double>(state.iterations()),
                                                 benchmark::Counter::kIsRate);
}

BENCHMARK_CAPTURE(SearchOneOffspring, no_error, ErrorKind::kNoError)->Arg(200)->Arg(2000);
BENCHMARK_CAPTURE(SearchOneOffspring, uniform, ErrorKind::kUniform)->Arg(200)->Arg(2000);
BENCHMARK_CAPTURE(SearchOneOffspring, non_uniform, ErrorKind::kNonUniform)->Arg(200)->Arg(2000);

}  // namespace
}  // namespace kaldo
