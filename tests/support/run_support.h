// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <filesystem>
#include <string>

#include "base/run_observer.h"

namespace kaldo::test {

/// Makes a folder the working folder while it lives: the reports show paths as typed.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& path) : earlier_(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  WorkingFolder(WorkingFolder&&) = delete;
  WorkingFolder& operator=(WorkingFolder&&) = delete;
  ~WorkingFolder() { std::filesystem::current_path(earlier_); }

 private:
  std::filesystem::path earlier_;
};

/// Asks to stop after so many steps of one part of a run.
class StoppingObserver : public RunObserver {
 public:
  StoppingObserver(std::string_view part, std::uint64_t steps) : part_(part), steps_(steps) {}

  void OnPart(std::string_view name, std::uint64_t /*steps*/) override { in_part_ = name == part_; }
  void OnSteps(std::uint64_t steps) override { done_ += in_part_ ? steps : 0; }
  bool StopRequested() const override { return in_part_ && done_ >= steps_; }

 private:
  std::string_view part_;
  std::uint64_t steps_;
  std::atomic<bool> in_part_{false};
  std::atomic<std::uint64_t> done_{0};
};

}  // namespace kaldo::test
