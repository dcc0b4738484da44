// SPDX-License-Identifier: GPL-3.0-or-later
// How much faster the posterior probabilities are than a plain sum over all pairs, in one run on
// one thread: milliseconds per offspring of both and their ratio. Half of the parents were
// collected. "15 x 12" is 15 loci with 12 alleles and 1 % typing errors, "10 x 10" 10 loci with 10
// alleles and 3 %. The plain sum is the least that any posterior needs: the scores, the likelihood
// of every pair, and the sums of every parent. Both must agree on the evidence for two collected
// parents.
//
// build/release/benchmarks/kaldo_confidence_table [LARGEST_N]
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <random>

#include <fmt/format.h>

#include "base/number_text.h"
#include "confidence/confidence_matrix.h"
#include "confidence/confidence_portions.h"
#include "confidence/confidence_run.h"
#include "method/transmission_scores.h"

namespace kaldo {
namespace {

struct Shape {
  std::string_view name;
  std::uint32_t parents;
  std::uint32_t offspring;
  std::uint32_t loci;
  std::uint32_t alleles;
  double typing_error;
};

/// N collected parents and offspring with each parent among them at one half.
class Study {
 public:
  explicit Study(const Shape& shape) : shape_(shape), table_(shape.loci) {
    MakeFrequencies();
    for (std::uint32_t i = 0; i < shape.parents; ++i) {
      const Slot slot = table_.AddIndividual("");
      for (std::uint32_t l = 0; l < shape.loci; ++l) {
        table_.Genotype(LocusIndex{l}, slot) = RandomGenotype(l);
      }
    }
    for (std::uint32_t i = 0; i < shape.offspring; ++i) {
      AddOffspring();
    }
    for (std::uint32_t l = 0; l < shape.loci; ++l) {
      const auto genotypes = table_.Locus(LocusIndex{l});
      loci_.emplace_back(l);
      catalogues_.push_back(AlleleCatalogue::Build(genotypes).value());
      catalogues_.back().SortSizes();
      catalogues_.back().ReIndex(genotypes);
    }
  }

  ConfidenceInput Input() const {
    return {Flow::kNonSexed,
            table_,
            {shape_.parents, shape_.parents + shape_.offspring},
            groups_,
            catalogues_,
            loci_,
            {}};
  }

 private:
  double Share() { return std::uniform_real_distribution<>(0, 1)(random_); }

  /// Common and rare alleles as at real loci.
  void MakeFrequencies() {
    for (std::uint32_t l = 0; l < shape_.loci; ++l) {
      std::vector<double> weights(shape_.alleles);
      std::generate(weights.begin(), weights.end(), [&] { return -std::log(1 - Share()); });
      alleles_.emplace_back(weights.begin(), weights.end());
    }
  }

  AlleleSize RandomAllele(std::uint32_t locus) {
    return AlleleSize{100 + 2 * alleles_[locus](random_)};
  }

  LocusGenotype RandomGenotype(std::uint32_t locus) {
    LocusGenotype genotype;
    genotype.allele1 = RandomAllele(locus);
    genotype.allele2 = RandomAllele(locus);
    return genotype;
  }

  AlleleSize Given(std::uint32_t locus, bool collected, Slot parent) {
    if (!collected || Share() < shape_.typing_error) {
      return RandomAllele(locus);
    }
    const LocusGenotype& genotype = table_.Genotype(LocusIndex{locus}, parent);
    return Share() < 0.5 ? genotype.allele1 : genotype.allele2;
  }

  void AddOffspring() {
    const bool mother_collected = Share() < 0.5;
    const bool father_collected = Share() < 0.5;
    const Slot mother{static_cast<std::uint32_t>(random_() % shape_.parents)};
    const Slot father{static_cast<std::uint32_t>(random_() % shape_.parents)};
    const Slot slot = table_.AddIndividual("");
    for (std::uint32_t l = 0; l < shape_.loci; ++l) {
      const AlleleSize one = Given(l, mother_collected, mother);
      const AlleleSize other = Given(l, father_collected, father);
      table_.Genotype(LocusIndex{l}, slot).allele1 = one;
      table_.Genotype(LocusIndex{l}, slot).allele2 = other;
    }
  }

