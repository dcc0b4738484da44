// SPDX-License-Identifier: GPL-3.0-or-later
#include <charconv>
#include <limits>

#include <fmt/format.h>
#include <toml++/toml.h>

#include "runs/run_record.h"

namespace kaldo {

namespace {

std::string Decoded(std::string text) {
  if (!text.starts_with(kHexadecimalMark)) {
    return text;
  }
  std::string bytes;
  for (std::size_t at = kHexadecimalMark.size(); at + 1 < text.size(); at += 2) {
    unsigned int byte = 0;
    std::from_chars(text.data() + at, text.data() + at + 2, byte, 16);
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

template <typename Value>
std::optional<std::vector<Value>> ArrayOf(const toml::array& array) {
  std::vector<Value> values;
  for (const toml::node& node : array) {
    const auto value = node.value_exact<Value>();
    if (!value) {
      return std::nullopt;
    }
    if constexpr (std::is_same_v<Value, std::string>) {
      values.push_back(Decoded(*value));
    } else {
      values.push_back(*value);
    }
  }
  return values;
}

std::optional<RecordValue> ValueOf(const toml::node& node) {
  if (const auto text = node.value_exact<std::string>()) {
    return Decoded(*text);
  }
  if (const auto flag = node.value_exact<bool>()) {
    return *flag;
  }
  if (const auto whole = node.value_exact<std::int64_t>()) {
    return *whole;
  }
  if (const auto number = node.value_exact<double>()) {
    return *number;
  }
  if (const toml::array* array = node.as_array()) {
    if (auto texts = ArrayOf<std::string>(*array)) {
      return *texts;
    }
    if (auto wholes = ArrayOf<std::int64_t>(*array)) {
      return *wholes;
    }
    if (auto numbers = ArrayOf<double>(*array)) {
      return *numbers;
    }
  }
  return std::nullopt;
}

std::string TextOf(const toml::table& table, std::string_view key) {
  return Decoded(table[key].value_exact<std::string>().value_or(""));
}

/// The date as it is written, or nothing.
std::string DateOf(const toml::table& table) {
  const auto date = table["date"].value_exact<toml::date_time>();
  return date ? fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", date->date.year,
                            date->date.month, date->date.day, date->time.hour, date->time.minute,
                            date->time.second)
              : std::string();
}

void ReadInputs(const toml::table& table, RunRecord& record) {
  const toml::array* inputs = table["input"].as_array();
  if (inputs == nullptr) {
    return;
  }
  for (const toml::node& node : *inputs) {
    if (const toml::table* input = node.as_table()) {
      const auto bytes = (*input)["bytes"].value_exact<std::int64_t>().value_or(0);
      record.inputs.push_back({TextOf(*input, "role"),
                               TextOf(*input, "path"),
                               {static_cast<std::uint64_t>(bytes), TextOf(*input, "sha256")}});
    }
  }
}

}  // namespace

std::int32_t RecordedSettings::WholeNumber(std::string_view name) {
  const auto value = Needed<std::int64_t>(name);
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max()) {
    Note(name, "is out of range");
    return 0;
  }
  return static_cast<std::int32_t>(value);
}

std::optional<std::vector<std::int32_t>> RecordedSettings::WholeNumbers(std::string_view name) {
  const auto values = Optional<std::vector<std::int64_t>>(name);
  if (!values) {
    return std::nullopt;
  }
  std::vector<std::int32_t> numbers;
  numbers.reserve(values->size());
  for (const std::int64_t value : *values) {
    if (value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
      Note(name, "is out of range");
      return std::nullopt;
    }
    numbers.push_back(static_cast<std::int32_t>(value));
  }
  return numbers;
}

void RecordedSettings::Note(std::string_view name, std::string_view fault) {
  if (fault_.empty()) {
    fault_ = fmt::format("the setting \"{}\" {}", name, fault);
  }
}

std::optional<Problem> RecordedSettings::Fault(const std::string& path) const {
  if (fault_.empty()) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kUnusableRunRecord, .file = path, .found = fault_};
}

tl::expected<RunRecord, Problem> ReadRunRecord(const std::string& path) {
  DiskFiles disk;
  const auto bytes = ReadText(path, disk);
  if (!bytes) {
    return tl::unexpected(bytes.error());
  }
  return ParseRunRecord({bytes->data(), bytes->size()}, path);
}

tl::expected<RunRecord, Problem> ParseRunRecord(std::string_view text, const std::string& path) {
  toml::table table;
  try {
    table = toml::parse(text, path);
  } catch (const toml::parse_error& error) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNotARunRecord,
                                  .file = path,
                                  .line = error.source().begin.line,
                                  .found = std::string(error.description())});
  }
  const toml::table* settings = table["settings"].as_table();
  if (TextOf(table, "program") != "KALDO" || settings == nullptr) {
    return tl::unexpected(Problem{.kind = ProblemKind::kNotARunRecord,
                                  .file = path,
                                  .found = "program = \"KALDO\" and [settings] are missing"});
  }
  RunRecord record;
  record.version = TextOf(table, "version");
  record.date = DateOf(table);
  record.flow = TextOf(table, "flow");
  record.folder = TextOf(table, "folder");
  record.threads = table["threads"].value_exact<std::int64_t>().value_or(1);
  record.duration_seconds = table["duration_seconds"].value_exact<double>().value_or(0);
  if (const auto seed = table["seed"].value_exact<std::int64_t>()) {
    record.seed = static_cast<std::uint32_t>(*seed);
  }
  for (const auto& [key, node] : *settings) {
    const auto value = ValueOf(node);
    if (!value) {
      return tl::unexpected(Problem{
          .kind = ProblemKind::kNotARunRecord,
          .file = path,
          .line = node.source().begin.line,
          .found =
              fmt::format("the setting {} has no value of a known kind", std::string(key.str()))});
    }
    record.settings.emplace_back(std::string(key.str()), *value);
  }
  ReadInputs(table, record);
  return record;
}

}  // namespace kaldo
