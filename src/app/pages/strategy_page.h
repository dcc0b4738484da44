// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

#include "app/base/flow_page.h"
#include "simulation/simulation_settings.h"

class QButtonGroup;
class QLabel;
class QLineEdit;

namespace kaldo {

/// The strategy screen: which subsets of loci the simulation runs with.
class StrategyPage : public FlowPage {
 public:
  explicit StrategyPage(Flow flow);

  /// Fills the fields.
  void Set(const SimulationSettings& settings);

  /// The strategy, or nothing before one is chosen.
  std::optional<LociStrategy> Strategy() const;

  /// The numbers as typed; one that cannot be read becomes one that is refused.
  void FillIn(SimulationSettings& settings) const;

  void TellTyped(Problem& problem) const override;

  /// Tells from which loci subsets and sequences are formed.
  void ShowLoci(std::size_t in_use, std::size_t all);

  /// Called when the user wants to choose them.
  void SetOnChooseLoci(std::function<void()> on_choose) { on_choose_loci_ = std::move(on_choose); }

 private:
  QLayout* NewLociRow();

  QButtonGroup* strategies_;
  QLineEdit* criterion_;
  QLineEdit* start_with_;
  QLabel* loci_;
  std::function<void()> on_choose_loci_;
};

}  // namespace kaldo
