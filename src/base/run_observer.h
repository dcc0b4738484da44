// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace kaldo {

/// What the user should know although the run goes on.
enum class RunMessage {
  kNote,     ///< what was done, for instance which earlier results were replaced
  kWarning,  ///< what may need a look
};

/// How a run tells what it does and hears that it should stop. The command line shows a bar, the
/// windows a dialog, a test nothing. All functions may be called from any thread of the run, so
/// they return at once.
class RunObserver {
 public:
  RunObserver() = default;
  RunObserver(const RunObserver&) = delete;
  RunObserver& operator=(const RunObserver&) = delete;
  RunObserver(RunObserver&&) = delete;
  RunObserver& operator=(RunObserver&&) = delete;
  virtual ~RunObserver() = default;

  /// A part of the run begins, for instance "Allocating", made of `steps` equal steps.
  virtual void OnPart(std::string_view /*name*/, std::uint64_t /*steps*/) {}

  /// Where in the part the run is, in words: "subset 3 of 10".
  virtual void OnNote(std::string_view /*note*/) {}

  /// So many further steps of the part are done.
  virtual void OnSteps(std::uint64_t /*steps*/) {}

  /// One sentence that stays to be read when the run is over.
  virtual void OnMessage(RunMessage /*kind*/, std::string_view /*sentence*/) {}

  /// True once the user wants the run to end. The run then throws RunStopped within a moment.
  virtual bool StopRequested() const { return false; }
};

}  // namespace kaldo
