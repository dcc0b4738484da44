// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "app/results/other_run.h"
#include "app/results/start_trial.h"

class QWidget;

namespace kaldo {

/// Shows the results of a finished run again, from its record, its input files and its reports;
/// nothing is computed anew but what follows from the pairs of an offspring. `path` names the
/// record or its folder. Input files are looked for as everywhere, see LocateRecordedFiles. A file
/// that is missing or no longer what it was is told, and nothing is shown.
/// `start_trial` runs a simulation like an allocation, see AllocationWindow::OfferTrial.
void OpenResults(QWidget* parent, const std::string& path, const StartTrial& start_trial);

/// Asks for the record of an allocation to compare another one with, and reads what it says. A
/// ChooseOtherRun.
std::optional<OtherRun> AskForOtherRun(QWidget* parent);

}  // namespace kaldo
