// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/results/data_table.h"
#include "app/results/finished_runs.h"

namespace kaldo {

/// What "/Loci.tsv" holds, the locus that excludes most pairs first, and all of them together last.
DataTable LocusTable(const FinishedAllocation& allocation);

}  // namespace kaldo
