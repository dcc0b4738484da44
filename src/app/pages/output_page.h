// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "app/base/flow_page.h"
#include "simulation/simulation_settings.h"

class QCheckBox;
class QLineEdit;

namespace kaldo {

/// The last screen of a simulation: what is printed and kept, and the seed.
class OutputPage : public FlowPage {
 public:
  explicit OutputPage(Flow flow);

  /// Fills the fields.
  void Set(const SimulationSettings& settings);

  /// What is wanted and the seed as typed.
  void FillIn(SimulationSettings& settings) const;

  /// Told when the seed cannot be read.
  std::optional<Problem> SeedFault() const;

 private:
  QCheckBox* print_iterations_;
  QCheckBox* print_subsets_;
  QCheckBox* keep_parents_;
  QCheckBox* keep_offspring_;
  QCheckBox* keep_matrices_;
  QCheckBox* modern_randoms_;
  QCheckBox* common_randoms_;
  QLineEdit* seed_;
};

}  // namespace kaldo
