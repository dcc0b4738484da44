// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

#include "confidence/confidence_run.h"
#include "method/transmission_matrix.h"

namespace kaldo::test {

/// An explanation with its candidates by side, none for a parent that was not collected, and the
/// probability of each.
using Assignment = std::pair<Explanation, std::array<std::optional<Slot>, 2>>;
using Assignments = std::map<Assignment, long double>;

/// The posterior probabilities of a run the slow way: every pair of every offspring, in long
/// doubles, whose range no likelihood leaves.
class PlainConfidence {
 public:
  using Number = long double;

  /// One way to explain an offspring: candidates by side, none for a stranger.
  struct Way {
    Explanation explanation;
    std::array<std::optional<Slot>, 2> parents;
    Number likelihood;
  };

  PlainConfidence(const ErrorModel& model, const ConfidenceInput& input)
      : model_(model), input_(input) {
    for (const LocusIndex locus : input.loci) {
      CountAlleles(locus);
    }
    Explain();
  }

  const std::array<Number, 4>& Theta() const { return theta_; }
  const std::vector<Way>& Ways(std::size_t offspring) const { return ways_[offspring]; }

  /// The probability of one way.
  Number Probability(std::size_t offspring, const Way& way) const {
    return theta_[Index(way.explanation)] * way.likelihood / Count(offspring, way.explanation) /
           Total(offspring);
  }

  Assignments All(std::size_t offspring) const {
    Assignments all;
    for (const Way& way : ways_[offspring]) {
      all[{way.explanation, way.parents}] = Probability(offspring, way);
    }
    return all;
  }

  struct Scores {
    Number r = 1;
    Number j = 0.5L;
  };

  /// By locus of the run; of a stranger without a parent.
  std::vector<Scores> AllScores(Slot offspring, std::optional<Slot> parent) const {
    std::vector<Scores> scores;
    for (const LocusIndex locus : input_.loci) {
      const LocusGenotype& child = input_.table.Genotype(locus, offspring);
      scores.push_back(child.IsMissing() ? Scores{} : ScoresAt(locus, child, parent));
    }
    return scores;
  }

  static Number Likelihood(const std::vector<Scores>& a, const std::vector<Scores>& b) {
    Number product = 1;
    for (std::size_t k = 0; k < a.size(); ++k) {
      product *= a[k].r * b[k].j + a[k].j * b[k].r;
    }
    return product;
  }

  /// Whether what is known of an offspring agrees with parents of a group, or with their sibs; of
  /// the parents those that were collected are given again.
  static bool IsAllowed(const ConfidenceInput& input, Slot offspring,
                        std::optional<std::size_t> group,
                        const std::array<std::optional<Slot>, 2>& parents,
                        const std::array<std::optional<Slot>, 2>& collected) {
    if (input.allowed.empty()) {
      return true;
    }
    const AllowedPairs& allowed = input.allowed[offspring.Value() - input.offspring.begin];
    const auto is_candidate = [&](std::optional<Slot> parent) {
      return !parent || !allowed.candidates ||
             std::count(allowed.candidates->begin(), allowed.candidates->end(), *parent) > 0;
    };
    const auto& known = allowed.known_parent;
    return (!allowed.group || !group || *allowed.group == *group) && is_candidate(parents[0]) &&
           is_candidate(parents[1]) && (!known || collected[0] == known || collected[1] == known);
  }

  bool IsTyped(std::size_t offspring) const {
    return std::any_of(input_.loci.begin(), input_.loci.end(), [&](LocusIndex locus) {
      return !input_.table.Genotype(locus, SlotAt(offspring)).IsMissing();
    });
  }

  /// The share of genes misread at every locus; the posteriors are those under these rates then.
  std::vector<double> ErrorRates() {
    constexpr Number kWeight = 20;
    for (const LocusIndex locus : input_.loci) {
      rates_[locus] = 0.01L;
    }
    Number move = 1;
    for (int sweep = 0; sweep < 25 && move >= 1e-4L; ++sweep) {
      Explain();
      std::map<LocusIndex, Number> misread;
      std::map<LocusIndex, Number> genes;
      Number all_misread = 0;
      Number all_genes = 0;
      for (std::size_t i = 0; i < ways_.size(); ++i) {
        for (const LocusIndex locus : input_.loci) {
          const LocusGenotype& child = input_.table.Genotype(locus, SlotAt(i));
          if (child.IsMissing() || input_.catalogues[locus.Value()].Sizes().size() == 1) {
            continue;
          }
          genes[locus] += 2;
          all_genes += 2;
          for (const Way& way : ways_[i]) {
            const Number one = Probability(i, way) * Misread(locus, child, way);
            misread[locus] += one;
            all_misread += one;
          }
        }
      }
      move = 0;
      for (auto& [locus, count] : genes) {
        const Number rate = std::clamp(
            (misread[locus] + kWeight * all_misread / all_genes) / (count + kWeight), 1e-4L, 0.5L);
        move = std::max(move, std::abs(rate - rates_[locus]));
        rates_[locus] = rate;
      }
    }
    std::vector<double> rates;
    for (const LocusIndex locus : input_.loci) {
      rates.push_back(static_cast<double>(rates_[locus]));
    }
    return rates;
  }

