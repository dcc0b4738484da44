// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/about_box.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include <fmt/format.h>

#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/version.h"

namespace kaldo {

void ShowAboutBox(QWidget* parent) {
  QDialog box(parent);
  Name(box, kAboutScreen);
  box.setWindowTitle(Text(kProductTitle));
  auto* const title = new QLabel(Text(kProductTitle));
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 2);
  title->setFont(font);
  auto* const text = new QLabel(
      Tr("Version %1 (%2)\n\n"
         "Parentage allocation with uncollected parents, from microsatellite genotypes.\n\n"
         "To cite: KALDO, version %1, with the run record of your results.\n\n"
         "Free software under the GNU General Public License, version 3 or later.\n"
         "Charts are drawn with QCustomPlot, windows with Qt.")
          .arg(Text(Version()), Text(BuildNote())));
  text->setTextFormat(Qt::PlainText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
  auto* const column = new QVBoxLayout(&box);
  column->addWidget(title);
  column->addWidget(text);
  column->addWidget(buttons);
  box.exec();
}

}  // namespace kaldo
