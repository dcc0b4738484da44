// SPDX-License-Identifier: GPL-3.0-or-later
#include "cluster/worker_crew.h"

#include <new>

#include "base/problem.h"
#include "runs/workforce.h"

namespace kaldo {

namespace {

/// Progress is told by process 0, portion by portion; only the end of the part is heard.
class CrewObserver final : public RunObserver {
 public:
  explicit CrewObserver(const std::atomic<bool>& ended) : ended_(ended) {}
  bool StopRequested() const override { return ended_; }

 private:
  const std::atomic<bool>& ended_;
};

}  // namespace

WorkerCrew::WorkerCrew(SentPart sent) : sent_(std::move(sent)) {
  StartThreads(sent_.threads, threads_, [this] { Work(); });
  if (threads_.empty()) {
    throw RunFailure("no thread could be started");
  }
}

WorkerCrew::~WorkerCrew() {
  {
    const std::lock_guard lock(mutex_);
    ended_ = true;
  }
  has_portion_.notify_all();
}

void WorkerCrew::Add(HandedPortion portion) {
  {
    const std::lock_guard lock(mutex_);
    portions_.push_back(std::move(portion));
  }
  has_portion_.notify_one();
}

std::optional<HandedPortion> WorkerCrew::WaitForPortion() {
  std::unique_lock lock(mutex_);
  has_portion_.wait(lock, [this] { return ended_ || !portions_.empty(); });
  if (ended_) {
    return std::nullopt;
  }
  HandedPortion portion = std::move(portions_.front());
  portions_.pop_front();
  return portion;
}

void WorkerCrew::Finish(FinishedPortion portion) {
  {
    const std::lock_guard lock(mutex_);
    finished_.push_back(std::move(portion));
  }
  has_finished_.notify_one();
}

std::optional<FinishedPortion> WorkerCrew::WaitForFinished(std::chrono::microseconds patience) {
  std::unique_lock lock(mutex_);
  if (!has_finished_.wait_for(lock, patience, [this] { return !finished_.empty(); })) {
    return std::nullopt;
  }
  FinishedPortion portion = std::move(finished_.front());
  finished_.pop_front();
  return portion;
}

const PortionTask& WorkerCrew::Task() {
  std::call_once(task_made_, [this] { task_ = MakeTask(sent_); });
  return *task_;
}

void WorkerCrew::Work() {
  CrewObserver observer(ended_);
  std::uint64_t number = 0;
  try {
    const auto worker = Task().MakeWorker();
    while (const auto portion = WaitForPortion()) {
      number = portion->number;
      Finish({number, false, worker->Do(portion->order, observer)});
    }
  } catch (const RunStopped&) {
    return;  // nobody waits for the result
  } catch (const std::bad_alloc&) {
    Finish({number, true, "out of memory"});
  } catch (const std::exception& error) {
    Finish({number, true, error.what()});
  }
}

}  // namespace kaldo
