// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/recent_folders.h"

#include <QSettings>

#include "app/base/text.h"

namespace kaldo {

namespace {

constexpr qsizetype kMostFolders = 8;

QSettings Kept() {
  return {QSettings::IniFormat, QSettings::UserScope, Text("kaldo"), Text("kaldo-desktop")};
}

QString Key() { return Text("recent_results"); }

}  // namespace

QStringList RecentFolders() { return Kept().value(Key()).toStringList(); }

void RememberFolder(const QString& folder) {
  QStringList folders = RecentFolders();
  folders.removeAll(folder);
  folders.prepend(folder);
  Kept().setValue(Key(), folders.mid(0, kMostFolders));
}

void ForgetFolders() { Kept().remove(Key()); }

}  // namespace kaldo
