// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <tl/expected.hpp>

#include "runs/setting.h"

namespace kaldo {

/// The settings of a recorded run as they would be typed, below what was typed: for other files, a
/// user names these and takes everything else from the record. The project folder is never taken,
/// so that no results are replaced by the way. Files of the other flow, when named, take the place
/// of the recorded ones. A record of a simulation where an allocation is wanted, or the other way
/// round, is a Problem. `path` names the record or its folder.
tl::expected<TypedSettings, Problem> WithSettingsOfRecord(TypedSettings typed,
                                                          const std::string& path,
                                                          bool of_simulation);

}  // namespace kaldo
