// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/results/results_window.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// Shows how far the allocations of a simulated population can be trusted.
class SimulationWindow : public ResultsWindow {
 public:
  /// `folder` is the full path of the project folder.
  SimulationWindow(SimulationSettings settings, SimulationRun run, QString folder,
                   QWidget* parent = nullptr);
};

}  // namespace kaldo
