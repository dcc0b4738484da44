// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "interchange/export/exported_study.h"
#include "runs/run_record.h"

namespace kaldo {

/// Whether this program was built with the library that writes workbooks.
bool CanWriteWorkbooks();

/// A workbook (.xlsx) with the sheets Allocations, Loci, Parents and Settings. Names are texts, so
/// that a spreadsheet makes no date of Mar1, no number of 00012 and no formula of =1+1. The same
/// allocation gives the same bytes. Throws RunFailure when it cannot be made.
std::string WorkbookBytes(const ExportedStudy& study, const RunRecord& record);

}  // namespace kaldo
