// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "allocation/allocation_run.h"
#include "interchange/export/exported_study.h"
#include "simulation/simulation_run.h"

namespace kaldo {

// Finished runs with their settings, from which the page reads for as long as it shows them.

struct ShownAllocation {
  AllocationSettings settings;
  AllocationRun run;
  OriginalNames names;  ///< those before an import

  /// The study must not outlive this.
  ExportedStudy Study() const {
    static const Sexes no_table_of_sexes;
    return {settings, run.input, run.result, names, no_table_of_sexes};
  }
};

struct ShownSimulation {
  SimulationSettings settings;
  SimulationRun run;
};

}  // namespace kaldo
