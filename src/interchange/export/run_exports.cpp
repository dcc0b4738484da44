// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/run_exports.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include <fmt/format.h>

#include "allocation/allocation_record.h"
#include "base/disk_file.h"
#include "base/path_text.h"
#include "base/this_process.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/simulation_exporter.h"
#include "runs/input_clash.h"
#include "runs/report_set.h"
#include "simulation/simulation_record.h"

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 4> kExportKeys = {"also", "sexes", "names",
                                                         "min_probability"};

bool IsExportKey(std::string_view key) {
  return std::find(kExportKeys.begin(), kExportKeys.end(), key) != kExportKeys.end();
}

bool IsExportRole(std::string_view role) {
  return role == kOriginalNamesRole || role == kSexesRole;
}

/// The path as it is found from the folder of the recorded run.
std::string PathFrom(const std::string& folder, const std::string& path) {
  std::error_code ignored;
  return folder == CurrentFolder() ? path
                                   : PathText(std::filesystem::absolute(FilePath(path), ignored));
}

/// The record as the run would have left it with these exports. Files that the record names already
/// keep their names.
RunRecord WithExports(RunRecord record, const RunRecord& repeated) {
  std::erase_if(record.settings, [](const auto& each) { return IsExportKey(each.first); });
  std::erase_if(record.inputs, [](const auto& input) { return IsExportRole(input.role); });
  for (RecordedInput input : repeated.inputs) {
    if (IsExportRole(input.role)) {
      input.path = PathFrom(record.folder, input.path);
      record.inputs.push_back(std::move(input));
    }
  }
  for (const auto& [key, value] : repeated.settings) {
    if (!IsExportKey(key)) {
      continue;
    }
    const auto* const path = std::get_if<std::string>(&value);
    record.settings.emplace_back(
        key, path != nullptr ? RecordValue(PathFrom(record.folder, *path)) : value);
  }
  return record;
}

[[noreturn]] void Fail(const std::string& path, std::error_code error) {
  throw RunFailure(fmt::format("Cannot write \"{}\": {}", path, error.message()));
}

std::optional<std::string> Difference(const AllocationSettings& /*settings*/, const RunRecord& then,
                                      const RunRecord& now) {
  return DifferenceOfAllocations(then, now);
}

std::optional<std::string> Difference(const SimulationSettings& /*settings*/, const RunRecord& then,
                                      const RunRecord& now) {
  return DifferenceOfSimulations(then, now);
}

/// Whether both records are of runs with the same results: the same flow, settings, seed and
/// contents of input files, whatever was exported.
template <typename Settings>
bool AreOfOneRun(const Settings& settings, const RunRecord& then, const RunRecord& now) {
  const auto inputs = [](const RunRecord& record) {
    std::vector<std::pair<std::string, FileDigest>> found;
    for (const RecordedInput& input : record.inputs) {
      if (!IsExportRole(input.role)) {
        found.emplace_back(input.role, input.digest);
      }
    }
    return found;
  };
  return then.flow == now.flow && then.seed == now.seed && inputs(then) == inputs(now) &&
         !Difference(settings, then, now);
}

/// A path of a recorded run as it is found from here.
std::string FoundFromHere(const std::string& folder, const std::string& path) {
  return path.empty() || folder == CurrentFolder() ? path
                                                   : PathText(FilePath(folder) / FilePath(path));
}

/// What is wanted now, and what the recorded run has already.
void Merge(const WantedExports& wanted, const RunRecord& then, const std::string& path,
           AllocationSettings& settings) {
  settings.exports = wanted;
  const auto recorded = SettingsOf(then, path);
  if (!recorded) {
    return;
  }
  const WantedExports& earlier = recorded->exports;
  for (const NamedExportForm& form : kAllExportForms) {
    settings.exports.forms.*form.choice = wanted.forms.*form.choice || earlier.forms.*form.choice;
  }
  if (wanted.sexes_file.empty()) {
    settings.exports.sexes_file = FoundFromHere(then.folder, earlier.sexes_file);
  }
  if (wanted.names_file.empty()) {
    settings.exports.names_file = FoundFromHere(then.folder, earlier.names_file);
  }
}

void Merge(const WantedExports& wanted, const RunRecord& /*then*/, const std::string& /*path*/,
           SimulationSettings& settings) {
  settings.also = wanted.forms;
}

void Want(const WantedExports& wanted, AllocationSettings& settings) { settings.exports = wanted; }
void Want(const WantedExports& wanted, SimulationSettings& settings) {
  settings.also = wanted.forms;
}

/// The original names lie beside the offspring of the run, wherever the working folder is now.
void FindNames(AllocationSettings& settings, const AllocationResult& result) {
  if (settings.exports.names_file.empty()) {
    settings.exports.names_file =
        NamesBeside(FoundFromHere(result.folder, settings.offspring_file));
  }
}
void FindNames(SimulationSettings& /*settings*/, const SimulationResult& /*result*/) {}

