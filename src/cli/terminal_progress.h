// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <iosfwd>
#include <mutex>
#include <string>

#include "base/joining_thread.h"
#include "base/run_observer.h"

namespace kaldo {

/// Shows a run on a terminal: one line with a bar and the time left, from the second second on.
/// Where the messages do not go to a terminal it shows no bar. Hears Ctrl-C.
class TerminalProgress : public RunObserver {
 public:
  TerminalProgress(std::ostream& stream, bool is_terminal);
  TerminalProgress(const TerminalProgress&) = delete;
  TerminalProgress& operator=(const TerminalProgress&) = delete;
  TerminalProgress(TerminalProgress&&) = delete;
  TerminalProgress& operator=(TerminalProgress&&) = delete;
  ~TerminalProgress() override;

  void OnPart(std::string_view name, std::uint64_t steps) override;
  void OnNote(std::string_view note) override;
  void OnSteps(std::uint64_t steps) override { done_ += steps; }
  /// Shown whether there is a terminal or not.
  void OnMessage(RunMessage kind, std::string_view sentence) override;
  bool StopRequested() const override;

 private:
  using Clock = std::chrono::steady_clock;

  void DrawUntilEnd();

  std::ostream& stream_;
  Clock::time_point started_ = Clock::now();
  std::atomic<std::uint64_t> done_{0};

  std::mutex mutex_;  // guards what follows
  std::string part_;
  std::string note_;
  std::uint64_t steps_ = 0;
  Clock::time_point part_started_ = Clock::now();
  bool ended_ = false;
  bool is_drawn_ = false;
  std::condition_variable end_;

  JoiningThread painter_;
};

/// The line of a progress bar, without line end: "Allocating [#####...............]  25 %  250 of
/// 1000, 0:30 left".
std::string ProgressLine(std::string_view part, std::uint64_t done, std::uint64_t steps,
                         std::chrono::duration<double> elapsed);

}  // namespace kaldo
