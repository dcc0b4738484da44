// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <exception>
#include <iostream>

#include "app/desktop.h"

int main(int argc, char** argv) {
  try {
    QApplication application(argc, argv);
    kaldo::PrepareApplication();
    return kaldo::RunDesktop(application);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
