// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/mating_figure.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "app/base/text.h"
#include "app/results/chart_layout.h"

namespace kaldo {

namespace {

constexpr int kMargin = 10;
constexpr int kTextSize = 13;
constexpr double kTextPart = 0.62;      ///< of the side of a cell, at most
constexpr double kSmallestText = 3;     ///< smaller ones are left out
constexpr double kSmallestGridded = 4;  ///< side of a cell that has lines around it
constexpr double kCellSide = 22;
constexpr double kLongestSide = 1800;  ///< of all cells together
constexpr double kFaintest = 0.18;     ///< of the full colour, for a single offspring
constexpr double kDarkText = 0.5;      ///< of white: what needs white text on it

QFont FigureFont() {
  QFont font;
  font.setPixelSize(kTextSize);
  return font;
}

double WidestName(const QStringList& names) {
  const QFontMetricsF metrics(FigureFont());
  double widest = 0;
  for (const QString& name : names) {
    widest = std::max(widest, metrics.horizontalAdvance(name));
  }
  return widest;
}

double Brightness(const QColor& colour) {
  return 0.299 * colour.redF() + 0.587 * colour.greenF() + 0.114 * colour.blueF();
}

QColor Between(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int from, int to) {
    return static_cast<int>(std::lround(from + share * (to - from)));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

class MatingPainter {
 public:
  MatingPainter(const MatingTable& table, const ChartTheme& theme, QPainter& painter)
      : table_(table), theme_(theme), painter_(painter) {
    painter_.setFont(FigureFont());
  }

  void Paint(QSize size) {
    const QFontMetrics metrics(FigureFont());
    const int width = size.width() - 2 * kMargin;
    painter_.setPen(theme_.text);
    const QString title = Folded(table_.Title(), metrics, width);
    const QString legend = Folded(table_.Legend(), metrics, width);
    const QRect whole(QPoint(kMargin, kMargin), size - QSize(2 * kMargin, 2 * kMargin));
    const QRect title_place = metrics.boundingRect(whole, Qt::AlignLeft | Qt::AlignTop, title);
    const QRect legend_place = metrics.boundingRect(whole, Qt::AlignLeft | Qt::AlignBottom, legend);
    painter_.drawText(whole, Qt::AlignLeft | Qt::AlignTop, title);
    painter_.drawText(whole, Qt::AlignLeft | Qt::AlignBottom, legend);
    if (table_.Table().families.empty()) {
      return;
    }
    PlaceCells(QRectF(whole).adjusted(0, title_place.height() + kMargin, 0,
                                      -legend_place.height() - kMargin));
    PaintCells();
    PaintGrid();
    PaintNames();
  }

 private:
  /// Cells as large as the room allows, and names as large as the cells.
  void PlaceCells(const QRectF& room) {
    const auto columns = static_cast<double>(table_.ColumnNames().size());
    const auto rows = static_cast<double>(table_.RowNames().size());
    const double at_left = WidestName(table_.RowNames()) + kMargin;
    const double above = WidestName(table_.ColumnNames()) + kMargin;
    const auto side = [](double length, double cells, double names) {
      const double with_full_names = (length - names) / cells;
      return with_full_names * kTextPart >= kTextSize
                 ? with_full_names
                 : length / (cells + names * kTextPart / kTextSize);
    };
    side_ = std::max(
        std::min(side(room.width(), columns, at_left), side(room.height(), rows, above)), 0.1);
    text_ = std::min<double>(kTextSize, side_ * kTextPart);
    cells_ = QRectF(room.left() + at_left * text_ / kTextSize,
                    room.top() + above * text_ / kTextSize, side_ * columns, side_ * rows);
  }

  QRectF CellAt(std::size_t row, std::size_t column) const {
    return {cells_.left() + side_ * static_cast<double>(column),
            cells_.top() + side_ * static_cast<double>(row), side_, side_};
  }

  void PaintCells() {
    for (const Family& family : table_.Table().families) {
      PaintCell({family.row, family.column}, family.offspring.size());
      if (table_.Table().is_symmetric && family.row != family.column) {
        PaintCell({family.column, family.row}, family.offspring.size());
      }
    }
  }

  void PaintCell(MatingPlace place, std::size_t offspring) {
    const QRectF cell = CellAt(place.row, place.column);
    const CellColours colours = MatingColours(offspring, table_.LargestFamily(), theme_);
    painter_.fillRect(cell, colours.background);
    painter_.setPen(colours.text);
    const QString text = table_.CellText(place);
    const double width = QFontMetricsF(FigureFont()).horizontalAdvance(text) + 2;
    PaintText(text, cell.center(), 0, std::min(text_, side_ * kTextSize / width), Qt::AlignCenter);
  }

  /// A text of that size at a point, turned by an angle.
  void PaintText(const QString& text, QPointF at, double angle, double size,
                 Qt::Alignment aligned) {
    if (size < kSmallestText) {
      return;
    }
    constexpr double kRoom = 1000;
    painter_.save();
    painter_.translate(at);
    painter_.rotate(angle);
    painter_.scale(size / kTextSize, size / kTextSize);
    const double left = (aligned & Qt::AlignRight) != 0  ? -kRoom
                        : (aligned & Qt::AlignLeft) != 0 ? 0
                                                         : -kRoom / 2;
    painter_.drawText(QRectF(left, -kTextSize, kRoom, 2 * kTextSize), static_cast<int>(aligned),
                      text);
    painter_.restore();
  }

  void PaintGrid() {
    painter_.setPen(QPen(side_ < kSmallestGridded ? theme_.text : theme_.grid, 0.5));
    const qsizetype columns = table_.ColumnNames().size();
    const qsizetype rows = table_.RowNames().size();
    const bool all = side_ >= kSmallestGridded;
    for (qsizetype k = 0; k <= columns; k += all ? 1 : std::max<qsizetype>(1, columns)) {
      const double x = cells_.left() + side_ * static_cast<double>(k);
      painter_.drawLine(QPointF(x, cells_.top()), QPointF(x, cells_.bottom()));
    }
    for (qsizetype k = 0; k <= rows; k += all ? 1 : std::max<qsizetype>(1, rows)) {
      const double y = cells_.top() + side_ * static_cast<double>(k);
      painter_.drawLine(QPointF(cells_.left(), y), QPointF(cells_.right(), y));
    }
  }

  void PaintNames() {
    painter_.setPen(theme_.text);
    const double gap = text_ / 3;
    for (qsizetype k = 0; k < table_.RowNames().size(); ++k) {
      const QPointF at = CellAt(static_cast<std::size_t>(k), 0).center();
      PaintText(table_.RowNames()[k], QPointF(cells_.left() - gap, at.y()), 0, text_,
                Qt::AlignRight | Qt::AlignVCenter);
    }
    for (qsizetype k = 0; k < table_.ColumnNames().size(); ++k) {
      const QPointF at = CellAt(0, static_cast<std::size_t>(k)).center();
      PaintText(table_.ColumnNames()[k], QPointF(at.x(), cells_.top() - gap), -90, text_,
                Qt::AlignLeft | Qt::AlignVCenter);
    }
  }

  const MatingTable& table_;
  const ChartTheme& theme_;
  QPainter& painter_;
  QRectF cells_;
  double side_ = 1;
  double text_ = kTextSize;
};

}  // namespace

CellColours MatingColours(std::size_t offspring, std::size_t largest, const ChartTheme& theme) {
  if (offspring == 0) {
    return {theme.background, theme.text};
  }
  const double part = static_cast<double>(offspring) / static_cast<double>(largest);
  const QColor background = Between(theme.background, theme.series.front(),
                                    kFaintest + (1 - kFaintest) * (largest > 1 ? part : kDarkText));
  return {background, Brightness(background) < kDarkText ? QColor(Qt::white) : QColor(Qt::black)};
}

Figure MatingFigure(std::shared_ptr<const MatingTable> table) {
  Figure figure;
  figure.title = table->Title();
  figure.paint = [table](QSize size, double scale, QPaintDevice& device) {
    const ChartTheme theme = LightTheme();
    QPainter painter(&device);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    painter.fillRect(QRect(QPoint(0, 0), size), theme.background);
    MatingPainter(*table, theme, painter).Paint(size);
  };
  figure.numbers = [table] { return table->List(); };
  return figure;
}

QSize MatingFigureSize(const MatingTable& table) {
  constexpr double kSmallestWidth = 480;  // for title and legend
  constexpr double kTextLines = 6;        // with the space between them
  const auto columns = static_cast<double>(table.ColumnNames().size());
  const auto rows = static_cast<double>(table.RowNames().size());
  const double side = std::min(kCellSide, kLongestSide / std::max({columns, rows, 1.0}));
  const double names = std::min(1.0, side * kTextPart / kTextSize);
  const double width =
      2 * kMargin + columns * side + names * (WidestName(table.RowNames()) + kMargin);
  const double height = 4 * kMargin + rows * side +
                        names * (WidestName(table.ColumnNames()) + kMargin) +
                        kTextLines * kTextSize;
  return QSizeF(std::max(width, kSmallestWidth), height).toSize();
}

}  // namespace kaldo
