// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QTimer>
#include <optional>
#include <string>
#include <vector>

#include "app/import/import_offer.h"
#include "interchange/import/import_run.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace kaldo {

class ImportFields;
class ImportFiles;
class ImportPreview;

/// Converts files of another program into those of a flow. Every choice is tried at once: what is
/// still to be settled stands as a list with file, line and cell, and the first individuals show
/// what was read. Nothing is written before "Convert".
///
/// Object names: "Import", "ImportStatus", "ImportFindings", "ImportPreview", "ImportFolder",
/// "ImportConvert", "ImportCancel", and those of its parts.
class ImportScreen : public QDialog {
 public:
  /// `source` must live as long.
  ImportScreen(QWidget* parent, ImportNeed need, const std::vector<ImportedFile>& files,
               FileSource& source);

  /// The files of the study, when the screen was accepted.
  const AllocationSettings& Imported() const { return imported_; }

 private:
  QWidget* NewBody();
  QLayout* NewFolderRow();
  QLayout* NewButtons();
  void TryLater();
  void Try();
  void ShowTry(const ImportTry& tried, const std::string& faults);
  void BrowseFolder();
  void Convert();

  /// What keeps the study from this flow though it can be converted; empty where nothing does.
  std::string FaultForFlow(const ImportedStudy& study) const;
  bool MayReplace();

  ImportNeed need_;
  FileSource& source_;
  QTimer pause_;  ///< files are not read at every key
  ImportChoices choices_;
  std::optional<ImportedStudy> study_;  ///< that can be written
  AllocationSettings imported_;
  ImportFiles* files_;
  ImportFields* fields_;
  QLabel* status_;
  QPlainTextEdit* findings_;
  ImportPreview* preview_;
  QLineEdit* folder_;
};

}  // namespace kaldo
