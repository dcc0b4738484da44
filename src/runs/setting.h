// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tl/expected.hpp>

#include "base/number_text.h"
#include "base/problem.h"
#include "base/shell_text.h"
#include "runs/run_record.h"

namespace kaldo {

// A setting is declared once, in the table beside its struct. The options of the command line and
// their help, the run record, the copied command and what the windows show at first all go through
// that table, so that none of them can forget a setting.

/// A kind of value: how it is read from what a user types, told again, recorded and read back.
template <typename Value>
struct ValueKind {
  /// The value of a text; `option` names the setting in a Problem.
  std::function<tl::expected<Value, Problem>(std::string_view option, std::string_view text)> parse;

  /// The shortest text that reads back as the same value, or nothing where there is nothing to say.
  std::function<std::optional<std::string>(const Value& value)> text;

  /// Writes the value among the settings of a record, and reads it back; what does not fit becomes
  /// a fault of `recorded`.
  std::function<void(const Value& value, const std::string& key, RunRecord& record)> record;
  std::function<Value(const std::string& key, RecordedSettings& recorded)> recorded;

  bool is_number = false;
  std::vector<std::string_view> choices = {};  ///< their names, where the value is one or some
};

/// The same for a value at its place in the settings of a run.
template <typename Settings>
struct SettingValue {
  std::function<std::optional<Problem>(Settings& settings, std::string_view option,
                                       std::string_view text)>
      parse;
  std::function<std::optional<std::string>(const Settings& settings)> text;
  std::function<void(const Settings& settings, const std::string& key, RunRecord& record)> record;
  std::function<void(Settings& settings, const std::string& key, RecordedSettings& recorded)>
      read_record;
  bool is_number = false;
  std::vector<std::string_view> choices = {};
};

/// Puts a kind of value at a place: a member of the settings, or a function that gives a reference
/// into them.
template <typename Settings, typename Value, typename Place>
SettingValue<Settings> ValueAt(Place place, const ValueKind<Value>& kind) {
  return {
      .parse = [place, parse = kind.parse](Settings& settings, std::string_view option,
                                           std::string_view text) -> std::optional<Problem> {
        auto value = parse(option, text);
        if (!value) {
          return std::move(value.error());
        }
        std::invoke(place, settings) = std::move(*value);
        return std::nullopt;
      },
      .text = [place, text = kind.text](
                  const Settings& settings) { return text(std::invoke(place, settings)); },
      .record = [place, record_value = kind.record](
                    const Settings& settings, const std::string& key,
                    RunRecord& record) { record_value(std::invoke(place, settings), key, record); },
      .read_record =
          [place, recorded_value = kind.recorded](Settings& settings, const std::string& key,
                                                  RecordedSettings& recorded) {
            std::invoke(place, settings) = recorded_value(key, recorded);
          },
      .is_number = kind.is_number,
      .choices = kind.choices};
}

template <typename Settings, typename Value>
SettingValue<Settings> Member(Value Settings::*member, const ValueKind<Value>& kind) {
  return ValueAt<Settings>(member, kind);
}

/// One thing that a user may choose for a run.
template <typename Settings>
struct Setting {
  std::string key = {};      ///< its name in the run record
  std::string option = {};   ///< "--tolerance"; empty where it follows from other options
  std::string metavar = {};  ///< the kind of its value in the help, "N"; empty for a mere flag
  std::string group = {};    ///< the heading under which the help tells it
  std::string help = {};     ///< one line
  SettingValue<Settings> value = {};

  /// When it plays a role, by the flow and the procedure of a run; always, when nothing is said.
  std::function<bool(const Settings& settings)> applies = {};

  bool needed = false;           ///< has no default: the command line refuses to go without it
  bool may_be_left_out = false;  ///< a file without which the run does as well
  std::string not_needed_at_0 =
      {};                          ///< one without which it does where the setting of this key is 0
  bool always_told = false;        ///< a copied command gives it even where it is as by default
  bool may_stand_alone = false;    ///< the option may go without its value
  bool in_head_of_record = false;  ///< a run record tells it above its settings, in another form
  bool of_exports = false;         ///< says which further files are written, not what is computed
  std::optional<std::string> first_shown = {};  ///< in a window; the default, when nothing is said

  bool Applies(const Settings& settings) const { return !applies || applies(settings); }
  bool IsFlag() const { return metavar.empty(); }

