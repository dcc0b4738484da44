// SPDX-License-Identifier: GPL-3.0-or-later
// A table with heads: one row per individual, one column or two per locus, and columns of names,
// sexes, groups and roles among them.
#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"
#include "interchange/import/locus_heads.h"

namespace kaldo {

namespace {

/// A head without case and signs: "Sample_Name" is "samplename".
std::string Plain(std::string_view head) {
  std::string plain = Lower(Trimmed(head));
  std::erase_if(plain, [](char sign) {
    return std::string_view(" _-.").find(sign) != std::string_view::npos;
  });
  return plain;
}

template <typename Heads>
bool IsAmong(const Heads& heads, std::string_view head) {
  const std::string plain = Plain(head);
  return std::find(heads.begin(), heads.end(), plain) != heads.end();
}

constexpr std::array<std::string_view, 15> kIdHeads = {
    "id",    "name",   "sample",   "samplename", "sampleid", "individual",  "individualid", "ind",
    "indid", "animal", "animalid", "fish",       "label",    "individuals", "indiv"};
constexpr std::array<std::string_view, 2> kSexHeads = {"sex", "gender"};
constexpr std::array<std::string_view, 7> kGroupHeads = {"group", "pop",  "population", "popid",
                                                         "site",  "pond", "locality"};
constexpr std::array<std::string_view, 1> kRoleHeads = {"role"};

/// What the cells of a column look like.
struct ColumnLook {
  bool is_empty = true;
  std::size_t cells = 0;         ///< that are not missing
  std::size_t both = 0;          ///< two alleles in one cell
  bool only_four_digits = true;  ///< one allele, or two of two digits

  /// A single cell at fault does not make another column of it.
  bool HoldsBoth() const { return 2 * both > cells; }
};

void LookAt(std::string_view cell, ColumnLook& look) {
  cell = Trimmed(cell);
  look.is_empty = look.is_empty && cell.empty();
  if (IsMissingCell(cell, std::nullopt)) {
    return;
  }
  const bool is_number = cell.find_first_not_of("0123456789") == std::string_view::npos;
  const bool holds_both =
      cell.find_first_of("/:|") != std::string_view::npos || (is_number && cell.size() > 4);
  ++look.cells;
  look.both += holds_both ? 1U : 0U;
  look.only_four_digits = look.only_four_digits && is_number && cell.size() == 4;
}

/// A locus with its column or columns.
struct LocusColumns {
  std::string name;
  std::size_t first = 0;
  std::optional<std::size_t> second;
};

struct TableColumns {
  std::optional<std::size_t> id;
  std::optional<std::size_t> sex;
  std::optional<std::size_t> group;
  std::optional<std::size_t> role;
  std::vector<LocusColumns> loci;

  bool IsTaken(std::size_t column) const {
    return column == id || column == sex || column == group || column == role;
  }
};

class TableReader {
 public:
  TableReader(ForeignFile& file, StudyBuilder& builder) : file_(file), builder_(builder) {}

  void Read() {
    if (!NextRow()) {
      builder_.Fault(1, "", "", "it holds no table");
      return;
    }
    heads_ = row_;
    LookAtColumns();
    if (!FindColumns()) {
      return;
    }
    std::vector<std::string> names;
    names.reserve(columns_.loci.size());
    for (const LocusColumns& locus : columns_.loci) {
      names.push_back(locus.name);
    }
    if (!builder_.SetLoci(names)) {
      return;
    }
    file_.rows->Rewind();
    NextRow();
    while (NextRow() && TakeRow()) {
    }
  }

 private:
  bool NextRow() {
    const auto read = file_.rows->Next(row_);
    if (!read) {
      builder_.Fault(read.error().line, "", "", read.error().found);
    }
    return read && *read;
  }

  void LookAtColumns() {
    if (file_.is_workbook) {
      heads_.cells.emplace_back();  // a sheet does not store a blank head at its end
    }
    looks_.resize(heads_.cells.size());
    while (NextRow()) {
      for (std::size_t k = 0; k < std::min(looks_.size(), row_.cells.size()); ++k) {
        LookAt(row_.cells[k], looks_[k]);
      }
    }
  }

  std::optional<std::size_t> ColumnNamed(const std::string& head, std::string_view option) {
    for (std::size_t k = 0; k < heads_.cells.size(); ++k) {
      if (Trimmed(heads_.cells[k]) == Trimmed(head)) {
        return k;
      }
    }
    builder_.Fault(heads_.line, "", "",
                   fmt::format("{}: there is no column {}", option, Quoted(head)));
    return std::nullopt;
  }

  /// The column that the user names, else the first with a usual head.
  template <typename Heads>
  std::optional<std::size_t> Find(const std::optional<std::string>& head, std::string_view option,
                                  const Heads& usual) {
    if (head) {
      return ColumnNamed(*head, option);
    }
    for (std::size_t k = 0; k < heads_.cells.size(); ++k) {
      if (IsAmong(usual, heads_.cells[k]) && !columns_.IsTaken(k)) {
        return k;
      }
    }
    return std::nullopt;
  }

