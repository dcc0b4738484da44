// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/append_file.h"
#include "base/run_observer.h"
#include "runs/keeping_pace.h"
#include "runs/portion_log.h"
#include "runs/project_folder.h"

namespace kaldo {

/// Its name in the project folder.
inline constexpr std::string_view kUnfinishedRunFile = "/.kaldo-unfinished";

/// What a user would have to choose otherwise for the second run to be the first one, in words:
/// `with --tolerance 1, now with --tolerance 2`; nothing when the results do not differ.
using RunDifference =
    std::function<std::optional<std::string>(const RunRecord& then, const RunRecord& now)>;

/// What a new run of `flow` may go on with: `"lake" holds an unfinished run (simulation, sexed, of
/// 2026-...).`; nothing where there is none of that flow.
std::optional<std::string> UnfinishedSentence(const ProjectFolder& project, std::string_view flow);

/// The results of finished portions in the project folder of a run that is at work. They stay there
/// when the run does not come to its end, and another one goes on with them. The commit of a run
/// removes them. The lock of the project must be held.
class UnfinishedRun {
 public:
  /// `new_file` is where the file is made before it comes to its place. The observer is told of an
  /// unfinished run that is found, and that there is none when there should be one to resume.
  UnfinishedRun(ProjectFolder project, std::string new_file, KeptWork work, RunObserver& observer);

  /// The seed of the run to be resumed: one that was drawn from the clock is not drawn again.
  std::optional<std::uint32_t> Seed() const;

  /// The work begins. Throws RunRefused when the run to be resumed is not this one, as told by the
  /// records.
  void Begin(const RunRecord& now, const RunDifference& difference, KeepingPace pace);

  /// The next result of the run that is resumed; nothing where it ended.
  const LoggedPortion* Next() const;
  void Advance();

  /// Keeps a result behind those taken by Advance(); what follows them in the file is given up. The
  /// disk has it after a while, see KeepingPace. When that fails the observer is told, and the run
  /// goes on.
  void Keep(const LoggedPortion& portion);

  /// Brings everything to the disk that is not there, unless it is too early for any.
  void Save();

  /// `What is done is kept in "lake": ...`, where the disk has some of this run.
  std::optional<std::string> KeptSentence() const;

 private:
  using Clock = std::chrono::steady_clock;

  void TellWhatIsThere(KeptWork work) const;
  std::error_code Write();
  std::error_code WriteFirst();
  bool WouldFillTheDisk() const;
  void GiveUp(const std::string& why);

  ProjectFolder project_;
  std::string new_file_;
  RunObserver& observer_;
  std::optional<PortionLogReader> reader_;  ///< while there may be something to resume
  bool has_begun_ = false;
  bool has_given_up_;
  bool is_on_disk_ = false;  ///< some of this run

  KeepingPace pace_;
  Clock::time_point next_write_;
  Clock::time_point started_ = Clock::now();
  PortionLogText text_;
  std::string pending_;  ///< not yet written
  AppendFile file_;
};

}  // namespace kaldo
