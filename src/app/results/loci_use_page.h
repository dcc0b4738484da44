// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "app/results/finished_runs.h"

namespace kaldo {

/// What each locus is worth, the most useful one first, to be copied and exported.
///
/// Object names: "LociTable", "LociCopy", "LociExport".
class LociUsePage : public QWidget {
 public:
  LociUsePage(const FinishedAllocation& allocation, const QString& folder,
              QWidget* parent = nullptr);
};

}  // namespace kaldo
