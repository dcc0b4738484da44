// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace kaldo {

/// Opens the user guide at the part about the screen in front whenever F1 is pressed, in any window
/// of the program.
class GuideKey : public QObject {
 public:
  explicit GuideKey(QObject* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

/// Shows the guide over a window, at the heading for what is shown in it.
void ShowGuide(QWidget& window);

}  // namespace kaldo
