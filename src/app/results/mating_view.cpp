// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/mating_view.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/mating_figure.h"

namespace kaldo {

namespace {

constexpr std::size_t kMostNames = 12;  ///< of offspring in a tip
constexpr int kSmallestCell = 3;
constexpr int kFrame = 2;

MatingPlace PlaceOf(const QModelIndex& index) {
  return {static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())};
}

/// Names that are read from below. Where cells are too small for them there are none.
class Heads : public QHeaderView {
 public:
  Heads(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
    setSectionsClickable(true);
    setHighlightSections(true);
    setSectionResizeMode(Fixed);
    setMinimumSectionSize(kSmallestCell);
  }

 protected:
  void paintSection(QPainter* painter, const QRect& place, int section) const override {
    QStyleOptionHeader option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    option.rect = place;
    option.text.clear();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    const bool is_turned = orientation() == Qt::Horizontal;
    if ((is_turned ? place.width() : place.height()) < fontMetrics().height() * 3 / 4) {
      return;
    }
    painter->save();
    painter->setPen(option.palette.color(QPalette::ButtonText));
    const int gap = fontMetrics().averageCharWidth() / 2;
    const QString name = model()->headerData(section, orientation()).toString();
    if (is_turned) {
      painter->translate(place.bottomLeft());
      painter->rotate(-90);
      painter->drawText(QRect(gap, 0, place.height(), place.width()),
                        Qt::AlignLeft | Qt::AlignVCenter, name);
    } else {
      painter->drawText(place.adjusted(0, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter, name);
    }
    painter->restore();
  }
};

/// A number where there is room for it, and a frame around what is chosen or was looked for.
class Cells : public QStyledItemDelegate {
 public:
  explicit Cells(MatingView& view) : QStyledItemDelegate(&view), view_(view) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    painter->save();
    painter->fillRect(option.rect, index.data(Qt::BackgroundRole).value<QColor>());
    const QString text = index.data().toString();
    if (option.fontMetrics.horizontalAdvance(text) <= option.rect.width() &&
        option.fontMetrics.height() <= option.rect.height()) {
      painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
      painter->drawText(option.rect, Qt::AlignCenter, text);
    }
    const bool is_chosen = index == view_.currentIndex();
    if (is_chosen || view_.IsMarked(index)) {
      const int width = is_chosen ? kFrame + 1 : kFrame;
      painter->setPen(QPen(option.palette.color(QPalette::Text), width,
                           is_chosen ? Qt::SolidLine : Qt::DotLine));
      painter->drawRect(option.rect.adjusted(width / 2, width / 2, -width / 2 - 1, -width / 2 - 1));
    }
    painter->restore();
  }

 private:
  MatingView& view_;
};

}  // namespace

MatingModel::MatingModel(std::shared_ptr<const MatingTable> table, QObject* parent)
    : QAbstractTableModel(parent), table_(std::move(table)), theme_(LightTheme()) {}

void MatingModel::SetTheme(const ChartTheme& theme) {
  theme_ = theme;
  if (rowCount() > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                       {Qt::BackgroundRole, Qt::ForegroundRole});
  }
}

int MatingModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_->RowNames().size());
}

int MatingModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_->ColumnNames().size());
}

QVariant MatingModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const MatingPlace place = PlaceOf(index);
  switch (role) {
    case Qt::DisplayRole:
      return table_->CellText(place);
    case Qt::ToolTipRole:
      return TipText(table_->CellTip(place, kMostNames));
    case Qt::AccessibleTextRole:
      return table_->CellTip(place, kMostNames);
    case Qt::BackgroundRole:
    case Qt::ForegroundRole: {
      const Family* const family = table_->Table().At(place.row, place.column);
      const CellColours colours = MatingColours(family == nullptr ? 0 : family->offspring.size(),
                                                table_->LargestFamily(), theme_);
      return role == Qt::BackgroundRole ? colours.background : colours.text;
    }
    default:
      return {};
  }
}

QVariant MatingModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool is_row = orientation == Qt::Vertical;
  const auto place = static_cast<std::size_t>(section);
  if (role == Qt::DisplayRole) {
    return (is_row ? table_->RowNames() : table_->ColumnNames()).value(section);
  }
  if (role == Qt::ToolTipRole) {
    return TipText(is_row ? table_->RowTip(place) : table_->ColumnTip(place));
  }
  return {};
}

