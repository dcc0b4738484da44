// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "runs/setting.h"

namespace kaldo {

// The kinds of value that settings of any run have. Nothing is guessed: the whole text must be what
// is wanted, "010" is ten, and a decimal comma is an error that says so.

/// A path, a name, as it was typed.
ValueKind<std::string> TextKind();

/// One that a run can do without; empty where nothing is said.
ValueKind<std::string> OptionalTextKind();

/// A whole number; a number with a decimal point; one that has none but counts among those that
/// may, such as parents drawn.
ValueKind<std::int32_t> WholeKind();
ValueKind<double> RealKind();
ValueKind<double> WholeRealKind();

/// What a flag turns against its default. A record that does not tell it has the default.
ValueKind<bool> FlagKind(bool by_default = false);

/// The same kind, but a record tells the value only where it is not as by default: a run without it
/// leaves the record that it would leave if nobody could choose.
template <typename Value>
ValueKind<Value> ToldUnlessDefault(const Value& by_default, ValueKind<Value> kind) {
  kind.record = [by_default, record_value = kind.record](const Value& value, const std::string& key,
                                                         RunRecord& record) {
    if (!(value == by_default)) {
      record_value(value, key, record);
    }
  };
  kind.recorded = [by_default, recorded_value = kind.recorded](const std::string& key,
                                                               RecordedSettings& recorded) {
    return recorded.Has(key) ? recorded_value(key, recorded) : by_default;
  };
  return kind;
}

/// Names between commas; nothing said stands for all.
ValueKind<std::optional<std::vector<std::string>>> NamesKind();

/// The seed of the random numbers, 0 to 4294967295; nothing said: the clock.
ValueKind<std::optional<std::uint32_t>> SeedKind();

/// The number of threads, 1 or more; 0 where nothing is said.
ValueKind<unsigned> ThreadsKind();
tl::expected<unsigned, Problem> ParseThreads(std::string_view option, std::string_view text);

/// One of several things that have names.
template <typename Choice>
struct NamedChoice {
  Choice choice;
  std::string_view name;
  std::string_view help = {};  ///< in a few words
};

/// The names of several such things.
std::vector<std::string_view> NamesIn(const auto& choices) {
  std::vector<std::string_view> names;
  names.reserve(std::size(choices));
  for (const auto& each : choices) {
    names.push_back(each.name);
  }
  return names;
}

/// The place of a name among others, or nothing.
std::optional<std::size_t> PlaceOf(std::string_view name,
                                   const std::vector<std::string_view>& names);

/// Told when a name is none of those that are known.
tl::unexpected<Problem> NoneOf(const std::vector<std::string_view>& names, std::string_view option,
                               std::string_view name, ProblemKind kind);

/// The place of a recorded name; one that is none is a fault, and the first place is taken.
std::size_t RecordedPlace(const std::string& key, const std::vector<std::string_view>& names,
                          RecordedSettings& recorded);

/// One of the choices, which are all that the enumeration has. `kind` is told of any other name.
template <typename Choice, std::size_t n>
ValueKind<Choice> ChoiceKind(const std::array<NamedChoice<Choice>, n>& choices, ProblemKind kind) {
  const std::vector<std::string_view> names = NamesIn(choices);
  const auto name_of = [choices](Choice choice) {
    for (const auto& each : choices) {
      if (each.choice == choice) {
        return std::string(each.name);
      }
    }
    return std::string();
  };
  return {.parse = [choices, names, kind](std::string_view option,
                                          std::string_view text) -> tl::expected<Choice, Problem> {
            if (const auto place = PlaceOf(text, names)) {
              return choices.at(*place).choice;
            }
            return NoneOf(names, option, text, kind);
          },
          .text = [name_of](const Choice& choice) { return std::optional(name_of(choice)); },
          .record = [name_of](
                        const Choice& choice, const std::string& key,
                        RunRecord& record) { record.settings.emplace_back(key, name_of(choice)); },
          .recorded =
              [choices, names](const std::string& key, RecordedSettings& recorded) {
                return choices.at(RecordedPlace(key, names, recorded)).choice;
              },
          .choices = names};
}

/// What was typed, cut at its commas; blanks around the parts do not count. An empty text has no
/// parts.
std::vector<std::string> CutAtCommas(std::string_view text);

/// Names between commas. One that holds a comma itself stands in quotes ("), as in a CSV file, and
/// its own quotes are doubled.
std::vector<std::string> NamesAtCommas(std::string_view text);

/// Back to such a text.
std::string TextOfNames(const std::vector<std::string>& names);

}  // namespace kaldo
