// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/recorded_reports.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <fmt/format.h>

#include "base/path_text.h"

namespace kaldo {

namespace {

/// "its report "Summary.xls" is missing"
Problem ProblemOf(const std::string& record_path, std::string_view file, std::string_view what) {
  return {.kind = ProblemKind::kUnusableRunRecord,
          .file = record_path,
          .found = fmt::format("its report {} {}", Quoted(file.substr(1)), what)};
}

}  // namespace

RecordedReports::RecordedReports(const RunRecord& record, std::string record_path)
    : record_(record), record_path_(std::move(record_path)) {}

const RecordedOutput* RecordedReports::Find(std::string_view file) const {
  const auto found =
      std::find_if(record_.outputs.begin(), record_.outputs.end(),
                   [&](const RecordedOutput& output) { return output.file == file.substr(1); });
  return found == record_.outputs.end() ? nullptr : &*found;
}

Problem RecordedReports::Unreadable(std::string_view file) const {
  return ProblemOf(record_path_, file, "does not say what such a report says");
}

tl::expected<std::string, Problem> RecordedReports::Read(std::string_view file) const {
  const auto problem = [&](std::string_view what) {
    return tl::unexpected(ProblemOf(record_path_, file, what));
  };
  const RecordedOutput* const output = Find(file);
  if (output == nullptr) {
    return problem("is not listed");
  }
  const auto path = FilePath(record_path_).parent_path() / FilePath(output->file);
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) {
    return problem("is missing");
  }
  // A record may come from anybody: a size is looked at before the memory is filled.
  if (std::filesystem::file_size(path, error) != output->digest.bytes || error) {
    return problem("has other contents: it was edited, or is of another run");
  }
  std::string text(output->digest.bytes, '\0');
  std::ifstream stream(path, std::ios::binary);
  stream.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream) {
    return problem("cannot be read");
  }
  RunningDigest digest;
  digest.Add(text);
  if (digest.SoFar() != output->digest) {
    return problem("has other contents: it was edited, or is of another run");
  }
  return text;
}

}  // namespace kaldo
