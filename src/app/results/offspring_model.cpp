// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_model.h"

#include "allocation/reports/result_line.h"
#include "app/base/text.h"
#include "app/results/allocation_classes.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

using Column = OffspringColumn;

constexpr std::string_view kManyPairsTip =
    "More than five equally likely pairs were met during the search. The mark stays, also when a "
    "better pair was found later.";

struct ColumnTexts {
  std::string_view head;
  std::string_view sexed_head;
  std::string_view tip;
};

ColumnTexts TextsOf(Column column) {
  switch (column) {
    case Column::kPlace:
      return {"No.", "No.", "Place in the offspring file."};
    case Column::kOffspring:
      return {"Offspring", "Offspring", "Name of the offspring."};
    case Column::kParent1:
      return {"Parent 1", "Male",
              "The collected parent, or UC: the true one is taken not to be among the collected."};
    case Column::kParent2:
      return {"Parent 2", "Female",
              "The collected parent, or UC: the true one is taken not to be among the collected."};
    case Column::kRank1:
      return {"Rank 1", "Male rank", "Place in the file of the parents, separators counted."};
    case Column::kRank2:
      return {"Rank 2", "Female rank", "Place in the file of the parents, separators counted."};
    case Column::kErrors1:
      return {"Errors 1", "Male errors", "Loci at which an error had to be assumed."};
    case Column::kErrors2:
      return {"Errors 2", "Female errors", "Loci at which an error had to be assumed."};
    case Column::kClass:
      return {"Class", "Class", "How many parents, or which, are collected."};
    case Column::kPairs:
      return {"Pairs", "Pairs",
              "Pairs that explain the offspring equally well; the first decided. 0: no pair is "
              "possible; 5+: more than five were met."};
    case Column::kLikelihood:
      return {"Likelihood", "Likelihood", "Of the best pair. It ranks pairs; it is no certainty."};
    case Column::kCount:
      break;
  }
  return {};
}

bool IsNumeric(Column column) {
  return column != Column::kOffspring && column != Column::kParent1 && column != Column::kParent2 &&
         column != Column::kClass;
}

const AllocatedSide& SideOf(const AllocatedSides& sides, Column column) {
  const bool is_second =
      column == Column::kParent2 || column == Column::kRank2 || column == Column::kErrors2;
  return is_second ? sides.second : sides.first;
}

}  // namespace

OffspringModel::OffspringModel(SharedAllocation allocation, QObject* parent)
    : QAbstractTableModel(parent), allocation_(std::move(allocation)) {}

int OffspringModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(allocation_->run.result.outcomes.size());
}

int OffspringModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Column::kCount);
}

const AllocationOutcome& OffspringModel::Outcome(int row) const {
  return allocation_->run.result.outcomes[static_cast<std::size_t>(row)];
}

QString OffspringModel::Name(int row) const {
  const AllocationInput& input = allocation_->run.input;
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(row)};
  return Text(input.table.Name(slot).Text());
}

QString OffspringModel::SideName(Column column, int row) const {
  const AllocatedSides sides = SidesOf(RunFlow(), Outcome(row));
  const AllocatedSide& side = SideOf(sides, column);
  return side.parent ? Text(allocation_->run.input.table.Name(*side.parent).Text()) : Text("UC");
}

/// The number of a cell; below all others where the side is UC.
double OffspringModel::Number(Column column, int row) const {
  const AllocationOutcome& outcome = Outcome(row);
  switch (column) {
    case Column::kPlace:
      return row + 1;
    case Column::kPairs:
      return outcome.more_than_five ? KeptPairs::kCapacity + 1
                                    : static_cast<double>(outcome.Pairs().size());
    case Column::kLikelihood:
      return outcome.best_likelihood;
    default:
      break;
  }
  const AllocatedSides sides = SidesOf(RunFlow(), outcome);
  const AllocatedSide& side = SideOf(sides, column);
  if (!side.parent) {
    return -1;
  }
  return column == Column::kRank1 || column == Column::kRank2
             ? RankInFile(allocation_->run.input, *side.parent)
             : side.errors;
}

QString OffspringModel::CellText(Column column, int row) const {
  switch (column) {
    case Column::kOffspring:
      return Name(row);
    case Column::kParent1:
    case Column::kParent2:
      return SideName(column, row);
    case Column::kClass:
      return ClassNames(RunFlow())[ClassOf(RunFlow(), Outcome(row))];
    case Column::kPairs:
      if (Outcome(row).more_than_five) {
        return Text("5+");
      }
      break;
    default:
      break;
  }
  const double number = Number(column, row);
  if (number < 0) {
    return Text("--");
  }
  return column == Column::kLikelihood ? ShortNumber(number) : QString::number(number, 'f', 0);
}

QVariant OffspringModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<Column>(index.column());
  if (role == Qt::DisplayRole) {
    return CellText(column, index.row());
  }
  if (role == Qt::TextAlignmentRole && IsNumeric(column)) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole && column == Column::kPairs && Outcome(index.row()).more_than_five) {
    return Text(kManyPairsTip);
  }
  return {};
}

QVariant OffspringModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) {
    return {};
  }
  const auto column = static_cast<Column>(section);
  const ColumnTexts texts = TextsOf(column);
  if (role == Qt::DisplayRole) {
    return Text(RunFlow() == Flow::kSexed ? texts.sexed_head : texts.head);
  }
  if (role == Qt::ToolTipRole) {
    return Text(texts.tip);
  }
  if (role == Qt::TextAlignmentRole && IsNumeric(column)) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

bool OffspringModel::IsBefore(Column column, int a, int b) const {
  if (IsNumeric(column)) {
    return Number(column, a) < Number(column, b);
  }
  if (column == Column::kClass) {
    return ClassOf(RunFlow(), Outcome(a)) < ClassOf(RunFlow(), Outcome(b));
  }
  return CellText(column, a) < CellText(column, b);
}

bool OffspringModel::HasName(int row, const QString& text) const {
  return Name(row).contains(text, Qt::CaseInsensitive) ||
         SideName(Column::kParent1, row).contains(text, Qt::CaseInsensitive) ||
         SideName(Column::kParent2, row).contains(text, Qt::CaseInsensitive);
}

OffspringFilter::OffspringFilter(OffspringModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setSourceModel(&model);
}

void OffspringFilter::Choose(const OffspringChoice& choice) {
  choice_ = choice;
  invalidateFilter();
}

bool OffspringFilter::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const {
  const AllocationOutcome& outcome = model_.Outcome(row);
  if (choice_.only_several_pairs && !HasSeveralPairs(outcome)) {
    return false;
  }
  if (choice_.only_without_pair && outcome.HasPair()) {
    return false;
  }
  if (choice_.the_class && ClassOf(model_.RunFlow(), outcome) != *choice_.the_class) {
    return false;
  }
  return choice_.name.isEmpty() || model_.HasName(row, choice_.name);
}

bool OffspringFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return model_.IsBefore(static_cast<Column>(left.column()), left.row(), right.row());
}

}  // namespace kaldo
