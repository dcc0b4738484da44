// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/opened_record.h"

#include <filesystem>
#include <ostream>

#include <fmt/format.h>

#include "base/path_text.h"
#include "base/version.h"
#include "cli/tell.h"
#include "runs/earlier_run.h"

namespace kaldo {

namespace {

/// What a user should know of the files before they are used again.
void TellPlaces(const RunRecord& then, const LocatedRecord& now,
                const CommandLineStreams& streams) {
  if (then.version != Version()) {
    streams.err << Escaped(
                       fmt::format("Warning: the record was made by KALDO {}, this is KALDO {}.",
                                   then.version, Version()))
                << '\n';
  }
  for (std::size_t i = 0; i < then.inputs.size(); ++i) {
    const RecordedInput& input = now.record.inputs[i];
    if (input.path != then.inputs[i].path) {
      streams.err << Escaped(fmt::format("Note: {} is read from \"{}\".", input.role, input.path))
                  << '\n';
    }
  }
  if (!now.changes.missing.empty()) {
    streams.err << fmt::format("Note: the recorded run was started in the folder {}\n",
                               Quoted(then.folder));
  }
}

}  // namespace

std::string FolderOfRecord(const std::string& record) {
  const auto folder = PathText(FilePath(record).parent_path());
  return folder.empty() ? "." : folder;
}

std::string RecordToRead(const std::string& path, const CommandLineStreams& streams) {
  std::string record = RecordNamedBy(path);
  SettleProject(ProjectFolder(FolderOfRecord(record)), streams);
  return record;
}

tl::expected<OpenedRecord, Problem> OpenRecord(const std::string& path,
                                               const CommandLineStreams& streams) {
  const std::string file = RecordToRead(path, streams);
  auto record = ReadRunRecord(file);
  if (!record) {
    return tl::unexpected(std::move(record.error()));
  }
  // First of all: a flow or a setting that is not understood says nothing about files.
  if (auto recorded = RunSettingsOf(*record, file); !recorded) {
    return tl::unexpected(std::move(recorded.error()));
  }
  auto located = LocateRecordedFiles(*record, file);
  if (!located) {
    return tl::unexpected(std::move(located.error()));
  }
  TellPlaces(*record, *located, streams);
  auto settings = RunSettingsOf(located->record, file);
  if (!settings) {
    return tl::unexpected(std::move(settings.error()));
  }
  return OpenedRecord{file, std::move(*record), std::move(*located), std::move(*settings)};
}

Problem ChangedInputsProblem(const OpenedRecord& record, const std::string& advice) {
  return {.kind = ProblemKind::kInputsChanged,
          .file = record.path,
          .found = fmt::format("{}{}", fmt::join(record.now.changes.changed, " "), advice)};
}

}  // namespace kaldo
