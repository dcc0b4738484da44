// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "allocation/allocation_run.h"
#include "runs/exports.h"
#include "runs/project_folder.h"
#include "simulation/simulation_run.h"

namespace kaldo {

/// The further files of a run, and the record of the run with them.
struct MadeExports {
  RunRecord record;
  Exported exported;
};

/// Makes the files a part of the recorded run, as one step: they are put beside its record, which
/// lists them as if the run had written them. `then` is the record as it stands in the folder.
/// Throws as ReportSet does.
void AddToRecordedRun(const ProjectFolder& folder, const RunRecord& then, const MadeExports& made,
                      RunObserver& observer);

/// Puts the files into a folder that is no part of the run. Throws RunRefused where one of them
/// would replace an input of the run, RunFailure where the folder cannot be written to.
void WriteExports(const ProjectFolder& folder, const MadeExports& made);

/// Where the exports of a finished run go.
struct ExportPlace {
  std::string run_folder;                  ///< of its record
  std::optional<std::string> folder = {};  ///< another one; beside the record unless said
  /// Asked where files of these names are in another folder already.
  std::function<bool(const std::vector<std::string>&)> may_replace = {};
};

/// Makes the wanted files of a run that is still in memory and puts them in place; beside the
/// record the forms that it has are made again, since it tells one choice for all of them. Comes
/// back with what was made: no files where they may not be replaced. A Problem, where the record is
/// no longer that of the run too, means that nothing was done. Throws as the two functions above.
tl::expected<Exported, Problem> ExportRun(AllocationSettings settings, const AllocationRun& run,
                                          const WantedExports& wanted, const ExportPlace& place);
tl::expected<Exported, Problem> ExportRun(SimulationSettings settings, const SimulationRun& run,
                                          const WantedExports& wanted, const ExportPlace& place);

}  // namespace kaldo
