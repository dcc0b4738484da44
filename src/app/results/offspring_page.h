// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "app/results/finished_runs.h"
#include "app/results/offspring_model.h"

namespace kaldo {

class ComparisonPanel;
class SearchableTable;

/// All offspring with their parents and how sure they are, to be searched, sorted, copied and
/// exported, and below them the genotypes of the chosen one beside those of its pair.
///
/// Object names: those of a SearchableTable "Offspring" and of the ComparisonPanel,
/// "OffspringLegend".
class OffspringPage : public QWidget {
 public:
  OffspringPage(const SharedAllocation& allocation, const QString& folder,
                QWidget* parent = nullptr);

  /// Chooses an offspring, counted from 0 in its file, among all.
  void ShowOffspring(std::size_t place);

  /// Shows those to be looked at.
  void ShowToCheck();

  /// Shows those of whom the results name this parent.
  void ShowOffspringOf(Slot parent);

  /// Shows those at these places in the file, ascending, which `what` names.
  void ShowSome(std::vector<std::size_t> places, const QString& what);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QWidget* NewUpperHalf();
  void AddChoice(const QString& text, const OffspringChoice& choice, const QString& tip = {});
  void FillChoices();
  void ShowAll();
  void ShowAsked(const OffspringChoice& choice, const QString& what);
  void Narrow();
  void ShowCurrent();

  SharedAllocation allocation_;
  OffspringModel* model_;
  OffspringFilter* filter_;
  SearchableTable* list_;
  ComparisonPanel* comparison_;
  std::vector<OffspringChoice> choices_;  ///< beside the list of what to show
  int to_check_ = 0;                      ///< place in `choices_`
  int asked_ = -1;  ///< the same, once the offspring of a parent or a family were asked for
};

}  // namespace kaldo
