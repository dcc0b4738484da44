// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/desktop.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QTimer>
#include <clocale>

#include "app/base/text.h"
#include "app/base/wrapped_tips.h"
#include "app/introduction_screen.h"
#include "app/main_menu.h"
#include "base/version.h"

/// The macro works outside of namespaces only.
static void InitResources() { Q_INIT_RESOURCE(resources); }

namespace kaldo {

void PrepareApplication() {
  InitResources();
  std::setlocale(LC_NUMERIC, "C");
  QLocale::setDefault(QLocale::c());
  qApp->installEventFilter(new WrappedTips(qApp));
}

int RunDesktop(const QString& record) {
  QApplication::setApplicationName(Text("KALDO"));
  QApplication::setApplicationVersion(Text(Version()));
  QApplication::setDesktopFileName(Text("kaldo-desktop"));
  QApplication::setWindowIcon(QIcon(Text(":/kaldo.ico")));
  QApplication::setQuitOnLastWindowClosed(false);  // the end of the main menu ends the program
  // A program menu may start the program in a folder that nobody may write to, and a double click
  // in the program's own.
  if (!QFileInfo(QDir::currentPath()).isWritable() ||
      QDir::current() == QDir(QApplication::applicationDirPath())) {
    QDir::setCurrent(QDir::homePath());
  }
  IntroductionScreen introduction;
  if (record.isEmpty() && introduction.exec() != QDialog::Accepted) {
    return 0;
  }
  MainMenu menu;
  menu.show();
  if (!record.isEmpty()) {
    QTimer::singleShot(0, &menu, [&] { menu.OpenRecord(PathBytes(record)); });
  } else if (introduction.ExampleWanted()) {
    QTimer::singleShot(0, &menu, [&] { menu.StartExample(); });
  }
  return QApplication::exec();
}

}  // namespace kaldo
