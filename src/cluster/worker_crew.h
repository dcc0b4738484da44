// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <vector>

#include "base/joining_thread.h"
#include "cluster/sent_part.h"
#include "runs/portion_desk.h"

namespace kaldo {

/// What became of a portion. After a failure its thread takes no further one.
struct FinishedPortion {
  std::uint64_t number = 0;
  bool failed = false;
  std::string bytes;  ///< the result, or why it failed
};

/// The threads of a process that takes part in a run led by another one. They load the input, so
/// that the process goes on answering messages meanwhile.
class WorkerCrew {
 public:
  explicit WorkerCrew(SentPart sent);
  WorkerCrew(const WorkerCrew&) = delete;
  WorkerCrew& operator=(const WorkerCrew&) = delete;
  WorkerCrew(WorkerCrew&&) = delete;
  WorkerCrew& operator=(WorkerCrew&&) = delete;

  /// Breaks off the portions under way, which takes a moment.
  ~WorkerCrew();

  void Add(HandedPortion portion);

  /// The next finished portion; nothing when there is none within `patience`.
  std::optional<FinishedPortion> WaitForFinished(std::chrono::microseconds patience);

 private:
  void Work();
  const PortionTask& Task();
  std::optional<HandedPortion> WaitForPortion();
  void Finish(FinishedPortion portion);

  const SentPart sent_;
  std::once_flag task_made_;
  std::unique_ptr<PortionTask> task_;
  std::atomic<bool> ended_{false};

  std::mutex mutex_;  // guards what follows
  std::condition_variable has_portion_;
  std::condition_variable has_finished_;
  std::deque<HandedPortion> portions_;
  std::deque<FinishedPortion> finished_;

  std::vector<JoiningThread> threads_;  // last: they use all of the above
};

}  // namespace kaldo
