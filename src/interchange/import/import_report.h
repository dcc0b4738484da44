// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "interchange/import/import_log.h"
#include "interchange/import/study_files.h"

namespace kaldo {

/// The text of "Import report.txt": what was read and why it was taken for that, what is kept,
/// skipped and renamed, what is undefined, and every conversion with its lines. `command` runs the
/// study.
std::string ImportReport(const SettledStudy& settled, const ImportLog& log,
                         const std::string& command);

/// What is kept, in one sentence: "39 parents, 59 offspring, 6 loci".
std::string KeptText(const SettledStudy& settled);

}  // namespace kaldo
