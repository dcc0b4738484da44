// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/base/screen_table.h"
#include "app/base/tr.h"

namespace kaldo {

struct Problem;

/// One parameter screen of a flow. It shows values and gives them back; what they mean together is
/// tested by the flow, with the sentences of the core.
class FlowPage : public QWidget {
 public:
  FlowPage(const ScreenEntry& entry, Phrase caption);

  /// The title of the window while this screen is shown.
  const QString& Caption() const { return caption_; }

  /// Where a number could not be read, the problem of what was taken in its place is told with what
  /// was typed.
  virtual void TellTyped(Problem& /*problem*/) const {}

 private:
  QString caption_;
};

}  // namespace kaldo
