// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runs/report_set.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/simulated_iteration.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// All files of a simulation run. The project folder is tried when this object is made; the files
/// are put in place together at the end of Write().
class SimulationReports {
 public:
  /// Throws RunFailure when the project folder cannot be written to.
  explicit SimulationReports(const SimulationSettings& settings);

  /// Writes every report, the kept individuals, the saved loci and the run record. `last` is the
  /// last iteration of the run, as it was made. Throws RunFailure or RunStopped.
  void Write(const SimulationSettings& settings, const SimulationInput& input,
             const SimulationResult& result, const SimulatedIteration& last, RunObserver& observer,
             Workforce& workforce);

 private:
  void WriteTables(const SimulationSettings& settings, const SimulationInput& input,
                   const SimulationResult& result);
  void WriteIndividuals(const SimulationSettings& settings, const SimulationInput& input,
                        const SimulationResult& result, const SimulatedIteration& last);
  void WriteMatrices(const SimulationSettings& settings, const SimulationInput& input,
                     const SimulationResult& result, RunObserver& observer, Workforce& workforce);
  /// Writes a file, or has one of an earlier run removed when there is nothing to write.
  void AddOrRemove(std::string_view file, std::string_view text);

  const SimulationTexts& texts_;
  ReportSet reports_;
  ReportFile& summary_;
};

}  // namespace kaldo
