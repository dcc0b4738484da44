// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "method/offset_tolerance.h"

class QFormLayout;
class QLineEdit;

namespace kaldo {

/// The field for the "Maximal offset tolerance", as the flows have it.
class ToleranceField {
 public:
  explicit ToleranceField(QFormLayout& form);

  void Set(OffsetTolerance tolerance);

  /// Greys it where it would change nothing; what was typed stays.
  void SetActs(bool acts);

  /// The tolerance as typed; 0 where it is no whole number, which Fault() tells.
  OffsetTolerance Value() const;

  /// What is wrong when it is no whole number, or a negative one.
  std::optional<Problem> Fault() const;

 private:
  QLineEdit* field_;
};

}  // namespace kaldo
