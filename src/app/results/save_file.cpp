// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/save_file.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>

#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

bool SaveFile(QWidget* parent, const QString& path, const QByteArray& contents) {
  QSaveFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit();
  if (!written) {
    ShowFailure(parent, Tr("The file \"%1\" cannot be written: %2").arg(path, file.errorString()));
  }
  return written;
}

QString AskWhereToSave(QWidget* parent, const QString& caption, const QString& suggested,
                       const QStringList& filters) {
  QFileDialog dialog(parent, caption, QFileInfo(suggested).path());
  dialog.setObjectName(Text("SaveDialog"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(filters);
  dialog.selectFile(suggested);
  const auto use_ending = [&dialog](const QString& filter) {
    dialog.setDefaultSuffix(
        filter.section(QLatin1String("*."), 1, 1).section(QLatin1Char(')'), 0, 0));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, use_ending);
  use_ending(filters.front());
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace kaldo
