// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace kaldo {

/// Whether a record of that name is a separator: "*", or "*" and anything, as in "*pond3". It
/// stands between two groups of collected parents that cannot have met, and has no genotype. Only
/// files of collected parents have separators; whoever reads another file must not ask (see
/// RecordLayout).
constexpr bool IsSeparatorName(std::string_view name) { return name.starts_with('*'); }

}  // namespace kaldo
