// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "interchange/export/exported_study.h"
#include "runs/run_record.h"

namespace kaldo {

/// An allocation as one page (HTML 5) to be read, printed and kept: nothing is loaded, no script
/// runs. `record` lists the reports of the run. A repeated run gives the same page.
std::string AllocationPage(const ExportedStudy& study, const RunRecord& record);

}  // namespace kaldo
