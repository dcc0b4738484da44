// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

class QComboBox;
class QLabel;

namespace kaldo {

class ComparisonModel;
class ResultTable;

/// The genotypes of one offspring beside those of its pair, locus by locus, with what each locus
/// says for or against either parent. Of several equally likely pairs each can be looked at.
///
/// Object names: "ComparisonPair", "ComparisonVerdict", "ComparisonTable", "ComparisonLegend",
/// "ComparisonCopy".
class ComparisonPanel : public QWidget {
 public:
  explicit ComparisonPanel(SharedAllocation allocation, QWidget* parent = nullptr);

  /// Counted from 0 in file order; its first pair is shown.
  void ShowOffspring(std::size_t offspring);

  /// Shows no offspring.
  void Clear();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FillPairs();
  void ShowPair();
  void LayOut();

  SharedAllocation allocation_;
  std::size_t offspring_ = 0;
  ComparisonModel* model_;
  ResultTable* table_;
  QComboBox* pair_;
  QLabel* verdict_;
};

}  // namespace kaldo
