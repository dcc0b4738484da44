// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <vector>

#include "allocation/allocation_settings.h"
#include "interchange/import/import_choices.h"

class QWidget;

namespace kaldo {

class FileField;
class OpenedFiles;

/// What a flow needs of an import.
struct ImportNeed {
  Flow flow = Flow::kNonSexed;
  bool is_simulation = false;  ///< takes parents alone, and knows no groups
};

/// Lets the file fields of a screen recognise files of other programs, and converts them together:
/// one study may lie in a file of parents and a file of offspring.
class ImportOffer {
 public:
  /// Called with the files that were made of a study.
  using OnImported = std::function<void(const AllocationSettings&)>;

  /// `screen` stands below the import; `opened` must live as long as the fields.
  ImportOffer(QWidget& screen, ImportNeed need, OpenedFiles& opened, OnImported on_imported)
      : screen_(screen), need_(need), opened_(opened), on_imported_(std::move(on_imported)) {}

  /// The offer must live as long as the field.
  void Watch(FileField& field, Role role = Role::kUnknown, Sex sex = Sex::kUnknown);

 private:
  struct Watched {
    FileField* field;
    Role role;
    Sex sex;
  };

  /// The foreign files that the fields name, each once. Their roles are those of their fields where
  /// these tell parents from offspring; a file in several fields, or alone, holds both perhaps.
  std::vector<ImportedFile> Files() const;
  void Convert();

  QWidget& screen_;
  ImportNeed need_;
  OpenedFiles& opened_;
  OnImported on_imported_;
  std::vector<Watched> watched_;
};

}  // namespace kaldo
