// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/earlier_run.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include "base/path_text.h"
#include "runs/result_files.h"

namespace kaldo {

std::string RecordNamedBy(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(FilePath(path), ignored)
             ? ProjectFolder(path).Path(kRunRecordFile)
             : path;
}

std::optional<RunRecord> EarlierRun(const ProjectFolder& project) {
  auto record = ReadRunRecord(project.Path(kRunRecordFile));
  return record ? std::optional(std::move(*record)) : std::nullopt;
}

std::optional<std::string> OtherFlowSentence(const ProjectFolder& project, std::string_view flow) {
  const auto earlier = EarlierRun(project);
  if (!earlier || earlier->flow == flow || ResultFiles(earlier->flow).empty()) {
    return std::nullopt;
  }
  return fmt::format("\"{}\" holds the results of another flow ({}, of {}).", project.Name(),
                     earlier->flow, earlier->date);
}

std::string ReplacedSentence(const ProjectFolder& project, const RunRecord& earlier,
                             std::string_view flow, const std::vector<RecordedInput>& inputs) {
  if (earlier.flow != flow) {
    return fmt::format("The results in \"{}\" ({}, of {}) were replaced.", project.Name(),
                       earlier.flow, earlier.date);
  }
  const bool same = std::equal(inputs.begin(), inputs.end(), earlier.inputs.begin(),
                               earlier.inputs.end(), [](const auto& one, const auto& other) {
                                 return one.role == other.role && one.digest == other.digest;
                               });
  return fmt::format("The results of {} in \"{}\" were replaced; the input files are {}.",
                     earlier.date, project.Name(), same ? "the same" : "others");
}

}  // namespace kaldo