  bool FindColumns() {
    const ImportChoices& choices = builder_.Choices();
    columns_.id = Find(choices.id_column, "--id", kIdHeads);
    columns_.sex = Find(choices.sex_column, "--sex", kSexHeads);
    columns_.group = Find(choices.group_column, "--group", kGroupHeads);
    columns_.role = Find(choices.role_column, "--role", kRoleHeads);
    for (std::size_t k = 0; k < heads_.cells.size() && !columns_.id && !choices.id_column; ++k) {
      if (!columns_.IsTaken(k)) {
        columns_.id = k;
      }
    }
    if (!columns_.id) {
      builder_.Fault(heads_.line, "", "", "no column holds the names of the individuals: say --id");
      return false;
    }
    FindLoci();
    return true;
  }

  /// Whether a locus has its alleles in this column and the next.
  bool ArePair(std::size_t column) const {
    const std::size_t next = column + 1;
    if (next >= heads_.cells.size() || columns_.IsTaken(next) || looks_[column].HoldsBoth() ||
        looks_[next].HoldsBoth()) {
      return false;
    }
    const std::string& first = heads_.cells[column];
    const std::string& second = heads_.cells[next];
    const bool may_be_two = MayBeTwoLoci(first, second) && looks_[column].only_four_digits &&
                            looks_[next].only_four_digits;
    const bool is_nothing = IsBlankHead(second) && looks_[next].is_empty;
    return CommonHead(first, second) && !may_be_two && !is_nothing;
  }

  void FindLoci() {
    for (std::size_t k = 0; k < heads_.cells.size(); ++k) {
      const std::string_view head = Trimmed(heads_.cells[k]);
      if (columns_.IsTaken(k) || (IsBlankHead(head) && looks_[k].is_empty)) {
        continue;
      }
      if (ArePair(k)) {
        columns_.loci.push_back({*CommonHead(head, heads_.cells[k + 1]), k, k + 1});
        ++k;
      } else {
        columns_.loci.push_back({std::string(head), k, std::nullopt});
      }
    }
  }

  bool TakeRow() {
    const std::string& name = row_.Cell(*columns_.id);
    const std::size_t width = heads_.cells.size();
    const auto behind = std::find_if(
        row_.cells.begin() + static_cast<std::ptrdiff_t>(std::min(width, row_.cells.size())),
        row_.cells.end(), [](const std::string& cell) { return !Trimmed(cell).empty(); });
    if (behind != row_.cells.end() || (!file_.is_workbook && row_.cells.size() < width)) {
      builder_.Fault(row_.line, "", name,
                     fmt::format("it has {} cells, the heads are {}", row_.cells.size(), width));
      return true;
    }
    if (Trimmed(name).empty()) {
      builder_.Fault(row_.line, heads_.cells[*columns_.id], "", "an individual has no name");
      return true;
    }
    if (!builder_.AddIndividual(name, row_.line)) {
      return false;
    }
    if (columns_.group) {
      builder_.SetPopulation(row_.Cell(*columns_.group));
    }
    if (columns_.role) {
      builder_.SetRole(CellAt(*columns_.role));
    }
    if (columns_.sex) {
      builder_.SetSex(CellAt(*columns_.sex));
    }
    for (std::size_t k = 0; k < columns_.loci.size(); ++k) {
      const LocusColumns& locus = columns_.loci[k];
      if (locus.second) {
        builder_.SetAlleles(k, CellAt(locus.first), CellAt(*locus.second));
      } else {
        builder_.SetGenotype(k, CellAt(locus.first));
      }
    }
    return true;
  }

  /// A blank head is told by that of the first allele.
  ForeignCell CellAt(std::size_t column) const {
    const std::string& head = heads_.cells[column];
    const bool is_blank = IsBlankHead(head) && column > 0;
    return {row_.Cell(column), row_.line, is_blank ? heads_.cells[column - 1] : head};
  }

  ForeignFile& file_;
  StudyBuilder& builder_;
  Row row_;
  Row heads_;
  std::vector<ColumnLook> looks_;
  TableColumns columns_;
};

bool IsGenotypeLike(std::string_view cell) {
  cell = Trimmed(cell);
  return cell.find_first_of("0123456789") != std::string_view::npos &&
         cell.find_first_not_of("0123456789/:|.,-") == std::string_view::npos;
}

std::size_t GenotypesIn(const Row& row) {
  return static_cast<std::size_t>(
      std::count_if(row.cells.begin(), row.cells.end(), IsGenotypeLike));
}

}  // namespace

std::optional<std::string> RecogniseTable(const ForeignFile& file) {
  constexpr std::size_t kRowsLookedAt = 20;
  const auto rows = file.FirstRows(kRowsLookedAt);
  if (rows.size() < 2 || rows[0].cells.size() < 2 ||
      2 * GenotypesIn(rows[0]) >= rows[0].cells.size()) {
    return std::nullopt;
  }
  const bool has_genotypes = std::any_of(rows.begin() + 1, rows.end(), [](const Row& row) {
    return row.cells.size() > 1 && GenotypesIn(row) > 0;
  });
  if (!has_genotypes) {
    return std::nullopt;
  }
  return fmt::format("line {} holds heads, {} of them", rows[0].line, rows[0].cells.size());
}

void ReadTable(ForeignFile& file, StudyBuilder& builder) {
  if (!file.rows) {
    builder.Fault(1, "", "", R"(there is no tab, ";" or "," between cells in its first line)");
    return;
  }
  file.rows->Rewind();
  TableReader(file, builder).Read();
}

}  // namespace kaldo
