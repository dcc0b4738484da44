// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "simulation/reliability.h"

namespace kaldo {

/// "/Reliability.tsv": a line for each level of confidence and one for each bin of probability.
/// New columns come at the end.
std::string ReliabilityReport(const Reliability& reliability, double wanted_level);

}  // namespace kaldo