  Shape shape_;
  std::mt19937 random_{20260301};
  std::vector<std::discrete_distribution<std::uint32_t>> alleles_;
  GenotypeTable table_;
  std::vector<LocusIndex> loci_;
  AlleleCatalogues catalogues_;
  std::vector<CandidateGroup> groups_{{{0, shape_.parents}, {0, shape_.parents}}};
};

/// The sum over all pairs of one offspring, and of every parent.
double PlainSum(const TransmissionScores& scores, std::vector<double>& sums) {
  const std::size_t parents = sums.size();
  std::vector<double> row(parents);
  double total = 0;
  for (std::size_t one = 0; one < parents; ++one) {
    const std::size_t count = parents - one - 1;
    std::fill_n(row.begin(), count, 1.0);
    for (std::size_t k = 0; k < scores.Loci(); ++k) {
      const double r1 = scores.R(k)[one];
      const double j1 = scores.J(k)[one];
      const double* const r2 = scores.R(k).data() + one + 1;
      const double* const j2 = scores.J(k).data() + one + 1;
      for (std::size_t i = 0; i < count; ++i) {
        row[i] *= r1 * j2[i] + j1 * r2[i];
      }
    }
    for (std::size_t i = 0; i < count; ++i) {
      total += row[i];
      sums[one] += row[i];
      sums[one + 1 + i] += row[i];
    }
  }
  return total;
}

template <typename Work>
double Milliseconds(std::uint32_t offspring, const Work& work) {
  const auto start = std::clock();
  work();
  return 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / offspring;
}

void Row(const Shape& shape, std::string_view name, const ErrorModel& model,
         std::uint32_t plain_offspring) {
  const Study study(shape);
  const ConfidenceInput input = study.Input();
  const ConfidenceSettings settings{model, kDefaultConfidenceLevel, 1, false, false};
  const auto matrices = ConfidenceMatrices(model, input.catalogues);
  LocalThreads threads;
  RunObserver observer;
  double quickest = std::numeric_limits<double>::infinity();
  double quickest_plain = quickest;
  std::vector<double> plain(plain_offspring);
  for (int turn = 0; turn < (shape.parents > 2'000 ? 1 : 3); ++turn) {
    quickest = std::min(quickest, Milliseconds(shape.offspring, [&] {
                          ComputeConfidence(settings, input, threads, observer,
                                            [] { return RunRecord(); });
                        }));
    quickest_plain =
        std::min(quickest_plain, Milliseconds(plain_offspring, [&] {
                   TransmissionScores scores(shape.loci, shape.parents);
                   for (std::uint32_t i = 0; i < plain_offspring; ++i) {
                     std::vector<double> sums(shape.parents);
                     ComputeTransmissionScores(input.table, Slot{input.offspring.begin + i},
                                               input.loci, matrices, scores);
                     plain[i] = PlainSum(scores, sums);
                   }
                 }));
  }
  fmt::print("{:<9}{:<13}{:>8}{:>14.3f}{:>14.3f}{:>9.1f}\n", shape.name, name, shape.parents,
             quickest_plain, quickest, quickest_plain / quickest);
  const EvidenceTask task(settings, input);
  EvidenceFinder finder(task.Study());
  for (std::uint32_t i = 0; i < plain_offspring; ++i) {
    const Slot slot{input.offspring.begin + i};
    const Evidence found = finder.Find(slot, {EvidenceLimits{}, {}, false}, observer);
    // In the units of each: over the best pair.
    const double ratio = found.fixed.mean[Explanation::kBoth] / found.fixed.best_pair.likelihood;
    TransmissionScores scores(shape.loci, shape.parents);
    ComputeTransmissionScores(input.table, slot, input.loci, matrices, scores);
    const ParentPair best = found.fixed.best_pair.pair;
    double likelihood = 1;
    for (std::size_t k = 0; k < scores.Loci(); ++k) {
      likelihood *= scores.R(k)[best.parent1.Value()] * scores.J(k)[best.parent2.Value()] +
                    scores.J(k)[best.parent1.Value()] * scores.R(k)[best.parent2.Value()];
    }
    const double pairs = task.Study().ways[Explanation::kBoth];
    if (std::abs(plain[i] / pairs / likelihood / ratio - 1) > 1e-9) {
      fmt::print("The sums differ for offspring {}.\n", i);
      std::exit(1);
    }
  }
}

void Table(std::uint32_t largest) {
  ErrorModel uniform;
  uniform.kind = ErrorKind::kUniform;
  uniform.epsilon = 0.01;
  fmt::print("{:<9}{:<13}{:>8}{:>14}{:>14}{:>9}\n", "loci", "model", "parents", "plain, ms",
             "posterior, ms", "ratio");
  for (const std::uint32_t parents : {200U, 500U, 2'000U, 10'000U}) {
    if (parents > largest) {
      break;
    }
    const std::uint32_t plain = parents > 2'000 ? 3 : 20;
    for (const auto& shape : {Shape{"15 x 12", parents, 200, 15, 12, 0.01},
                              Shape{"10 x 10", parents, 200, 10, 10, 0.03}}) {
      Row(shape, "Uniform", uniform, plain);
      Row(shape, "Non Uniform", ErrorModel{}, plain);
    }
  }
}

}  // namespace
}  // namespace kaldo

int main(int argc, char** argv) {
  kaldo::Table(argc > 1 ? static_cast<std::uint32_t>(kaldo::ParseInteger(argv[1]).value_or(0))
                        : 10'000);
}
