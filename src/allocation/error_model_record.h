// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "method/error_model.h"
#include "runs/run_record.h"

namespace kaldo {

/// Writes the model among the settings of a record: "error" and the figures that go with its kind.
void RecordErrorModel(const ErrorModel& model, RunRecord& record);

/// Reads it back; what does not fit becomes a fault of `recorded`.
ErrorModel RecordedErrorModel(RecordedSettings& recorded);

}  // namespace kaldo
