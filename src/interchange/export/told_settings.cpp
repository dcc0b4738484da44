// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/told_settings.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include "base/path_text.h"

namespace kaldo {

namespace {

std::string TextOf(bool value) { return value ? "yes" : "no"; }
std::string TextOf(std::int64_t value) { return std::to_string(value); }
std::string TextOf(double value) { return fmt::format("{}", value); }
std::string TextOf(const std::string& value) { return value; }

template <typename Value>
std::string TextOf(const std::vector<Value>& values) {
  std::string text;
  for (const auto& value : values) {
    text.append(text.empty() ? "" : ", ").append(TextOf(value));
  }
  return text;
}

std::string NameOfFile(const std::string& path) { return PathText(FilePath(path).filename()); }

bool IsInput(const RunRecord& record, const std::string& value) {
  return std::any_of(record.inputs.begin(), record.inputs.end(),
                     [&](const auto& input) { return input.path == value; });
}

}  // namespace

std::vector<ToldSetting> ToldSettings(const RunRecord& record) {
  std::vector<ToldSetting> told = {{"program", "KALDO " + record.version}, {"flow", record.flow}};
  for (const auto& [key, value] : record.settings) {
    std::string text = std::visit([](const auto& plain) { return TextOf(plain); }, value);
    if (key != "project" && !IsInput(record, text)) {
      told.emplace_back(key, std::move(text));
    }
  }
  for (const RecordedInput& input : record.inputs) {
    told.emplace_back(input.role, fmt::format("{} ({} bytes, SHA-256 {})", NameOfFile(input.path),
                                              input.digest.bytes, input.digest.sha256));
  }
  return told;
}

ExportTable SettingsTable(const RunRecord& record) {
  auto told = ToldSettings(record);
  const std::size_t rows = told.size();
  return {"",
          "Settings",
          {"setting", "value"},
          rows,
          [told = std::move(told)](std::size_t row) -> std::vector<Cell> {
            return {NameCell{told[row].first}, NameCell{told[row].second}};
          }};
}

}  // namespace kaldo
