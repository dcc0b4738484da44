// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace kaldo {

/// A gain in log likelihood from which on relatives among the parents matter: without any it stays
/// near 0. This program's convention.
inline constexpr double kNotableRelativesGain = 3;

/// What is to be said about relatives among the parents after a run that did or did not count with
/// them, see ConfidenceResult::relatives_gain; empty where there is nothing to say.
std::string_view RelativesNote(bool with_relatives, std::optional<double> gain);

}  // namespace kaldo
