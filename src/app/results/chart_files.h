// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <functional>

#include "app/results/data_table.h"

class QPaintDevice;
class QWidget;

namespace kaldo {

// A figure as a file for an article or a report: dark on white whatever the screen looks like.
// Sizes are in units of 1/96 inch; see ChartSize() for the natural one and ChartUnits() for
// another.

/// A chart, or another picture of results.
struct Figure {
  QString title;

  /// Paints it in that size, enlarged by `scale`, onto paper or a picture.
  std::function<void(QSize size, double scale, QPaintDevice& device)> paint;

  std::function<DataTable()> numbers;  ///< what stands behind it, in full precision
};

/// Vector graphics whose texts stay texts, so that they can be edited and searched.
QByteArray FigureSvg(const Figure& figure, QSize size);

/// One page of the size of the figure.
QByteArray FigurePdf(const Figure& figure, QSize size);

/// 300 dots per inch, as journals ask for.
QByteArray FigurePng(const Figure& figure, QSize size);

/// Saves the figure by the ending of `path`: .svg, .pdf, .png, or .csv for its numbers. Tells the
/// user and returns false when that cannot be done; an earlier file then stays as it was.
bool SaveFigure(QWidget* parent, const Figure& figure, const QString& path, QSize size);

/// Puts the figure on the clipboard as the picture that would be saved.
void CopyFigure(const Figure& figure, QSize size);

}  // namespace kaldo
