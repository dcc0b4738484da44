// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

#include "confidence/certainty.h"
#include "method/allocation_shares.h"

namespace kaldo {

/// The classes of a pair allocation, from both parents collected to none.
std::vector<QString> ClassNames(Flow flow);

/// The class of one offspring, by its place among them.
std::size_t ClassOf(Flow flow, const AllocationOutcome& outcome);

/// "● sure": the sign says what colours say.
QString CertaintyText(Certainty certainty);

}  // namespace kaldo
