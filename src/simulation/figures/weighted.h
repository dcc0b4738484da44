// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace kaldo {

/// A figure over all classes of origin: w1 f1 + w2 f2 + ..., added in the order of the classes.
/// `weights` are the shares of the classes in the population (see ClassWeights), `of_classes` the
/// figure of each class. So a class counts by its share, not by how many pseudo-offspring
/// truncation left it.
double Weighted(std::span<const double> weights, std::span<const double> of_classes);

/// A share of what was allocated in some way; 0 where nothing was.
double Ratio(double numerator, double denominator);

}  // namespace kaldo
