// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulation/simulation_flow.h"

namespace kaldo {

/// The figures of the sexed flow that are weighed over the classes, as shares of the offspring.
enum SexedFigure : std::size_t {
  kBothAllocated,
  kMaleAllocated,    ///< only the male
  kFemaleAllocated,  ///< only the female
  kNoneAllocated,
  kToMale,  ///< with or without a female
  kToFemale,
  kRightToMale,
  kRightToFemale,
  kUnallocatedSides,
  kRightUnallocatedSides,
  kSexedAnyCorrect,
  kSexedFigures,
};

/// Groups, classes, rows with their weights, and all names.
SimulationDesign SexedDesign();

}  // namespace kaldo
