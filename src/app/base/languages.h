// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace kaldo {

/// The languages that the windows know, by their codes: "en", which needs no translation, first.
QStringList Languages();

/// The language of the windows from now on, for windows yet to be made. False where it is none of
/// Languages(); the language then stays.
bool SetLanguage(const QString& code);

/// The first of the user's languages that the windows know; English where they know none.
QString LanguageOfSystem();

}  // namespace kaldo
