// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace kaldo {

using SquareMatrix = std::vector<std::vector<double>>;

/// The variance of a weighted sum of estimates: weights' x information^-1 x weights. The
/// information is positive definite.
double VarianceOfSum(SquareMatrix information, std::vector<double> weights);

}  // namespace kaldo
