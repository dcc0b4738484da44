// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "runs/report_set.h"
#include "simulation/reports/simulation_texts.h"
#include "simulation/simulated_iteration.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// All files of a simulation run. They are opened when this object is made, and put in place
/// together at the end of Write(); if it is never reached, nothing changes.
class SimulationReports {
 public:
  /// Throws RunFailure when the project folder cannot be written to, and RunRefused when the run
  /// would destroy an input file or the results of another flow. The input and the observer are
  /// used as long as this object lives.
  SimulationReports(const SimulationSettings& settings, const SimulationInput& input,
                    RunObserver& observer, SimulationExports* exports = nullptr);

  /// Where the run keeps what is done meanwhile.
  UnfinishedRun& Unfinished() { return reports_.Unfinished(); }

  /// Writes every report, the kept individuals, the run record and, in the working folder, the
  /// saved loci. `last` is the last iteration of the run, as it was made. Throws RunFailure or
  /// RunStopped.
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

  void WriteExports(const SimulationSettings& settings, const SimulationInput& input,
                    const SimulationResult& result, RunRecord& record, RunObserver& observer);

  const SimulationTexts& texts_;
  SimulationExports* exports_;
  ReportSet reports_;
  ReportFile& summary_;
  std::vector<ReportFile*> tables_;   ///< one per class, then the global one
  std::vector<ReportFile*> parents_;  ///< one per group
  ReportFile& detailed_;
  ReportFile& sequence_;
  ReportFile& stepping_;
  ReportFile& offspring_;
  ReportFile& matrices_;
  ReportFile& reliability_;
  ReportFile& subsets_;
  ReportFile& scan_;
  ReportFile& service_;
  ReportFile& record_;
  std::map<std::string_view, ReportFile*> further_;  ///< those of the exports, by their names
};

}  // namespace kaldo
