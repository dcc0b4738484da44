// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/comparison_model.h"

#include <fmt/format.h>

#include "allocation/findings.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

using Column = ComparisonColumn;

QString GenotypeText(const LocusGenotype& genotype) {
  const auto allele = [](AlleleSize size) {
    return size == kUndefinedAllele ? std::string("?") : std::to_string(size.Value());
  };
  return genotype.IsMissing() ? Tr("undefined")
                              : Text(allele(genotype.allele1) + '/' + allele(genotype.allele2));
}

/// A condition in words; R and J are the first and the second allele of the offspring.
Phrase ConditionTip(LocusCondition condition) {
  switch (condition) {
    case LocusCondition::kNone:
      return Phrase(
          "Neither parent carries an allele of the offspring, or its locus is undefined.");
    case LocusCondition::kComplete:
      return Phrase(
          "One parent carries one allele of the offspring and the other parent the other.");
    case LocusCondition::kOneToEach:
      return Phrase(
          "Both parents carry the same allele of the offspring, nobody the other one. Offsets "
          "are 0 all the same; the likelihood speaks against the pair.");
    case LocusCondition::kRrOnlyPar1:
    case LocusCondition::kRInPar1:
    case LocusCondition::kJInPar1:
    case LocusCondition::kBothInPar1:
      return Phrase("Only parent 1 carries an allele of the offspring; parent 2 is measured.");
    case LocusCondition::kRrOnlyPar2:
    case LocusCondition::kRInPar2:
    case LocusCondition::kJInPar2:
    case LocusCondition::kBothInPar2:
      return Phrase("Only parent 2 carries an allele of the offspring; parent 1 is measured.");
    case LocusCondition::kError:
      break;
  }
  return {};
}

bool IsFirst(Column column) {
  return column == Column::kParent1 || column == Column::kDistance1 || column == Column::kOffset1 ||
         column == Column::kOther1 || column == Column::kOtherOffset1;
}

bool IsOther(Column column) { return column >= Column::kOther1 && column <= Column::kOtherOffset2; }

bool IsOffset(Column column) {
  return column == Column::kOffset1 || column == Column::kOffset2 ||
         column == Column::kOtherOffset1 || column == Column::kOtherOffset2;
}

bool IsNumeric(Column column) { return column == Column::kUnit || column >= Column::kDistance1; }

/// An allele of the offspring stands in neither parent: some error there must be. Where a parent
/// is undefined it may carry any allele.
bool IsCarriedByNone(const LocusComparison& locus) {
  const bool all_typed =
      !locus.offspring.IsMissing() && !locus.par1.IsMissing() && !locus.par2.IsMissing();
  return all_typed &&
         (!(locus.R_in_par1 || locus.R_in_par2) || !(locus.J_in_par1 || locus.J_in_par2));
}

QString DistanceText(const LocusComparison& locus, BasePairs distance) {
  if (locus.offspring.IsMissing()) {
    return Text("*");
  }
  return locus.condition == LocusCondition::kOneToEach ? Text("#")
                                                       : QString::number(distance.Value());
}

QString OffsetText(LocusFit fit, UnitDistances offset) {
  return fit == LocusFit::kUnsaid ? SignOf(fit)
                                  : SignOf(fit) + Text(" ") + QString::number(offset.Value());
}

}  // namespace

QString SignOf(LocusFit fit) {
  switch (fit) {
    case LocusFit::kUnsaid:
      return Text("*");
    case LocusFit::kExact:
      return Text("\u2713");
    case LocusFit::kUnmeasured:
      return Text("#");
    case LocusFit::kTolerated:
      return Text("\u2248");
    case LocusFit::kExcluded:
      break;
  }
  return Text("\u2717");
}

ComparisonModel::ComparisonModel(SharedAllocation allocation, QObject* parent)
    : QAbstractTableModel(parent), allocation_(std::move(allocation)) {}

void ComparisonModel::ShowPair(std::size_t offspring, std::size_t pair) {
  beginResetModel();
  const auto pairs = allocation_->run.result.outcomes[offspring].Pairs();
  offspring_ = Slot{Input().offspring.begin + static_cast<std::uint32_t>(offspring)};
  pair_.reset();
  comparisons_.clear();
  if (pair < pairs.size()) {
    pair_ = pairs[pair];
    comparisons_ = CompareWithPair(Input().table, *offspring_, *pair_, Loci());
  }
  FindOthers(offspring);
  endResetModel();
}

