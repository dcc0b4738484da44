// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/run_record.h"

#include <utf8.h>

#include <fmt/chrono.h>
#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

std::string Hexadecimal(std::string_view text) {
  std::string digits(kHexadecimalMark);
  for (const char character : text) {
    digits += fmt::format("{:02x}", static_cast<unsigned char>(character));
  }
  return digits;
}

std::string TomlText(std::string_view text) {
  // TOML holds well-formed UTF-8 only: no surrogates, no overlong forms.
  if (!utf8::is_valid(text.begin(), text.end()) || text.starts_with(kHexadecimalMark)) {
    return '"' + Hexadecimal(text) + '"';
  }
  std::string quoted = "\"";
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
      quoted += '\\';
      quoted += character;
    } else if (byte < 0x20 || byte == 0x7f) {
      quoted += fmt::format("\\u{:04x}", byte);
    } else {
      quoted += character;
    }
  }
  return quoted + '"';
}

// TOML tells 1.0 from 1: a probability of one must stay a floating-point number.
std::string Toml(double value) {
  std::string text = fmt::format("{}", value);
  return text.find_first_of(".en") == std::string::npos ? text + ".0" : text;
}

std::string Toml(bool value) { return value ? "true" : "false"; }
std::string Toml(std::int64_t value) { return std::to_string(value); }
std::string Toml(const std::string& value) { return TomlText(value); }

template <typename Value>
std::string Toml(const std::vector<Value>& values) {
  std::vector<std::string> parts;
  parts.reserve(values.size());
  for (const Value& value : values) {
    parts.push_back(Toml(value));
  }
  return fmt::format("[{}]", fmt::join(parts, ", "));
}

}  // namespace

std::string FormatRunRecord(const RunRecord& record) {
  std::string text = "# What this run was made with. `kaldo rerun` with this file repeats it.\n";
  const auto line = [&text](std::string_view key, const std::string& value) {
    text += fmt::format("{} = {}\n", key, value);
  };
  line("program", TomlText("KALDO"));
  line("version", TomlText(record.version));
  if (!record.date.empty()) {  // a record that was cut by hand may have none
    line("date", record.date);
  }
  line("flow", TomlText(record.flow));
  line("folder", TomlText(record.folder));
  if (record.seed) {
    line("seed", std::to_string(*record.seed));
  }
  line("threads", Toml(record.threads));
  line("duration_seconds", Toml(record.duration_seconds));
  line("warnings", Toml(record.warnings));
  text += "\n[settings]\n";
  for (const auto& [key, value] : record.settings) {
    line(key, std::visit([](const auto& plain) { return Toml(plain); }, value));
  }
  for (const RecordedInput& input : record.inputs) {
    text += "\n[[input]]\n";
    line("role", TomlText(input.role));
    line("path", TomlText(input.path));
    line("bytes", std::to_string(input.digest.bytes));
    line("sha256", TomlText(input.digest.sha256));
  }
  for (const RecordedOutput& output : record.outputs) {
    text += "\n[[output]]\n";
    line("file", TomlText(output.file));
    line("bytes", std::to_string(output.digest.bytes));
    line("sha256", TomlText(output.digest.sha256));
  }
  return text;
}

std::string DateText(std::chrono::system_clock::time_point time) {
  return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}",
                     fmt::gmtime(std::chrono::system_clock::to_time_t(time)));
}

std::chrono::system_clock::time_point TimeOfDate(const std::string& date) {
  using namespace std::chrono;
  const auto number = [&date](std::size_t at, std::size_t digits) {
    return ParseInteger(date.size() == 20 ? std::string_view(date).substr(at, digits) : "")
        .value_or(0);
  };
  const year_month_day day{year{number(0, 4)}, month{static_cast<unsigned>(number(5, 2))},
                           std::chrono::day{static_cast<unsigned>(number(8, 2))}};
  return day.ok() ? sys_days{day} + hours{number(11, 2)} + minutes{number(14, 2)} +
                        seconds{number(17, 2)}
                  : system_clock::time_point();
}

InputChanges CompareInputs(const RunRecord& record, const InputDigest& digest_now) {
  InputChanges changes;
  for (const RecordedInput& input : record.inputs) {
    const auto now = digest_now(input.path);
    if (!now) {
      changes.missing.push_back(fmt::format("{} (\"{}\") cannot be read.", input.role, input.path));
    } else if (*now != input.digest) {
      changes.changed.push_back(
          fmt::format("{} (\"{}\") has changed since the recorded run: {} bytes then, {} bytes "
                      "now, other contents.",
                      input.role, input.path, input.digest.bytes, now->bytes));
    }
  }
  return changes;
}

std::vector<std::string> ChangedInputs(const RunRecord& record) {
  return CompareInputs(record, DigestOfFile).changed;
}

}  // namespace kaldo
