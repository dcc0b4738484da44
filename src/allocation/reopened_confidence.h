// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "allocation/allocation_run.h"
#include "runs/recorded_reports.h"

namespace kaldo {

/// Adds to a reopened allocation how sure its parents are, from "/Confidence.tsv", and what each
/// locus is worth, from the genotypes and "/Loci.tsv"; nothing where the run did not compute it.
/// What was read is taken only if the report written from it is the recorded one, line by line.
///
/// Numbers have the eight digits of the reports. Candidates that no genotype tells apart from those
/// named, the probabilities of the explanations and, with sexes, their shares are not told; nor,
/// where relatives count, is the share of parents that was collected, which is NaN. See
/// RecoverShares. Where several candidates have the name of a parent the first one is taken.
///
/// A Problem where a report is missing, was changed or does not fit the files; the certainty, or
/// the loci alone, then are not in the result.
std::optional<Problem> AddRecordedConfidence(const AllocationSettings& settings,
                                             const AllocationInput& input,
                                             const RecordedReports& reports,
                                             AllocationResult& result);

}  // namespace kaldo
