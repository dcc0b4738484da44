// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>

namespace kaldo {

// When a subset of loci has enough iterations (this program's convention). Only whole tens in their
// order are looked at, so that it does not matter which was done first.
inline constexpr std::size_t kFirstJudgement = 20;
inline constexpr std::size_t kIterationsPerJudgement = 10;

/// Whether a run may end after these iterations: after 20, 30, 40, ... of them, when the standard
/// error of the mean is below `until_error`. `any_correct` is AnyCorrect() of each.
bool IterationsSuffice(std::span<const double> any_correct, double until_error);

}  // namespace kaldo
