// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/iteration_states.h"

#include "simulation/flows/simulation_design.h"
#include "simulation/simulated_parents.h"

namespace kaldo {

namespace {

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

IterationStates::IterationStates(Flow flow, const SimulationInput& input, std::uint32_t seed)
    : random_(seed),
      parents_(SimulatedParentsOf(input) * DrawsPerParent(input.loci.Count())),
      offspring_(DrawsPerPseudoOffspring(input.loci.Count())) {
  const std::vector<OriginClass>& classes = DesignOf(flow).classes;
  for (std::size_t k = 0; k < classes.size(); ++k) {
    classes_.push_back({RangesOf(classes[k], input), input.class_sizes[k]});
  }
}

std::vector<std::uint32_t> IterationStates::Next(std::size_t iterations) {
  std::vector<std::uint32_t> states;
  states.reserve(iterations);
  for (std::size_t iteration = 0; iteration < iterations; ++iteration) {
    states.push_back(random_.State());
    SkipIteration();
  }
  return states;
}

void IterationStates::SkipIteration() {
  random_.Skip(parents_);
  for (const ClassDraws& origin : classes_) {
    for (std::int32_t i = 0; i < origin.size; ++i) {
      (void)DrawTrueParents(origin.ranges, random_);
      random_.Skip(offspring_);
    }
  }
}

}  // namespace kaldo
