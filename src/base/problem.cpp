// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/problem.h"

#include <algorithm>
#include <utf8.h>
#include <vector>

#include <fmt/format.h>

namespace kaldo {

namespace {

constexpr std::size_t kQuotedBytes = 40;

constexpr bool TableFollowsTheKinds() {
  for (std::size_t kind = 0; kind < kProblemSentences.size(); ++kind) {
    if (kProblemSentences.at(kind).kind != static_cast<ProblemKind>(kind)) {
      return false;
    }
  }
  return true;
}

static_assert(TableFollowsTheKinds(), "a kind has no sentence, or stands at another place");

/// The bytes of the first character; 1 where it is no UTF-8.
std::size_t BytesOfFirst(std::string_view text) {
  if (static_cast<unsigned char>(text.front()) < 0x80) {
    return 1;
  }
  for (std::size_t bytes = 2; bytes <= std::min<std::size_t>(text.size(), 4); ++bytes) {
    if (utf8::is_valid(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(bytes))) {
      return bytes;
    }
  }
  return 1;
}

/// Controls of both sets, bytes that are no UTF-8, and the characters that make a terminal or a
/// window begin a line or turn the direction of writing, so that a name would not be read as it is.
bool IsObeyed(std::string_view bytes) {
  if (bytes.size() == 1 && static_cast<unsigned char>(bytes.front()) >= 0x80) {
    return true;
  }
  const std::uint32_t character = utf8::unchecked::peek_next(bytes.begin());
  return character < 0x20 || (character >= 0x7f && character < 0xa0) ||
         (character >= 0x200e && character <= 0x200f) ||
         (character >= 0x2028 && character <= 0x202e) ||
         (character >= 0x2066 && character <= 0x2069);
}

std::string EscapedBut(std::string_view kept, std::string_view text) {
  std::string shown;
  while (!text.empty()) {
    const std::string_view character = text.substr(0, BytesOfFirst(text));
    text.remove_prefix(character.size());
    if (!IsObeyed(character) || kept.find(character) != std::string_view::npos) {
      shown += character;
      continue;
    }
    for (const char byte : character) {
      shown += fmt::format("\\x{:02x}", static_cast<unsigned char>(byte));
    }
  }
  return shown;
}

/// At most 40 bytes of a text; no character of UTF-8 is cut.
std::string_view Shortened(std::string_view text) {
  std::size_t end = std::min(text.size(), kQuotedBytes);
  while (end > 0 && end < text.size() && (static_cast<unsigned char>(text[end]) & 0xc0U) == 0x80) {
    --end;
  }
  return text.substr(0, end);
}

}  // namespace

std::string SentenceOf(const Problem& problem) {
  constexpr std::string_view kPlace = "{}";
  std::string sentence(kProblemSentences.at(static_cast<std::size_t>(problem.kind)).text);
  if (const auto place = sentence.find(kPlace); place != std::string::npos) {
    sentence.replace(place, kPlace.size(), Escaped(problem.subject));
  }
  return sentence;
}

std::string Escaped(std::string_view text) { return EscapedBut("", text); }

std::string EscapedLines(std::string_view text) { return EscapedBut("\n\t", text); }

std::string Quoted(std::string_view text) {
  if (text.size() <= kQuotedBytes) {
    return '"' + Escaped(text) + '"';
  }
  return '"' + Escaped(Shortened(text)) + "...\"";
}

std::string DetailLine(const Problem& problem) {
  std::vector<std::string> places;
  if (!problem.file.empty()) {
    places.push_back(Escaped(problem.file));
  }
  if (problem.line != 0) {
    places.push_back(fmt::format("line {}", problem.line));
  }
  if (problem.record != 0) {
    places.push_back(problem.individual.empty()
                         ? fmt::format("record {}", problem.record)
                         : fmt::format("record {} ({})", problem.record,
                                       Escaped(Shortened(problem.individual))));
  }
  if (!problem.locus.empty()) {
    places.push_back(fmt::format("locus {}", Escaped(problem.locus)));
  }
  const std::string place = fmt::format("{}", fmt::join(places, ", "));
  if (place.empty() || problem.found.empty()) {
    return place + Escaped(problem.found);
  }
  return place + ": " + Escaped(problem.found);
}

}  // namespace kaldo
