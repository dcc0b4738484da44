// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "base/folder_lock.h"
#include "base/run_observer.h"
#include "runs/project_folder.h"

namespace kaldo {

/// Has a run have its project folder to itself until the lock is gone, and clears what runs that
/// died there left behind: an exchange of results is finished or undone, working folders are
/// removed. The observer is told. Throws RunFailure when another run is at work in the folder.
std::unique_ptr<FolderLock> LockProject(const ProjectFolder& project, RunObserver& observer);

/// That another run is at work in the folder now, as LockProject would tell it; nothing when none
/// is.
std::optional<std::string> RunAtWork(const ProjectFolder& project);

/// The path of a working folder that nobody else uses.
std::string NewWorkingFolder(const ProjectFolder& project);

/// Finishes or undoes what a run that died while it replaced the results of a project left half
/// done, and removes its working files. Returns the sentence for the user; nothing when there was
/// nothing to do, or another run is at work in the folder. Throws RunFailure when it cannot be
/// done.
std::optional<std::string> RecoverProject(const ProjectFolder& project);

}  // namespace kaldo
