// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace kaldo {

/// Buttons beside each other, and on as many lines as they need where the window is too narrow: in
/// other languages they are longer than in English.
class WrappingRow final : public QLayout {
 public:
  /// The side to which each line is pushed.
  enum class Side { kLeft, kRight };

  explicit WrappingRow(Side side = Side::kLeft) : side_(side) {}

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

  Side side_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace kaldo
