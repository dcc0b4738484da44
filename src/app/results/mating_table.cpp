// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/mating_table.h"

#include <algorithm>
#include <numeric>
#include <set>

#include "allocation/findings.h"
#include "allocation/settled_parents.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

QString OffspringText(std::size_t count) { return TrCount("%n offspring", "%n offspring", count); }

QString LineTip(const QString& name, std::size_t offspring, std::size_t mates) {
  return Tr("%1: %2 with %3")
      .arg(name, OffspringText(offspring), TrCount("%n mates", "%n mate", mates));
}

}  // namespace

MatingTable::MatingTable(SharedAllocation allocation)
    : allocation_(std::move(allocation)),
      families_(FamiliesOf(SettledParentsIn(allocation_->settings.flow, allocation_->run.result),
                           allocation_->settings.flow)),
      rows_(families_.rows.size()),
      columns_(families_.columns.size()),
      places_(allocation_->run.input.NumberOfOffspring()) {
  for (const FamilyLine& line : families_.rows) {
    row_names_ += NameOf(line);
  }
  for (const FamilyLine& line : families_.columns) {
    column_names_ += NameOf(line);
  }
  for (const Family& family : families_.families) {
    NoteFamily(family);
  }
  MakeList();
}

QString MatingTable::NameOf(const FamilyLine& line) const {
  return line.parent ? Text(allocation_->run.input.table.Name(*line.parent).Text()) : Text("UC");
}

QString MatingTable::OffspringName(std::size_t place) const {
  const AllocationInput& input = allocation_->run.input;
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(place)};
  return Text(input.table.Name(slot).Text());
}

void MatingTable::NoteFamily(const Family& family) {
  const std::size_t size = family.offspring.size();
  largest_ = std::max(largest_, size);
  has_likely_ = has_likely_ || family.likely > 0;
  for (const std::size_t place : family.offspring) {
    places_[place] = MatingPlace{family.row, family.column};
  }
  const auto note = [&](std::size_t row, std::size_t column) {
    const auto at = [&](LineSummary& line, bool is_with_parent) {
      line.mates += is_with_parent ? 1U : 0U;
      if (size > line.of_largest) {
        line.largest = {row, column};
        line.of_largest = size;
      }
    };
    at(rows_[row], families_.columns[column].parent.has_value());
    at(columns_[column], families_.rows[row].parent.has_value());
  };
  note(family.row, family.column);
  if (families_.is_symmetric && family.row != family.column) {
    note(family.column, family.row);
  }
}

void MatingTable::MakeList() {
  const auto& families = families_.families;
  std::vector<std::size_t> order(families.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return families[a].offspring.size() > families[b].offspring.size();
  });
  const bool sexed = !families_.is_symmetric;
  list_.heads = {sexed ? Tr("Male") : Tr("Parent 1"), sexed ? Tr("Female") : Tr("Parent 2"),
                 Tr("Number of offspring"), Tr("Only likely"), Tr("Names")};
  list_.rows.reserve(order.size());
  list_places_.reserve(order.size());
  for (const std::size_t k : order) {
    const Family& family = families[k];
    QStringList names;
    for (const std::size_t place : family.offspring) {
      names += OffspringName(place);
    }
    list_.rows.push_back({row_names_[static_cast<qsizetype>(family.row)],
                          column_names_[static_cast<qsizetype>(family.column)],
                          QString::number(family.offspring.size()), QString::number(family.likely),
                          names.join(Text(", "))});
    list_places_.push_back({family.row, family.column});
  }
}

QString MatingTable::Title() const {
  return families_.is_symmetric ? Tr("Offspring of the parents (rows) with each other (columns)")
                                : Tr("Offspring of males (rows) and females (columns)");
}

QString MatingTable::CellText(MatingPlace place) const {
  const Family* const family = families_.At(place.row, place.column);
  if (family == nullptr) {
    return {};
  }
  const QString number = QString::number(family->offspring.size());
  return family->likely > 0 ? number + Text(" ") + Text(Sign(Certainty::kLikely)) : number;
}

QString MatingTable::PlaceTitle(MatingPlace place) const {
  return Tr("%1 and %2")
      .arg(row_names_[static_cast<qsizetype>(place.row)],
           column_names_[static_cast<qsizetype>(place.column)]);
}

