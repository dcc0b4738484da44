// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "app/base/tr.h"
#include "app/results/export_dialog.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace kaldo {

class WrappingRow;

/// What the result windows of all runs share: a title with the name of the project, tabs, and
/// buttons to open the folder with the reports and to copy the command that repeats the run. Esc
/// clears what is being looked for; Ctrl+W closes it. Its folder is remembered, see
/// RecentFolders().
///
/// Object names: "Tabs", "Note", "OpenFolder", "CopyCommand", "ExportRun", "HtmlReport", "Close".
class ResultsWindow : public QWidget {
 public:
  /// `folder` is the full path of the project folder.
  ResultsWindow(const std::string& project, QString folder, QWidget* parent);

  /// The command line that repeats this run; without it there is nothing to copy.
  void SetCommand(const QString& command);

  /// A sentence above the tabs that says where the results come from.
  void SetNote(const QString& note);

  /// Offers these exports alone, or none: reports do not tell all that the run knew.
  void NarrowExports(std::vector<NamedExportForm> forms);

 protected:
  const QString& Folder() const { return folder_; }

  /// What the run can be exported as.
  void SetExports(ExportOffer offer);

  /// `title` carries its mnemonic; `tip` says in a sentence what the tab shows. In any language its
  /// object name is the English title in one word: "SummaryTab".
  void AddTab(QWidget* page, Phrase title, Phrase tip);

  /// Puts one more button beside those that all runs have.
  void AddButton(QPushButton* button);

  /// Brings the tab of a page that was added to the front.
  void ShowTab(const QWidget& page);

 private:
  QWidget* ButtonRow();
  void ClearSearch();
  void AddExports(QLayout& row);

  QString folder_;
  QString command_;
  QLabel* note_;
  QTabWidget* tabs_;
  WrappingRow* buttons_ = nullptr;
  QPushButton* copy_command_;
  ExportOffer exports_;
  QPushButton* export_;
  QPushButton* html_report_;
};

}  // namespace kaldo
