// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/layout_hints.h"

#include <algorithm>

#include <fmt/format.h>

#include "genotypes/lines.h"
#include "genotypes/record_checks.h"

namespace kaldo {

namespace {

std::optional<LayoutHint> FindOtherSeparators(std::span<const Line> lines) {
  const auto has = [&lines](char sign) {
    return std::all_of(lines.begin(), lines.end(), [sign](Line line) {
      return std::any_of(line.begin(), line.end(), [sign](const Token& token) {
        return token.text.find(sign) != std::string_view::npos;
      });
    });
  };
  for (const auto& [sign, name] : {std::pair(',', "commas"), std::pair(';', "semicolons")}) {
    if (has(sign)) {
      return LayoutHint{lines.front().front().line,
                        fmt::format("every line holds {}: write blanks or tabs between a name and "
                                    "its genotypes, without {}",
                                    name, name)};
    }
  }
  return std::nullopt;
}

bool HasGenotype(Line line) {
  return std::any_of(line.begin() + 1, line.end(),
                     [](const Token& token) { return IsAllDigits(token.text); });
}

std::optional<LayoutHint> FindHeadings(std::span<const Line> lines) {
  const Line first = lines.front();
  if (lines.size() < 2 || first.size() < 2 || HasGenotype(first) || !HasGenotype(lines[1])) {
    return std::nullopt;
  }
  return LayoutHint{first.front().line,
                    fmt::format("{} ... looks like a line of headings: leave it out, the loci are "
                                "named in a file of their own",
                                Quoted(first.front().text))};
}

/// What else the words of lines can be that all hold the same number of them.
std::string CountText(std::size_t words, std::size_t loci, Line line) {
  std::string text = fmt::format("every line holds {} words, expected {}: ", words, loci + 1);
  if (!IsAllDigits(line[1].text)) {
    return text + "a blank in every name? a name is one word";
  }
  if (words == 2 * loci + 1) {
    return text + "alleles apart? write both alleles of a locus side by side";
  }
  return text + fmt::format("is this the names-of-loci file of these genotypes, with {} {}?", loci,
                            loci == 1 ? "locus" : "loci");
}

}  // namespace

std::optional<LayoutHint> FindLayoutHint(const TokenFile& file, RecordLayout layout) {
  std::vector<Line> lines = LinesOf(file.Tokens());
  std::erase_if(lines, [&](Line line) { return layout.IsSeparator(line.front().text); });
  if (lines.empty()) {
    return std::nullopt;
  }
  if (auto hint = FindOtherSeparators(lines)) {
    return hint;
  }
  if (auto hint = FindHeadings(lines)) {
    return hint;
  }
  const std::size_t words = lines.front().size();
  const bool all_alike =
      std::all_of(lines.begin(), lines.end(), [words](Line line) { return line.size() == words; });
  if (!all_alike || lines.size() < 2 || words < 2 || words % (layout.number_of_loci + 1) == 0) {
    return std::nullopt;
  }
  return LayoutHint{lines.front().front().line,
                    CountText(words, layout.number_of_loci, lines.front())};
}

}  // namespace kaldo
