// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "base/file_source.h"
#include "base/joining_thread.h"
#include "runs/keeping_pace.h"
#include "runs/portion_desk.h"
#include "runs/run_record.h"

namespace kaldo {

/// The long part of a run.
struct PortionJob {
  std::string_view part;  ///< its name, which also tells other processes what the orders mean
  const PortionTask& task;
  PortionPlan& plan;

  /// The settings and files of the run: another process makes the same task from them.
  std::function<RunRecord()> record;
};

/// Who does the portions of a run: the threads of this process, or those of many processes.
class Workforce {
 public:
  explicit Workforce(KeepingPace pace = {}) : pace_(pace) {}
  Workforce(const Workforce&) = delete;
  Workforce& operator=(const Workforce&) = delete;
  Workforce(Workforce&&) = delete;
  Workforce& operator=(Workforce&&) = delete;
  virtual ~Workforce() = default;

  /// All threads that will compute, when the user wants `wanted` in a process; 0 is as many as fit.
  virtual unsigned Threads(unsigned wanted) const = 0;

  /// Where the run takes its input files from.
  virtual FileSource& Files() = 0;

  /// Has the portions done, until all results have been taken or the plan wants no more. Throws
  /// what a portion threw, or RunStopped when the observer asks. The results do not depend on who
  /// did what.
  virtual void Do(const PortionJob& job, unsigned wanted, RunObserver& observer) = 0;

  /// When a run keeps what was done for the case that it is killed.
  KeepingPace Pace() const { return pace_; }

 private:
  KeepingPace pace_;
};

/// The threads of this process.
class LocalThreads final : public Workforce {
 public:
  using Workforce::Workforce;

  /// `wanted`, or as many as the machine has cores when that is 0.
  unsigned Threads(unsigned wanted) const override;
  FileSource& Files() override { return files_; }
  void Do(const PortionJob& job, unsigned wanted, RunObserver& observer) override;

 private:
  DiskFiles files_;
};

/// Starts up to `number` threads that do `work`; fewer where the system allows no more, which is
/// not a reason to lose a run.
void StartThreads(std::size_t number, std::vector<JoiningThread>& threads,
                  const std::function<void()>& work);

/// What one thread does: portions from the desk until there are no more. A failure ends the part.
void WorkAtDesk(const PortionTask& task, PortionDesk& desk, RunObserver& observer);

}  // namespace kaldo
