// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace kaldo {

class ResultTable;
class SubsetModel;

/// All subsets of loci that were run, and the best of each size as a chart: how many loci are
/// enough, and which.
///
/// Object names: "SubsetsFind", "SubsetsShow", "SubsetsCount", "SubsetsTable",
/// "SubsetsCopy", "SubsetsExport", and those of a ChartPanel "BestSubsets".
class SubsetPage : public QWidget {
 public:
  SubsetPage(const SharedSimulation& simulation, QString folder, QWidget* parent = nullptr);

 private:
  QWidget* ListSide();
  QWidget* ChoiceRow();
  void Narrow();

  QString folder_;
  SubsetModel* model_;
  ResultTable* table_;
  QLineEdit* find_;
  QComboBox* show_;
  QLabel* count_;
};

}  // namespace kaldo
