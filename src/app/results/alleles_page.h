// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace kaldo {

class ChartPanel;

/// The allele frequencies of one locus at a time, over all individuals of an allocation.
///
/// Object names: "AllelesLocus", "AllelesPrevious", "AllelesNext", "AllelesCopies", and those
/// of a ChartPanel "Alleles".
class AllelesPage : public QWidget {
 public:
  AllelesPage(SharedAllocation allocation, const QString& folder, QWidget* parent = nullptr);

 private:
  QWidget* LocusRow();
  void ShowLocus();

  SharedAllocation allocation_;
  QComboBox* locus_;
  QPushButton* previous_;
  QPushButton* next_;
  QLabel* copies_;
  ChartPanel* panel_;
};

}  // namespace kaldo
