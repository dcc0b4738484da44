// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/simulation_summary.h"

class QComboBox;
class QLabel;

namespace kaldo {

class ChartPanel;

/// How much the share of correct decisions varies from iteration to iteration, for one class of
/// origin or all together: that is how much chance there is in a single field season.
///
/// Object names: "SpreadClass", "SpreadFigures", and those of a ChartPanel "Spread".
class SpreadPage : public QWidget {
 public:
  SpreadPage(std::vector<Correctness> classes, QString note, const QString& folder,
             QWidget* parent = nullptr);

 private:
  void ShowClass();

  std::vector<Correctness> classes_;
  QString note_;  ///< follows the title where the run had more than one subset of loci
  QComboBox* class_;
  QLabel* figures_;
  ChartPanel* panel_;
};

}  // namespace kaldo
