// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/import_words.h"

#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"

namespace kaldo {

std::vector<std::string> NamesBetweenCommas(std::string_view text) {
  const auto words = WordsBetween(text, ",");
  std::vector<std::string> names;
  names.reserve(words.size());
  for (const std::string_view word : words) {
    names.emplace_back(Trimmed(word));
  }
  return names;
}

tl::expected<std::map<std::string, unsigned>, std::string> RepeatLengthsIn(std::string_view text) {
  constexpr std::int32_t kLongestRepeat = 100;
  std::map<std::string, unsigned> lengths;
  for (const std::string& word : NamesBetweenCommas(text)) {
    const std::size_t sign = word.rfind('=');
    const auto length =
        sign == std::string::npos ? std::nullopt : ParseInteger(word.substr(sign + 1));
    if (!length || *length < 1 || *length > kLongestRepeat) {
      return tl::unexpected(
          fmt::format("--repeat-length: {} is no locus with the length of its repeat, as in L=4.",
                      Quoted(word)));
    }
    lengths[word.substr(0, sign)] = static_cast<unsigned>(*length);
  }
  return lengths;
}

}  // namespace kaldo
