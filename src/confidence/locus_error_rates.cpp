// SPDX-License-Identifier: GPL-3.0-or-later
#include "confidence/locus_error_rates.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "confidence/explanation_shares.h"
#include "confidence/parent_frequencies.h"

namespace kaldo {

namespace {

constexpr std::size_t kMostOffspring = 1000;
constexpr double kLeastLikelihood = 1e-6;  // of the best of its kind
constexpr double kLeastEvidence = 1e-8;    // of the best kind
constexpr double kFirstRate = 0.01;
constexpr double kSmallestRate = 1e-4;
constexpr double kLargestRate = 0.5;
constexpr double kSmallestMove = 1e-4;
constexpr double kPooledWeight = 20;
constexpr int kMostSweeps = 25;

/// The copies of the offspring's two alleles that a parent carries, or a stranger on average.
struct Copies {
  double r = 0;
  double j = 0;

  friend bool operator==(const Copies&, const Copies&) = default;
};

/// Two parents at a locus of an offspring, as far as a Uniform matrix sees them.
struct Fit {
  Copies one;
  Copies other;

  friend bool operator==(const Fit&, const Fit&) = default;
};

/// How well a fit explains the genotype, and how many genes it holds for misread.
struct Explained {
  double log_factor = 0;
  double misread = 0;
};

Explained Explain(const Fit& fit, double rate, double alleles) {
  const auto right = [&](double copies) { return copies * (1 - rate); };
  const auto score = [&](double copies) {
    return right(copies) + (2 - copies) * rate / (alleles - 1);
  };
  const auto factor = [&](const auto& of) {
    return of(fit.one.r) * of(fit.other.j) + of(fit.one.j) * of(fit.other.r);
  };
  const auto wrong = [&](double copies) { return score(copies) - right(copies); };
  const double f = factor(score);
  // f1 + 2 f2 = f - f0 + f2
  return {std::log(f), (f - factor(right) + factor(wrong)) / f};
}

/// The loci of a run at which something can be misread, counted on from 0.
struct Locus {
  LocusIndex index;
  std::size_t place = 0;  ///< in the run
  double alleles = 0;
  AlleleFrequencies frequencies;
};

/// What is listed about one offspring, ready to be weighed under any rates.
class ListedOffspring {
 public:
  ListedOffspring(const GenotypeTable& table, Slot slot, std::span<const Locus> loci,
                  const Evidence& evidence)
      : table_(table), slot_(slot), loci_(loci) {
    double largest = 0;
    for (const Explanation k : kAllExplanations) {
      largest = std::max(largest, evidence.fixed.mean[k]);
    }
    for (std::uint32_t l = 0; l < loci.size(); ++l) {
      if (!table.Genotype(loci[l].index, slot).IsMissing()) {
        typed_.push_back(l);
      }
    }
    fits_.resize(typed_.size());
    for (const Explanation k : kAllExplanations) {
      if (evidence.fixed.mean[k] > largest * kLeastEvidence) {
        AddKind(k, evidence);
      }
    }
  }

  std::span<const std::uint32_t> Typed() const { return typed_; }
  bool IsTelling() const { return !ways_.empty() && !typed_.empty(); }

  /// The evidence for each explanation under these rates, up to a factor of its own.
  ByExplanation<double> Weigh(std::span<const double> rates) {
    explained_.resize(fits_.size());
    for (std::size_t i = 0; i < fits_.size(); ++i) {
      explained_[i].clear();
      for (const Fit& fit : fits_[i]) {
        explained_[i].push_back(Explain(fit, rates[typed_[i]], loci_[typed_[i]].alleles));
      }
    }
    double largest = -std::numeric_limits<double>::infinity();
    const std::uint8_t* fit = fit_of_way_.data();
    for (Way& way : ways_) {
      way.weight = way.log_share;
      for (std::size_t i = 0; i < typed_.size(); ++i) {
        way.weight += explained_[i][*fit].log_factor;
        ++fit;
      }
      largest = std::max(largest, way.weight);
    }
    sums_ = {};
    for (Way& way : ways_) {
      way.weight = std::exp(way.weight - largest);
      sums_[way.explanation] += way.weight;
    }
    return sums_;
  }

  /// Adds the genes misread, by locus, after Weigh().
  void AddMisread(const ByExplanation<double>& theta, std::span<double> misread) const {
    double total = 0;
    for (const Explanation k : kAllExplanations) {
      total += theta[k] * sums_[k];
    }
    const std::uint8_t* fit = fit_of_way_.data();
    for (const Way& way : ways_) {
      const double posterior = theta[way.explanation] * way.weight / total;
      for (std::size_t i = 0; i < typed_.size(); ++i) {
        misread[typed_[i]] += posterior * explained_[i][*fit].misread;
        ++fit;
      }
    }
  }

 private:
  struct Way {
    Explanation explanation;
    double log_share;  ///< of the evidence for its kind that each listed likelihood stands for
    double weight;     ///< under the rates at hand
  };

  Copies CopiesOf(const Locus& locus, const LocusGenotype& child,
                  std::optional<Slot> parent) const {
    if (!parent || table_.Genotype(locus.index, *parent).IsMissing()) {
      return {2 * locus.frequencies[child.index1.Value()],
              2 * locus.frequencies[child.index2.Value()]};
    }
    const LocusGenotype& genotype = table_.Genotype(locus.index, *parent);
    const auto copies = [&](AlleleIndex read) {
      return (genotype.index1 == read ? 1.0 : 0.0) + (genotype.index2 == read ? 1.0 : 0.0);
    };
    return {copies(child.index1), copies(child.index2)};
  }

