// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_layout.h"

#include <QFontMetrics>
#include <algorithm>
#include <numeric>

namespace kaldo {

namespace {

constexpr double kUnitsPerMillimetre = 96 / 25.4;

}  // namespace

QSize ChartSize(const Chart& chart) {
  constexpr qsizetype kWidth = 720;
  constexpr int kHeight = 450;
  constexpr qsizetype kPerPlace = 22;
  const auto* bars = std::get_if<BarChart>(&chart);
  const auto* lines = std::get_if<LineChart>(&chart);
  const std::size_t places = bars != nullptr    ? bars->categories.size()
                             : lines != nullptr ? lines->labels.size()
                                                : 0;
  return {static_cast<int>(std::max(kWidth, kPerPlace * static_cast<qsizetype>(places))), kHeight};
}

QSize ChartUnits(QSize millimetres) { return (QSizeF(millimetres) * kUnitsPerMillimetre).toSize(); }

QSize Millimetres(QSize units) { return (QSizeF(units) / kUnitsPerMillimetre).toSize(); }

QString Folded(const QString& text, const QFontMetrics& metrics, int width) {
  QString folded;
  QString line;
  for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
    if (!line.isEmpty() && metrics.horizontalAdvance(longer) > width) {
      folded += line + QLatin1Char('\n');
      line = word;
    } else {
      line = longer;
    }
  }
  return folded + line;
}

std::vector<double> PlacesOf(const BarChart& chart) {
  if (!chart.positions.empty()) {
    return chart.positions;
  }
  std::vector<double> places(chart.categories.size());
  for (std::size_t k = 0; k < places.size(); ++k) {
    places[k] = static_cast<double>(k);
  }
  return places;
}

std::vector<double> PlacesOf(const Chart& chart) {
  if (const auto* const bars = std::get_if<BarChart>(&chart)) {
    return PlacesOf(*bars);
  }
  if (const auto* const lines = std::get_if<LineChart>(&chart)) {
    return lines->positions;
  }
  std::vector<double> places(std::get<SpreadChart>(chart).values.size());
  std::iota(places.begin(), places.end(), 1.0);
  return places;
}

double SmallestStep(std::span<const double> places) {
  double step = 0;
  for (std::size_t k = 1; k < places.size(); ++k) {
    const double here = places[k] - places[k - 1];
    step = step == 0 ? here : std::min(step, here);
  }
  return step == 0 ? 1 : step;
}

}  // namespace kaldo
