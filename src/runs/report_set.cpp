// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/report_set.h"

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unistd.h>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

constexpr std::size_t kBlockBytes = std::size_t{1} << 18U;

void RefuseFolder(const std::string& path) {
  if (std::filesystem::is_directory(path)) {
    throw RunFailure(
        fmt::format("Cannot replace \"{}\": a folder of that name is in the way", path));
  }
}

}  // namespace

ReportFile::ReportFile(std::string path)
    : path_(std::move(path)), unfinished_path_(fmt::format("{}.{}.part", path_, ::getpid())) {
  RefuseFolder(path_);
  errno = 0;
  stream_.open(unfinished_path_, std::ios::binary | std::ios::trunc);
  if (!stream_.is_open()) {
    Fail("open");
  }
}

ReportFile::~ReportFile() {
  if (!in_place_) {
    stream_.close();
    std::error_code ignored;
    std::filesystem::remove(unfinished_path_, ignored);
  }
}

void ReportFile::Fail(std::string_view what) const {
  const int error = errno;
  throw RunFailure(fmt::format("Cannot {} \"{}\"{}{}", what, path_, error != 0 ? ": " : "",
                               error != 0 ? std::generic_category().message(error) : ""));
}

void ReportFile::Append(std::string_view text) {
  pending_ += text;
  if (pending_.size() >= kBlockBytes) {
    errno = 0;
    stream_.write(pending_.data(), static_cast<std::streamsize>(pending_.size()));
    pending_.clear();
    if (!stream_) {
      Fail("write");
    }
  }
}

void ReportFile::Finish() {
  errno = 0;
  stream_.write(pending_.data(), static_cast<std::streamsize>(pending_.size()));
  pending_.clear();
  stream_.close();
  if (!stream_) {
    Fail("write");
  }
}

void ReportFile::PutInPlace() {
  std::error_code error;
  std::filesystem::rename(unfinished_path_, path_, error);
  if (error) {
    throw RunFailure(fmt::format("Cannot replace \"{}\": {}", path_, error.message()));
  }
  in_place_ = true;
}

ReportSet::~ReportSet() {
  reports_.clear();
  if (folder_is_new_) {
    std::error_code ignored;
    std::filesystem::remove(folder_.Name(), ignored);  // only when nothing is in it
  }
}

ReportFile& ReportSet::Add(std::string_view file) {
  reports_.push_back(std::make_unique<ReportFile>(folder_.Path(file)));
  return *reports_.back();
}

void ReportSet::AddElsewhere(const std::string& path, std::string_view text) {
  reports_.push_back(std::make_unique<ReportFile>(path));
  reports_.back()->Append(text);
}

void ReportSet::Remove(std::string_view file) {
  obsolete_.push_back(folder_.Path(file));
  RefuseFolder(obsolete_.back());
}

void ReportSet::Commit() {
  // Whatever can fail for want of space fails here, before any earlier report is touched.
  for (const auto& report : reports_) {
    report->Finish();
  }
  for (const auto& report : reports_) {
    report->PutInPlace();
  }
  for (const std::string& path : obsolete_) {
    std::error_code error;
    std::filesystem::remove(path, error);
    if (error) {
      throw RunFailure(
          fmt::format("Cannot remove \"{}\" of an earlier run: {}", path, error.message()));
    }
  }
}

}  // namespace kaldo
