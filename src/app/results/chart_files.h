// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include "app/results/chart_data.h"

namespace kaldo {

// A chart as a file for an article or a report: dark on white whatever the screen looks like.

/// Vector graphics whose texts stay texts, so that they can be edited and searched.
QByteArray ChartSvg(const Chart& chart);

/// One page of the size of the chart.
QByteArray ChartPdf(const Chart& chart);

/// 300 dots per inch, as journals ask for.
QByteArray ChartPng(const Chart& chart);

}  // namespace kaldo
