// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "app/results/figure_saver.h"
#include "app/results/finished_runs.h"
#include "app/results/mating_table.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace kaldo {

class MatingView;
class ResultTable;

/// Who had offspring with whom, as a table of parents by parents that is a picture at once, and as
/// a list. From a family to its offspring it is a click.
///
/// Object names: "MatingsNote", "MatingsFind", "MatingsFound", "MatingsWhole", "MatingsTable" (the
/// picture), "MatingsDetails", "MatingsList", "MatingsOffspring", "MatingsCopy", "MatingsExport",
/// and those of a FigureSaver "Matings".
class MatingPage : public QWidget {
 public:
  /// Called with the places of offspring in their file, ascending, and what they are: "offspring of
  /// Male01 and Female03".
  using ShowFamily = std::function<void(std::vector<std::size_t> offspring, const QString& what)>;

  MatingPage(const SharedAllocation& allocation, const QString& folder, ShowFamily show_family,
             QWidget* parent = nullptr);

 private:
  void LayOut(const QString& folder);
  QLayout* NewSearchRow();
  QLayout* NewButtonRow(const QString& folder);
  void FindNext(std::size_t from);
  void ShowChosen();
  void ShowOffspring() const;
  void ShowOffspringOfLine(int line, bool is_row) const;

  std::shared_ptr<const MatingTable> table_;
  ShowFamily show_family_;
  MatingView* view_;
  ResultTable* list_;
  QLineEdit* find_;
  QLabel* found_count_;
  QLabel* details_;
  QPushButton* offspring_;
  FigureSaver saver_;
  std::vector<MatingPlace> found_;
  std::size_t shown_ = 0;  ///< which of them was gone to last
};

}  // namespace kaldo
