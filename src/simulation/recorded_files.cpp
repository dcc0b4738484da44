// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/recorded_files.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <fmt/format.h>

#include "base/input_limit.h"
#include "base/path_text.h"
#include "simulation/run_settings.h"

namespace kaldo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFile = "FILE";

/// Whether the setting of that key is the path of a file.
template <typename Settings>
bool NamesFile(SettingTable<Settings> table, std::string_view key) {
  return std::any_of(table.begin(), table.end(), [key](const auto& setting) {
    return setting.key == key && setting.metavar == kFile;
  });
}

/// Calls `use` with the key and the path of every setting that names a file.
template <typename Record, typename Use>
void ForEachFile(Record& record, Use use) {
  for (auto& [key, value] : record.settings) {
    auto* const path = std::get_if<std::string>(&value);
    if (path != nullptr && !path->empty() &&
        (NamesFile(AllocationSettingTable(), key) || NamesFile(SimulationSettingTable(), key))) {
      use(key, *path);
    }
  }
}

bool IsThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

/// Where a file may be now, the likeliest place first.
std::vector<fs::path> Places(const RunRecord& record, const std::string& path,
                             const std::string& file) {
  std::error_code ignored;
  const fs::path beside = fs::absolute(FilePath(path), ignored).parent_path();
  const fs::path started = FilePath(record.folder);
  const fs::path recorded = (started / FilePath(file)).lexically_normal();
  const fs::path project =
      (started / FilePath(record.Setting<std::string>("project").value_or(""))).lexically_normal();
  // From the folder of the results to the file it is the same way as it was.
  return {recorded, (beside / recorded.lexically_relative(project)).lexically_normal(),
          beside / recorded.filename(), beside.parent_path() / recorded.filename()};
}

bool Holds(const fs::path& place, const FileDigest& digest) {
  std::error_code error;
  if (!fs::is_regular_file(place, error) || fs::file_size(place, error) != digest.bytes || error) {
    return false;
  }
  const auto now = DigestOfFile(PathText(place));
  return now && *now == digest;
}

std::string PlaceNow(const RunRecord& record, const std::string& path, const RecordedInput& input) {
  if (IsThere(FilePath(input.path))) {
    return input.path;
  }
  std::string first;
  for (const fs::path& place : Places(record, path, input.path)) {
    if (Holds(place, input.digest)) {
      return PathText(place);
    }
    std::error_code ignored;
    if (first.empty() && fs::is_regular_file(place, ignored)) {
      first = PathText(place);
    }
  }
  return first.empty() ? input.path : first;
}

}  // namespace

std::optional<Problem> RefuseRecordedFiles(const RunRecord& record, const std::string& path) {
  std::optional<Problem> problem;
  ForEachFile(record, [&](const std::string& key, const std::string& file) {
    const bool listed = std::any_of(record.inputs.begin(), record.inputs.end(),
                                    [&](const auto& input) { return input.path == file; });
    if (!problem && !listed) {
      problem =
          Problem{.kind = ProblemKind::kUnusableRunRecord,
                  .file = path,
                  .found = fmt::format("the setting {} names a file that is none of its [[input]]",
                                       Quoted(key))};
    }
  });
  for (const RecordedInput& input : record.inputs) {
    if (!problem) {
      problem = RefuseSpecialFile(input.path, kMaxInputBytes);
    }
  }
  return problem;
}

std::string WorkingFolderNow(const RunRecord& record, const std::string& path) {
  std::error_code ignored;
  if (fs::is_directory(FilePath(record.folder), ignored)) {
    return record.folder;
  }
  const fs::path started = FilePath(record.folder).lexically_normal();
  const fs::path project =
      (started / FilePath(record.Setting<std::string>("project").value_or(""))).lexically_normal();
  const fs::path beside = fs::absolute(FilePath(path), ignored).parent_path();
  const fs::path moved = (beside / started.lexically_relative(project)).lexically_normal();
  return PathText(moved.has_filename() ? moved : moved.parent_path());
}

tl::expected<LocatedRecord, Problem> LocateRecordedFiles(RunRecord record,
                                                         const std::string& path) {
  if (auto problem = RefuseRecordedFiles(record, path)) {
    return tl::unexpected(std::move(*problem));
  }
  std::map<std::string, std::string, std::less<>> places;
  for (const RecordedInput& input : record.inputs) {
    if (!places.contains(input.path)) {
      places[input.path] = PlaceNow(record, path, input);
    }
  }
  ForEachFile(record, [&](const std::string& /*key*/, std::string& file) { file = places[file]; });
  for (RecordedInput& input : record.inputs) {
    input.path = places[input.path];
  }
  auto changes = CompareInputs(record, DigestOfFile);
  return LocatedRecord{std::move(record), std::move(changes)};
}

}  // namespace kaldo
