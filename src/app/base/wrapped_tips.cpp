// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/wrapped_tips.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

#include "app/base/text.h"

namespace kaldo {

bool WrappedTips::eventFilter(QObject* watched, QEvent* event) {
  auto* const widget = qobject_cast<QWidget*>(watched);
  if (event->type() != QEvent::ToolTip || widget == nullptr || widget->toolTip().isEmpty()) {
    return false;
  }
  const auto* const help = static_cast<const QHelpEvent*>(event);
  QToolTip::showText(help->globalPos(), TipText(widget->toolTip()), widget);
  return true;
}

}  // namespace kaldo
