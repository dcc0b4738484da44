// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>

#include "app/results/finished_runs.h"

class QComboBox;
class QLabel;

namespace kaldo {

class DataTableModel;
class ResultTable;

/// Two steps of a cumulative sequence side by side: the numbers of each class of allocation, and
/// the offspring that have another pair. Results that were opened again know the numbers alone.
///
/// Object names: "StepsFirst", "StepsSecond", "StepsNumbers", "StepsChanged", "StepsTable",
/// "StepsCopy", "StepsExport"; the last three only where the pairs are known.
class StepsPage : public QWidget {
 public:
  StepsPage(SharedAllocation allocation, const QString& folder, QWidget* parent = nullptr);

 private:
  QLayout* NewChoiceRow();
  void ShowSteps();
  QString NumbersText(std::size_t first, std::size_t second) const;
  QString ShowChanged(std::size_t first, std::size_t second);

  SharedAllocation allocation_;
  std::array<QComboBox*, 2> steps_;
  QLabel* numbers_;
  QLabel* changed_;
  DataTableModel* model_;
  ResultTable* table_ = nullptr;
};

}  // namespace kaldo
