// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

namespace kaldo {

class SearchableTable;
class SubsetModel;

/// All subsets of loci that were run, and the best of each size as a chart: how many loci are
/// enough, and which.
///
/// Object names: those of a SearchableTable "Subsets" and of a ChartPanel "BestSubsets".
class SubsetPage : public QWidget {
 public:
  SubsetPage(const SharedSimulation& simulation, const QString& folder, QWidget* parent = nullptr);

 private:
  void Narrow();

  SubsetModel* model_;
  SearchableTable* list_;
};

}  // namespace kaldo
