// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <map>
#include <mutex>
#include <optional>

#include "runs/portions.h"

namespace kaldo {

/// A portion on its way to a worker.
struct HandedPortion {
  std::uint64_t number = 0;
  std::string order;
};

/// Hands out the portions of a part of a run to whoever is free and puts their results in order.
///
/// Portions are large at first and small near the end, so that all workers finish at about the same
/// time. Portions of later groups are handed out while earlier ones are still being worked on:
/// nobody waits for the slowest item of a group. Results that came too early wait here; while they
/// are many, nothing further is handed out, so that memory stays bounded.
///
/// All functions may be called from any thread.
class PortionDesk {
 public:
  /// `workers` threads will do the portions, in all processes together.
  PortionDesk(PortionPlan& plan, std::size_t workers);

  /// The next portion; nothing when there is none, or none for now.
  std::optional<HandedPortion> TryNext();

  /// The next portion, as soon as there is one; nothing once the part has ended.
  std::optional<HandedPortion> WaitForNext();

  /// Takes the result of a portion, and tells how many items it had. After the end of the part
  /// results are thrown away.
  std::size_t HandIn(std::uint64_t number, std::string result);

  /// Ends the part with a failure. Later ones are only consequences and are passed over.
  void Fail(std::exception_ptr failure);

  /// True when all results have been taken, the plan wants no more, or something failed.
  bool Ended() const { return ended_; }

  /// Throws the failure with which the part ended, if it did.
  void ThrowFailure() const;

 private:
  std::optional<HandedPortion> NextLocked();
  std::size_t PortionSize() const;
  std::size_t LeftInAll() const;
  void TakeInOrder();
  void End() { ended_ = true; }

  PortionPlan& plan_;
  const std::size_t groups_;
  const std::size_t items_;
  const std::size_t workers_;

  mutable std::mutex mutex_;  // guards what follows
  std::condition_variable changed_;
  std::size_t next_group_;
  std::size_t next_item_;
  std::uint64_t first_number_ = 0;              ///< of those in handed_
  std::deque<Portion> handed_;                  ///< not yet taken, in order
  std::map<std::uint64_t, std::string> early_;  ///< results that wait for those before them
  std::size_t early_bytes_ = 0;
  std::exception_ptr failure_;
  std::atomic<bool> ended_{false};
};

}  // namespace kaldo
