// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "app/base/flow_page.h"
#include "app/pages/tolerance_field.h"
#include "simulation/simulation_settings.h"

class QBoxLayout;
class QButtonGroup;

namespace kaldo {

/// How the pseudo-offspring of a simulation are allocated: the tolerance, and in the non-sexed flow
/// the choice between strict exclusion and the model of the run. A tolerance that would change
/// nothing is grey.
class TolerancePage : public FlowPage {
 public:
  explicit TolerancePage(Flow flow);

  void Set(const SimulationSettings& settings);
  void FillIn(SimulationSettings& settings) const;

  /// Tells the model with which pseudo-offspring are made.
  void SetErrorModel(const ErrorModel& model);

  ToleranceField& Field() { return *field_; }

 private:
  /// Choices by their place among the buttons.
  enum Choice { kExcludeStrictly, kLikeTheRun, kAsRecorded };

  void AddChoices(QBoxLayout& column);
  void ShowTolerance();

  Flow flow_;
  ErrorModel error_model_;
  std::optional<ErrorModel> recorded_;  ///< another model, of a record
  std::optional<ToleranceField> field_;
  QButtonGroup* choices_ = nullptr;  ///< none in the sexed flow
};

}  // namespace kaldo
