// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QApplication;

namespace kaldo {

/// To be called right after the application was made: numbers with a decimal point, whatever the
/// language of the desktop, and the pictures and examples inside the program.
void PrepareApplication();

/// Introduction, then the main menu until it is closed. Returns the exit code of the program.
int RunDesktop(QApplication& application);

}  // namespace kaldo
