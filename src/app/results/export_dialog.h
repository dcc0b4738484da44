// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "app/base/tr.h"
#include "interchange/export/run_exports.h"

class QCheckBox;
class QLineEdit;

namespace kaldo {

class FileField;

/// What a finished run can be exported as, and how.
struct ExportOffer {
  std::vector<NamedExportForm> forms = {};
  bool needs_sexes = false;  ///< for most pedigrees, since the run knows none

  /// Why no parents can be left out of pedigrees by their probabilities; empty where they can.
  Phrase without_probabilities = {};

  std::function<tl::expected<Exported, Problem>(const WantedExports&, const ExportPlace&)> make =
      {};

  bool Has(ExportForm form) const;
};

/// Asks in which forms the results are wanted and writes them, beside the run or into another
/// folder.
///
/// Object names: "Exports", "ExportForm_" and the name of the form ("ExportForm_tsv"),
/// "ExportSexes", "ExportLeast", "ExportFolder", "ExportWrite", "ExportCancel".
class ExportDialog : public QDialog {
 public:
  /// `folder` is that of the run.
  ExportDialog(QWidget* parent, const ExportOffer& offer, QString folder);

 private:
  void AddForms(QLayout& column);
  QWidget* NewPedigreeFields();
  QLayout* NewFolderRow();
  QLayout* NewButtons();
  void BrowseFolder();
  void Write();

  /// What is wanted; where a number cannot be read this is told, and nothing comes back.
  std::optional<WantedExports> Wanted();

  struct Form {
    ExportForm form;
    QCheckBox* box;
  };

  const ExportOffer& offer_;
  QString run_folder_;
  std::vector<Form> forms_;
  FileField* sexes_ = nullptr;
  QLineEdit* least_ = nullptr;
  QLineEdit* folder_;
};

/// Writes the results as a page beside the run and opens it in the browser of the desktop.
void OpenHtmlReport(QWidget* parent, const ExportOffer& offer, const QString& folder);

}  // namespace kaldo
