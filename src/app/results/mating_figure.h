// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "app/results/chart_files.h"
#include "app/results/chart_theme.h"
#include "app/results/mating_table.h"

namespace kaldo {

/// The background of a place of the table and the text on it: the more of the largest number of
/// offspring it has, the stronger. A place without offspring has the colours of the theme.
CellColours MatingColours(std::size_t offspring, std::size_t largest, const ChartTheme& theme);

/// The table of matings as a figure: names at its left and above it, numbers in its cells as far as
/// these are large enough to be read.
Figure MatingFigure(std::shared_ptr<const MatingTable> table);

/// Its natural size in units of 1/96 inch: cells of one size, smaller ones where there are many.
QSize MatingFigureSize(const MatingTable& table);

}  // namespace kaldo
