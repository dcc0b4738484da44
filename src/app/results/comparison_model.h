// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <array>
#include <optional>
#include <vector>

#include "app/results/chart_theme.h"
#include "app/results/finished_runs.h"
#include "method/locus_fit.h"

namespace kaldo {

/// The offsets stand beside the genotypes: their signs say what the colours say.
enum class ComparisonColumn {
  kLocus,
  kOffspring,
  kParent1,
  kParent2,
  kOffset1,
  kOffset2,
  kOther1,  ///< who competes with parent 1, beside the same mate
  kOtherOffset1,
  kOther2,
  kOtherOffset2,
  kCondition,
  kDistance1,
  kDistance2,
  kUnit,  ///< the unit distance of the locus
  kCount,
};

/// The sign before every offset, for whoever does not see the colours: "✓ 0", "≈ 1", "✗ 3".
QString SignOf(LocusFit fit);

/// An offspring beside one pair of parents, locus by locus: the loci of the run in file order.
/// Without a pair only the offspring's genotype is there. With posteriors the candidate that
/// competes with each parent, see NextCandidate, stands beside them.
class ComparisonModel : public QAbstractTableModel {
 public:
  ComparisonModel(SharedAllocation allocation, QObject* parent);

  /// `pair` counts from 0 among the equally likely pairs of the offspring.
  void ShowPair(std::size_t offspring, std::size_t pair);

  /// Shows no offspring.
  void Clear();

  void SetColours(const FitColours& colours);

  /// True where the columns of competing candidates mean something.
  bool HasOthers() const;

  /// What the offsets say about both parents, in sentences.
  QString Verdict() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  QString CellText(ComparisonColumn column, std::size_t row) const;
  std::optional<LocusFit> FitAt(ComparisonColumn column, std::size_t row) const;
  QString Head(ComparisonColumn column) const;
  QString OtherHead(ComparisonColumn column) const;
  QString VerdictOn(Slot parent, UnitDistances LocusComparison::*offset, bool all_carried) const;
  QStringList LociCarriedByNone() const;
  void FindOthers(std::size_t offspring);
  const LocusComparison& Compared(ComparisonColumn column, std::size_t row) const;
  const AllocationInput& Input() const { return allocation_->run.input; }
  const LociOfRun& Loci() const { return allocation_->run.result.loci; }

  SharedAllocation allocation_;
  FitColours colours_;
  std::optional<Slot> offspring_;
  std::optional<ParentPair> pair_;
  std::vector<LocusComparison> comparisons_;

  /// Who competes with each parent, and the pair with it in that parent's place.
  struct Other {
    ProbableParent parent;
    std::vector<LocusComparison> comparisons;
  };
  std::array<std::optional<Other>, 2> others_;
};

}  // namespace kaldo
