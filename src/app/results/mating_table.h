// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "app/results/data_table.h"
#include "app/results/finished_runs.h"
#include "confidence/families.h"

namespace kaldo {

/// A place in the table of matings.
struct MatingPlace {
  std::size_t row = 0;
  std::size_t column = 0;

  friend bool operator==(const MatingPlace&, const MatingPlace&) = default;
};

/// Who had offspring with whom, in words: what its picture, its list and its tips tell.
class MatingTable {
 public:
  explicit MatingTable(SharedAllocation allocation);

  const Families& Table() const { return families_; }

  /// The largest number of offspring in a place.
  std::size_t LargestFamily() const { return largest_; }

  /// "UC" for those that were not collected.
  const QStringList& RowNames() const { return row_names_; }
  const QStringList& ColumnNames() const { return column_names_; }

  /// "Offspring of males (rows) and females (columns)".
  QString Title() const;

  /// "Male01 and Female03".
  QString PlaceTitle(MatingPlace place) const;

  /// "3", "3 ◐" where some of them are no more than likely, nothing where there are none.
  QString CellText(MatingPlace place) const;

  /// "Male01 and Female03: 3 offspring, 1 only likely", then their names; at most `most` of them.
  QString CellTip(MatingPlace place, std::size_t most) const;

  /// "Male01: 12 offspring with 4 mates."
  QString RowTip(std::size_t row) const;
  QString ColumnTip(std::size_t column) const;

  /// By their places in the file, ascending.
  std::vector<std::size_t> OffspringInRow(std::size_t row) const;
  std::vector<std::size_t> OffspringInColumn(std::size_t column) const;

  /// Every family once, the largest first, and where each stands, beside the rows.
  const DataTable& List() const { return list_; }
  const std::vector<MatingPlace>& ListPlaces() const { return list_places_; }

  /// Where parents and offspring stand whose name contains a text: those of that name before all
  /// others, parents before offspring, each place once. A parent stands at its largest family.
  std::vector<MatingPlace> Find(const QString& text) const;

  /// What stands in the table, and what is left out of it.
  QString Note() const;

  /// What signs and colours mean, for screen and figures.
  QString Legend() const;

 private:
  /// Of one row or column.
  struct LineSummary {
    MatingPlace largest;  ///< its largest family
    std::size_t of_largest = 0;
    std::size_t mates = 0;  ///< collected ones
  };

  QString NameOf(const FamilyLine& line) const;
  QString OffspringName(std::size_t place) const;
  void NoteFamily(const Family& family);
  void MakeList();

  SharedAllocation allocation_;
  Families families_;
  std::size_t largest_ = 0;
  bool has_likely_ = false;
  QStringList row_names_;
  QStringList column_names_;

  std::vector<LineSummary> rows_;
  std::vector<LineSummary> columns_;
  std::vector<std::optional<MatingPlace>> places_;  ///< of the offspring
  DataTable list_;
  std::vector<MatingPlace> list_places_;
};

}  // namespace kaldo
