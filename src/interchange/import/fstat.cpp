// SPDX-License-Identifier: GPL-3.0-or-later
// FSTAT: populations, loci, the largest allele and the digits of an allele; the loci, one per line;
// the number of its population and the genotypes of every individual, which has no name.
#include <map>

#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

constexpr std::string_view kBlanks = " \t";

struct FstatHead {
  std::size_t loci = 0;
  std::size_t digits = 0;  ///< of an allele
};

std::optional<FstatHead> HeadIn(std::string_view line) {
  const auto words = WordsBetween(line, kBlanks);
  std::vector<std::int32_t> numbers;
  numbers.reserve(words.size());
  for (const std::string_view word : words) {
    numbers.push_back(ParseInteger(word).value_or(0));
  }
  if (numbers.size() != 4 || numbers[0] < 1 || numbers[1] < 1 || numbers[2] < 1 || numbers[3] < 1 ||
      numbers[3] > 3 || static_cast<std::size_t>(numbers[1]) > kMaxColumns) {
    return std::nullopt;
  }
  return FstatHead{static_cast<std::size_t>(numbers[1]), static_cast<std::size_t>(numbers[3])};
}

bool NextFullLine(TextLines& lines, TextLine& line) {
  while (lines.Next(line)) {
    if (!Trimmed(line.text).empty()) {
      return true;
    }
  }
  return false;
}

/// A field may have lost its leading zeros, since it is a number to the programs that write it.
std::string Field(std::string_view word, std::size_t digits) {
  const std::size_t wanted = 2 * digits;
  const bool is_number = word.find_first_not_of("0123456789") == std::string_view::npos;
  return std::string(is_number && word.size() < wanted ? wanted - word.size() : 0, '0') +
         std::string(word);
}

bool TakeLine(const TextLine& line, const std::vector<std::string>& loci, std::size_t digits,
              std::map<std::string, std::size_t>& rows, StudyBuilder& builder) {
  const auto words = WordsBetween(line.text, kBlanks);
  if (words.size() != loci.size() + 1) {
    builder.Fault(line.number, "", "",
                  fmt::format("it has {} fields, expected a population and {} genotypes",
                              words.size(), loci.size()));
    return true;
  }
  const std::string population = fmt::format("pop{}", words.front());
  if (!builder.AddIndividual(fmt::format("{}_row{}", population, ++rows[population]),
                             line.number)) {
    return false;
  }
  builder.SetPopulation(population);
  for (std::size_t k = 0; k < loci.size(); ++k) {
    const std::string field = Field(words[k + 1], digits);
    if (field.size() != 2 * digits) {
      builder.Fault(line.number, loci[k], builder.Individual().name,
                    fmt::format("{} has {} digits, line 1 says {} for an allele",
                                Quoted(words[k + 1]), field.size(), digits));
    } else {
      builder.SetGenotype(k, {field, line.number, loci[k]});
    }
  }
  return true;
}

}  // namespace

std::optional<std::string> RecogniseFstat(const ForeignFile& file) {
  TextLines lines(*file.text);
  TextLine line;
  const auto head = NextFullLine(lines, line) ? HeadIn(line.text) : std::nullopt;
  if (!head) {
    return std::nullopt;
  }
  for (std::size_t k = 0; k < head->loci; ++k) {
    if (!NextFullLine(lines, line) || WordsBetween(line.text, kBlanks).size() != 1) {
      return std::nullopt;
    }
  }
  return fmt::format("line 1 holds four numbers, and {} names of loci follow", head->loci);
}

void ReadFstat(ForeignFile& file, StudyBuilder& builder) {
  TextLines lines(*file.text);
  TextLine line;
  const auto head = NextFullLine(lines, line) ? HeadIn(line.text) : std::nullopt;
  if (!head) {
    builder.Fault(1, "", "",
                  "line 1 should hold populations, loci, the largest allele and 1 to 3 digits");
    return;
  }
  std::vector<std::string> loci;
  while (loci.size() < head->loci && NextFullLine(lines, line)) {
    loci.emplace_back(Trimmed(line.text));
  }
  if (!builder.SetLoci(loci)) {
    return;
  }
  builder.Note(
      "the format has no names: individuals got one by population and row, such as "
      "pop3_row12");
  std::map<std::string, std::size_t> rows;
  while (NextFullLine(lines, line) && TakeLine(line, loci, head->digits, rows, builder)) {
  }
}

}  // namespace kaldo
