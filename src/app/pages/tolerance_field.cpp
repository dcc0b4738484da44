// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/pages/tolerance_field.h"

#include <QLineEdit>

#include <fmt/format.h>

#include "allocation/allocation_settings.h"
#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr FieldText kTolerance{Phrase("Maximal offset &tolerance"), "Tolerance",
                               Phrase("The largest difference between a parent's and an "
                                      "offspring's allele, in whole unit distances "
                                      "(repeats), that is taken for a transmission error. A parent "
                                      "that would need a larger one is "
                                      "declared uncollected (UC). 0 accepts exact alleles only.")};

}  // namespace

ToleranceField::ToleranceField(QFormLayout& form) : field_(AddLineEdit(form, kTolerance)) {
  Set(FirstShownAllocation(Flow::kNonSexed).tolerance);
}

void ToleranceField::Set(OffsetTolerance tolerance) {
  field_->setText(NumberText(tolerance.Value()));
}

void ToleranceField::SetActs(bool acts) { field_->setEnabled(acts); }

OffsetTolerance ToleranceField::Value() const {
  return OffsetTolerance{WholeNumberIn(*field_).value_or(0)};
}

std::optional<Problem> ToleranceField::Fault() const {
  if (WholeNumberIn(*field_)) {
    return ValidateTolerance(Value());
  }
  return Problem{.kind = ProblemKind::kNegativeTolerance,
                 .found = Bytes(Tr("the maximal offset tolerance is %1, which is no whole number")
                                    .arg(Text(Quoted(Bytes(field_->text())))))};
}

}  // namespace kaldo
