// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include <rapidcheck.h>

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace kaldo::test {

/// A file name or, without blanks and commas, the name of a locus; full of what shells and option
/// parsers trip over.
inline rc::Gen<std::string> RandomName(std::string_view more) {
  const std::string characters =
      "abZ09'\"\\-=*$~#[]{}!&;()<>|?`%@+:._/\x01\xc3\xa9\xff" + std::string(more);
  return rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::elementOf(characters)));
}

template <typename Value>
std::optional<Value> Perhaps(const rc::Gen<Value>& gen) {
  return *rc::gen::arbitrary<bool>() ? std::optional<Value>(*gen) : std::nullopt;
}

/// A whole number of any size, and often a small one.
inline rc::Gen<std::int32_t> RandomWhole() {
  return rc::gen::oneOf(rc::gen::inRange(-3, 12), rc::gen::arbitrary<std::int32_t>());
}

/// A probability or another number: one that takes all its digits, a round one, a strange one.
inline rc::Gen<double> RandomReal() {
  using Limits = std::numeric_limits<double>;
  return rc::gen::oneOf(
      rc::gen::map(rc::gen::arbitrary<std::uint32_t>(), [](auto n) { return n / 4294967295.0; }),
      rc::gen::map(rc::gen::inRange(0, 2000), [](int n) { return n / 1000.0; }),
      rc::gen::element(0.0, 1e-5, 1e300, -0.5, Limits::denorm_min(), Limits::infinity()));
}

inline ErrorModel RandomErrorModel() {
  ErrorModel model;
  model.kind = *rc::gen::element(ErrorKind::kNoError, ErrorKind::kUniform, ErrorKind::kNonUniform);
  if (model.kind == ErrorKind::kUniform) {
    model.epsilon = *RandomReal();
  }
  if (model.kind == ErrorKind::kNonUniform && *rc::gen::arbitrary<bool>()) {
    for (double ErrorModel::*value : {&ErrorModel::minus2, &ErrorModel::minus1, &ErrorModel::focal,
                                      &ErrorModel::plus1, &ErrorModel::plus2}) {
      model.*value = *RandomReal();
    }
  }
  return model;
}

inline std::optional<std::vector<std::string>> RandomLociInUse() {
  return Perhaps(rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(RandomName(""))));
}

inline std::string RandomPath() { return *RandomName(" ,\t\n"); }

/// Settings of an allocation as a user might choose them, sensible or not.
inline rc::Gen<AllocationSettings> RandomAllocation() {
  return rc::gen::exec([] {
    AllocationSettings settings;
    settings.flow = *rc::gen::element(Flow::kNonSexed, Flow::kSexed);
    settings.project = RandomPath();
    settings.loci_file = RandomPath();
    settings.offspring_file = RandomPath();
    if (settings.flow == Flow::kSexed) {
      settings.males_file = RandomPath();
      settings.females_file = RandomPath();
    } else {
      settings.parents_file = RandomPath();
    }
    settings.tolerance = OffsetTolerance{*RandomWhole()};
    settings.error_model = RandomErrorModel();
    settings.loci_in_use = RandomLociInUse();
    settings.sequence = Perhaps(rc::gen::container<std::vector<std::int32_t>>(RandomWhole()));
    return settings;
  });
}

inline ParentalSet RandomSet(Flow flow, Procedure procedure) {
  ParentalSet set;
  set.uncollected_sample = RandomPath();
  if (procedure == Procedure::kParental) {
    set.collected_file = RandomPath();
  } else {
    set.pseudo_collected_sample = RandomPath();
    set.pseudo_collected = *RandomWhole();
  }
  if (flow == Flow::kNonSexed) {
    set.uncollected = *RandomReal();
    return set;
  }
  set.uncollected = *RandomWhole();  // whole parents of each sex
  set.estimated_collected = *RandomReal();
  set.estimated_uncollected = *RandomReal();
  return set;
}

/// Settings of a simulation as a user might choose them, sensible or not.
inline rc::Gen<SimulationSettings> RandomSimulation() {
  return rc::gen::exec([] {
    SimulationSettings settings;
    settings.flow = *rc::gen::element(Flow::kNonSexed, Flow::kSexed);
    settings.procedure = *rc::gen::element(Procedure::kParental, Procedure::kPreParental);
    settings.project = RandomPath();
    settings.loci_file = RandomPath();
    settings.sets[0] = RandomSet(settings.flow, settings.procedure);
    if (settings.flow == Flow::kSexed) {
      settings.sets[1] = RandomSet(settings.flow, settings.procedure);
    }
    settings.iterations = *RandomWhole();
    settings.offspring_per_iteration = *RandomWhole();
    settings.tolerance = OffsetTolerance{*RandomWhole()};
    settings.error_model = RandomErrorModel();
    settings.loci_in_use = RandomLociInUse();
    settings.strategy = *rc::gen::element(LociStrategy::kChoice, LociStrategy::kAll,
                                          LociStrategy::kMinimal, LociStrategy::kCumulative);
    settings.criterion = *rc::gen::oneOf(rc::gen::just(settings.criterion), RandomReal());
    settings.start_with = *RandomWhole();
    settings.sequence = *rc::gen::container<std::vector<std::int32_t>>(RandomWhole());
    settings.print_iterations = *rc::gen::arbitrary<bool>();
    settings.print_subset_statistics = *rc::gen::arbitrary<bool>();
    if (*rc::gen::arbitrary<bool>()) {
      settings.keep = KeptFiles{*rc::gen::arbitrary<bool>(), *rc::gen::arbitrary<bool>(),
                                *rc::gen::arbitrary<bool>()};
    }
    settings.seed = Perhaps(rc::gen::arbitrary<std::uint32_t>());
    return settings;
  });
}

}  // namespace kaldo::test
