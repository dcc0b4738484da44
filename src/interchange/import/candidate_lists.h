// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/file_source.h"
#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

/// Takes from the lists of the choices, files beside the genotypes, who is an offspring, a father
/// or a mother, and what is known of the parents of each offspring. Who stands in no list is left
/// out; where a list of offspring tells of no parent, all others are parents. Without lists nothing
/// changes.
void TakeCandidateLists(const ImportChoices& choices, FileSource& source, ForeignStudy& study,
                        ImportLog& log);

}  // namespace kaldo
