// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace kaldo {

// The folders whose results were shown last: their paths, the one thing that is kept from one start
// of the program to the next.

/// The latest first; at most eight.
QStringList RecentFolders();

/// Puts a folder in front of them.
void RememberFolder(const QString& folder);

/// Forgets all of them.
void ForgetFolders();

}  // namespace kaldo
