// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>

#include "app/results/finished_runs.h"

class QLabel;
class QPushButton;

namespace kaldo {

class ParentsFilter;
class ParentsModel;
class SearchableTable;

/// All collected parents with their offspring and mates, who has none, and what the families say of
/// the breeders. From a parent to its offspring it is a click.
///
/// Object names: those of a SearchableTable "Parents", "ParentsFamilies", "ParentsOffspring".
class ParentsPage : public QWidget {
 public:
  /// `show_offspring` is called with a parent whose offspring the user wants to see.
  ParentsPage(const SharedAllocation& allocation, const QString& folder,
              std::function<void(Slot)> show_offspring, QWidget* parent = nullptr);

 private:
  void LayOut(const FinishedAllocation& allocation);
  void Narrow();
  void ShowOffspring();

  std::function<void(Slot)> show_offspring_;
  ParentsModel* model_;
  ParentsFilter* filter_;
  SearchableTable* list_;
  QLabel* families_;
  QPushButton* offspring_;
};

}  // namespace kaldo
