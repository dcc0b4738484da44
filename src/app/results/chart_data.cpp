// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_data.h"

#include <algorithm>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

bool HasDeviations(const ChartSeries& series) {
  return std::any_of(series.values.begin(), series.values.end(),
                     [](const ChartValue& value) { return value.deviation.has_value(); });
}

void AppendHeads(const ChartSeries& series, QStringList& heads) {
  heads += series.name;
  if (HasDeviations(series)) {
    heads += Tr("%1 sd").arg(series.name);
  }
}

void AppendValue(const ChartSeries& series, std::size_t place, QStringList& row) {
  const ChartValue& value = series.values[place];
  row += FullNumber(value.value);
  if (HasDeviations(series)) {
    row += FullNumber(value.deviation);
  }
}

DataTable TableOfChart(const BarChart& chart) {
  DataTable table{{chart.texts.x_title}, {}};
  AppendHeads(chart.series, table.heads);
  if (chart.hatched) {
    AppendHeads(*chart.hatched, table.heads);
  }
  for (std::size_t k = 0; k < chart.series.values.size(); ++k) {
    QStringList row{chart.positions.empty() ? chart.categories[k] : FullNumber(chart.positions[k])};
    AppendValue(chart.series, k, row);
    if (chart.hatched) {
      AppendValue(*chart.hatched, k, row);
    }
    table.rows.push_back(row);
  }
  return table;
}

DataTable TableOfChart(const LineChart& chart) {
  DataTable table{{chart.texts.x_title}, {}};
  if (!chart.labels.empty()) {
    table.heads += chart.label_title;
  }
  for (const ChartSeries& series : chart.series) {
    AppendHeads(series, table.heads);
  }
  for (std::size_t k = 0; k < chart.positions.size(); ++k) {
    QStringList row{FullNumber(chart.positions[k])};
    if (!chart.labels.empty()) {
      row += chart.labels[k];
    }
    for (const ChartSeries& series : chart.series) {
      AppendValue(series, k, row);
    }
    table.rows.push_back(row);
  }
  return table;
}

DataTable TableOfChart(const SpreadChart& chart) {
  DataTable table{{chart.texts.x_title, chart.texts.y_title}, {}};
  for (std::size_t k = 0; k < chart.values.size(); ++k) {
    table.rows.push_back({FullNumber(static_cast<double>(k + 1)), FullNumber(chart.values[k])});
  }
  return table;
}

}  // namespace

const ChartTexts& TextsOf(const Chart& chart) {
  return std::visit([](const auto& any) -> const ChartTexts& { return any.texts; }, chart);
}

DataTable TableOf(const Chart& chart) {
  return std::visit([](const auto& any) { return TableOfChart(any); }, chart);
}

}  // namespace kaldo
