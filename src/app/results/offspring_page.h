// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

namespace kaldo {

class ComparisonPanel;
class OffspringFilter;
class OffspringModel;
class SearchableTable;

/// All offspring with their parents, to be searched, sorted, copied and exported, and below them
/// the genotypes of the chosen one beside those of its pair.
///
/// Object names: those of a SearchableTable "Offspring" and of the ComparisonPanel.
class OffspringPage : public QWidget {
 public:
  OffspringPage(const SharedAllocation& allocation, const QString& folder,
                QWidget* parent = nullptr);

 private:
  void Narrow();
  void ShowCurrent();

  OffspringModel* model_;
  OffspringFilter* filter_;
  SearchableTable* list_;
  ComparisonPanel* comparison_;
};

}  // namespace kaldo
