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

/// What has no meaning around a name.
constexpr std::string_view kBlanks = " \t";

/// A name in quotes at the beginning of a text, of which two within stand for one.
struct QuotedName {
  std::string name;
  std::size_t end = 0;  ///< the place of the comma behind it, or the length of the text
};

/// Nothing where no quote closes it right before a comma or the end.
std::optional<QuotedName> QuotedNameIn(std::string_view text) {
  QuotedName quoted;
  for (std::size_t at = 1; at < text.size(); ++at) {
    if (text[at] != '"' || text.substr(at + 1).starts_with('"')) {
      quoted.name += text[at];
      at += text[at] == '"' ? 1 : 0;
      continue;
    }
    quoted.end = std::min(text.find_first_not_of(kBlanks, at + 1), text.size());
    return quoted.end == text.size() || text[quoted.end] == ',' ? std::optional(std::move(quoted))
                                                                : std::nullopt;
  }
  return std::nullopt;
}

/// A name that would be read as another one without quotes.
bool NeedsQuotes(const std::string& name) {
  return name.empty() || Trimmed(name) != name || name.starts_with('"') ||
         name.find(',') != std::string::npos;
}

std::string InQuotes(std::string_view name) {
  std::string quoted = "\"";
  for (const char each : name) {
    quoted.append(each == '"' ? 2 : 1, each);
  }
  return quoted + '"';
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
  std::string_view rest = Trimmed(text);
  while (!rest.empty()) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
    std::size_t end = std::min(rest.find(','), rest.size());
    if (auto quoted = rest.starts_with('"') ? QuotedNameIn(rest) : std::nullopt) {
      names.push_back(std::move(quoted->name));
      end = quoted->end;
    } else {
      names.emplace_back(Trimmed(rest.substr(0, end)));
    }
    if (end + 1 == rest.size()) {
      names.emplace_back();  // behind the last comma
    }
    rest.remove_prefix(std::min(end + 1, rest.size()));
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
    if (NeedsQuotes(part)) {
      part = InQuotes(part);
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