  /// Files and folders have no default either; a window tells them one by one.
  bool MustBeGiven() const {
    return needed || (!may_be_left_out && (metavar == "FILE" || metavar == "DIR"));
  }
};

/// All settings of a run, in the order of the help and of the run record.
template <typename Settings>
using SettingTable = std::span<const Setting<Settings>>;

/// What a user typed, by the keys of the settings. What is not in it was not given.
using TypedSettings = std::map<std::string, std::string, std::less<>>;

/// Told when a text that a user typed is not what is wanted.
tl::unexpected<Problem> NotUnderstood(ProblemKind kind, std::string found);

/// Told when a setting without a default was not given: its option, and all others that are
/// missing.
Problem MissingNumber(const std::string& option, const std::vector<std::string>& all_missing);

/// The options of the settings without a default that play a role and were not given.
template <typename Settings>
std::vector<std::string> MissingOptions(SettingTable<Settings> table, const TypedSettings& typed,
                                        const Settings& settings) {
  std::vector<std::string> options;
  for (const Setting<Settings>& setting : table) {
    const auto text = typed.find(setting.key);
    const auto number = typed.find(setting.not_needed_at_0);
    const bool is_idle = number != typed.end() && ParseDouble(number->second) == 0.0;
    const bool given =
        is_idle || (text != typed.end() && (setting.needed || !text->second.empty()));
    if (setting.MustBeGiven() && setting.Applies(settings) && !given) {
      options.push_back(setting.option);
    }
  }
  return options;
}

/// Reads what was typed into the settings. Of several faults a number that is missing or cannot be
/// read is told before a choice that does not exist.
template <typename Settings>
std::optional<Problem> ReadTyped(SettingTable<Settings> table, const TypedSettings& typed,
                                 Settings& settings) {
  for (const bool numbers : {true, false}) {
    for (const Setting<Settings>& setting : table) {
      if (setting.value.is_number != numbers || !setting.Applies(settings)) {
        continue;
      }
      const auto text = typed.find(setting.key);
      if (text == typed.end()) {
        if (setting.needed) {
          return MissingNumber(setting.option, MissingOptions(table, typed, settings));
        }
        continue;
      }
      if (auto problem = setting.value.parse(settings, setting.option, text->second)) {
        return problem;
      }
    }
  }
  return std::nullopt;
}

/// Adds the options that bring the settings back. What is as it is in `defaults` is left out.
template <typename Settings>
void AddToCommand(SettingTable<Settings> table, const Settings& settings, const Settings& defaults,
                  ShellCommand& command) {
  for (const Setting<Settings>& setting : table) {
    if (setting.option.empty() || !setting.Applies(settings)) {
      continue;
    }
    const auto text = setting.value.text(settings);
    const bool told = setting.needed || setting.always_told || text != setting.value.text(defaults);
    if (!text || !told) {
      continue;
    }
    if (text->empty() && (setting.IsFlag() || setting.may_stand_alone)) {
      command.Add(setting.option);
    } else {
      command.Add(setting.option, *text);
    }
  }
}

/// What a user said for a setting, in words: "with --tolerance 2", "without --use".
template <typename Settings>
std::string SaidFor(const Setting<Settings>& setting, const Settings& settings) {
  const std::string& name = setting.option.empty() ? setting.key : setting.option;
  const auto text = setting.Applies(settings) ? setting.value.text(settings) : std::nullopt;
  if (!text) {
    return "without " + name;
  }
  return "with " + name + (text->empty() ? "" : ' ' + *text);
}

/// Said where settings cannot be read.
inline constexpr std::string_view kUnknownSettings = "with settings that are not known here";

/// The first setting that lets the results of two runs differ, and what was said for it: `with
/// --tolerance 1, now with --tolerance 2`. Files do not count, whose contents may be the same, nor
/// do the place of the results, the threads and what stands at the head of run records.
template <typename Settings>
std::optional<std::string> FirstDifference(SettingTable<Settings> table, const Settings& then,
                                           const Settings& now) {
  for (const Setting<Settings>& setting : table) {
    const bool matters = setting.metavar != "FILE" && setting.metavar != "DIR" &&
                         setting.key != "threads" && !setting.in_head_of_record &&
                         !setting.of_exports;
    std::string said_then = matters ? SaidFor(setting, then) : std::string();
    const std::string said_now = matters ? SaidFor(setting, now) : std::string();
    if (said_then != said_now) {
      return std::move(said_then) + ", now " + said_now;
    }
  }
  return std::nullopt;
}

/// Writes the settings into a run record.
template <typename Settings>
void RecordSettings(SettingTable<Settings> table, const Settings& settings, RunRecord& record) {
  for (const Setting<Settings>& setting : table) {
    if (!setting.in_head_of_record && setting.Applies(settings)) {
      setting.value.record(settings, setting.key, record);
    }
  }
}

/// Reads them back. The flow of the run is in `settings` already.
template <typename Settings>
void ReadRecorded(SettingTable<Settings> table, RecordedSettings& recorded, Settings& settings) {
  for (const Setting<Settings>& setting : table) {
    if (!setting.in_head_of_record && setting.Applies(settings)) {
      setting.value.read_record(settings, setting.key, recorded);
    }
  }
}

/// Puts in what a window shows before anything is typed.
template <typename Settings>
void FillInFirstShown(SettingTable<Settings> table, Settings& settings) {
  for (const Setting<Settings>& setting : table) {
    if (setting.first_shown) {
      setting.value.parse(settings, setting.option, *setting.first_shown);
    }
  }
}

}  // namespace kaldo
