// SPDX-License-Identifier: GPL-3.0-or-later
// GenAlEx: line 1 counts loci, samples, populations and the samples of each; line 2 is a title with
// the names of the populations; line 3 are the heads: name, population, and two columns per locus.
#include <algorithm>

#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"
#include "interchange/import/locus_heads.h"

namespace kaldo {

namespace {

std::optional<std::size_t> Count(const std::string& cell) {
  std::string_view text = Trimmed(cell);
  if (text.ends_with(".0")) {
    text.remove_suffix(2);
  }
  const auto number = ParseInteger(text);
  return number && *number >= 0 ? std::optional(static_cast<std::size_t>(*number)) : std::nullopt;
}

/// What line 1 says.
struct Counts {
  std::size_t loci = 0;
  std::size_t samples = 0;
  std::vector<std::size_t> sizes;  ///< of the populations
};

std::optional<Counts> CountsIn(const Row& row) {
  const auto loci = Count(row.Cell(0));
  const auto samples = Count(row.Cell(1));
  const auto populations = Count(row.Cell(2));
  if (!loci || !samples || !populations || *loci == 0 || *loci > kMaxColumns / 2 ||
      *populations > kMaxColumns) {
    return std::nullopt;
  }
  Counts counts{*loci, *samples, {}};
  for (std::size_t k = 0; k < *populations; ++k) {
    counts.sizes.push_back(Count(row.Cell(3 + k)).value_or(0));
  }
  return counts;
}

/// The names of the loci, and columns behind them that are passed over.
std::vector<std::string> LociIn(const Row& heads, const Counts& counts, StudyBuilder& builder) {
  std::vector<std::string> loci;
  loci.reserve(counts.loci);
  for (std::size_t k = 0; k < counts.loci; ++k) {
    const std::string& first = heads.Cell(2 + 2 * k);
    const std::string& second = heads.Cell(3 + 2 * k);
    loci.push_back(CommonHead(first, second).value_or(std::string(Trimmed(first))));
    if (loci.back().empty()) {
      builder.Fault(heads.line, "", "", fmt::format("locus {} has no name", k + 1));
    }
  }
  std::string others;
  for (std::size_t column = 2 + 2 * counts.loci; column < heads.cells.size(); ++column) {
    if (!Trimmed(heads.cells[column]).empty()) {
      others += (others.empty() ? "" : ", ") + Quoted(heads.cells[column]);
    }
  }
  if (!others.empty()) {
    builder.Note("columns behind the genotypes are not read: " + others);
  }
  return loci;
}

void CheckCounts(const Counts& counts,
                 const std::vector<std::pair<std::string, std::size_t>>& populations,
                 std::size_t samples, StudyBuilder& builder) {
  const auto differ = [&builder](const std::string& what, std::size_t told, std::size_t found) {
    if (told != found) {
      builder.Fault(
          1, "", "",
          fmt::format("line 1 says {} {}, there are {}: is the file whole?", told, what, found));
    }
  };
  differ("samples", counts.samples, samples);
  differ("populations", counts.sizes.size(), populations.size());
  for (std::size_t k = 0; k < std::min(counts.sizes.size(), populations.size()); ++k) {
    differ("samples of population " + Quoted(populations[k].first), counts.sizes[k],
           populations[k].second);
  }
}

}  // namespace

std::optional<std::string> RecogniseGenAlEx(const ForeignFile& file) {
  const auto rows = file.FirstRows(3);
  if (rows.size() < 3 || rows[0].line != 1) {
    return std::nullopt;
  }
  const auto counts = CountsIn(rows[0]);
  const Row& heads = rows[1].line >= 3 ? rows[1] : rows[2];
  if (!counts || heads.cells.size() < 2 + 2 * counts->loci - 1 || Count(heads.Cell(2))) {
    return std::nullopt;
  }
  return fmt::format("line 1 counts {} loci, {} samples and {} populations", counts->loci,
                     counts->samples, counts->sizes.size());
}

void ReadGenAlEx(ForeignFile& file, StudyBuilder& builder) {
  Row row;
  const auto next = [&] {
    const auto read = file.rows ? file.rows->Next(row) : RowRead(false);
    if (!read) {
      builder.Fault(read.error().line, "", "", read.error().found);
    }
    return read && *read;
  };
  const auto counts = next() ? CountsIn(row) : std::nullopt;
  if (!counts) {
    builder.Fault(1, "", "", "line 1 should count loci, samples, populations and their samples");
    return;
  }
  bool is_there = next();
  while (is_there && row.line < 3) {
    is_there = next();
  }
  const Row heads = row;
  const auto loci = LociIn(heads, *counts, builder);
  if (!is_there || !builder.SetLoci(loci)) {
    return;
  }
  std::vector<std::pair<std::string, std::size_t>> populations;
  std::size_t samples = 0;
  for (; next(); ++samples) {
    if (!builder.AddIndividual(row.Cell(0), row.line)) {
      return;
    }
    builder.SetPopulation(row.Cell(1));
    const std::string population(Trimmed(row.Cell(1)));
    auto known = std::find_if(populations.begin(), populations.end(),
                              [&](const auto& each) { return each.first == population; });
    known = known == populations.end() ? populations.insert(known, {population, 0}) : known;
    ++known->second;
    for (std::size_t k = 0; k < loci.size(); ++k) {
      builder.SetAlleles(k, {row.Cell(2 + 2 * k), row.line, loci[k]},
                         {row.Cell(3 + 2 * k), row.line, loci[k]});
    }
  }
  CheckCounts(*counts, populations, samples, builder);
}

}  // namespace kaldo
