// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>

namespace kaldo {

/// While it lives the pointer shows that the program is at work.
class WaitCursor {
 public:
  WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  WaitCursor(WaitCursor&&) = delete;
  WaitCursor& operator=(WaitCursor&&) = delete;
  ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace kaldo
