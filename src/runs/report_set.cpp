// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/report_set.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/path_text.h"
#include "runs/earlier_run.h"
#include "runs/input_clash.h"
#include "runs/project_lock.h"
#include "runs/result_files.h"

namespace kaldo {

ReportSet::ReportSet(ReportsOrder order, RunObserver& observer)
    : order_(std::move(order)), observer_(observer), made_folders_(order_.project.Create()) {
  try {
    LockAndOpen();
  } catch (...) {
    Clear();
    throw;
  }
}

ReportSet::~ReportSet() {
  TellWhatIsKept();
  Clear();
}

void ReportSet::LockAndOpen() {
  lock_ = LockProject(order_.project, observer_);
  const auto other = OtherFlowSentence(order_.project, order_.flow);
  if (other && !order_.may_replace_other_flow) {
    throw RunRefused({.kind = ProblemKind::kOtherFlowThere, .subject = *other});
  }
  earlier_ = EarlierRun(order_.project);
  const std::string working_folder = NewWorkingFolder(order_.project);
  swap_.emplace(order_.project, working_folder);
  swap_->MakeFolders();
  unfinished_.emplace(order_.project, working_folder + "/unfinished", order_.kept_work, observer_);
  if (other) {
    RemoveOtherFlow();
  }
}

void ReportSet::RemoveOtherFlow() {
  for (const std::string_view file : ResultFiles(earlier_->flow)) {
    if (!IsResultFile(order_.flow, file)) {
      CheckPlace(file);
      obsolete_.emplace_back(file);
    }
  }
}

void ReportSet::TellWhatIsKept() const {
  if (is_committed_) {
    return;
  }
  try {
    if (const auto sentence = unfinished_->KeptSentence()) {
      observer_.OnMessage(RunMessage::kNote, *sentence);
    }
  } catch (...) {
    // The failure that ends the run is told, and that is what matters.
  }
}

void ReportSet::Clear() {
  reports_.clear();
  if (swap_) {
    swap_->Clean();
  }
  lock_.reset();
  RemoveFolders(made_folders_);
}

void ReportSet::CheckPlace(std::string_view file) const {
  const std::string path = order_.project.Path(file);
  RefuseInput(path);
  std::error_code ignored;
  if (std::filesystem::is_directory(FilePath(path), ignored)) {
    throw RunFailure(InTheWaySentence(path));
  }
}

void ReportSet::RefuseInput(const std::string& path) const {
  if (auto problem = ClashWithInput(path, order_.inputs)) {
    throw RunRefused(std::move(*problem));
  }
}

ReportFile& ReportSet::Open(std::string_view file, bool only_if_any) {
  if (!IsResultFile(order_.flow, file)) {
    throw std::logic_error(fmt::format("\"{}\" is no result of: {}", file, order_.flow));
  }
  CheckPlace(file);
  reports_.push_back({std::string(file),
                      std::make_unique<ReportFile>(swap_->NewPath(file), order_.project.Path(file)),
                      only_if_any});
  return *reports_.back().file;
}

ReportFile& ReportSet::Add(std::string_view file) { return Open(file, false); }

ReportFile& ReportSet::AddIfAny(std::string_view file) { return Open(file, true); }

void ReportSet::Remove(std::string_view file) {
  CheckPlace(file);
  obsolete_.emplace_back(file);
}

void ReportSet::RemoveEarlierExports() {
  if (!earlier_ || order_.adds_to_run) {
    return;
  }
  for (const RecordedOutput& output : earlier_->outputs) {
    const std::string name = '/' + output.file;
    const bool is_new = std::any_of(reports_.begin(), reports_.end(),
                                    [&](const Report& report) { return report.name == name; });
    if (!is_new && IsExportFile(earlier_->flow, name)) {
      CheckPlace(name);
      obsolete_.push_back(name);
    }
  }
}

std::vector<SwappedFile> ReportSet::FinishReports() {
  RemoveEarlierExports();
  std::vector<SwappedFile> files;
  for (Report& report : reports_) {
    if (report.only_if_any && report.file->IsEmpty()) {
      obsolete_.push_back(report.name);
      std::error_code ignored;
      report.file.reset();
      std::filesystem::remove(FilePath(swap_->NewPath(report.name)), ignored);
    } else {
      report.file->Finish();
      files.push_back({report.name, true, IsThere(order_.project.Path(report.name))});
    }
  }
  for (const std::string& name : obsolete_) {
    if (IsThere(order_.project.Path(name))) {
      files.push_back({name, false, true});
    }
  }
  const std::string unfinished(kUnfinishedRunFile);
  if (!order_.adds_to_run && IsThere(order_.project.Path(unfinished))) {
    files.push_back({unfinished, false, true});
  }
  // The record comes last: it vouches for the others.
  std::stable_partition(files.begin(), files.end(),
                        [](const SwappedFile& file) { return file.name != kRunRecordFile; });
  return files;
}

std::vector<RecordedOutput> ReportSet::Outputs() const {
  std::vector<RecordedOutput> outputs;
  for (const Report& report : reports_) {
    if (report.name != kRunRecordFile && !(report.only_if_any && report.file->IsEmpty())) {
      outputs.push_back({report.name.substr(1), report.file->Digest()});
    }
  }
  return outputs;
}

void ReportSet::Commit() {
  // Whatever can fail for want of space fails here, before any earlier report is touched.
  const auto files = FinishReports();
  swap_->Do(files);
  is_committed_ = true;
  made_folders_.clear();
  if (earlier_ && !order_.adds_to_run) {
    observer_.OnMessage(RunMessage::kNote,
                        ReplacedSentence(order_.project, *earlier_, order_.flow, order_.inputs));
  }
}

}  // namespace kaldo
