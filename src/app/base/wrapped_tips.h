// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace kaldo {

/// Folds the tips of all widgets into lines that a small screen has room for.
class WrappedTips : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace kaldo