 private:
  /// What a score counts: alleles read right, misread, or both.
  enum class Part { kRight, kMisread, kAll };

  void Explain() {
    ways_.clear();
    means_.clear();
    for (std::uint32_t slot = input_.offspring.begin; slot < input_.offspring.end; ++slot) {
      ways_.push_back(AllWays(Slot{slot}));
    }
    EstimateShares();
  }

  Slot SlotAt(std::size_t offspring) const {
    return Slot{input_.offspring.begin + static_cast<std::uint32_t>(offspring)};
  }

  /// The genes of an offspring that one way holds for misread at a locus: (f1 + 2 f2) / f.
  Number Misread(LocusIndex locus, const LocusGenotype& child, const Way& way) const {
    const auto factor = [&](Part first, Part second) {
      const Scores a = ScoresAt(locus, child, way.parents[0], first);
      const Scores b = ScoresAt(locus, child, way.parents[1], second);
      return a.r * b.j + a.j * b.r;
    };
    return (factor(Part::kRight, Part::kMisread) + factor(Part::kMisread, Part::kRight) +
            2 * factor(Part::kMisread, Part::kMisread)) /
           factor(Part::kAll, Part::kAll);
  }

  static std::size_t Index(Explanation k) { return static_cast<std::size_t>(k); }

  Number Count(std::size_t offspring, Explanation k) const {
    Number count = 0;
    for (const Way& way : ways_[offspring]) {
      count += way.explanation == k ? 1 : 0;
    }
    return count;
  }

  /// E by explanation.
  std::array<Number, 4> Means(std::size_t offspring) const {
    std::array<Number, 4> means{};
    for (const Way& way : ways_[offspring]) {
      means[Index(way.explanation)] += way.likelihood / Count(offspring, way.explanation);
    }
    return means;
  }

  Number Total(std::size_t offspring) const {
    Number total = 0;
    for (std::size_t k = 0; k < 4; ++k) {
      total += theta_[k] * means_[offspring][k];
    }
    return total;
  }

  /// M' from the model of the run.
  Number Reading(LocusIndex locus, AlleleSize carried, AlleleSize read) const {
    const auto sizes = input_.catalogues[locus.Value()].Sizes();
    if (sizes.size() == 1) {
      return 1;
    }
    const auto at = [&](AlleleSize size) {
      return static_cast<std::size_t>(std::find(sizes.begin(), sizes.end(), size) - sizes.begin());
    };
    if (rates_.contains(locus)) {
      const Number rate = rates_.at(locus);
      return carried == read ? 1 - rate : rate / static_cast<Number>(sizes.size() - 1);
    }
    const Number m = BuildMatrix(model_, sizes)(at(carried), at(read));
    const bool leaky = model_.kind == ErrorKind::kUniform && model_.epsilon > 0;
    const Number lambda = leaky ? 0 : 0.01L;
    return (1 - lambda) * m + lambda / static_cast<Number>(sizes.size());
  }

  void CountAlleles(LocusIndex locus) {
    std::map<AlleleSize, Number> copies;
    Number total = 0;
    for (const AlleleSize size : input_.catalogues[locus.Value()].Sizes()) {
      copies[size] = 0.5L;
      total += 0.5L;
    }
    for (const Slot slot : Parents()) {
      const LocusGenotype& genotype = input_.table.Genotype(locus, slot);
      if (!genotype.IsMissing()) {
        copies[genotype.allele1] += 1;
        copies[genotype.allele2] += 1;
        total += 2;
      }
    }
    for (auto& [size, copy] : copies) {
      copy /= total;
    }
    frequencies_[locus] = copies;
  }

  std::vector<Slot> Parents() const {
    std::vector<Slot> slots;
    for (std::uint32_t slot = 0; slot < input_.offspring.begin; ++slot) {
      if (!input_.table.Name(Slot{slot}).Text().starts_with('*')) {
        slots.emplace_back(slot);
      }
    }
    return slots;
  }