MatingView::MatingView(std::shared_ptr<const MatingTable> table, QWidget* parent)
    : QTableView(parent), table_(std::move(table)), model_(new MatingModel(table_, this)) {
  setAccessibleName(table_->Title());
  setAccessibleDescription(Tr("A cell has the number of offspring of two parents.") + Text(" ") +
                           table_->Legend());
  setVerticalHeader(new Heads(Qt::Vertical, this));
  setHorizontalHeader(new Heads(Qt::Horizontal, this));
  setModel(model_);
  setItemDelegate(new Cells(*this));
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  model_->SetTheme(ThemeOf(palette()));
  FitCells();
  // The largest family of two known parents: that of none of them is often the largest of all, and
  // in the far corner.
  const auto& places = table_->ListPlaces();
  const Families& families = table_->Table();
  const auto known = std::find_if(places.begin(), places.end(), [&](const MatingPlace& place) {
    return families.rows[place.row].parent && families.columns[place.column].parent;
  });
  if (!places.empty()) {
    Choose(known == places.end() ? places.front() : *known);
  }
}

void MatingView::Mark(const std::vector<MatingPlace>& places) {
  marked_.clear();
  for (const MatingPlace& place : places) {
    marked_.emplace(static_cast<int>(place.row), static_cast<int>(place.column));
  }
  viewport()->update();
}

bool MatingView::IsMarked(const QModelIndex& index) const {
  return marked_.contains({index.row(), index.column()});
}

void MatingView::Choose(MatingPlace place) {
  const QModelIndex index =
      model_->index(static_cast<int>(place.row), static_cast<int>(place.column));
  setCurrentIndex(index);
  scrollTo(index);
}

std::optional<MatingPlace> MatingView::Chosen() const {
  return currentIndex().isValid() ? std::optional(PlaceOf(currentIndex())) : std::nullopt;
}

void MatingView::ShowWhole(bool whole) {
  is_whole_ = whole;
  FitCells();
  scrollTo(currentIndex());
}

QSize MatingView::CellSize() const {
  const QSize readable(fontMetrics().horizontalAdvance(Text("88 ◐")) + 2 * kFrame,
                       fontMetrics().lineSpacing() * 3 / 2);
  if (!is_whole_) {
    return readable;
  }
  const QSize room = maximumViewportSize();
  const int across = room.width() / std::max(1, model_->columnCount());
  const int down = room.height() / std::max(1, model_->rowCount());
  const int side = std::max(std::min(across, down), kSmallestCell);
  return QSize(side, side).boundedTo(readable);
}

void MatingView::FitCells() {
  const auto widest = [this](const QStringList& names) {
    int width = 0;
    for (const QString& name : names) {
      width = std::max(width, fontMetrics().horizontalAdvance(name));
    }
    return width + 2 * fontMetrics().averageCharWidth();
  };
  verticalHeader()->setFixedWidth(widest(table_->RowNames()));
  horizontalHeader()->setFixedHeight(widest(table_->ColumnNames()));
  updateGeometries();
  const QSize cell = CellSize();
  setShowGrid(cell.height() > 2 * kSmallestCell);
  verticalHeader()->setDefaultSectionSize(cell.height());
  horizontalHeader()->setDefaultSectionSize(cell.width());
}

bool MatingView::GoToNextFamily(int key) {
  const int down = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
  const int right = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
  if ((down == 0 && right == 0) || !currentIndex().isValid()) {
    return false;
  }
  QModelIndex next = currentIndex();
  do {
    next = model_->index(next.row() + down, next.column() + right);
  } while (next.isValid() && next.data().toString().isEmpty());
  if (next.isValid()) {
    Choose(PlaceOf(next));
  }
  return true;
}

void MatingView::keyPressEvent(QKeyEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) != 0 && GoToNextFamily(event->key())) {
    return event->accept();
  }
  QTableView::keyPressEvent(event);
}

void MatingView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    model_->SetTheme(ThemeOf(palette()));
  } else if (event->type() == QEvent::FontChange) {
    FitCells();
  }
}

void MatingView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  if (is_whole_) {
    FitCells();
  }
}

}  // namespace kaldo
