// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/tr.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

namespace kaldo {

namespace {

constexpr const char* kContext = "kaldo";

}  // namespace

QString Tr(const char* english) { return QCoreApplication::translate(kContext, english); }

QString Tr(Phrase phrase) { return phrase.IsEmpty() ? QString() : Tr(phrase.English()); }

QString TrCount(const char* many, const char* one, std::size_t count) {
  constexpr std::size_t kMost = std::numeric_limits<int>::max();
  const QString number = QString::number(count);
  const QString place = QStringLiteral("%n");
  // A number tells the form; written is the whole number, which may be larger.
  const QString text = QCoreApplication::translate(kContext, many, nullptr,
                                                   static_cast<int>(std::min(count, kMost)));
  const QString english = QString::fromUtf8(many).replace(place, number);
  return text == english && count == 1 ? QString::fromUtf8(one).replace(place, number) : text;
}

}  // namespace kaldo
