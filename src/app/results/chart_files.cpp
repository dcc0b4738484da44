// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_files.h"

#include <QBuffer>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "app/base/text.h"
#include "app/results/chart_view.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr int kUnitsPerInch = 96;
constexpr int kPictureDotsPerInch = 300;
constexpr int kPaperDotsPerInch = 1200;
constexpr double kInchesPerMeter = 1000 / 25.4;
constexpr double kPointsPerInch = 72;

}  // namespace

QByteArray ChartSvg(const Chart& chart, QSize size) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setResolution(kUnitsPerInch);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setTitle(TextsOf(chart).title);
  svg.setDescription(Text(kProductTitle));
  PaintChart(chart, LightTheme(), size, 1, svg);
  return buffer.data();
}

QByteArray ChartPdf(const Chart& chart, QSize size) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&buffer);
    pdf.setCreator(Text(kProductTitle));
    pdf.setTitle(TextsOf(chart).title);
    pdf.setResolution(kPaperDotsPerInch);
    pdf.setPageMargins(QMarginsF());
    pdf.setPageSize(QPageSize(QSizeF(size) * kPointsPerInch / kUnitsPerInch, QPageSize::Point,
                              QString(), QPageSize::ExactMatch));
    PaintChart(chart, LightTheme(), size, static_cast<double>(kPaperDotsPerInch) / kUnitsPerInch,
               pdf);
  }
  return buffer.data();
}

QByteArray ChartPng(const Chart& chart, QSize size) {
  constexpr double kScale = static_cast<double>(kPictureDotsPerInch) / kUnitsPerInch;
  QImage picture((QSizeF(size) * kScale).toSize(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  PaintChart(chart, LightTheme(), size, kScale, picture);
  const int dots_per_meter = qRound(kPictureDotsPerInch * kInchesPerMeter);
  picture.setDotsPerMeterX(dots_per_meter);
  picture.setDotsPerMeterY(dots_per_meter);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data();
}

}  // namespace kaldo
