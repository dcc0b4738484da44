// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "app/flows/flow_window.h"
#include "app/pages/tolerance_field.h"
#include "method/flow.h"

namespace kaldo {

/// How the pseudo-offspring of a simulation are allocated.
class TolerancePage : public FlowPage {
 public:
  explicit TolerancePage(Flow flow);

  ToleranceField& Field() { return *field_; }

 private:
  std::optional<ToleranceField> field_;
};

}  // namespace kaldo
