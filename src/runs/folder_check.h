// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/problem.h"
#include "runs/project_folder.h"
#include "runs/run_record.h"

namespace kaldo {

/// What a run would meet in its project folder.
struct FolderCheck {
  std::string folder;  ///< as typed
  bool exists = false;
  std::optional<RunRecord> earlier;    ///< the run whose results it holds and would replace
  std::vector<std::string> obstacles;  ///< sentences: why a run could not write there
  std::vector<Problem> refusals;       ///< what it would destroy

  bool IsSound() const { return obstacles.empty() && refusals.empty(); }
};

/// Looks at the folder as a run of the flow with these inputs would, and writes nothing: whether it
/// can be made or written into, whether another run is at work there, and whether results of
/// another flow (unless those may go) or input files stand where the run writes.
FolderCheck CheckFolder(const ProjectFolder& project, std::string_view flow,
                        const std::vector<RecordedInput>& inputs, bool may_replace_other_flow);

}  // namespace kaldo
