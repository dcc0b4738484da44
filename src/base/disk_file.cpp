// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/disk_file.h"

#include <algorithm>
#include <filesystem>
#include <random>

#include <fmt/format.h>

#include "base/file_handle.h"
#include "base/path_text.h"

namespace kaldo {

namespace {

constexpr std::size_t kNameDigits = 16;

}  // namespace

NewFile::~NewFile() {
  if (file_ >= 0) {
    (void)CloseFile(file_);
  }
}

std::error_code NewFile::Create(const std::string& path) {
  file_ = OpenNewFile(path);
  return file_ >= 0 ? std::error_code() : LastError();
}

std::error_code NewFile::Write(std::string_view text) const { return WriteAll(file_, text); }

std::error_code NewFile::Finish() {
  const std::error_code not_synced = SyncFile(file_);
  // Network disks may tell only here that they are full.
  const std::error_code not_closed = CloseFile(file_);
  file_ = -1;
  return not_synced ? not_synced : not_closed;
}

std::error_code WriteNewFile(const std::string& path, std::string_view text) {
  NewFile file;
  std::error_code error = file.Create(path);
  if (!error) {
    error = file.Write(text);
  }
  return error ? error : file.Finish();
}

bool IsThere(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::exists(std::filesystem::symlink_status(FilePath(path), ignored));
}

std::string RandomName() {
  std::random_device source;
  return fmt::format("{:08x}{:08x}", source() & 0xffffffffU, source() & 0xffffffffU);
}

bool IsRandomName(std::string_view text) {
  return text.size() == kNameDigits && std::all_of(text.begin(), text.end(), [](char character) {
           return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'f');
         });
}

}  // namespace kaldo
