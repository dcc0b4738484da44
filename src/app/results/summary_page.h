// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>
#include <utility>
#include <vector>

#include "app/results/chart_data.h"

namespace kaldo {

/// What a run tells about itself, part by part.
struct Summary {
  QString title;
  std::vector<std::pair<QString, QString>> lines;  ///< "error model", "Uniform (0.01)"
  QStringList warnings;  ///< what a geneticist should look at before using the results
  QStringList notes;
  QString files_title;
  QStringList files;
};

/// The files of a run that are in its folder. `candidates` are all that such a run may write, with
/// their leading "/".
QStringList FilesPresent(const QString& folder, const std::vector<std::string_view>& candidates);

/// The first tab of a results window: the summary as text to be read and copied, beside the main
/// figures as a chart and a table.
///
/// Object names: "SummaryText", and those of a ChartPanel "Summary".
class SummaryPage : public QWidget {
 public:
  SummaryPage(const Summary& summary, const Chart& chart, const DataTable& table,
              const QString& folder, QWidget* parent = nullptr);
};

}  // namespace kaldo
