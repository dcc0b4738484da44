// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/opened_files.h"

#include <chrono>

#include "base/path_text.h"
#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

using namespace std::chrono_literals;

/// The coarsest clock of a file system, that of FAT: two changes within it may bear one time.
constexpr auto kClockStep = 2s;

/// More than any flow has: a user who looks for the right file must not fill the memory.
constexpr std::size_t kMostKept = 12;

/// Looks at the bytes of a file on their way, whether they are those of another program.
class LookingSource final : public FileSource {
 public:
  explicit LookingSource(FileSource& source) : source_(source) {}

  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override {
    auto bytes = source_.Read(path);
    look_ = bytes && bytes->size() <= kMaxForeignBytes
                ? LookAtForeignBytes(path, std::string(bytes->begin(), bytes->end()))
                : std::nullopt;
    return bytes;
  }

  std::optional<ForeignLook> Look() && { return std::move(look_); }

 private:
  FileSource& source_;
  std::optional<ForeignLook> look_;
};

}  // namespace

OpenedFiles::OpenedFiles(std::unique_ptr<FileSource> source) : source_(std::move(source)) {}

std::optional<OpenedFiles::Looks> OpenedFiles::LooksNow(const std::filesystem::path& place) {
  std::error_code error;
  Looks looks;
  looks.bytes = std::filesystem::file_size(place, error);
  if (!error) {
    looks.changed = std::filesystem::last_write_time(place, error);
  }
  return error ? std::nullopt : std::optional(looks);
}

tl::expected<TokenFile, Problem> OpenedFiles::Open(const std::string& path,
                                                   std::size_t most_bytes) {
  std::error_code ignored;
  const std::filesystem::path place = std::filesystem::absolute(FilePath(path), ignored);
  // Before it is read: a change meanwhile shows the next time.
  const auto looks = LooksNow(place);
  const auto now = std::filesystem::file_time_type::clock::now();
  if (const auto kept = kept_.find(place); kept != kept_.end()) {
    // One that is too large for what it is wanted for now is read again, and refused.
    if (looks == kept->second.looks && kept->second.file.Digest().bytes <= most_bytes) {
      return kept->second.file.At(path);
    }
    kept_.erase(kept);
  }
  LookingSource source(*source_);
  auto file = TokenFile::Read(path, source, most_bytes);
  if (looked_at_.size() == kMostKept) {
    looked_at_.clear();
  }
  looked_at_[place] = std::move(source).Look();
  // What has just been changed may be changed again without looking different.
  if (file && looks && now - looks->changed > kClockStep) {
    if (kept_.size() == kMostKept) {
      kept_.clear();
    }
    kept_[place] = {*looks, *file};
  }
  return file;
}

std::optional<ForeignLook> OpenedFiles::ForeignLookAt(const std::string& path) {
  (void)Open(path);
  std::error_code ignored;
  const auto found = looked_at_.find(std::filesystem::absolute(FilePath(path), ignored));
  return found == looked_at_.end() ? std::nullopt : found->second;
}

void OpenedFiles::Forget() {
  kept_.clear();
  looked_at_.clear();
}

FileOpener OpenedFiles::Opener() {
  return [this](const std::string& path, std::size_t most_bytes) { return Open(path, most_bytes); };
}

}  // namespace kaldo
