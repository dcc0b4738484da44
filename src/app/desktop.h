// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

namespace kaldo {

/// To be called right after the application was made: numbers with a decimal point, whatever the
/// language of the desktop, and the pictures and examples inside the program.
void PrepareApplication();

/// Introduction, then the main menu until it is closed. With the path of a run record the menu
/// comes at once, and the screens are filled from the record. Returns the exit code of the program.
int RunDesktop(const QString& record);

}  // namespace kaldo
