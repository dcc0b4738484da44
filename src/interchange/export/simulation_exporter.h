// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulation/simulation_run.h"

namespace kaldo {

/// Makes what a user wants beside the reports of a simulation.
class SimulationExporter final : public SimulationExports {
 public:
  std::optional<Problem> Prepare(SimulationSettings& settings, SimulationInput& input,
                                 FileSource& source) override;
  std::vector<std::string_view> Files() const override;
  Exported Make(const SimulationSettings& settings, const SimulationInput& input,
                const SimulationResult& result, const RunRecord& record) override;

  /// The names of the files that Make() gave, without "/".
  const std::vector<std::string>& Made() const { return made_; }

 private:
  ExportForms forms_;
  std::vector<std::string> made_;
};

}  // namespace kaldo
