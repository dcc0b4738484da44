// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/wrapping_row.h"

#include <QEvent>
#include <QLayout>
#include <algorithm>
#include <memory>
#include <vector>

namespace kaldo {

namespace {

class LinesLayout final : public QLayout {
 public:
  explicit LinesLayout(WrappingRow::Side side) : side_(side) {}

  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;     ///< of one line
  QSize minimumSize() const override;  ///< of the widest button
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  void setGeometry(const QRect& area) override;

 private:
  using Line = std::vector<QLayoutItem*>;

  std::vector<Line> LinesIn(int width) const;

  WrappingRow::Side side_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

QSize SizeOf(const std::vector<QLayoutItem*>& line, int spacing) {
  QSize size(-spacing, 0);
  for (const QLayoutItem* const item : line) {
    const QSize wanted = item->sizeHint();
    size = {size.width() + spacing + wanted.width(), std::max(size.height(), wanted.height())};
  }
  return size.expandedTo({0, 0});
}

void LinesLayout::addItem(QLayoutItem* item) { items_.emplace_back(item); }

int LinesLayout::count() const { return static_cast<int>(items_.size()); }

QLayoutItem* LinesLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* LinesLayout::takeAt(int index) {
  if (index < 0 || index >= count()) {
    return nullptr;
  }
  QLayoutItem* const taken = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  return taken;
}

QSize LinesLayout::sizeHint() const {
  const std::vector<Line> lines = LinesIn(QLAYOUTSIZE_MAX);
  return lines.empty() ? QSize(0, 0) : SizeOf(lines.front(), spacing());
}

QSize LinesLayout::minimumSize() const {
  QSize size(0, 0);
  for (const auto& item : items_) {
    if (!item->isEmpty()) {
      size = size.expandedTo(item->sizeHint());
    }
  }
  return size;
}

int LinesLayout::heightForWidth(int width) const {
  int height = -spacing();
  for (const Line& line : LinesIn(width)) {
    height += spacing() + SizeOf(line, spacing()).height();
  }
  return std::max(height, 0);
}

void LinesLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  int top = area.top();
  for (const Line& line : LinesIn(area.width())) {
    const QSize size = SizeOf(line, spacing());
    int left = area.left() + (side_ == WrappingRow::Side::kRight ? area.width() - size.width() : 0);
    for (QLayoutItem* const item : line) {
      const int width = item->sizeHint().width();
      item->setGeometry({left, top, width, size.height()});
      left += width + spacing();
    }
    top += size.height() + spacing();
  }
}

std::vector<LinesLayout::Line> LinesLayout::LinesIn(int width) const {
  std::vector<Line> lines;
  for (const auto& item : items_) {
    if (item->isEmpty()) {
      continue;  // a hidden button
    }
    if (!lines.empty()) {
      lines.back().push_back(item.get());
      if (SizeOf(lines.back(), spacing()).width() <= width) {
        continue;
      }
      lines.back().pop_back();
    }
    lines.push_back({item.get()});
  }
  return lines;
}

}  // namespace

WrappingRow::WrappingRow(Side side) {
  auto* const lines = new LinesLayout(side);
  lines->setContentsMargins(0, 0, 0, 0);
  setLayout(lines);
}

bool WrappingRow::event(QEvent* event) {
  const bool is_done = QWidget::event(event);
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
    setFixedHeight(layout()->heightForWidth(width()));
  }
  return is_done;
}

}  // namespace kaldo
