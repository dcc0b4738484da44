// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QString;
class QWidget;

namespace kaldo {

class RunObserver;

/// Does `work` on a thread of its own, while a dialog shows what is being done, how far it is, the
/// time left and "Cancel"; the windows stay alive. Closing the dialog asks first. True when the
/// work is done. Stopped or failed work is told here; what it threw does not leave the function.
bool RunWithProgress(QWidget* parent, const QString& title,
                     const std::function<void(RunObserver&)>& work);

}  // namespace kaldo
