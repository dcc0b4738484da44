// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/wrapping_row.h"

#include <algorithm>

namespace kaldo {

namespace {

QSize SizeOf(const std::vector<QLayoutItem*>& line, int spacing) {
  QSize size(-spacing, 0);
  for (const QLayoutItem* const item : line) {
    const QSize wanted = item->sizeHint();
    size = {size.width() + spacing + wanted.width(), std::max(size.height(), wanted.height())};
  }
  return size.expandedTo({0, 0});
}

}  // namespace

void WrappingRow::addItem(QLayoutItem* item) { items_.emplace_back(item); }

int WrappingRow::count() const { return static_cast<int>(items_.size()); }

QLayoutItem* WrappingRow::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index) {
  if (index < 0 || index >= count()) {
    return nullptr;
  }
  QLayoutItem* const taken = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  return taken;
}

QSize WrappingRow::sizeHint() const {
  const std::vector<Line> lines = LinesIn(QLAYOUTSIZE_MAX);
  return lines.empty() ? QSize(0, 0) : SizeOf(lines.front(), spacing());
}

QSize WrappingRow::minimumSize() const {
  QSize size(0, 0);
  for (const auto& item : items_) {
    if (!item->isEmpty()) {
      size = size.expandedTo(item->sizeHint());
    }
  }
  return size;
}

int WrappingRow::heightForWidth(int width) const {
  int height = -spacing();
  for (const Line& line : LinesIn(width)) {
    height += spacing() + SizeOf(line, spacing()).height();
  }
  return std::max(height, 0);
}

void WrappingRow::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  int top = area.top();
  for (const Line& line : LinesIn(area.width())) {
    const QSize size = SizeOf(line, spacing());
    int left = area.left() + (side_ == Side::kRight ? area.width() - size.width() : 0);
    for (QLayoutItem* const item : line) {
      const int width = item->sizeHint().width();
      item->setGeometry({left, top, width, size.height()});
      left += width + spacing();
    }
    top += size.height() + spacing();
  }
}

std::vector<WrappingRow::Line> WrappingRow::LinesIn(int width) const {
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

}  // namespace kaldo
