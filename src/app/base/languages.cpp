// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <array>

#include "app/base/text.h"

/// The macro works outside of namespaces only.
static void InitTranslations() { Q_INIT_RESOURCE(translations); }

namespace kaldo {

namespace {

// Words of Qt's own dialogs that every message shows: the translations of Qt, which know all of
// them, may not be installed.
[[maybe_unused]] constexpr std::array kWordsOfQt = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QMessageBox", "Show Details..."),
    QT_TRANSLATE_NOOP("QMessageBox", "Hide Details..."),
};

constexpr std::string_view kEnglish = "en";
constexpr std::string_view kFolder = ":/translations";
constexpr std::string_view kPrefix = "kaldo_";

void Install(const QString& name, const QString& folder) {
  auto* const translator = new QTranslator(qApp);
  if (!translator->load(name, folder) || !QCoreApplication::installTranslator(translator)) {
    delete translator;
  }
}

}  // namespace

QStringList Languages() {
  InitTranslations();
  QStringList codes{Text(kEnglish)};
  for (const QString& file : QDir(Text(kFolder)).entryList()) {
    codes += file.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
  }
  return codes;
}

bool SetLanguage(const QString& code) {
  if (!Languages().contains(code)) {
    return false;
  }
  for (QTranslator* const before : qApp->findChildren<QTranslator*>()) {
    QCoreApplication::removeTranslator(before);
    delete before;
  }
  if (code != Text(kEnglish)) {
    Install(Text("qtbase_") + code, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    Install(Text(kPrefix) + code, Text(kFolder));
  }
  return true;
}

QString LanguageOfSystem() {
  const QStringList known = Languages();
  for (const QString& wanted : QLocale::system().uiLanguages()) {
    QString code = wanted.section(QLatin1Char('-'), 0, 0);
    if (known.contains(code)) {
      return code;
    }
  }
  return Text(kEnglish);
}

}  // namespace kaldo
