// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/screen_table.h"

#include <QWidget>

#include "app/base/text.h"

namespace kaldo {

void Name(QWidget& screen, const ScreenEntry& entry) {
  screen.setObjectName(Text(entry.object_name));
  Number(screen, entry.number);
}

void Number(QWidget& control, int number) { control.setProperty(kNumberProperty, number); }

}  // namespace kaldo
