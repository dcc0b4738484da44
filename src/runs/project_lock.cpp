// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/project_lock.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/folder_content.h"
#include "base/problem.h"
#include "base/this_process.h"
#include "runs/results_swap.h"
#include "runs/run_record.h"

namespace kaldo {

namespace {

constexpr std::string_view kLockFile = "/.kaldo-lock";
constexpr std::string_view kWorkingFolder = ".kaldo-";

/// The working folders in a project folder, whoever made them.
std::vector<std::string> WorkingFolders(const ProjectFolder& project) {
  std::vector<std::string> folders;
  for (const std::string& name : NamesIn(project.Name())) {
    if (name.starts_with(kWorkingFolder) && IsRandomName(name.substr(kWorkingFolder.size()))) {
      folders.push_back(project.Path('/' + name));
    }
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

/// Clears what dead runs left. The lock must be held.
std::optional<std::string> Clear(const ProjectFolder& project) {
  std::optional<std::string> sentence;
  for (const std::string& folder : WorkingFolders(project)) {
    const ResultsSwap swap(project, folder);
    if (swap.IsUnfinished()) {
      sentence = fmt::format("An earlier run ended while it replaced the results in \"{}\"; {}",
                             project.Name(),
                             swap.Recover() ? "its new results are now all in place."
                                            : "the results from before it are all back.");
    }
    swap.Clean();
  }
  return sentence;
}

std::unique_ptr<FolderLock> TryLock(const ProjectFolder& project) {
  return std::make_unique<FolderLock>(
      project.Path(kLockFile),
      fmt::format("{}, begun {}", ThisProcess(), DateText(std::chrono::system_clock::now())));
}

std::string InBrackets(const std::string& owner) {
  return owner.empty() ? std::string() : fmt::format(" ({})", Escaped(owner));
}

std::string AtWorkSentence(const ProjectFolder& project, const std::string& owner) {
  return fmt::format(
      "Another run is at work in \"{}\"{}. Wait for its end, or choose another project name.",
      project.Name(), InBrackets(owner));
}

/// What is known where a disk has no locks. A run that may be at work is only a reason to stop when
/// it may be replacing results at this moment.
std::string NoLocks(const ProjectFolder& project, const FolderLock& lock) {
  std::string sentence =
      fmt::format("The disk of \"{}\" has no locks ({}): let no other run write there.",
                  project.Name(), lock.Error().message());
  if (lock.Owner().empty()) {
    return sentence;
  }
  sentence +=
      fmt::format(" One has not ended in order, or is still at work{}.", InBrackets(lock.Owner()));
  const auto folders = WorkingFolders(project);
  if (std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        return ResultsSwap(project, folder).IsUnfinished();
      })) {
    throw RunFailure(
        fmt::format("{} It has not finished replacing the results: if it is dead, "
                    "delete \"{}\" and try again.",
                    sentence, project.Path(kLockFile)));
  }
  return sentence;
}

}  // namespace

std::unique_ptr<FolderLock> LockProject(const ProjectFolder& project, RunObserver& observer) {
  auto lock = TryLock(project);
  switch (lock->State()) {
    case LockState::kHeld:
      break;
    case LockState::kTaken:
      throw RunFailure(AtWorkSentence(project, lock->Owner()));
    case LockState::kUnknown:
      observer.OnMessage(RunMessage::kWarning, NoLocks(project, *lock));
      if (!lock->Owner().empty()) {
        return lock;  // what lies there may belong to a run that goes on
      }
      break;
    case LockState::kFailed:
      throw RunFailure(NotWritableSentence(project.Name(), lock->Error()));
  }
  if (const auto sentence = Clear(project)) {
    observer.OnMessage(RunMessage::kWarning, *sentence);
  }
  return lock;
}

std::optional<std::string> RunAtWork(const ProjectFolder& project) {
  const auto owner = HolderOfLock(project.Path(kLockFile));
  return owner ? std::optional(AtWorkSentence(project, *owner)) : std::nullopt;
}

std::string NewWorkingFolder(const ProjectFolder& project) {
  return project.Path(fmt::format("/{}{}", kWorkingFolder, RandomName()));
}

std::optional<std::string> RecoverProject(const ProjectFolder& project) {
  if (project.Name().empty() || WorkingFolders(project).empty()) {
    return std::nullopt;
  }
  const auto lock = TryLock(project);
  const bool alone = lock->State() == LockState::kHeld ||
                     (lock->State() == LockState::kUnknown && lock->Owner().empty());
  return alone ? Clear(project) : std::nullopt;
}

}  // namespace kaldo
