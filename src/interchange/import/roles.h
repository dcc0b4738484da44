// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/import/foreign_study.h"
#include "interchange/import/import_log.h"

namespace kaldo {

/// Decides who is a parent and who an offspring where files and columns have not said it, from the
/// populations that the user names. What stays open is a fault that tells the ways to say it.
void SettleRoles(ForeignStudy& study, const ImportChoices& choices, ImportLog& log);

/// Whether the parents become males and females: when the sex of all of them is known. Some of
/// unknown sex among others are a fault.
bool SettleSexes(const ForeignStudy& study, const ImportChoices& choices, ImportLog& log);

/// Keeps an individual once that stands in the files twice with the same genotypes; with others it
/// is a fault, since nobody knows which of them is right. Parents and offspring are apart.
void MergeRepeated(ForeignStudy& study, ImportLog& log);

}  // namespace kaldo