std::vector<std::string> AlreadyThere(const ProjectFolder& folder, const Exported& exported) {
  std::vector<std::string> names;
  for (const ExportedFile& file : exported.files) {
    std::error_code ignored;
    if (std::filesystem::exists(FilePath(folder.Path(file.name)), ignored)) {
      names.emplace_back(file.name.substr(1));
    }
  }
  return names;
}

template <typename Exporter, typename Settings, typename Run>
tl::expected<MadeExports, Problem> Make(Settings settings, const Run& run) {
  FindNames(settings, run.result);
  auto input = run.input;
  DiskFiles disk;
  Exporter exporter;
  if (auto problem = exporter.Prepare(settings, input, disk)) {
    return tl::unexpected(std::move(*problem));
  }
  RunRecord record = RecordOf(settings, input, run.result);
  Exported exported = exporter.Make(settings, input, run.result, record);
  if (!exported.refused.empty()) {
    return tl::unexpected(std::move(exported.refused.front()));
  }
  return MadeExports{std::move(record), std::move(exported)};
}

template <typename Exporter, typename Settings, typename Run>
tl::expected<Exported, Problem> ExportInto(Settings settings, const Run& run,
                                           const WantedExports& wanted, const ExportPlace& place) {
  const ProjectFolder folder(*place.folder);
  Want(wanted, settings);
  auto made = Make<Exporter>(std::move(settings), run);
  if (!made) {
    return tl::unexpected(std::move(made.error()));
  }
  const auto there = AlreadyThere(folder, made->exported);
  if (!there.empty() && place.may_replace && !place.may_replace(there)) {
    return Exported{};
  }
  WriteExports(folder, *made);
  return std::move(made->exported);
}

template <typename Exporter, typename Settings, typename Run>
tl::expected<Exported, Problem> Export(Settings settings, const Run& run,
                                       const WantedExports& wanted, const ExportPlace& place) {
  if (place.folder) {
    return ExportInto<Exporter>(std::move(settings), run, wanted, place);
  }
  const ProjectFolder folder(place.run_folder);
  const std::string path = folder.Path(kRunRecordFile);
  const auto then = ReadRunRecord(path);
  if (!then) {
    return tl::unexpected(then.error());
  }
  if (!AreOfOneRun(settings, *then, RecordOf(settings, run.input, run.result))) {
    return tl::unexpected(Problem{
        .kind = ProblemKind::kCannotExport,
        .found = fmt::format("the folder {} holds the results of another run now; choose another",
                             Quoted(place.run_folder))});
  }
  Merge(wanted, *then, path, settings);
  auto made = Make<Exporter>(std::move(settings), run);
  if (!made) {
    return tl::unexpected(std::move(made.error()));
  }
  RunObserver unheard;
  AddToRecordedRun(folder, *then, *made, unheard);
  return std::move(made->exported);
}

}  // namespace

void AddToRecordedRun(const ProjectFolder& folder, const RunRecord& then, const MadeExports& made,
                      RunObserver& observer) {
  ReportSet reports({folder, then.flow, made.record.inputs, false, KeptWork::kNone, true},
                    observer);
  for (const ExportedFile& file : made.exported.files) {
    reports.Add(file.name).Append(file.text);
  }
  RunRecord record = WithExports(then, made.record);
  for (RecordedOutput& output : reports.Outputs()) {
    const auto earlier = std::find_if(record.outputs.begin(), record.outputs.end(),
                                      [&](const auto& each) { return each.file == output.file; });
    if (earlier == record.outputs.end()) {
      record.outputs.push_back(std::move(output));
    } else {
      *earlier = std::move(output);
    }
  }
  reports.Add(kRunRecordFile).Append(FormatRunRecord(record));
  reports.Commit();
}

void WriteExports(const ProjectFolder& folder, const MadeExports& made) {
  for (const ExportedFile& file : made.exported.files) {
    if (auto problem = ClashWithInput(folder.Path(file.name), made.record.inputs)) {
      throw RunRefused(std::move(*problem));
    }
  }
  (void)folder.Create();
  for (const ExportedFile& file : made.exported.files) {
    const std::string path = folder.Path(file.name);
    const std::string begun = path + ".part";
    std::error_code error = WriteNewFile(begun, file.text);
    if (!error) {
      std::filesystem::rename(FilePath(begun), FilePath(path), error);
    }
    if (error) {
      std::error_code ignored;
      std::filesystem::remove(FilePath(begun), ignored);
      Fail(path, error);
    }
  }
}

tl::expected<Exported, Problem> ExportRun(AllocationSettings settings, const AllocationRun& run,
                                          const WantedExports& wanted, const ExportPlace& place) {
  return Export<AllocationExporter>(std::move(settings), run, wanted, place);
}

tl::expected<Exported, Problem> ExportRun(SimulationSettings settings, const SimulationRun& run,
                                          const WantedExports& wanted, const ExportPlace& place) {
  return Export<SimulationExporter>(std::move(settings), run, wanted, place);
}

}  // namespace kaldo
