// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>
#include <functional>
#include <utility>
#include <vector>

#include "app/results/chart_data.h"

class QListWidget;
class QPushButton;
class QTextBrowser;

namespace kaldo {

/// What a run tells about itself, part by part.
struct Summary {
  QString title;

  /// What was found, in a sentence. Where there is one it comes first, and files and settings are
  /// folded away.
  QString headline;

  /// The figures that matter most, below it: what they are, and each with its interval.
  QString figures_title;
  std::vector<std::pair<QString, QString>> figures;

  /// What to look at, a line each; see SummaryPage::SetOnCheck.
  QStringList to_check;

  std::vector<std::pair<QString, QString>> lines;  ///< "error model", "Uniform (0.01)"
  QStringList warnings;  ///< what a geneticist should look at before using the results
  QStringList notes;
  QString files_title;
  QStringList files;
};

/// The files of a run that are in its folder. `candidates` are all that such a run may write, with
/// their leading "/".
QStringList FilesPresent(const QString& folder, const std::vector<std::string_view>& candidates);

/// The first tab of a results window: what was found and what to check, as text to be read and
/// copied, beside the main figures as a chart and a table.
///
/// Object names: "SummaryText", with a headline also "SummaryToCheck" and "SummaryMore", where a
/// trial is offered "SummaryTrial", and those of a ChartPanel "Summary".
class SummaryPage : public QWidget {
 public:
  SummaryPage(Summary summary, const Chart& chart, const DataTable& table, const QString& folder,
              QWidget* parent = nullptr);

  /// Tells one thing more.
  void AddNote(const QString& note);

  /// Offers to try how far these results can be trusted, and calls `on_trial` when that is wanted.
  void OfferTrial(std::function<void()> on_trial);

  /// Called with the place of a line of what to check when the user wants to see it.
  void SetOnCheck(std::function<void(std::size_t)> on_check);

 private:
  QWidget* NewTextSide();
  void ShowText();

  Summary summary_;
  QTextBrowser* text_;
  QListWidget* to_check_;
  QPushButton* more_;
  QPushButton* trial_;
};

}  // namespace kaldo
