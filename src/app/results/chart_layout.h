// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <span>
#include <vector>

#include "app/results/chart_data.h"

class QFontMetrics;

namespace kaldo {

/// The natural size of a chart in units of 1/96 inch: wider, the more there is below its axis.
QSize ChartSize(const Chart& chart);

/// Millimetres in these units, and back.
QSize ChartUnits(QSize millimetres);
QSize Millimetres(QSize units);

/// The text in lines that are not wider than `width`, as long as its words are not.
QString Folded(const QString& text, const QFontMetrics& metrics, int width);

/// Where the bars stand: at their own places, or one beside the other.
std::vector<double> PlacesOf(const BarChart& chart);

/// Where the values of any chart stand, a place for each row of its table.
std::vector<double> PlacesOf(const Chart& chart);

/// The smallest distance between neighbouring places; 1 for a single one.
double SmallestStep(std::span<const double> places);

}  // namespace kaldo
