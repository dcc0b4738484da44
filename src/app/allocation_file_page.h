// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "allocation/allocation_settings.h"
#include "app/base/form_fields.h"
#include "app/flow_window.h"
#include "app/tolerance_field.h"

class QFormLayout;

namespace kaldo {

class FileField;

/// The file screen of an allocation: collected parents (or males and females), offspring, names of
/// loci, and the maximal offset tolerance.
class AllocationFilePage : public FlowPage {
 public:
  explicit AllocationFilePage(Flow flow);

  void Set(const AllocationSettings& settings);

  /// Files as typed, and the tolerance.
  void FillIn(AllocationSettings& settings) const;

  std::optional<Problem> ToleranceFault() const { return tolerance_->Fault(); }

 private:
  void AddFile(QFormLayout& form, std::string AllocationSettings::*path, bool holds_parents,
               const FieldText& text);
  void RefreshFiles();

  struct Row {
    std::string AllocationSettings::*path;
    FileField* field;
  };

  std::vector<Row> rows_;
  FileField* loci_ = nullptr;
  std::optional<ToleranceField> tolerance_;
};

}  // namespace kaldo
