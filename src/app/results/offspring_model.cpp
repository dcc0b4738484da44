// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/offspring_model.h"

#include <algorithm>

#include "allocation/findings.h"
#include "allocation/reports/result_line.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/allocation_classes.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

using Column = OffspringColumn;

constexpr auto kManyPairsTip = Phrase(
    "More than five equally likely pairs were met during the search. The mark stays, also when a "
    "better pair was found later.");

const AllocatedSide& SideIn(const AllocatedSides& sides, Column column) {
  return SideOf(column) == 1 ? sides.second : sides.first;
}

}  // namespace

OffspringModel::OffspringModel(SharedAllocation allocation, QObject* parent)
    : QAbstractTableModel(parent), allocation_(std::move(allocation)) {}

void OffspringModel::SetColours(const CertaintyColours& colours) {
  colours_ = colours;
  if (rowCount() > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                       {Qt::BackgroundRole, Qt::ForegroundRole});
  }
}

int OffspringModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(allocation_->run.result.outcomes.size());
}

int OffspringModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Column::kCount);
}

const AllocationOutcome& OffspringModel::Outcome(int row) const {
  return allocation_->run.result.outcomes[static_cast<std::size_t>(row)];
}

const OffspringConfidence* OffspringModel::Confidence(int row) const {
  return ConfidenceIn(allocation_->run.result, static_cast<std::size_t>(row));
}

QString OffspringModel::Name(int row) const {
  const AllocationInput& input = allocation_->run.input;
  const Slot slot{input.offspring.begin + static_cast<std::uint32_t>(row)};
  return Text(input.table.Name(slot).Text());
}

QString OffspringModel::SideName(Column column, int row) const {
  const AllocatedSides sides = SidesOf(RunFlow(), Outcome(row));
  const AllocatedSide& side = SideIn(sides, column);
  return side.parent ? Text(allocation_->run.input.table.Name(*side.parent).Text()) : Text("UC");
}

bool OffspringModel::HasParent(int row, Slot parent) const {
  const AllocatedSides sides = SidesOf(RunFlow(), Outcome(row));
  return sides.first.parent == parent || sides.second.parent == parent;
}

/// A probability of "/Confidence.tsv"; none where that has NA.
std::optional<double> OffspringModel::ConfidenceNumber(Column column, int row) const {
  const OffspringConfidence* const confidence = Confidence(row);
  if (confidence == nullptr || !confidence->is_possible) {
    return std::nullopt;
  }
  const SideConfidence& side = confidence->sides.at(SideOf(column));
  const auto of = [](const std::optional<ProbableParent>& parent) {
    return parent ? std::optional(parent->probability) : std::nullopt;
  };
  switch (column) {
    case Column::kReported1:
    case Column::kReported2:
      return side.p_reported;
    case Column::kProbability1:
    case Column::kProbability2:
      return of(side.candidate);
    case Column::kRunnerUpProbability1:
    case Column::kRunnerUpProbability2:
      return of(side.runner_up);
    default:
      return side.p_uncollected;
  }
}

std::optional<Slot> OffspringModel::ConfidenceName(Column column, int row) const {
  const OffspringConfidence* const confidence = Confidence(row);
  if (confidence == nullptr) {
    return std::nullopt;
  }
  const SideConfidence& side = confidence->sides.at(SideOf(column));
  const bool is_candidate = column == Column::kCandidate1 || column == Column::kCandidate2;
  const auto& parent = is_candidate ? side.candidate : side.runner_up;
  return parent ? std::optional(parent->slot) : std::nullopt;
}

QString OffspringModel::ConfidenceText(Column column, int row) const {
  const OffspringConfidence* const confidence = Confidence(row);
  if (confidence == nullptr) {
    return Text("NA");
  }
  switch (column) {
    case Column::kCertainty:
      return CertaintyText(CertaintyOf(*confidence));
    case Column::kVerdict1:
    case Column::kVerdict2:
      return TrCore(Label(confidence->sides.at(SideOf(column)).verdict));
    case Column::kCandidate1:
    case Column::kCandidate2:
    case Column::kRunnerUp1:
    case Column::kRunnerUp2: {
      const auto parent = ConfidenceName(column, row);
      return parent ? Text(allocation_->run.input.table.Name(*parent).Text()) : Text("NA");
    }
    default:
      return ShortNumber(ConfidenceNumber(column, row));
  }
}

