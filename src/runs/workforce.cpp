// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/workforce.h"

#include <algorithm>
#include <system_error>

#include "runs/usable_threads.h"

namespace kaldo {

namespace {

/// Has a worker stop, too, when its portion is no longer wanted.
class DeskObserver final : public RunObserver {
 public:
  DeskObserver(const PortionDesk& desk, RunObserver& run) : desk_(desk), run_(run) {}

  void OnSteps(std::uint64_t steps) override { run_.OnSteps(steps); }
  bool StopRequested() const override { return desk_.Ended() || run_.StopRequested(); }

 private:
  const PortionDesk& desk_;
  RunObserver& run_;
};

}  // namespace

void WorkAtDesk(const PortionTask& task, PortionDesk& desk, RunObserver& observer) {
  DeskObserver desk_observer(desk, observer);
  try {
    std::unique_ptr<PortionWorker> worker;
    while (auto portion = desk.WaitForNext()) {
      if (!worker) {
        worker = task.MakeWorker();
      }
      desk.HandIn(portion->number, worker->Do(portion->order, desk_observer));
    }
  } catch (...) {
    desk.Fail(std::current_exception());
  }
}

void StartThreads(std::size_t number, std::vector<JoiningThread>& threads,
                  const std::function<void()>& work) {
  try {
    for (std::size_t thread = 0; thread < number; ++thread) {
      threads.emplace_back(work);
    }
  } catch (const std::system_error&) {
    // The limit of the user or the machine is reached: those that run do all of it.
  }
}

unsigned LocalThreads::Threads(unsigned wanted) const {
  return wanted != 0 ? wanted : UsableThreads();
}

void LocalThreads::Do(const PortionJob& job, unsigned wanted, RunObserver& observer) {
  const std::size_t items = job.plan.Groups() * job.plan.ItemsPerGroup();
  const std::size_t threads =
      std::max<std::size_t>(std::min<std::size_t>(Threads(wanted), items), 1);
  PortionDesk desk(job.plan, threads);
  {
    std::vector<JoiningThread> others;
    StartThreads(threads - 1, others, [&] { WorkAtDesk(job.task, desk, observer); });
    WorkAtDesk(job.task, desk, observer);
  }
  desk.ThrowFailure();
}

}  // namespace kaldo
