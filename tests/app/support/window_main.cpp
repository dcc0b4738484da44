// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "app/desktop.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const QTemporaryDir settings;  // what a user has kept is neither read nor changed
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  kaldo::PrepareApplication();
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