QString MatingTable::CellTip(MatingPlace place, std::size_t most) const {
  const Family* const family = families_.At(place.row, place.column);
  if (family == nullptr) {
    return Tr("%1: no offspring").arg(PlaceTitle(place));
  }
  const std::size_t count = family->offspring.size();
  QStringList names;
  for (std::size_t k = 0; k < std::min(count, most); ++k) {
    names += OffspringName(family->offspring[k]);
  }
  QString tip = PlaceTitle(place) + Text(": ") + OffspringText(count);
  if (family->likely > 0) {
    tip += Tr(", %1 only likely").arg(family->likely);
  }
  tip += Text("\n") + names.join(Text(", "));
  return count > most ? tip + Tr(" and %1 more").arg(count - most) : tip;
}

QString MatingTable::RowTip(std::size_t row) const {
  return LineTip(row_names_[static_cast<qsizetype>(row)], families_.rows[row].offspring,
                 rows_[row].mates);
}

QString MatingTable::ColumnTip(std::size_t column) const {
  return LineTip(column_names_[static_cast<qsizetype>(column)], families_.columns[column].offspring,
                 columns_[column].mates);
}

std::vector<std::size_t> MatingTable::OffspringInRow(std::size_t row) const {
  std::vector<std::size_t> offspring;
  for (std::size_t place = 0; place < places_.size(); ++place) {
    if (places_[place] &&
        (places_[place]->row == row || (families_.is_symmetric && places_[place]->column == row))) {
      offspring.push_back(place);
    }
  }
  return offspring;
}

std::vector<std::size_t> MatingTable::OffspringInColumn(std::size_t column) const {
  if (families_.is_symmetric) {
    return OffspringInRow(column);
  }
  std::vector<std::size_t> offspring;
  for (std::size_t place = 0; place < places_.size(); ++place) {
    if (places_[place] && places_[place]->column == column) {
      offspring.push_back(place);
    }
  }
  return offspring;
}

std::vector<MatingPlace> MatingTable::Find(const QString& text) const {
  std::vector<MatingPlace> exact;
  std::vector<MatingPlace> others;
  std::set<std::pair<std::size_t, std::size_t>> known;  // each place once
  const auto consider = [&](const QString& name, const MatingPlace& place) {
    const bool is_whole = name.compare(text, Qt::CaseInsensitive) == 0;
    if (name.contains(text, Qt::CaseInsensitive) &&
        (known.emplace(place.row, place.column).second || is_whole)) {
      (is_whole ? exact : others).push_back(place);
    }
  };
  if (text.isEmpty()) {
    return exact;
  }
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    consider(row_names_[static_cast<qsizetype>(row)], rows_[row].largest);
  }
  for (std::size_t column = 0; !families_.is_symmetric && column < columns_.size(); ++column) {
    consider(column_names_[static_cast<qsizetype>(column)], columns_[column].largest);
  }
  for (std::size_t place = 0; place < places_.size(); ++place) {
    if (places_[place]) {
      consider(OffspringName(place), *places_[place]);
    }
  }
  for (const MatingPlace& place : others) {
    if (std::find(exact.begin(), exact.end(), place) == exact.end()) {
      exact.push_back(place);
    }
  }
  return exact;
}

QString MatingTable::Note() const {
  const bool knows_certainty = KnowsCertainty(allocation_->run.result);
  const std::size_t all = places_.size();
  QString note = Tr("%1 of %2 stand here").arg(all - families_.left_out).arg(OffspringText(all));
  if (families_.left_out > 0) {
    note += Tr("; %1 left out, because %2")
                .arg(families_.left_out)
                .arg(knows_certainty ? Tr("a parent is open")
                                     : Tr("not one pair alone explains them best"));
  }
  const auto collected = [](const std::vector<FamilyLine>& lines) {
    return lines.size() - (!lines.empty() && !lines.back().parent ? 1U : 0U);
  };
  const std::size_t parents = allocation_->run.input.NumberOfParents();
  const std::size_t shown =
      collected(families_.rows) + (families_.is_symmetric ? 0 : collected(families_.columns));
  note += Tr(". %1 of %2 collected parents have none of them and are left out, too.")
              .arg(parents - shown)
              .arg(parents);
  if (!knows_certainty) {
    note += allocation_->run.result.confidence_is_lost
                ? Tr(" How sure the pairs are was computed, but its report cannot be used.")
                : Tr(" How sure the pairs are was not computed.");
  }
  return note;
}

QString MatingTable::Legend() const {
  QString legend = Tr("Number and colour: offspring. UC: not collected.");
  if (has_likely_) {
    legend += Tr(" %1: some of them are no more than likely.").arg(Text(Sign(Certainty::kLikely)));
  }
  if (families_.is_symmetric) {
    legend += Tr(" Every pair stands twice, so that a row has all mates of its parent.");
  }
  return legend;
}

}  // namespace kaldo
