// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/results/chart_data.h"
#include "app/results/chart_theme.h"

class QCustomPlot;
class QFont;
class QPaintDevice;
class QSize;

namespace kaldo {

/// Puts a chart onto a plot of so many pixels, in place of what was there.
void PaintOnPlot(const Chart& chart, const ChartTheme& theme, const QFont& font, int width,
                 QCustomPlot& plot);

/// Paints a chart of that size, enlarged by `scale`, onto paper or a picture.
void PaintChart(const Chart& chart, const ChartTheme& theme, QSize size, double scale,
                QPaintDevice& device);

}  // namespace kaldo
