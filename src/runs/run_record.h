// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"

namespace kaldo {

/// Stands before the bytes, in hexadecimal digits, of a text that is not UTF-8, as names of old
/// folders sometimes are.
inline constexpr std::string_view kHexadecimalMark = "hex:";

/// A setting as it stands in a run record.
using RecordValue = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>,
                                 std::vector<std::int64_t>, std::vector<double>>;

/// An input file of a run: what it was for, its path as typed, and what identifies its contents.
struct RecordedInput {
  std::string role;
  std::string path;
  FileDigest digest;

  friend bool operator==(const RecordedInput&, const RecordedInput&) = default;
};

/// A file that a run left in its project folder.
struct RecordedOutput {
  std::string file;  ///< its name, without a folder
  FileDigest digest;

  friend bool operator==(const RecordedOutput&, const RecordedOutput&) = default;
};

/// Its name in the project folder.
inline constexpr std::string_view kRunRecordFile = "/Run record.toml";

/// What a reviewer asks for: which program, which settings, which files, which seed. It is written
/// beside the reports of every run, and `kaldo rerun` repeats the run from it.
struct RunRecord {
  std::string version;
  std::string date;    ///< UTC, "2026-03-01T14:02:11Z"
  std::string flow;    ///< for instance "allocation, non-sexed"
  std::string folder;  ///< the working folder, from which relative paths are taken
  std::vector<std::pair<std::string, RecordValue>> settings;  ///< in the order of writing
  std::vector<RecordedInput> inputs;
  std::vector<RecordedOutput> outputs;  ///< all but the record itself, which is written last
  std::optional<std::uint32_t> seed;
  std::int64_t threads = 1;
  double duration_seconds = 0;
  std::vector<std::string> warnings;

  /// The setting of that name when it has that type.
  template <typename Value>
  std::optional<Value> Setting(std::string_view name) const {
    for (const auto& [key, value] : settings) {
      if (const auto* found = std::get_if<Value>(&value); found != nullptr && key == name) {
        return *found;
      }
    }
    return std::nullopt;
  }
};

/// Takes settings out of a record one by one and remembers the first that is missing or of the
/// wrong kind: a record that was edited by hand must not run with half of what it says.
class RecordedSettings {
 public:
  explicit RecordedSettings(const RunRecord& record) : record_(record) {}

  /// The setting, or nothing when the record does not have it.
  template <typename Value>
  std::optional<Value> Optional(std::string_view name) {
    asked_.emplace(name);
    for (const auto& [key, value] : record_.settings) {
      if (key != name) {
        continue;
      }
      if (const auto* found = std::get_if<Value>(&value)) {
        return *found;
      }
      Note(name, "is of the wrong kind");
    }
    return std::nullopt;
  }

  bool Has(std::string_view name) const;

  /// The setting, which the record must have.
  template <typename Value>
  Value Needed(std::string_view name) {
    auto value = Optional<Value>(name);
    if (!value) {
      Note(name, "is missing");
    }
    return value.value_or(Value{});
  }

  std::int32_t WholeNumber(std::string_view name);
  std::optional<std::vector<std::int32_t>> WholeNumbers(std::string_view name);

  void Note(std::string_view name, std::string_view fault);

  /// The first fault met; a setting that was not asked for is one, since what it says would not be
  /// done. `path` names the record in it.
  std::optional<Problem> Fault(const std::string& path) const;

 private:
  const RunRecord& record_;
  std::set<std::string, std::less<>> asked_;
  std::string fault_;
};

/// The record as TOML text, every key in its place.
std::string FormatRunRecord(const RunRecord& record);

/// Reads a record back. A file that is no run record is a Problem that names file and line: so are
/// keys that are not known, values of another kind, repeated keys and more than 1 MB. A record may
/// come from anybody.
tl::expected<RunRecord, Problem> ReadRunRecord(const std::string& path);

/// The same from its text; `path` names it in a Problem.
tl::expected<RunRecord, Problem> ParseRunRecord(std::string_view text, const std::string& path);

/// Now, as a run record writes it.
std::string DateText(std::chrono::system_clock::time_point time);

/// The time that such a text tells; the beginning of 1970 for any other one.
std::chrono::system_clock::time_point TimeOfDate(const std::string& date);

/// The inputs that are no longer what they were when a record was written, a sentence each.
struct InputChanges {
  std::vector<std::string> missing;  ///< cannot be read
  std::vector<std::string> changed;  ///< have other contents
};

/// Size and SHA-256 of an input as it is now, or a Problem when it cannot be read.
using InputDigest = std::function<tl::expected<FileDigest, Problem>(const std::string& path)>;

/// Asks for every input of the record once.
InputChanges CompareInputs(const RunRecord& record, const InputDigest& digest_now);

/// The sentences of those with other contents alone.
std::vector<std::string> ChangedInputs(const RunRecord& record);

}  // namespace kaldo
