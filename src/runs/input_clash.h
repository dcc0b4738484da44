// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>

#include "base/problem.h"
#include "runs/run_record.h"

namespace kaldo {

/// A Problem when the path leads to one of the inputs, which a run would then destroy. Links count.
std::optional<Problem> ClashWithInput(const std::string& path,
                                      std::span<const RecordedInput> inputs);

}  // namespace kaldo
