// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace kaldo {

/// The first screen: what the program is for. "OK" leads to the main menu, the other button there
/// with an example data set.
class IntroductionScreen : public QDialog {
 public:
  IntroductionScreen();

  bool ExampleWanted() const { return example_wanted_; }

 private:
  bool example_wanted_ = false;
};

}  // namespace kaldo
