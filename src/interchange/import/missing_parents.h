// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

/// Does what the user has chosen with parents that are not typed at every locus; where nothing is
/// chosen they are a fault that tells what each way costs. The loci must be no more than a run
/// takes.
///
/// "least" leaves loci out one after the other, always that one after which most genotypes of
/// parents stay, and keeps the best of all these steps: this program's convention, near the least
/// loss and soon found.
void SettleMissingParents(ForeignStudy& study, const ImportChoices& choices, ImportLog& log);

}  // namespace kaldo
