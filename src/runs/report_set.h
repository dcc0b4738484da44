// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/folder_lock.h"
#include "base/run_observer.h"
#include "runs/report_file.h"
#include "runs/results_swap.h"
#include "runs/run_record.h"
#include "runs/run_refused.h"
#include "runs/unfinished_run.h"

namespace kaldo {

/// Whose results go where.
struct ReportsOrder {
  ProjectFolder project;
  std::string_view flow;                     ///< as in run records
  const std::vector<RecordedInput>& inputs;  ///< none of which may be replaced or removed
  bool may_replace_other_flow = false;
  KeptWork kept_work = KeptWork::kAnew;

  /// The reports are further files of the run whose results are there, which stay.
  bool adds_to_run = false;
};

/// The reports of one run. All are opened before it computes, and written in a working folder of
/// the project folder; Commit() exchanges them for those of an earlier run, as one step. When a run
/// fails or is stopped before, the set goes away and every earlier report stays as it was; what it
/// has kept as an unfinished run stays, too, and the observer is told. No other run writes into the
/// folder meanwhile.
class ReportSet {
 public:
  /// Throws RunFailure when the project folder cannot be written to or another run is at work in
  /// it, and RunRefused when it holds the results of another flow that may not be replaced.
  ReportSet(ReportsOrder order, RunObserver& observer);
  ReportSet(const ReportSet&) = delete;
  ReportSet& operator=(const ReportSet&) = delete;
  ReportSet(ReportSet&&) = delete;
  ReportSet& operator=(ReportSet&&) = delete;

  /// Without a Commit() every other trace of the set goes away, folders made for it included.
  ~ReportSet();

  /// Starts a report, named with its leading "/": "/Summary.xls". Throws RunRefused when a file of
  /// that name is an input of the run, RunFailure when the disk refuses it or a folder of that name
  /// is in the way.
  ReportFile& Add(std::string_view file);

  /// Starts a report that is thrown away when nothing is written to it: an earlier one of that name
  /// is then removed.
  ReportFile& AddIfAny(std::string_view file);

  /// Has a file that an earlier run may have left behind removed at Commit(). Throws as Add().
  void Remove(std::string_view file);

  /// Throws RunRefused when `path`, which the run writes outside its folder, is an input of it.
  void RefuseInput(const std::string& path) const;

  /// Where the run keeps what is done until the commit.
  UnfinishedRun& Unfinished() { return *unfinished_; }

  /// What identifies the reports, all of whose text has been appended, but for the run record,
  /// which tells it and is written last.
  std::vector<RecordedOutput> Outputs() const;

  /// Throws RunFailure when it cannot be done; the earlier results then are as they were.
  void Commit();

 private:
  struct Report {
    std::string name;
    std::unique_ptr<ReportFile> file;
    bool only_if_any = false;
  };

  void LockAndOpen();
  void RemoveOtherFlow();
  void RemoveEarlierExports();
  void TellWhatIsKept() const;
  void Clear();
  ReportFile& Open(std::string_view file, bool only_if_any);
  void CheckPlace(std::string_view file) const;
  std::vector<SwappedFile> FinishReports();

  ReportsOrder order_;
  RunObserver& observer_;
  std::vector<std::string> made_folders_;
  std::unique_ptr<FolderLock> lock_;
  std::optional<ResultsSwap> swap_;
  std::optional<UnfinishedRun> unfinished_;
  bool is_committed_ = false;
  std::optional<RunRecord> earlier_;
  std::vector<Report> reports_;
  std::vector<std::string> obsolete_;
};

}  // namespace kaldo
