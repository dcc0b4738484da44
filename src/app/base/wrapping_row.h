// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace kaldo {

/// Buttons beside each other, and on as many lines as they need where the window is too narrow: in
/// other languages they are longer than in English. As high as its lines: pages, which are scrolled
/// where they are higher than the window, need not know that its height depends on its width.
class WrappingRow final : public QWidget {
 public:
  /// The side to which each line is pushed.
  enum class Side { kLeft, kRight };

  explicit WrappingRow(Side side = Side::kLeft);

  bool hasHeightForWidth() const override { return false; }

 protected:
  bool event(QEvent* event) override;
};

}  // namespace kaldo
