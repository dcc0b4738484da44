// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/problem.h"

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

}  // namespace

std::string SentenceOf(const Problem& problem) {
  constexpr std::string_view kPlace = "{}";
  std::string sentence(kProblemSentences.at(static_cast<std::size_t>(problem.kind)).text);
  if (const auto place = sentence.find(kPlace); place != std::string::npos) {
    sentence.replace(place, kPlace.size(), problem.subject);
  }
  return sentence;
}

std::string Escaped(std::string_view text) {
  std::string shown;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < 0x20 || byte == 0x7f) {
      shown += fmt::format("\\x{:02x}", byte);
    } else {
      shown += character;
    }
  }
  return shown;
}

std::string Quoted(std::string_view text) {
  if (text.size() <= kQuotedBytes) {
    return '"' + Escaped(text) + '"';
  }
  return '"' + Escaped(text.substr(0, kQuotedBytes)) + "...\"";
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
                                       Escaped(problem.individual.substr(0, kQuotedBytes))));
  }
  if (!problem.locus.empty()) {
    places.push_back(fmt::format("locus {}", Escaped(problem.locus)));
  }
  const std::string place = fmt::format("{}", fmt::join(places, ", "));
  if (place.empty() || problem.found.empty()) {
    return place + problem.found;
  }
  return place + ": " + problem.found;
}

}  // namespace kaldo
