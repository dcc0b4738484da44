// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/alike.h"
#include "genotypes/locus_statistics.h"
#include "runs/folder_check.h"
#include "runs/setting.h"

namespace kaldo {

/// All that is wrong with the files and the choices of a run, not only what the run would tell
/// before it ends, and what is there.
struct FullCheck {
  std::string flow;                    ///< as in run records
  AlikeGroups<Problem> faults;         ///< first of all the one that a run would tell
  std::vector<Warning> warnings;       ///< every single case
  std::vector<LocusStatistics> loci;   ///< of all files together; nothing until they are sound
  std::optional<FolderCheck> project;  ///< where a project was named

  /// Of a simulation with errors by steps: by locus, the share of its errors that leave the ladder
  /// of sizes (see simulation/off_ladder.h). Else empty.
  std::vector<std::optional<double>> off_ladder;

  /// Whether the run would begin.
  bool IsSound() const { return faults.IsEmpty() && (!project || project->IsSound()); }
};

/// Which loci are tried of those that `--use` names: the unknown ones are faults and left out. A
/// choice of which nothing is left becomes that of all loci.
void LeaveOutUnknownLoci(const LociList& loci, std::optional<std::vector<std::string>>& chosen,
                         AlikeGroups<Problem>& faults);

/// Leaves one more locus out, so that the next one at fault can be told.
void LeaveOut(const std::string& locus, const LociList& loci,
              std::optional<std::vector<std::string>>& chosen);

/// Puts the choice of error model, loci or sequence aside that a run refuses. False where another
/// choice is at fault, or none.
template <typename Settings>
bool PutAside(const Problem& problem, Settings& settings) {
  switch (problem.kind) {
    case ProblemKind::kNoErrorModel:
    case ProblemKind::kEpsilonOutOfRange:
    case ProblemKind::kProbabilitySum:
    case ProblemKind::kErrorSumTooLarge:
    case ProblemKind::kSimulatedFocalOutOfRange:
    case ProblemKind::kSimulatedProbabilitySum:
      settings.error_model = {};
      return true;
    case ProblemKind::kNoLocusInUse:
      settings.loci_in_use.reset();
      return true;
    case ProblemKind::kSequenceHasZero:
    case ProblemKind::kSequenceIndexTooLarge:
    case ProblemKind::kSequenceSum:
      settings.sequence = {};
      return true;
    default:
      return false;
  }
}

/// Tells what `test` finds, and again what it finds then, as long as `put_aside` can put the choice
/// at fault aside.
template <typename Test, typename PutItAside>
void FindOneAfterAnother(Test test, PutItAside put_aside, AlikeGroups<Problem>& faults) {
  bool goes_on = true;
  while (goes_on) {
    const std::optional<Problem> problem = test();
    goes_on = problem && put_aside(*problem);
    if (problem) {
      faults.Add(*problem);
    }
  }
}

/// The input files that the settings name, whether or not they can be read.
template <typename Settings>
std::vector<RecordedInput> NamedInputs(SettingTable<Settings> table, const Settings& settings) {
  std::vector<RecordedInput> inputs;
  for (const Setting<Settings>& setting : table) {
    const auto path = setting.value.text(settings);
    if (setting.metavar == "FILE" && setting.Applies(settings) && path && !path->empty()) {
      inputs.push_back({setting.key, *path, {}});
    }
  }
  return inputs;
}

}  // namespace kaldo
