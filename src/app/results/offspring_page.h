// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace kaldo {

class ComparisonPanel;
class OffspringFilter;
class OffspringModel;
class ResultTable;

/// All offspring with their parents, to be searched, sorted, copied and exported, and below them
/// the genotypes of the chosen one beside those of its pair.
///
/// Object names: "OffspringFind", "OffspringShow", "OffspringCount", "OffspringTable",
/// "OffspringCopy", "OffspringExport"; those of the ComparisonPanel.
class OffspringPage : public QWidget {
 public:
  OffspringPage(const SharedAllocation& allocation, QString folder, QWidget* parent = nullptr);

 private:
  QWidget* ChoiceRow();
  QWidget* ListSide();
  void Narrow();
  void ShowCurrent();

  QString folder_;
  OffspringModel* model_;
  OffspringFilter* filter_;
  ResultTable* table_;
  ComparisonPanel* comparison_;
  QLineEdit* find_;
  QComboBox* show_;
  QLabel* count_;
};

}  // namespace kaldo
