// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/text.h"

#include <QFile>
#include <QTextDocument>

namespace kaldo {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Bytes(const QString& text) { return text.toStdString(); }

QString TipText(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

QString PathText(const std::string& path) {
  return QFile::decodeName(QByteArray::fromStdString(path));
}

std::string PathBytes(const QString& path) { return QFile::encodeName(path).toStdString(); }

}  // namespace kaldo
