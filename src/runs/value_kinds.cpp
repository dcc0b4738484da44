// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/value_kinds.h"

#include <algorithm>

#include <fmt/format.h>

#include "base/number_text.h"

namespace kaldo {

namespace {

constexpr unsigned kMostThreads = 1024;

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

tl::expected<std::int32_t, Problem> ParseWhole(std::string_view option, std::string_view text) {
  const auto value = ParseInteger(text);
  if (!value) {
    return NotUnderstood(ProblemKind::kNotWhole,
                         fmt::format("{}: {} is not a whole number", option, Quoted(text)));
  }
  return *value;
}

tl::expected<double, Problem> ParseReal(std::string_view option, std::string_view text) {
  const auto value = ParseDouble(text);
  if (!value) {
    return NotUnderstood(ProblemKind::kNotANumber,
                         fmt::format("{}: {} is not a number such as 10.5", option, Quoted(text)));
  }
  return *value;
}

tl::expected<std::optional<std::uint32_t>, Problem> ParseSeed(std::string_view option,
                                                              std::string_view text) {
  const auto seed = ParseSeedNumber(text);
  if (!seed) {
    return NotUnderstood(
        ProblemKind::kNotASeed,
        fmt::format("{}: {} is not a whole number from 0 to 4294967295", option, Quoted(text)));
  }
  return seed;
}

/// For what the head of a record tells.
template <typename Value>
void RecordNothing(const Value& /*value*/, const std::string& /*key*/, RunRecord& /*record*/) {}

template <typename Value>
Value RecordedNothing(const std::string& /*key*/, RecordedSettings& /*recorded*/) {
  return {};
}

/// A value that stands in a record as it is.
template <typename Value>
void RecordPlainly(const Value& value, const std::string& key, RunRecord& record) {
  record.settings.emplace_back(key, value);
}

template <typename Value>
Value RecordedPlainly(const std::string& key, RecordedSettings& recorded) {
  return recorded.Needed<Value>(key);
}

/// As many digits as it takes to read the same number back, not the six of the reports.
template <typename Number>
std::optional<std::string> NumberText(const Number& value) {
  return fmt::format("{}", value);
}

/// What stands between quotes, of which two within stand for one; nothing where they do not close.
std::optional<std::string> Unquoted(std::string_view text) {
  std::string inner;
  std::size_t at = 1;
  for (; at < text.size(); ++at) {
    if (text[at] == '"') {
      if (at + 1 >= text.size() || text[at + 1] != '"') {
        break;
      }
      ++at;
    }
    inner += text[at];
  }
  return at + 1 == text.size() ? std::optional(inner) : std::nullopt;
}

}  // namespace

std::vector<std::string> CutAtCommas(std::string_view text) {
  std::vector<std::string> parts;
  if (Trimmed(text).empty()) {
    return parts;
  }
  std::size_t begin = 0;
  while (begin <= text.size()) {
    const std::size_t comma = std::min(text.find(',', begin), text.size());
    parts.emplace_back(Trimmed(text.substr(begin, comma - begin)));
    begin = comma + 1;
  }
  return parts;
}

std::vector<std::string> NamesAtCommas(std::string_view text) {
  std::vector<std::string> names;
  std::string begun;  // a part that opened a quote, until one closes it
  for (const std::string& part : CutAtCommas(text)) {
    const std::string name = begun.empty() ? part : fmt::format("{},{}", begun, part);
    if (!name.starts_with('"')) {
      names.push_back(name);
    } else if (const auto unquoted = Unquoted(name)) {
      names.push_back(*unquoted);
      begun.clear();
    } else {
      begun = name;
    }
  }
  if (!begun.empty()) {  // no quote closes it: the commas part names after all
    const auto parts = CutAtCommas(begun);
    names.insert(names.end(), parts.begin(), parts.end());
  }
  return names;
}

std::string TextOfNames(const std::vector<std::string>& names) {
  std::string plain = fmt::format("{}", fmt::join(names, ","));
  if (NamesAtCommas(plain) == names) {
    return plain;
  }
  std::vector<std::string> parts = names;
  for (std::string& part : parts) {
    if (part.find(',') != std::string::npos || part.starts_with('"')) {
      for (std::size_t at = 0; (at = part.find('"', at)) != std::string::npos; at += 2) {
        part.insert(at, 1, '"');
      }
      part.insert(0, 1, '"').push_back('"');
    }
  }
  return fmt::format("{}", fmt::join(parts, ","));
}

std::optional<std::size_t> PlaceOf(std::string_view name,
                                   const std::vector<std::string_view>& names) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? std::nullopt
                              : std::optional(static_cast<std::size_t>(found - names.begin()));
}

tl::unexpected<Problem> NoneOf(const std::vector<std::string_view>& names, std::string_view option,
                               std::string_view name, ProblemKind kind) {
  return NotUnderstood(
      kind, fmt::format("{}: {} is none of: {}", option, Quoted(name), fmt::join(names, ", ")));
}