  void AddKind(Explanation k, const Evidence& evidence) {
    const std::vector<LikelyParents> strangers = {{{}, evidence.fixed.mean[Explanation::kNone]}};
    const auto& listed =
        k == Explanation::kNone ? strangers : evidence.most_likely[static_cast<std::size_t>(k)];
    double largest = 0;
    for (const LikelyParents& one : listed) {
      largest = std::max(largest, one.likelihood);
    }
    std::vector<const LikelyParents*> kept;
    double sum = 0;
    for (const LikelyParents& one : listed) {
      if (one.likelihood > largest * kLeastLikelihood) {
        kept.push_back(&one);
        sum += one.likelihood;
      }
    }
    for (const LikelyParents* const one : kept) {
      // The listed ones stand for the whole kind.
      ways_.push_back({k, std::log(evidence.fixed.mean[k]) - std::log(sum), 0});
      for (std::size_t i = 0; i < typed_.size(); ++i) {
        AddFit(i, one->parents);
      }
    }
  }

  void AddFit(std::size_t i, const std::array<std::optional<Slot>, 2>& parents) {
    const Locus& locus = loci_[typed_[i]];
    const LocusGenotype& child = table_.Genotype(locus.index, slot_);
    const Fit fit = {CopiesOf(locus, child, parents[0]), CopiesOf(locus, child, parents[1])};
    auto& fits = fits_[i];
    const auto found = std::find(fits.begin(), fits.end(), fit);
    fit_of_way_.push_back(static_cast<std::uint8_t>(found - fits.begin()));
    if (found == fits.end()) {
      fits.push_back(fit);
    }
  }

  const GenotypeTable& table_;
  Slot slot_;
  std::span<const Locus> loci_;
  std::vector<std::uint32_t> typed_;    ///< in loci_
  std::vector<std::vector<Fit>> fits_;  ///< by typed locus: all that occur
  std::vector<Way> ways_;
  std::vector<std::uint8_t> fit_of_way_;  ///< by way and typed locus
  std::vector<std::vector<Explained>> explained_;
  ByExplanation<double> sums_;
};

std::vector<Locus> VariableLoci(const ConfidenceInput& input) {
  const auto parents = RangesOfParents(input.flow, input.groups);
  std::vector<Locus> loci;
  for (std::size_t k = 0; k < input.loci.size(); ++k) {
    const LocusIndex locus = input.loci[k];
    const std::size_t alleles = input.catalogues[locus.Value()].Sizes().size();
    if (alleles > 1) {
      loci.push_back({locus, k, static_cast<double>(alleles),
                      ParentFrequencies(input.table.Locus(locus), parents, alleles)});
    }
  }
  return loci;
}

/// The next rates; returns how far the one that moved most did.
double MoveRates(std::span<const double> misread, std::span<const double> genes,
                 std::span<double> rates) {
  double all_misread = 0;
  double all_genes = 0;
  for (std::size_t l = 0; l < rates.size(); ++l) {
    all_misread += misread[l];
    all_genes += genes[l];
  }
  double move = 0;
  for (std::size_t l = 0; l < rates.size(); ++l) {
    const double rate = std::clamp(
        (misread[l] + kPooledWeight * all_misread / all_genes) / (genes[l] + kPooledWeight),
        kSmallestRate, kLargestRate);
    move = std::max(move, std::abs(rate - rates[l]));
    rates[l] = rate;
  }
  return move;
}

/// One round; false when the rates stand still.
bool Sweep(std::span<ListedOffspring> offspring, const WaysOfExplanations& ways,
           std::span<const double> genes, std::span<double> rates) {
  std::vector<ByExplanation<double>> evidence;
  evidence.reserve(offspring.size());
  for (ListedOffspring& one : offspring) {
    evidence.push_back(one.Weigh(rates));
  }
  const auto theta = EstimateShares(evidence, ways).theta;
  std::vector<double> misread(rates.size());
  for (const ListedOffspring& one : offspring) {
    one.AddMisread(theta, misread);
  }
  return MoveRates(misread, genes, rates) >= kSmallestMove;
}

}  // namespace

bool TellsOfErrorRates(std::size_t offspring, std::size_t of) {
  // One for each whole number that offspring x 1000 / of reaches.
  return of <= kMostOffspring ||
         offspring * kMostOffspring / of != (offspring + 1) * kMostOffspring / of;
}

std::vector<double> EstimateErrorRates(const ConfidenceInput& input, const WaysOfExplanations& ways,
                                       std::span<const Evidence> evidence) {
  const std::vector<Locus> loci = VariableLoci(input);
  std::vector<ListedOffspring> offspring;
  std::vector<double> genes(loci.size());
  for (std::uint32_t i = 0; i < evidence.size(); ++i) {
    if (!TellsOfErrorRates(i, evidence.size())) {
      continue;
    }
    ListedOffspring one(input.table, Slot{input.offspring.begin + i}, loci, evidence[i]);
    if (one.IsTelling()) {
      for (const std::uint32_t l : one.Typed()) {
        genes[l] += 2;
      }
      offspring.push_back(std::move(one));
    }
  }
  std::vector<double> rates(loci.size(), kFirstRate);
  for (int sweep = 0; sweep < kMostSweeps && !offspring.empty(); ++sweep) {
    if (!Sweep(offspring, ways, genes, rates)) {
      break;
    }
  }
  std::vector<double> result(input.loci.size(), std::numeric_limits<double>::quiet_NaN());
  for (std::size_t l = 0; l < loci.size(); ++l) {
    if (genes[l] > 0) {
      result[loci[l].place] = rates[l];
    }
  }
  return result;
}

}  // namespace kaldo
