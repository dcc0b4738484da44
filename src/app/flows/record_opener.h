// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "simulation/run_settings.h"

class QWidget;

namespace kaldo {

class OpenedFiles;

/// Reads a run record and tells what may make the run differ: another version, changed or missing
/// files. Offers the folder in which the recorded run was started as the working folder, since its
/// paths are taken from there. Nothing when the file is no run record, which is told.
std::optional<RunSettings> OpenRunRecord(QWidget* parent, const std::string& path,
                                         OpenedFiles& opened);

}  // namespace kaldo