void ComparisonModel::FindOthers(std::size_t offspring) {
  others_ = {};
  const OffspringConfidence* const confidence = ConfidenceIn(allocation_->run.result, offspring);
  if (!pair_ || confidence == nullptr) {
    return;
  }
  const std::array<Slot, 2> parents = {pair_->parent1, pair_->parent2};
  for (std::size_t side = 0; side < others_.size(); ++side) {
    const auto next = NextCandidate(*confidence, allocation_->settings.flow, side, parents);
    if (next) {
      ParentPair pair = *pair_;
      (side == 0 ? pair.parent1 : pair.parent2) = next->slot;
      others_.at(side) = Other{*next, CompareWithPair(Input().table, *offspring_, pair, Loci())};
    }
  }
}

bool ComparisonModel::HasOthers() const { return KnowsCertainty(allocation_->run.result); }

void ComparisonModel::Clear() {
  beginResetModel();
  offspring_.reset();
  pair_.reset();
  others_ = {};
  comparisons_.clear();
  endResetModel();
}

void ComparisonModel::SetColours(const FitColours& colours) {
  colours_ = colours;
  if (rowCount() > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                       {Qt::BackgroundRole, Qt::ForegroundRole});
  }
}

QString ComparisonModel::VerdictOn(Slot parent, UnitDistances LocusComparison::*offset,
                                   bool all_carried) const {
  std::vector<UnitDistances> offsets;
  QStringList excluding;
  const OffsetTolerance tolerance = allocation_->settings.tolerance;
  for (std::size_t k = 0; k < comparisons_.size(); ++k) {
    offsets.push_back(comparisons_[k].*offset);
    if (ExceedsTolerance(offsets.back(), tolerance)) {
      excluding += Text(Input().loci.Name(Loci().loci[k]));
    }
  }
  const ToleranceVerdict verdict = CheckTolerance(offsets, tolerance);
  const QString name = Text(Input().table.Name(parent).Text());
  if (verdict.uncollected) {
    return Tr("%1: UC, offset above the tolerance of %2 at %3.")
        .arg(name, QString::number(tolerance.Value()), excluding.join(Text(", ")));
  }
  if (verdict.errors > 0) {
    return Tr("%1: accepted, errors assumed: %2.").arg(name, QString::number(verdict.errors));
  }
  return (all_carried ? Tr("%1: accepted without errors.") : Tr("%1: accepted, offsets 0."))
      .arg(name);
}

QStringList ComparisonModel::LociCarriedByNone() const {
  QStringList loci;
  for (std::size_t k = 0; k < comparisons_.size(); ++k) {
    if (IsCarriedByNone(comparisons_[k])) {
      loci += Text(Input().loci.Name(Loci().loci[k]));
    }
  }
  return loci;
}

QString ComparisonModel::Verdict() const {
  if (!offspring_) {
    return Tr("Choose an offspring in the table above.");
  }
  if (!pair_) {
    return Tr("No pair of collected parents can have produced %1 under the error model: both "
              "parents count as UC.")
        .arg(Text(Input().table.Name(*offspring_).Text()));
  }
  const QStringList none = LociCarriedByNone();
  QString verdict = VerdictOn(pair_->parent1, &LocusComparison::offset_par1, none.isEmpty()) +
                    Text("  ") +
                    VerdictOn(pair_->parent2, &LocusComparison::offset_par2, none.isEmpty());
  if (!none.isEmpty()) {
    verdict +=
        Tr("  An allele of the offspring is in neither parent at %1.").arg(none.join(Text(", ")));
  }
  return verdict;
}

const LocusComparison& ComparisonModel::Compared(Column column, std::size_t row) const {
  return IsOther(column) ? others_.at(IsFirst(column) ? 0 : 1)->comparisons[row]
                         : comparisons_[row];
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || !offspring_ ? 0 : static_cast<int>(Loci().loci.size());
}

int ComparisonModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(Column::kCount);
}

