// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/folder_check.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/folder_access.h"
#include "base/path_text.h"
#include "runs/earlier_run.h"
#include "runs/input_clash.h"
#include "runs/project_lock.h"
#include "runs/result_files.h"

namespace kaldo {

namespace {

namespace fs = std::filesystem;

/// Why the folder could not be made, below the last of its parents that is there.
std::optional<std::string> WhyNotMade(const std::string& name) {
  const fs::path whole = FilePath(name);
  fs::path there = whole.root_path();
  bool is_missing = false;
  for (const auto& part : whole.relative_path()) {
    const fs::path next = there / part;
    std::error_code error;
    const fs::file_status status = fs::status(next, error);
    if (status.type() == fs::file_type::none) {
      return NotMadeSentence(name, error.message());
    }
    is_missing = is_missing || !fs::exists(status);
    if (is_missing) {
      continue;  // the names of folders to come are tried in the one that is there
    }
    if (!fs::is_directory(status)) {
      return NotMadeSentence(name, fmt::format("\"{}\" is a file", PathText(next)));
    }
    there = next;
  }
  const std::error_code reason =
      is_missing ? WhyNotWritable(there.empty() ? "." : PathText(there)) : std::error_code();
  return reason ? std::optional(NotMadeSentence(name, reason.message())) : std::nullopt;
}

void CheckPlaces(const ProjectFolder& project, std::string_view flow,
                 const std::vector<RecordedInput>& inputs, FolderCheck& check) {
  const auto look_at = [&](std::string_view file) {
    const std::string path = project.Path(file);
    std::error_code ignored;
    if (fs::is_directory(FilePath(path), ignored)) {
      check.obstacles.push_back(InTheWaySentence(path));
    } else if (auto problem = ClashWithInput(path, inputs)) {
      check.refusals.push_back(std::move(*problem));
    }
  };
  for (const std::string_view file : ResultFiles(flow)) {
    look_at(file);
  }
  look_at(kRunRecordFile);
  if (check.earlier && check.earlier->flow != flow) {
    for (const std::string_view file : ResultFiles(check.earlier->flow)) {
      if (!IsResultFile(flow, file)) {
        look_at(file);
      }
    }
  }
}

}  // namespace

FolderCheck CheckFolder(const ProjectFolder& project, std::string_view flow,
                        const std::vector<RecordedInput>& inputs, bool may_replace_other_flow) {
  FolderCheck check;
  check.folder = project.Name();
  std::error_code ignored;
  check.exists = fs::is_directory(FilePath(project.Name()), ignored);
  if (!check.exists) {
    if (auto sentence = WhyNotMade(project.Name())) {
      check.obstacles.push_back(std::move(*sentence));
    }
    return check;
  }
  if (const std::error_code reason = WhyNotWritable(project.Name())) {
    check.obstacles.push_back(NotWritableSentence(project.Name(), reason));
  }
  if (auto sentence = RunAtWork(project)) {
    check.obstacles.push_back(std::move(*sentence));
  }
  check.earlier = EarlierRun(project);
  const auto other = OtherFlowSentence(project, flow);
  if (other && !may_replace_other_flow) {
    check.refusals.push_back({.kind = ProblemKind::kOtherFlowThere, .subject = *other});
  }
  CheckPlaces(project, flow, inputs, check);
  return check;
}

}  // namespace kaldo
