// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace kaldo {

/// Lines with paths that keep their beginning and their end where room is scarce: each is shortened
/// in the middle. text() is the whole, and so is what the tip tells and the context menu copies.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  /// `copied` is what the context menu puts on the clipboard; it stands in the text.
  void SetText(const QString& text, const QString& copied);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString copied_;
};

}  // namespace kaldo