QString ComparisonModel::CellText(Column column, std::size_t row) const {
  const LocusIndex locus = Loci().loci[row];
  switch (column) {
    case Column::kLocus:
      return Text(Input().loci.Name(locus));
    case Column::kUnit:
      return QString::number(Loci().unit_distances[row].Value());
    case Column::kOffspring:
      return GenotypeText(Input().table.Genotype(locus, *offspring_));
    default:
      break;
  }
  const bool first = IsFirst(column);
  if (!pair_ || (IsOther(column) && !others_.at(first ? 0 : 1))) {
    return {};
  }
  const LocusComparison& comparison = Compared(column, row);
  switch (column) {
    case Column::kParent1:
    case Column::kParent2:
    case Column::kOther1:
    case Column::kOther2:
      return GenotypeText(first ? comparison.par1 : comparison.par2);
    case Column::kCondition:
      return Text(Label(comparison.condition));
    case Column::kDistance1:
    case Column::kDistance2:
      return DistanceText(comparison, first ? comparison.distance_par1 : comparison.distance_par2);
    default:
      return OffsetText(*FitAt(column, row),
                        first ? comparison.offset_par1 : comparison.offset_par2);
  }
}

std::optional<LocusFit> ComparisonModel::FitAt(Column column, std::size_t row) const {
  const bool is_measured = column == Column::kParent1 || column == Column::kParent2 ||
                           IsOffset(column) || IsOther(column);
  if (!pair_ || !is_measured || (IsOther(column) && !others_.at(IsFirst(column) ? 0 : 1))) {
    return std::nullopt;
  }
  const LocusComparison& locus = Compared(column, row);
  return FitOf(locus, IsFirst(column) ? locus.offset_par1 : locus.offset_par2,
               allocation_->settings.tolerance);
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const auto column = static_cast<Column>(index.column());
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::DisplayRole) {
    return CellText(column, row);
  }
  if (role == Qt::TextAlignmentRole && IsNumeric(column)) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole && column == Column::kCondition && pair_) {
    return Tr(ConditionTip(comparisons_[row].condition));
  }
  const std::optional<LocusFit> fit = FitAt(column, row);
  if (!fit || *fit == LocusFit::kUnsaid) {
    return {};
  }
  const CellColours& cell = *fit == LocusFit::kExact      ? colours_.exact
                            : *fit == LocusFit::kExcluded ? colours_.excluded
                                                          : colours_.tolerated;
  if (role == Qt::BackgroundRole) {
    return cell.background;
  }
  return role == Qt::ForegroundRole ? QVariant(cell.text) : QVariant();
}

/// "Adult07 (p 0.031)".
QString ComparisonModel::OtherHead(Column column) const {
  const auto& other = others_.at(IsFirst(column) ? 0 : 1);
  if (!other) {
    return Tr("Runner-up");
  }
  return Tr("or %1 (p %2)")
      .arg(Text(Input().table.Name(other->parent.slot).Text()),
           Text(ProbabilityText(other->parent.probability)));
}

QString ComparisonModel::Head(Column column) const {
  const bool sexed = allocation_->settings.flow == Flow::kSexed;
  const QString who =
      IsFirst(column) ? (sexed ? Tr("male") : Text("1")) : (sexed ? Tr("female") : Text("2"));
  const auto named = [this](std::optional<Slot> slot, const QString& otherwise) {
    return slot ? Text(Input().table.Name(*slot).Text()) : otherwise;
  };
  switch (column) {
    case Column::kLocus:
      return Tr("Locus");
    case Column::kUnit:
      return Tr("Unit (bp)");
    case Column::kOffspring:
      return named(offspring_, Tr("Offspring"));
    case Column::kParent1:
      return named(pair_ ? std::optional(pair_->parent1) : std::nullopt,
                   sexed ? Tr("Male") : Tr("Parent 1"));
    case Column::kParent2:
      return named(pair_ ? std::optional(pair_->parent2) : std::nullopt,
                   sexed ? Tr("Female") : Tr("Parent 2"));
    case Column::kOther1:
    case Column::kOther2:
      return OtherHead(column);
    case Column::kOtherOffset1:
    case Column::kOtherOffset2:
      return Tr("Offset (units)");
    case Column::kCondition:
      return Tr("Condition");
    case Column::kDistance1:
    case Column::kDistance2:
      return Tr("Distance %1 (bp)").arg(who);
    default:
      return Tr("Offset %1 (units)").arg(who);
  }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) {
    return {};
  }
  const auto column = static_cast<Column>(section);
  if (role == Qt::DisplayRole) {
    return Head(column);
  }
  if (role == Qt::TextAlignmentRole && IsNumeric(column)) {
    return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
  }
  if (role == Qt::ToolTipRole && IsOther(column)) {
    return Tr("The most probable other candidate, in the place of parent %1 beside the same mate.")
        .arg(IsFirst(column) ? 1 : 2);
  }
  return {};
}

}  // namespace kaldo
