// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include "app/base/languages.h"
#include "app/desktop.h"
#include "base/version.h"

namespace {

constexpr std::string_view kUsage =
    "Usage: kaldo-desktop [--language de|en|fr] [RECORD]\n"
    "Allocates offspring to their parents, in windows. RECORD is the \"Run record.toml\" of an "
    "earlier\nrun, whose settings fill the screens. See also: kaldo --help\n";

/// What is answered without a window: true when there was something to answer.
bool AnswersOnTerminal(int argc, char** argv) {
  const std::string_view option = argc == 2 ? argv[1] : "";
  if (option == "--version") {
    std::cout << "kaldo-desktop " << kaldo::Version() << " (" << kaldo::BuildNote() << ")\n";
  } else if (option == "--help" || option == "-h") {
    std::cout << kUsage;
  } else {
    return false;
  }
  return true;
}

bool HasDisplay() {
#ifdef Q_OS_LINUX
  constexpr std::array kNames = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
  return std::any_of(kNames.begin(), kNames.end(), [](const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr && *value != '\0';
  });
#else
  return true;
#endif
}

/// The language asked for, which leaves the arguments; else that of the system.
QString TakeLanguage(QStringList& arguments) {
  const qsizetype option = arguments.indexOf(QStringLiteral("--language"));
  if (option < 0) {
    return kaldo::LanguageOfSystem();
  }
  QString language = arguments.value(option + 1);
  arguments.remove(option, std::min<qsizetype>(2, arguments.size() - option));
  return language;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (AnswersOnTerminal(argc, argv)) {
      return EXIT_SUCCESS;
    }
    if (!HasDisplay()) {
      std::cerr << "kaldo-desktop needs a graphical desktop. Without one, use the command kaldo.\n";
      return EXIT_FAILURE;
    }
    const QApplication application(argc, argv);
    kaldo::PrepareApplication();
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (!kaldo::SetLanguage(TakeLanguage(arguments))) {
      std::cerr << "--language is one of: "
                << kaldo::Languages().join(QStringLiteral(", ")).toStdString() << '\n';
      return EXIT_FAILURE;
    }
    return kaldo::RunDesktop(arguments.value(0));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }
}
