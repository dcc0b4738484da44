// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "allocation/run_comparison.h"

class QWidget;

namespace kaldo {

/// A finished allocation that another one is compared with.
struct OtherRun {
  RunStatements statements;
  QString folder;  ///< the full path of its project folder
};

/// Asks the user for one; nothing when the user thinks better of it, or where it cannot be read,
/// which is told.
using ChooseOtherRun = std::function<std::optional<OtherRun>(QWidget* parent)>;

}  // namespace kaldo
