// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

/// Multiplies counts of repeats by the length of a repeat, in base pairs, at the loci for which the
/// user tells one: the method compares sizes. Loci that still look like counts or codes (all sizes
/// small, some of them one apart) are warned of. More alleles than a run can take are a fault.
void SettleSizes(ForeignStudy& study, const ImportChoices& choices, ImportLog& log);

}  // namespace kaldo