std::size_t RecordedPlace(const std::string& key, const std::vector<std::string_view>& names,
                          RecordedSettings& recorded) {
  const auto place = PlaceOf(recorded.Needed<std::string>(key), names);
  if (!place) {
    recorded.Note(key, fmt::format("is none of {}", fmt::join(names, ", ")));
  }
  return place.value_or(0);
}

ValueKind<std::string> TextKind() {
  return {.parse = [](std::string_view /*option*/, std::string_view text)
              -> tl::expected<std::string, Problem> { return std::string(text); },
          .text = [](const std::string& value) { return std::optional(value); },
          .record = RecordPlainly<std::string>,
          .recorded = RecordedPlainly<std::string>};
}

ValueKind<std::string> OptionalTextKind() {
  ValueKind<std::string> kind = TextKind();
  kind.text = [](const std::string& value) {
    return value.empty() ? std::nullopt : std::optional(value);
  };
  kind.record = [](const std::string& value, const std::string& key, RunRecord& record) {
    if (!value.empty()) {
      record.settings.emplace_back(key, value);
    }
  };
  kind.recorded = [](const std::string& key, RecordedSettings& recorded) {
    return recorded.Optional<std::string>(key).value_or("");
  };
  return kind;
}

ValueKind<std::int32_t> WholeKind() {
  return {
      .parse = ParseWhole,
      .text = NumberText<std::int32_t>,
      .record = [](const std::int32_t& value, const std::string& key,
                   RunRecord& record) { record.settings.emplace_back(key, std::int64_t{value}); },
      .recorded = [](const std::string& key,
                     RecordedSettings& recorded) { return recorded.WholeNumber(key); },
      .is_number = true};
}

ValueKind<double> RealKind() {
  return {.parse = ParseReal,
          .text = NumberText<double>,
          .record = RecordPlainly<double>,
          .recorded = RecordedPlainly<double>,
          .is_number = true};
}

ValueKind<double> WholeRealKind() {
  ValueKind<double> kind = RealKind();
  kind.parse = [](std::string_view option, std::string_view text) {
    return ParseWhole(option, text).map([](std::int32_t value) {
      return static_cast<double>(value);
    });
  };
  return kind;
}

ValueKind<bool> FlagKind(bool by_default) {
  return {.parse = [by_default](std::string_view /*option*/, std::string_view /*text*/)
              -> tl::expected<bool, Problem> { return !by_default; },
          .text = [by_default](const bool& value) -> std::optional<std::string> {
            return value != by_default ? std::optional(std::string()) : std::nullopt;
          },
          .record = RecordPlainly<bool>,
          .recorded =
              [by_default](const std::string& key, RecordedSettings& recorded) {
                return recorded.Optional<bool>(key).value_or(by_default);
              }};
}

ValueKind<std::optional<std::vector<std::string>>> NamesKind() {
  using Names = std::optional<std::vector<std::string>>;
  return {.parse = [](std::string_view /*option*/, std::string_view text)
              -> tl::expected<Names, Problem> { return NamesAtCommas(text); },
          .text = [](const Names& names) -> std::optional<std::string> {
            return names ? std::optional(TextOfNames(*names)) : std::nullopt;
          },
          .record =
              [](const Names& names, const std::string& key, RunRecord& record) {
                if (names) {
                  record.settings.emplace_back(key, *names);
                }
              },
          .recorded =
              [](const std::string& key, RecordedSettings& recorded) {
                return recorded.Optional<std::vector<std::string>>(key);
              }};
}

ValueKind<std::optional<std::uint32_t>> SeedKind() {
  using Seed = std::optional<std::uint32_t>;
  return {.parse = ParseSeed,
          .text = [](const Seed& seed) { return seed ? NumberText(*seed) : std::nullopt; },
          .record = RecordNothing<Seed>,
          .recorded = RecordedNothing<Seed>};
}

ValueKind<unsigned> ThreadsKind() {
  return {
      .parse = ParseThreads,
      .text =
          [](const unsigned& threads) { return threads == 0 ? std::nullopt : NumberText(threads); },
      .record = RecordNothing<unsigned>,
      .recorded = RecordedNothing<unsigned>};
}

tl::expected<unsigned, Problem> ParseThreads(std::string_view option, std::string_view text) {
  const auto threads = ParseWhole(option, text);
  if (!threads) {
    return tl::unexpected(threads.error());
  }
  if (*threads < 1 || *threads > static_cast<std::int32_t>(kMostThreads)) {
    return NotUnderstood(
        ProblemKind::kNotAThreadCount,
        fmt::format("{}: {} is not between 1 and {}", option, *threads, kMostThreads));
  }
  return static_cast<unsigned>(*threads);
}

}  // namespace kaldo
