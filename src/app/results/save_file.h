// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QWidget;

namespace kaldo {

/// Writes a whole file or nothing: a file of that name stays as it was when the disk is full. Tells
/// the user the reason and returns false when it cannot be written.
bool SaveFile(QWidget* parent, const QString& path, const QByteArray& contents);

/// Asks where to save; empty when the user thinks better of it. `filters` are texts such as
/// "Picture (*.png)"; a name without an ending gets that of the chosen filter.
QString AskWhereToSave(QWidget* parent, const QString& caption, const QString& suggested,
                       const QStringList& filters);

}  // namespace kaldo
