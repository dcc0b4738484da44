// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/text.h"

#include <QTextDocument>

namespace kaldo {

namespace {

constexpr qsizetype kTipWidth = 72;  ///< in characters

/// The text in lines of that width, as long as its words are not wider. A line that is short enough
/// stays as it is.
QString FoldedLines(const QString& text) {
  QStringList lines;
  for (const QString& whole : text.split(QLatin1Char('\n'))) {
    QString line = whole;
    while (line.size() > kTipWidth) {
      const qsizetype last = line.lastIndexOf(QLatin1Char(' '), kTipWidth);
      const qsizetype blank = last > 0 ? last : line.indexOf(QLatin1Char(' '), kTipWidth);
      if (blank < 0) {
        break;
      }
      lines += line.left(blank);
      line = line.mid(blank + 1);
    }
    lines += line;
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Bytes(const QString& text) { return text.toStdString(); }

QString TipText(const QString& text) {
  const QString folded = FoldedLines(text);
  return Qt::mightBeRichText(folded) ? Qt::convertFromPlainText(folded, Qt::WhiteSpaceNormal)
                                     : folded;
}

QString PathText(const std::string& path) { return Text(path); }

std::string PathBytes(const QString& path) { return Bytes(path); }

}  // namespace kaldo
