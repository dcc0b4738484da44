// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/chart_files.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QImage>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/save_file.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr int kUnitsPerInch = 96;
constexpr int kPictureDotsPerInch = 300;
constexpr int kPaperDotsPerInch = 1200;
constexpr double kInchesPerMeter = 1000 / 25.4;
constexpr double kPointsPerInch = 72;

}  // namespace

QByteArray FigureSvg(const Figure& figure, QSize size) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setResolution(kUnitsPerInch);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  svg.setTitle(figure.title);
  svg.setDescription(Text(kProductTitle));
  figure.paint(size, 1, svg);
  return buffer.data();
}

QByteArray FigurePdf(const Figure& figure, QSize size) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter pdf(&buffer);
    pdf.setCreator(Text(kProductTitle));
    pdf.setTitle(figure.title);
    pdf.setResolution(kPaperDotsPerInch);
    pdf.setPageMargins(QMarginsF());
    pdf.setPageSize(QPageSize(QSizeF(size) * kPointsPerInch / kUnitsPerInch, QPageSize::Point,
                              QString(), QPageSize::ExactMatch));
    figure.paint(size, static_cast<double>(kPaperDotsPerInch) / kUnitsPerInch, pdf);
  }
  return buffer.data();
}

QByteArray FigurePng(const Figure& figure, QSize size) {
  constexpr double kScale = static_cast<double>(kPictureDotsPerInch) / kUnitsPerInch;
  QImage picture((QSizeF(size) * kScale).toSize(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  figure.paint(size, kScale, picture);
  const int dots_per_meter = qRound(kPictureDotsPerInch * kInchesPerMeter);
  picture.setDotsPerMeterX(dots_per_meter);
  picture.setDotsPerMeterY(dots_per_meter);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return buffer.data();
}

bool SaveFigure(QWidget* parent, const Figure& figure, const QString& path, QSize size) {
  const QString ending = QFileInfo(path).suffix().toLower();
  if (ending == QLatin1String("svg")) {
    return SaveFile(parent, path, FigureSvg(figure, size));
  }
  if (ending == QLatin1String("pdf")) {
    return SaveFile(parent, path, FigurePdf(figure, size));
  }
  if (ending == QLatin1String("png")) {
    return SaveFile(parent, path, FigurePng(figure, size));
  }
  if (ending == QLatin1String("csv")) {
    return SaveFile(parent, path, CsvText(figure.numbers()));
  }
  ShowFailure(parent, Tr("A chart is saved as .svg, .pdf or .png, its numbers as .csv. \"%1\" "
                         "has none of these endings.")
                          .arg(path));
  return false;
}

void CopyFigure(const Figure& figure, QSize size) {
  QApplication::clipboard()->setImage(QImage::fromData(FigurePng(figure, size), "PNG"));
}

}  // namespace kaldo
