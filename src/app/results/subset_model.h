// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <map>
#include <optional>
#include <span>

#include "app/results/finished_runs.h"
#include "simulation/figures/subset_ranking.h"

namespace kaldo {

enum class SubsetColumn { kPlace, kRank, kLoci, kAnyCorrect, kError, kBest, kNames, kCount };

/// Which subsets are shown.
struct SubsetChoice {
  QString loci;                     ///< parts of names of loci that all must be in it
  std::optional<std::size_t> size;  ///< number of loci
  bool only_best = false;
};

/// The subsets of loci that a simulation ran through. It sorts and narrows itself, straight from
/// the results: there may be a million of them.
class SubsetModel : public QAbstractTableModel {
 public:
  SubsetModel(SharedSimulation simulation, QObject* parent);

  /// Narrows the rows to what is chosen.
  void Choose(const SubsetChoice& choice);

  /// The best subset of each size, by its place in the run.
  const std::map<std::size_t, std::size_t>& Best() const { return best_; }

  std::size_t AllSubsets() const { return Subsets().size(); }

  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role = Qt::DisplayRole) const override;

 private:
  const std::vector<SubsetFigures>& Subsets() const { return simulation_->run.result.subsets; }
  bool IsBest(std::size_t subset) const;
  void Arrange();
  void SortShown();
  QString CellText(SubsetColumn column, std::size_t subset) const;
  double ErrorOf(std::size_t subset) const;

  SharedSimulation simulation_;
  std::map<std::size_t, std::size_t> best_;
  std::vector<std::uint32_t> ranks_;  ///< of each subset, counted from 0
  SubsetChoice choice_;
  SubsetColumn sorted_by_ = SubsetColumn::kBest;
  Qt::SortOrder order_ = Qt::AscendingOrder;
  std::vector<std::uint32_t> shown_;  ///< places among the subsets, in the order shown
};

}  // namespace kaldo
