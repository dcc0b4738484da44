// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <tl/expected.hpp>

#include "runs/run_record.h"

namespace kaldo {

/// The reports that a finished run left in its project folder, as its record lists them. What is
/// read is what the run wrote: a report of another size or SHA-256 is a Problem.
class RecordedReports {
 public:
  /// `record_path` names the record in a Problem; the reports lie beside it.
  RecordedReports(const RunRecord& record, std::string record_path);

  /// Whether the run wrote such a report. Names have their leading "/".
  bool Has(std::string_view file) const { return Find(file) != nullptr; }

  /// The whole report. A Problem also where the run wrote none of that name.
  tl::expected<std::string, Problem> Read(std::string_view file) const;

  /// Told where a report does not say what such a report says.
  Problem Unreadable(std::string_view file) const;

 private:
  const RecordedOutput* Find(std::string_view file) const;

  const RunRecord& record_;
  std::string record_path_;
};

}  // namespace kaldo
