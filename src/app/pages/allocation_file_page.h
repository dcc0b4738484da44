// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "allocation/allocation_settings.h"
#include "app/base/flow_page.h"
#include "app/base/form_fields.h"
#include "app/import/import_offer.h"
#include "app/pages/tolerance_field.h"

class QCheckBox;
class QFormLayout;

namespace kaldo {

class FileField;
class OpenedFiles;

/// The file screen of an allocation: collected parents (or males and females), offspring, names of
/// loci, what is known of single offspring, and the maximal offset tolerance.
class AllocationFilePage : public FlowPage {
 public:
  /// `opened` must live as long as the page.
  AllocationFilePage(Flow flow, OpenedFiles& opened);

  /// Fills the fields.
  void Set(const AllocationSettings& settings);

  /// Files as typed, and the tolerance.
  void FillIn(AllocationSettings& settings) const;

  std::optional<Problem> ToleranceFault() const { return tolerance_->Fault(); }

 private:
  /// What a file field is for.
  struct FileOf {
    std::string AllocationSettings::*path;
    Role role;
    Sex sex = Sex::kUnknown;
  };

  FileField* AddFile(QFormLayout& form, FileOf file, const FieldText& text);

  /// Fills in the files that were made of those of another program.
  void TakeImported(const AllocationSettings& imported);

  /// The files of what is known of single offspring, behind a box to tick: most studies have none.
  void AddKnowledge(QFormLayout& form);

  /// Males of a group are tried with the females of the same group, so both files need as many. A
  /// line that tells when they have not: the flow would end without a word.
  std::string GroupsFault() const;
  void RefreshFiles();

  /// How many groups the separators make of a file; nothing where it cannot be read.
  std::optional<std::size_t> GroupsIn(const FileField& field) const;

  struct Row {
    std::string AllocationSettings::*path;
    FileField* field;
  };

  OpenedFiles& opened_;
  ImportOffer offer_;
  std::vector<Row> rows_;
  QCheckBox* undefined_parents_;
  QCheckBox* something_known_ = nullptr;
  std::vector<Row> knowledge_;  ///< count while the box is ticked
  FileField* males_ = nullptr;  ///< sexed flow, as the next
  FileField* females_ = nullptr;
  FileField* loci_ = nullptr;
  std::optional<ToleranceField> tolerance_;
};

}  // namespace kaldo