/// The number of a cell; below all others where the side is UC.
double OffspringModel::Number(Column column, int row) const {
  const AllocationOutcome& outcome = Outcome(row);
  if (NeedsConfidence(column)) {
    return ConfidenceNumber(column, row).value_or(-1);
  }
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
  const AllocatedSide& side = SideIn(sides, column);
  if (!side.parent) {
    return -1;
  }
  return column == Column::kRank1 || column == Column::kRank2
             ? RankInFile(allocation_->run.input, *side.parent)
             : side.errors;
}

QString OffspringModel::CellText(Column column, int row) const {
  if (NeedsConfidence(column)) {
    return ConfidenceText(column, row);
  }
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
  if (role == Qt::TextAlignmentRole && TextsOf(column).is_numeric) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole && column == Column::kPairs && Outcome(index.row()).more_than_five) {
    return Tr(kManyPairsTip);
  }
  const bool is_coloured = role == Qt::BackgroundRole || role == Qt::ForegroundRole;
  if (is_coloured && column == Column::kCertainty) {
    if (const OffspringConfidence* const confidence = Confidence(index.row())) {
      const CellColours& cell = colours_.Cell(CertaintyOf(*confidence));
      return role == Qt::BackgroundRole ? cell.background : cell.text;
    }
  }
  return {};
}

QVariant OffspringModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) {
    return {};
  }
  const auto column = static_cast<Column>(section);
  const OffspringColumnTexts texts = TextsOf(column);
  if (role == Qt::DisplayRole) {
    return Tr(RunFlow() == Flow::kSexed ? texts.sexed_head : texts.head);
  }
  if (role == Qt::ToolTipRole) {
    return Tr(texts.tip);
  }
  if (role == Qt::TextAlignmentRole && TextsOf(column).is_numeric) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

bool OffspringModel::IsBefore(Column column, int a, int b) const {
  if (TextsOf(column).is_numeric) {
    return Number(column, a) < Number(column, b);
  }
  if (column == Column::kClass) {
    return ClassOf(RunFlow(), Outcome(a)) < ClassOf(RunFlow(), Outcome(b));
  }
  if (column == Column::kCertainty && Confidence(a) != nullptr) {
    return CertaintyOf(*Confidence(a)) < CertaintyOf(*Confidence(b));
  }
  return CellText(column, a) < CellText(column, b);
}

bool OffspringModel::HasName(int row, const QString& text) const {
  if (names_.empty()) {
    names_.reserve(static_cast<std::size_t>(rowCount()));
    for (int k = 0; k < rowCount(); ++k) {
      names_.push_back(Name(k) + QLatin1Char('\n') + SideName(Column::kParent1, k) +
                       QLatin1Char('\n') + SideName(Column::kParent2, k));
    }
  }
  return names_[static_cast<std::size_t>(row)].contains(text, Qt::CaseInsensitive);
}

OffspringFilter::OffspringFilter(OffspringModel& model, QObject* parent)
    : RowFilter(parent), model_(model) {
  setSourceModel(&model);
}

void OffspringFilter::Choose(const OffspringChoice& choice) {
  choice_ = choice;
  NarrowAgain();
}

bool OffspringFilter::Accepts(int row) const {
  const AllocationOutcome& outcome = model_.Outcome(row);
  if (choice_.only_several_pairs && !HasSeveralPairs(outcome)) {
    return false;
  }
  if (choice_.only_without_pair && outcome.HasPair()) {
    return false;
  }
  const OffspringConfidence* const confidence = model_.Confidence(row);
  if (choice_.only_to_check && (confidence == nullptr || !DoubtAbout(*confidence))) {
    return false;
  }
  if (choice_.certainty &&
      (confidence == nullptr || CertaintyOf(*confidence) != *choice_.certainty)) {
    return false;
  }
  if (choice_.only && !std::binary_search(choice_.only->begin(), choice_.only->end(),
                                          static_cast<std::size_t>(row))) {
    return false;
  }
  if (choice_.parent && !model_.HasParent(row, *choice_.parent)) {
    return false;
  }
  if (choice_.the_class && ClassOf(model_.RunFlow(), outcome) != *choice_.the_class) {
    return false;
  }
  return choice_.name.isEmpty() || model_.HasName(row, choice_.name);
}

bool OffspringFilter::IsBefore(const QModelIndex& left, const QModelIndex& right) const {
  return model_.IsBefore(static_cast<Column>(left.column()), left.row(), right.row());
}

}  // namespace kaldo
