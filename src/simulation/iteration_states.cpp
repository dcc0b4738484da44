// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/iteration_states.h"

#include "simulation/flows/simulation_design.h"
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

constexpr unsigned kSeedPlace = 32;

std::uint64_t SimulatedParentsOf(const SimulationInput& input) {
  std::uint64_t parents = 0;
  for (const ParentalGroup& group : input.groups) {
    parents += group.sample ? group.slots.Size() : 0;
  }
  return parents;
}

}  // namespace

TrueParentRanges RangesOf(const OriginClass& origin, const SimulationInput& input) {
  return {input.groups[origin.first_group].slots, input.groups[origin.second_group].slots,
          origin.SameGroup()};
}

RandomNumbers RandomNumbersAt(RandomSource source, IterationStart start) {
  const auto low = static_cast<std::uint32_t>(start);
  return source == RandomSource::kModern
             ? RandomNumbers(CounterStream(static_cast<std::uint32_t>(start >> kSeedPlace), low))
             : RandomNumbers(low);
}

IterationStates::IterationStates(const SimulationSettings& settings, const SimulationInput& input,
                                 std::uint32_t seed)
    : source_(settings.random),
      seed_(seed),
      random_(seed),
      parents_(SimulatedParentsOf(input) * DrawsPerParent(input.loci.Count())),
      offspring_(DrawsPerPseudoOffspring(input.loci.Count())) {
  const std::vector<OriginClass>& classes = DesignOf(settings.flow).classes;
  bool may_draw_again = false;
  for (std::size_t k = 0; k < classes.size(); ++k) {
    classes_.push_back({RangesOf(classes[k], input), input.class_sizes[k]});
    may_draw_again = may_draw_again || classes_.back().ranges.must_differ;
  }
  if (!may_draw_again) {
    const std::size_t loci = input.loci.Count();
    draws_ = SimulatedParentsOf(input) * DrawsPerParent(loci) +
             input.OffspringPerIteration() * (2 + DrawsPerPseudoOffspring(loci));
  }
}

IterationStart IterationStates::Start() const {
  return source_ == RandomSource::kModern
             ? IterationStart{seed_} << kSeedPlace | static_cast<std::uint32_t>(next_)
             : random_.State();
}

std::vector<IterationStart> IterationStates::Next(std::size_t iterations) {
  std::vector<IterationStart> starts;
  starts.reserve(iterations);
  for (std::size_t iteration = 0; iteration < iterations; ++iteration) {
    starts.push_back(Start());
    SkipIteration();
  }
  return starts;
}

void IterationStates::SkipTo(std::uint64_t iteration) {
  if (draws_ && iteration > next_) {
    random_.Skip(RandomJump((iteration - next_) * *draws_));
    next_ = iteration;
  }
  while (next_ < iteration) {
    SkipIteration();
  }
}

void IterationStates::SkipIteration() {
  ++next_;
  if (source_ == RandomSource::kModern) {
    return;
  }
  random_.Skip(parents_);
  for (const ClassDraws& origin : classes_) {
    for (std::int32_t i = 0; i < origin.size; ++i) {
      (void)DrawTrueParents(origin.ranges, random_);
      random_.Skip(offspring_);
    }
  }
}

}  // namespace kaldo
