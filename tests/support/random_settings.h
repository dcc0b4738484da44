// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>

#include <fmt/format.h>
#include <rapidcheck.h>

#include "allocation/allocation_settings.h"
#include "simulation/simulation_settings.h"

namespace kaldo::test {

/// A file name or, without blanks, the name of a locus; full of what shells and option
/// parsers trip over.
inline rc::Gen<std::string> RandomName(std::string_view more) {
  const std::string characters =
      "abZ09'\"\\-=*$~#[]{}!&;()<>|?`%@+:._/\x01\xc3\xa9\xff" + std::string(more);
  return rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::elementOf(characters)));
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

/// Values between commas.
template <typename Value>
std::string RandomList(const rc::Gen<Value>& gen) {
  return fmt::format(
      "{}", fmt::join(*rc::gen::nonEmpty(rc::gen::container<std::vector<Value>>(gen)), ","));
}

inline std::string RandomErrorModel() {
  const NamedErrorModel named = *rc::gen::elementOf(
      std::vector<NamedErrorModel>(NamedErrorModels().begin(), NamedErrorModels().end()));
  if (named.probabilities.empty() || (named.may_stand_alone && *rc::gen::arbitrary<bool>())) {
    return std::string(named.name);
  }
  const auto values =
      *rc::gen::container<std::vector<double>>(named.probabilities.size(), RandomReal());
  return fmt::format("{}={}", named.name, fmt::join(values, ","));
}

/// What a user might type for a setting, sensible or not, as short as it can be told again. It
/// follows from the kind of value that the help names, so that a new setting is drawn as well.
template <typename Settings>
std::string RandomText(const Setting<Settings>& setting) {
  const std::string& kind = setting.metavar;
  if (kind.empty()) {
    return "";  // a flag
  }
  if (kind == "DIR" || kind == "FILE") {
    return *RandomName(" ,\t\n");
  }
  if (kind == "N" || kind == "K") {
    return std::to_string(*RandomWhole());
  }
  if (kind == "X" || kind == "U" || kind == "RATE") {
    return fmt::format("{}", *RandomReal());
  }
  if (kind == "P") {
    return fmt::format("{}", *rc::gen::inRange(0, 1001) / 1000.0);
  }
  if (kind == "LEVEL") {
    return fmt::format("{}", *rc::gen::inRange(50, 101) / 100.0);
  }
  if (kind == "SE") {
    return fmt::format("{}", *rc::gen::inRange(1, 100) / 100.0);
  }
  if (kind == "S") {
    return std::to_string(*rc::gen::arbitrary<std::uint32_t>());
  }
  if (kind == "MODEL" && setting.value.choices.front() == "run" && *rc::gen::arbitrary<bool>()) {
    return "run";
  }
  if (kind == "MODEL") {
    return RandomErrorModel();
  }
  if (kind == "NAME,...") {
    const auto names = rc::gen::container<std::vector<std::string>>(RandomName(", \t"));
    return TextOfNames(*rc::gen::nonEmpty(names));
  }
  if (kind == "I1,I2,..." || kind == "[I1,I2,...]") {
    return kind[0] == '[' && *rc::gen::arbitrary<bool>() ? "" : RandomList(RandomWhole());
  }
  if (kind == "N1,N2,..." || kind == "U1,U2,...") {
    return kind[0] == 'N' ? RandomList(RandomWhole()) : RandomList(RandomReal());
  }
  if (kind == "NAME") {
    return std::string(*rc::gen::elementOf(setting.value.choices));
  }
  if (kind == "KINDS" || kind == "FORMS") {
    std::vector<std::string_view> kinds = setting.value.choices;
    std::erase_if(kinds, [](std::string_view) { return *rc::gen::arbitrary<bool>(); });
    if (kind == "FORMS" && kinds.empty()) {
      return std::string(setting.value.choices.front());
    }
    return kinds.empty() ? "none" : fmt::format("{}", fmt::join(kinds, ","));
  }
  RC_FAIL("no text is known for the kind of value " + kind);
}

/// What a user might type for a run of the flow and procedure of `like`: all that is needed, and
/// any of the rest but the number of threads, which changes nothing.
template <typename Settings>
TypedSettings RandomTyped(SettingTable<Settings> table, const Settings& like) {
  TypedSettings typed;
  for (const Setting<Settings>& setting : table) {
    const bool flow = setting.key == "sexed";
    if (setting.option.empty() || setting.key == "threads" || !setting.Applies(like) ||
        (flow && like.flow != Flow::kSexed)) {
      continue;
    }
    if (flow || setting.needed || setting.always_told || *rc::gen::arbitrary<bool>()) {
      typed[setting.key] = RandomText(setting);
    }
  }
  return typed;
}

inline TypedSettings RandomAllocation() {
  AllocationSettings like;
  like.flow = *rc::gen::element(Flow::kNonSexed, Flow::kSexed);
  return RandomTyped(AllocationSettingTable(), like);
}

inline TypedSettings RandomSimulation() {
  SimulationSettings like;
  like.flow = *rc::gen::element(Flow::kNonSexed, Flow::kSexed);
  like.procedure = *rc::gen::element(Procedure::kParental, Procedure::kPreParental);
  return RandomTyped(SimulationSettingTable(), like);
}

}  // namespace kaldo::test
