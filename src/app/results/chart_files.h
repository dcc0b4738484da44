// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

#include "app/results/chart_data.h"

namespace kaldo {

// A chart as a file for an article or a report: dark on white whatever the screen looks like. Sizes
// are in units of 1/96 inch; see ChartSize() for the natural one and ChartUnits() for another.

/// Vector graphics whose texts stay texts, so that they can be edited and searched.
QByteArray ChartSvg(const Chart& chart, QSize size);

/// One page of the size of the chart.
QByteArray ChartPdf(const Chart& chart, QSize size);

/// 300 dots per inch, as journals ask for.
QByteArray ChartPng(const Chart& chart, QSize size);

}  // namespace kaldo
