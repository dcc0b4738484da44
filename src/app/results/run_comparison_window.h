// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/other_run.h"

namespace kaldo {

class RunComparisonFilter;
class SearchableTable;

/// Two allocations of the same offspring side by side: whose pair changed, and how sure either run
/// was of it.
///
/// Object names: "RunComparison" (the window), "RunComparisonSentence", "RunComparisonRuns",
/// "Close", and those of a SearchableTable "RunComparison".
class RunComparisonWindow : public QWidget {
 public:
  /// `here` is the run of the window from which this one is opened.
  RunComparisonWindow(const OtherRun& here, const OtherRun& other, QWidget* parent);

 private:
  void LayOut(const QString& found, const QString& compared);
  void Narrow();

  RunComparisonFilter* filter_;
  SearchableTable* list_;
};

}  // namespace kaldo