  Scores ScoresAt(LocusIndex locus, const LocusGenotype& child, std::optional<Slot> parent,
                  Part part = Part::kAll) const {
    const auto reading = [&](AlleleSize carried, AlleleSize read) {
      return part == Part::kAll || (carried == read) == (part == Part::kRight)
                 ? Reading(locus, carried, read)
                 : 0;
    };
    const auto gives = [&](AlleleSize read) {
      if (parent && !input_.table.Genotype(locus, *parent).IsMissing()) {
        const LocusGenotype& genotype = input_.table.Genotype(locus, *parent);
        return reading(genotype.allele1, read) + reading(genotype.allele2, read);
      }
      Number sum = 0;
      for (const auto& [size, frequency] : frequencies_.at(locus)) {
        sum += 2 * frequency * reading(size, read);
      }
      return sum;
    };
    return {gives(child.allele1), gives(child.allele2)};
  }

  std::vector<Way> AllWays(Slot offspring) const {
    std::map<Slot, std::vector<Scores>> scores;
    for (const Slot slot : Parents()) {
      scores[slot] = AllScores(offspring, slot);
    }
    const auto stranger = AllScores(offspring, std::nullopt);
    const bool sexed = input_.flow == Flow::kSexed;
    std::vector<Way> ways = {{Explanation::kNone, {}, Likelihood(stranger, stranger)}};
    const auto leave_out = [&](std::optional<std::size_t> group, std::size_t from) {
      const auto is_out = [&](const Way& way) {
        return !IsAllowed(input_, offspring, group, way.parents, way.parents);
      };
      ways.erase(
          std::remove_if(ways.begin() + static_cast<std::ptrdiff_t>(from), ways.end(), is_out),
          ways.end());
    };
    leave_out({}, 0);
    for (std::size_t g = 0; g < input_.groups.size(); ++g) {
      const CandidateGroup& group = input_.groups[g];
      const std::size_t before = ways.size();
      for (Slot i{group.first.begin}; i < Slot{group.first.end}; ++i) {
        ways.push_back({Explanation::kFirst, {i, {}}, Likelihood(scores[i], stranger)});
        const auto from = sexed ? Slot{group.second.begin} : Slot{i.Value() + 1};
        for (Slot j = from; j < Slot{group.second.end}; ++j) {
          ways.push_back({Explanation::kBoth, {i, j}, Likelihood(scores[i], scores[j])});
        }
      }
      for (Slot j{group.second.begin}; sexed && j < Slot{group.second.end}; ++j) {
        ways.push_back({Explanation::kSecond, {std::nullopt, j}, Likelihood(stranger, scores[j])});
      }
      leave_out(g, before);
    }
    return ways;
  }

  /// Whether an explanation is open to an offspring of which nothing is known.
  bool IsOpen(Explanation k) const {
    const bool sexed = input_.flow == Flow::kSexed;
    return k == Explanation::kNone ||
           std::any_of(
               input_.groups.begin(), input_.groups.end(), [&](const CandidateGroup& group) {
                 const std::size_t first = group.first.Size();
                 const std::size_t second = sexed ? group.second.Size() : 0;
                 const bool both = sexed ? first > 0 && second > 0 : first > 1;
                 return k == Explanation::kBoth ? both
                                                : (k == Explanation::kFirst ? first : second) > 0;
               });
  }

  void EstimateShares() {
    Number open = 0;
    std::array<Number, 4> theta0{};
    for (std::size_t k = 0; k < 4; ++k) {
      theta0[k] = IsOpen(kAllExplanations[k]) ? 1 : 0;
      open += theta0[k];
    }
    for (Number& share : theta0) {
      share /= open;
    }
    for (std::size_t i = 0; i < ways_.size(); ++i) {
      means_.push_back(Means(i));
    }
    theta_ = theta0;
    for (Number change = 1; change >= 1e-13L;) {
      std::array<Number, 4> next = theta0;
      Number n = 1;
      for (std::size_t i = 0; i < ways_.size(); ++i) {
        if (IsTyped(i)) {
          n += 1;
          for (std::size_t k = 0; k < 4; ++k) {
            next[k] += theta_[k] * means_[i][k] / Total(i);
          }
        }
      }
      change = 0;
      for (std::size_t k = 0; k < 4; ++k) {
        change += std::abs(next[k] / n - theta_[k]);
        theta_[k] = next[k] / n;
      }
    }
  }

  ErrorModel model_;
  ConfidenceInput input_;
  std::map<LocusIndex, std::map<AlleleSize, Number>> frequencies_;
  std::map<LocusIndex, Number> rates_;  ///< in the place of the model
  std::vector<std::vector<Way>> ways_;
  std::vector<std::array<Number, 4>> means_;
  std::array<Number, 4> theta_{};
};

}  // namespace kaldo::test
