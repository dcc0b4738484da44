// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>
#include <variant>
#include <vector>

#include "app/results/data_table.h"

namespace kaldo {

// Charts as plain values: what is shown, not how. Whatever draws them can be replaced.

/// One value of a chart. Nothing stands for "NA": a class without pseudo-offspring has no value.
struct ChartValue {
  std::optional<double> value;
  std::optional<double> deviation;  ///< shown as a bar of one standard deviation to either side
};

/// Values of one kind, one per category or position.
struct ChartSeries {
  QString name;
  std::vector<ChartValue> values;
};

/// What the axes say. Values that are shares keep an axis from 0 to 1, so that two charts can be
/// compared at a glance.
struct ChartTexts {
  QString title;
  QString x_title;
  QString y_title;
  bool shares = false;
  QString legend = {};  ///< what the names in the chart stand for; stands below it
};

/// Bars beside each other: one per category, or one per allele size where the sizes matter.
struct BarChart {
  ChartTexts texts;
  std::vector<QString> categories;
  std::vector<double> positions;  ///< on a numeric axis, ascending; empty: the categories in turn
  ChartSeries series;

  /// The part of each bar that is not settled, drawn hatched at its top; nothing where that is
  /// unknown. It has no deviations.
  std::optional<ChartSeries> hatched;
  QString settled_name;  ///< of the rest, beside the name of the hatched part
};

/// Lines over numbers, for instance of loci.
struct LineChart {
  ChartTexts texts;
  std::vector<double> positions;
  QString label_title;
  std::vector<QString> labels;  ///< below the positions; empty: the numbers themselves
  std::vector<ChartSeries> series;
};

/// One point per iteration, with their mean and a band of one standard deviation.
struct SpreadChart {
  ChartTexts texts;
  std::vector<double> values;  ///< of iteration 1, 2, ...; empty for "NA"
  double mean = 0;
  double deviation = 0;  ///< may be not a number
};

using Chart = std::variant<BarChart, LineChart, SpreadChart>;

/// The texts of a chart of any kind.
const ChartTexts& TextsOf(const Chart& chart);

/// The numbers behind a chart, in full precision: one row per category or position.
DataTable TableOf(const Chart& chart);

}  // namespace kaldo
