// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/reliability.h"

#include <algorithm>

#include "confidence/confidence_run.h"
#include "simulation/allocation_model.h"

namespace kaldo {

namespace {

/// Posteriors inside of an iteration are no steps of the run, but can be stopped like it.
class OnlyStops final : public RunObserver {
 public:
  explicit OnlyStops(const RunObserver& run) : run_(run) {}
  bool StopRequested() const override { return run_.StopRequested(); }

 private:
  const RunObserver& run_;
};

std::size_t BinOf(double probability) {
  const auto* const above =
      std::upper_bound(kReliabilityLimits.begin() + 1, kReliabilityLimits.end() - 1, probability);
  return static_cast<std::size_t>(above - kReliabilityLimits.begin()) - 1;
}

bool Holds(std::span<const CandidateGroup> groups, Slot parent) {
  const auto is_in = [parent](SlotRange range) {
    return range.begin <= parent.Value() && parent.Value() < range.end;
  };
  return std::any_of(groups.begin(), groups.end(), [&](const CandidateGroup& group) {
    return is_in(group.first) || is_in(group.second);
  });
}

}  // namespace

void NamedSides::Count(double probability, bool is_right) {
  ++sides;
  right += is_right ? 1U : 0U;
  probabilities += probability;
}

void NamedSides::Add(const NamedSides& other) {
  sides += other.sides;
  right += other.right;
  probabilities += other.probabilities;
}

void Reliability::Add(const Reliability& other) {
  for (std::size_t k = 0; k < levels.size(); ++k) {
    levels[k].Add(other.levels[k]);
  }
  for (std::size_t k = 0; k < bins.size(); ++k) {
    bins[k].Add(other.bins[k]);
  }
  collected_sides += other.collected_sides;
}

std::vector<double> ReliabilityLevels(double wanted) {
  std::vector<double> levels = {0.5, kDefaultConfidenceLevel, kSureLevel, wanted};
  std::sort(levels.begin(), levels.end());
  levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
  return levels;
}

void CountReliability(Flow flow, const OffspringConfidence& confidence, ParentPair truth,
                      std::array<bool, 2> collected, std::span<const double> levels,
                      Reliability& reliability) {
  const std::array<Slot, 2> true_parents = {truth.parent1, truth.parent2};
  for (std::size_t k = 0; k < 2; ++k) {
    reliability.collected_sides += collected[k] ? 1U : 0U;
    const SideConfidence& side = confidence.sides[k];
    if (!confidence.is_possible || !side.candidate) {
      continue;
    }
    const auto [slot, probability] = *side.candidate;
    const bool is_right = flow == Flow::kSexed ? slot == true_parents[k]
                                               : slot == true_parents[0] || slot == true_parents[1];
    reliability.bins[BinOf(probability)].Count(probability, is_right);
    for (std::size_t level = 0; level < levels.size(); ++level) {
      if (DecideVerdict(probability, side.p_uncollected, levels[level]) == Verdict::kNamed) {
        reliability.levels[level].Count(probability, is_right);
      }
    }
  }
}

Reliability ReliabilityOf(const SimulationSettings& settings, const SimulatedIteration& iteration,
                          const RunObserver& observer) {
  ConfidenceSettings wanted;
  wanted.error_model = ConfidenceModelOf(settings);
  wanted.level = settings.confidence_level;
  wanted.threads = 1;
  wanted.advises = false;
  LocalThreads this_thread;
  OnlyStops only_stops(observer);
  const ConfidenceResult result =
      ComputeConfidence(wanted,
                        {settings.flow,
                         iteration.Table(),
                         iteration.Offspring(),
                         iteration.Candidates(),
                         iteration.Catalogues(),
                         iteration.Loci().loci,
                         {}},
                        this_thread, only_stops, [] { return RunRecord(); });
  const auto levels = ReliabilityLevels(settings.confidence_level);
  Reliability reliability;
  for (std::size_t i = 0; i < result.offspring.size(); ++i) {
    const ParentPair truth = iteration.TrueParents()[i];
    CountReliability(settings.flow, result.offspring[i], truth,
                     {Holds(iteration.Candidates(), truth.parent1),
                      Holds(iteration.Candidates(), truth.parent2)},
                     levels, reliability);
  }
  return reliability;
}

}  // namespace kaldo
