// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "simulation/run_settings.h"

class QWidget;

namespace kaldo {

/// Reads a run record and tells what may make the run differ: another version, changed or missing
/// files. Offers the folder in which the recorded run was started, or to which its study was moved,
/// as the working folder, since its paths are taken from there. The settings name the files where
/// they are now, see LocateRecordedFiles(). Nothing when the file is no run record, which is told.
std::optional<RunSettings> OpenRunRecord(QWidget* parent, const std::string& path);

}  // namespace kaldo
