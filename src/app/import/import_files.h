// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "interchange/import/foreign_study.h"
#include "interchange/import/import_choices.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace kaldo {

/// The files of an import: what each was taken for, and who is in it.
///
/// Object names: "ImportFileK", "ImportWhoK", "ImportRemoveK" with K counted from 1, "ImportAdd".
class ImportFiles : public QWidget {
 public:
  ImportFiles(const std::vector<ImportedFile>& files, std::function<void()> on_change);

  std::vector<ImportedFile> Files() const;

  /// Whether somebody in the files may be a parent or an offspring by other means than their file.
  bool HasOpenFile() const;

  /// Tells what was read from each.
  void ShowFound(const std::vector<ReadFile>& found);

 private:
  struct Row {
    QWidget* widget = nullptr;
    std::string path;
    QComboBox* who = nullptr;
    QLabel* found = nullptr;
  };

  void AddRow(const ImportedFile& file);
  void RemoveRow(const QWidget* widget);
  void AskForFile();

  std::function<void()> on_change_;
  QWidget* list_;
  std::size_t made_ = 0;  ///< rows ever
  std::vector<Row> rows_;
};

}  // namespace kaldo
