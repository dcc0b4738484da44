// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include <tl/expected.hpp>

#include "runs/setting.h"

namespace kaldo {

/// Names between commas among what was typed: all loci but these are in use.
inline constexpr std::string_view kDropKey = "drop";

/// Puts what was typed about loci by their names into the form of the settings, which needs the
/// names-of-loci file:
/// - loci to drop: all others are in use;
/// - a sequence of names: these enter one after the other, the loci that are not named behind them
///   in file order. Whole numbers are positions, as ever, even where loci are called so.
/// A name that is not in the file, and loci both used and dropped, are Problems. A file that cannot
/// be read, or is not given, is left to the tests of the run, which tell it in their order.
tl::expected<TypedSettings, Problem> WithLociByName(TypedSettings typed);

}  // namespace kaldo
