// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "web/finished_runs.h"
#include "web/json.h"

namespace kaldo {

/// A row per offspring, what is read first in front: {"columns": [{"key", "head", "tip", "numeric",
/// "first"}], "rows": [[...]]}. "first" are the columns for a first glance. Columns of
/// probabilities are left out where none were computed.
Json OffspringTableJson(const ShownAllocation& allocation);

/// One offspring beside its pairs, locus by locus: the genotypes, the offset of either parent and
/// how it fits. `place` counts from 0 in the file, `pair` among the equally likely pairs; offspring
/// that are not there give null.
Json LocusByLocusJson(const ShownAllocation& allocation, std::size_t place, std::size_t pair);

}  // namespace kaldo
