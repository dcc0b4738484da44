// SPDX-License-Identifier: GPL-3.0-or-later
// GeneMapper: a long table with one line per sample and marker.
#include <algorithm>
#include <map>

#include <fmt/format.h>

#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

/// Where the columns stand that count.
struct Columns {
  std::size_t sample = 0;
  std::size_t marker = 0;
  std::size_t first = 0;
  std::size_t second = 0;
  std::vector<std::size_t> more;  ///< of third alleles and on
};

std::optional<Columns> ColumnsIn(const Row& heads) {
  std::map<std::string, std::size_t> places;
  for (std::size_t k = 0; k < heads.cells.size(); ++k) {
    places.emplace(Lower(Trimmed(heads.cells[k])), k);
  }
  const auto wanted = {"sample name", "marker", "allele 1", "allele 2"};
  if (std::any_of(wanted.begin(), wanted.end(),
                  [&](const char* head) { return !places.contains(head); })) {
    return std::nullopt;
  }
  Columns columns{
      places["sample name"], places["marker"], places["allele 1"], places["allele 2"], {}};
  for (const auto& [head, place] : places) {
    if (head.starts_with("allele ") && place != columns.first && place != columns.second) {
      columns.more.push_back(place);
    }
  }
  return columns;
}

/// Names and their places, in order of first appearance.
class NameList {
 public:
  std::size_t PlaceOf(std::string_view name) {
    const auto place = places_.emplace(std::string(name), names.size());
    if (place.second) {
      names.emplace_back(name);
    }
    return place.first->second;
  }

  std::vector<std::string> names;

 private:
  std::map<std::string, std::size_t> places_;
};

class GeneMapperReader {
 public:
  GeneMapperReader(RowSource& rows, Columns columns, StudyBuilder& builder)
      : rows_(rows), columns_(std::move(columns)), builder_(builder) {}

  void Read() {
    // Loci come before individuals, and lines of both are mixed.
    NameList markers;
    const bool are_complete = ForEachRow([&](const Row& row) {
      const auto marker = Trimmed(row.Cell(columns_.marker));
      if (marker.empty() || Trimmed(row.Cell(columns_.sample)).empty()) {
        builder_.Fault(row.line, "", "", "a line needs the name of a sample and a marker");
        return false;
      }
      return markers.PlaceOf(marker) < kMaxColumns;
    });
    if (markers.names.size() > kMaxColumns) {
      builder_.Fault(0, "", "", fmt::format("it has more than {} markers", kMaxColumns));
      return;
    }
    if (!are_complete || !builder_.SetLoci(markers.names)) {
      return;
    }
    ForEachRow([&](const Row& row) {
      return TakeCall(row, markers.PlaceOf(Trimmed(row.Cell(columns_.marker))));
    });
  }

 private:
  /// False where a row cannot be read or taken, and ends it.
  template <typename Take>
  bool ForEachRow(Take take) {
    rows_.Rewind();
    Row row;
    bool is_head = true;
    while (true) {
      const auto read = rows_.Next(row);
      if (!read) {
        builder_.Fault(read.error().line, "", "", read.error().found);
        return false;
      }
      if (!*read) {
        return true;
      }
      if (!is_head && !take(row)) {
        return false;
      }
      is_head = false;
    }
  }

  bool TakeCall(const Row& row, std::size_t locus) {
    const std::string_view sample = Trimmed(row.Cell(columns_.sample));
    const std::size_t place = samples_.PlaceOf(sample);
    if (place == lines_.size()) {
      if (!builder_.AddIndividual(sample, row.line)) {
        return false;
      }
      lines_.emplace_back(builder_.Individual().genotypes.size());
    }
    for (const std::size_t column : columns_.more) {
      if (!Trimmed(row.Cell(column)).empty()) {
        builder_.Fault(row.line, "Allele 3", sample,
                       Quoted(row.Cell(column)) + " is a third allele, which no diploid has");
        return true;
      }
    }
    const std::string_view first = Trimmed(row.Cell(columns_.first));
    const std::string_view second = Trimmed(row.Cell(columns_.second));
    if (builder_.IsWanted(locus)) {
      TakeAlleles(row, place, locus, {first, second.empty() ? first : second});
    }
    return true;
  }

  void TakeAlleles(const Row& row, std::size_t place, std::size_t locus,
                   std::pair<std::string_view, std::string_view> alleles) {
    ForeignIndividual& individual = builder_.IndividualOfFile(place);
    const std::string& marker = row.Cell(columns_.marker);
    const ForeignGenotype earlier = builder_.Genotype(individual, locus);
    builder_.SetAlleles(individual, locus, {alleles.first, row.line, marker},
                        {alleles.second, row.line, marker});
    const ForeignGenotype now = builder_.Genotype(individual, locus);
    std::uint32_t& line = lines_[place][builder_.PlaceOf(locus)];
    if (line != 0 && now != earlier && now != ForeignGenotype{earlier.second, earlier.first}) {
      builder_.Fault(row.line, marker, individual.name,
                     fmt::format("line {} calls this sample and marker otherwise", line));
    }
    line = row.line;
  }

  RowSource& rows_;
  Columns columns_;
  StudyBuilder& builder_;
  NameList samples_;
  std::vector<std::vector<std::uint32_t>> lines_;  ///< of the calls, by sample and wanted locus
};

}  // namespace

std::optional<std::string> RecogniseGeneMapper(const ForeignFile& file) {
  const auto rows = file.FirstRows(1);
  if (rows.empty() || !ColumnsIn(rows.front())) {
    return std::nullopt;
  }
  return "its heads are Sample Name, Marker, Allele 1 and Allele 2";
}

void ReadGeneMapper(ForeignFile& file, StudyBuilder& builder) {
  const auto rows = file.FirstRows(1);
  auto columns = rows.empty() ? std::nullopt : ColumnsIn(rows.front());
  if (!columns) {
    builder.Fault(1, "", "", "the heads Sample Name, Marker, Allele 1 and Allele 2 are wanted");
    return;
  }
  GeneMapperReader(*file.rows, std::move(*columns), builder).Read();
}

}  // namespace kaldo
