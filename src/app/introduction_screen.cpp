// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/introduction_screen.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/base/form_fields.h"
#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr auto kWhatItDoes = Phrase(
    "KALDO allocates offspring to their parents from microsatellite genotypes when only part of "
    "the true parents has been collected. Where a parent is missing from the collection it says "
    "UC instead of guessing.\n\n"
    "It also simulates how far such allocations can be trusted with your loci, before or after "
    "the field work.\n\n"
    "You need: a file with the names of the loci, the genotypes of the collected parents, and "
    "those of the offspring, as plain text: a name and one field per locus, such as 152156.");

}  // namespace

IntroductionScreen::IntroductionScreen() {
  Name(*this, kIntroductionScreen);
  setWindowTitle(Text(kProductTitle));
  auto* const icon = new QLabel;
  const int side = fontMetrics().height() * 5;
  icon->setPixmap(QIcon(Text(":/kaldo.ico")).pixmap(side, side));
  auto* const title = new QLabel(Text(kProductTitle));
  QFont font = title->font();
  font.setPointSizeF(font.pointSizeF() * 2.4);
  title->setFont(font);
  auto* const heading = new QHBoxLayout;
  heading->addWidget(icon);
  heading->addWidget(title, 1);

  auto* const text = new QLabel(Tr(kWhatItDoes));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  text->setMinimumWidth(fontMetrics().averageCharWidth() * 66);

  auto* const example = NewButton(Phrase("&Try it with example data"), "TryExample",
                                  Phrase("Opens an allocation with the files of a made-up lake: "
                                         "press OK on its three screens to see "
                                         "a result"));
  example->setAutoDefault(false);
  auto* const ok = NewButton(Phrase("OK"), "Ok", Phrase("On to the main menu"));
  ok->setDefault(true);
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(example);
  buttons->addStretch();
  buttons->addWidget(ok);

  auto* const column = new QVBoxLayout(this);
  column->addLayout(heading);
  column->addWidget(text);
  column->addLayout(buttons);
  ok->setFocus();
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(example, &QPushButton::clicked, this, [this] {
    example_wanted_ = true;
    accept();
  });
}

}  // namespace kaldo
