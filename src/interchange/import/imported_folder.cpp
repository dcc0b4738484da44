// SPDX-License-Identifier: GPL-3.0-or-later
// Files of an import are put in place as those of a run are: all of them or none.
#include <array>
#include <filesystem>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/path_text.h"
#include "interchange/import/import_run.h"
#include "runs/input_clash.h"
#include "runs/project_lock.h"
#include "runs/report_file.h"
#include "runs/results_swap.h"
#include "runs/run_refused.h"

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 9> kAllFiles = {
    kImportedLoci,    kImportedParents,    kImportedMales, kImportedFemales, kImportedOffspring,
    kImportedMothers, kImportedCandidates, kImportedNames, kImportReport};

/// Throws where a file is in the way that the import may not replace.
void CheckPlaces(const ProjectFolder& folder, const ImportChoices& choices) {
  std::vector<RecordedInput> inputs;
  inputs.reserve(choices.files.size() + 3);
  for (const ImportedFile& file : choices.files) {
    inputs.push_back({"file", file.path, {}});
  }
  for (const std::string& list :
       {choices.offspring_list, choices.father_list, choices.mother_list}) {
    if (!list.empty()) {
      inputs.push_back({"file", list, {}});
    }
  }
  const bool has_earlier = IsThere(folder.Path(kImportReport));
  for (const std::string_view name : kAllFiles) {
    const std::string path = folder.Path(name);
    if (!IsThere(path)) {
      continue;
    }
    if (auto problem = ClashWithInput(path, inputs)) {
      throw RunRefused(std::move(*problem));
    }
    std::error_code ignored;
    if (std::filesystem::is_directory(FilePath(path), ignored)) {
      throw RunFailure(InTheWaySentence(path));
    }
    if (!has_earlier && !choices.may_replace) {
      throw RunRefused(
          {.kind = ProblemKind::kOtherFlowThere,
           .subject = fmt::format("\"{}\" is there and is not from an import.", path)});
    }
  }
}

std::vector<SwappedFile> WriteAside(const ProjectFolder& folder, const ResultsSwap& swap,
                                    const ImportedStudy& study) {
  std::vector<SwappedFile> swapped;
  for (const std::string_view name : kAllFiles) {
    const std::string path = folder.Path(name);
    bool is_placed = false;
    for (const StudyFile& file : study.files) {
      if (file.name == name) {
        ReportFile written(swap.NewPath(name), path);
        written.Append(file.text);
        written.Finish();
        is_placed = true;
      }
    }
    if (is_placed || IsThere(path)) {
      swapped.push_back({std::string(name), is_placed, IsThere(path)});
    }
  }
  return swapped;
}

}  // namespace

std::vector<std::string> FilesToReplace(const ImportChoices& choices) {
  const ProjectFolder folder(choices.folder);
  std::vector<std::string> names;
  for (const std::string_view name : kAllFiles) {
    if (IsThere(folder.Path(name))) {
      names.emplace_back(name.substr(1));
    }
  }
  return names;
}

void WriteStudy(const ImportChoices& choices, const ImportedStudy& study) {
  const ProjectFolder folder(choices.folder);
  const auto made = folder.Create();
  try {
    RunObserver nobody;
    const auto lock = LockProject(folder, nobody);
    CheckPlaces(folder, choices);
    const ResultsSwap swap(folder, NewWorkingFolder(folder));
    try {
      swap.MakeFolders();
      swap.Do(WriteAside(folder, swap, study));
    } catch (...) {
      swap.Clean();
      throw;
    }
    swap.Clean();
  } catch (...) {
    RemoveFolders(made);
    throw;
  }
}

}  // namespace kaldo
