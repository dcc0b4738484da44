// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include <gtest/gtest.h>

#include "app/desktop.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  kaldo::PrepareApplication();
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
