// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/name_rules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <utf8.h>
#include <vector>

#include <fmt/format.h>

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 4> kSignsOfNoParent = {"UC", "--", "none", "NA"};
constexpr std::array<std::string_view, 12> kMonths = {
    "january", "february", "march",     "april",   "may",      "june",
    "july",    "august",   "september", "october", "november", "december"};

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// The bytes at the head of a text that are of one sort.
template <typename IsOne>
std::string_view Head(std::string_view text, IsOne is_one) {
  const auto end = std::find_if_not(text.begin(), text.end(), is_one);
  return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

bool IsMonth(std::string_view word) {
  std::string lower(word);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  });
  return lower == "sept" ||
         std::any_of(kMonths.begin(), kMonths.end(), [&lower](std::string_view month) {
           return lower == month || lower == month.substr(0, 3);
         });
}

/// The parts of a date: numbers and the name of a month, with or without "-" or "/" between them.
struct DateParts {
  std::vector<unsigned> numbers;
  std::size_t months = 0;
  std::size_t separators = 0;
};

/// A day, a month, or a year with or without its century.
bool IsNumberOfDate(std::string_view digits, unsigned number) {
  return digits.size() <= 2 || (digits.size() == 4 && number >= 1900);
}

std::optional<DateParts> PartsOfDate(std::string_view name) {
  DateParts parts;
  while (!name.empty()) {
    const char first = name.front();
    const std::string_view part = IsDigit(first)    ? Head(name, IsDigit)
                                  : IsLetter(first) ? Head(name, IsLetter)
                                                    : name.substr(0, 1);
    if (IsDigit(first)) {
      const auto number =
          part.size() > 4 ? 0U : static_cast<unsigned>(std::stoul(std::string(part)));
      if (!IsNumberOfDate(part, number)) {
        return std::nullopt;
      }
      parts.numbers.push_back(number);
    } else if (IsMonth(part)) {
      ++parts.months;
    } else if (first == '-' || first == '/') {
      ++parts.separators;
    } else {
      return std::nullopt;
    }
    name.remove_prefix(part.size());
  }
  return parts;
}

bool IsDate(std::string_view name) {
  const auto parts = PartsOfDate(name);
  if (!parts) {
    return false;
  }
  const std::size_t numbers = parts->numbers.size();
  if (parts->months == 1) {
    return (numbers == 1 || numbers == 2) && parts->separators <= numbers;
  }
  const auto is_month = [](unsigned number) { return number >= 1 && number <= 12; };
  return parts->months == 0 && (numbers == 2 || numbers == 3) && parts->separators == numbers - 1 &&
         std::any_of(parts->numbers.begin(), parts->numbers.end(), is_month);
}

/// A number that does not look as it did once it has been read: with zeros before it, a fraction or
/// an exponent.
bool IsChangedNumber(std::string_view name) {
  const std::string_view whole = Head(name, IsDigit);
  if (whole.empty()) {
    return false;
  }
  std::string_view rest = name.substr(whole.size());
  if (rest.empty()) {
    return whole.size() > 1 && whole.front() == '0';
  }
  if (rest.front() == '.' || rest.front() == ',') {
    rest.remove_prefix(1);
    rest.remove_prefix(Head(rest, IsDigit).size());
  }
  if (!rest.empty() && (rest.front() == 'E' || rest.front() == 'e')) {
    rest.remove_prefix(1);
    if (!rest.empty() && (rest.front() == '+' || rest.front() == '-')) {
      rest.remove_prefix(1);
    }
    if (rest.empty()) {
      return false;
    }
    rest.remove_prefix(Head(rest, IsDigit).size());
  }
  return rest.empty();
}

/// Control characters of ASCII and, in UTF-8, of Latin-1.
bool HasControl(std::string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    const auto byte = static_cast<unsigned char>(name[i]);
    const bool after_c2 = i > 0 && static_cast<unsigned char>(name[i - 1]) == 0xc2;
    if (byte < 0x20 || byte == 0x7f || (after_c2 && byte >= 0x80 && byte < 0xa0)) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool IsSignOfNoParent(std::string_view name) {
  return std::find(kSignsOfNoParent.begin(), kSignsOfNoParent.end(), name) !=
         kSignsOfNoParent.end();
}

std::optional<std::string_view> SpreadsheetReading(std::string_view name) {
  constexpr std::string_view kFormulaSigns = "=+-@";
  if (!name.empty() && kFormulaSigns.find(name.front()) != std::string_view::npos) {
    return "a formula";
  }
  if (IsDate(name)) {
    return "a date";
  }
  return IsChangedNumber(name) ? std::optional<std::string_view>("a number") : std::nullopt;
}

std::optional<Problem> FaultOfName(std::string_view name) {
  if (!utf8::is_valid(name.begin(), name.end())) {
    return Problem{.kind = ProblemKind::kNameNotUtf8,
                   .found = fmt::format("{} has bytes of another encoding; save the file as UTF-8 "
                                        "or write the name in plain letters",
                                        Quoted(name))};
  }
  if (HasControl(name)) {
    return Problem{.kind = ProblemKind::kNameHasControl,
                   .found = fmt::format("{}; write the name again by hand", Quoted(name))};
  }
  return std::nullopt;
}

}  // namespace kaldo
