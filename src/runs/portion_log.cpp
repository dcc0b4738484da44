// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/portion_log.h"

#include <filesystem>
#include <stdexcept>

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "base/file_digest.h"
#include "base/path_text.h"
#include "runs/record_shape.h"

namespace kaldo {

namespace {

constexpr std::size_t kDigestBytes = 64;
constexpr std::uint64_t kMostHeadBytes = kMostRecordBytes + 1024;
constexpr std::uint64_t kMostEntryBytes = kMostResultBytes + 1024;

/// Says what the file is, and of which kind of machine: results are the bytes of values in memory.
/// The order of bytes shows in the length of the head, which would be out of all proportion.
std::string KindOfFile() {
  return fmt::format("KALDO unfinished run, {} bit\n", 8 * sizeof(void*));
}

std::string DigestBehind(const std::string& last_digest, std::string_view payload) {
  RunningDigest digest;
  digest.Add(last_digest);
  digest.Add(payload);
  return digest.SoFar().sha256;
}

LoggedPortion Unpack(std::string_view payload) {
  ByteUnpacker unpacker(payload);
  LoggedPortion logged;
  logged.part = unpacker.Get<std::uint64_t>();
  logged.portion = unpacker.Get<Portion>();
  logged.result = unpacker.Rest();
  return logged;
}

}  // namespace

std::string PortionLogText::Seal(const std::string& payload) {
  last_digest_ = DigestBehind(last_digest_, payload);
  BytePacker packer;
  packer.AddText(payload);
  packer.AddRest(last_digest_);
  return packer.Take();
}

std::string PortionLogText::Head(const RunRecord& record) {
  return Seal(KindOfFile() + FormatRunRecord(record));
}

std::string PortionLogText::Entry(const LoggedPortion& portion) {
  BytePacker packer;
  packer.Add(portion.part);
  packer.Add(portion.portion);
  packer.AddRest(portion.result);
  return Seal(packer.Take());
}

PortionLogReader::PortionLogReader(const std::string& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(std::filesystem::symlink_status(FilePath(path), error))) {
    return;
  }
  bytes_ = std::filesystem::file_size(FilePath(path), error);
  file_.open(FilePath(path), std::ios::binary);
  if (error || !file_) {
    return;
  }
  const auto head = ReadPayload(kMostHeadBytes);
  const std::string kind = KindOfFile();
  if (head && head->starts_with(kind)) {
    if (auto record = ParseRunRecord(std::string_view(*head).substr(kind.size()), path)) {
      record_ = std::move(*record);
      TakeRead();
    }
  }
}

std::optional<std::string> PortionLogReader::ReadPayload(std::uint64_t most) {
  std::uint64_t size = 0;
  file_.read(reinterpret_cast<char*>(&size), sizeof(size));
  const std::uint64_t left = bytes_ - bytes_read_;
  if (!file_ || size > most || left < sizeof(size) + kDigestBytes ||
      size > left - sizeof(size) - kDigestBytes) {
    return std::nullopt;
  }
  std::string payload(size, '\0');
  std::string digest(kDigestBytes, '\0');
  file_.read(payload.data(), static_cast<std::streamsize>(size));
  file_.read(digest.data(), static_cast<std::streamsize>(kDigestBytes));
  if (!file_ || digest != DigestBehind(digest_read_, payload)) {
    return std::nullopt;
  }
  bytes_read_ += sizeof(size) + size + kDigestBytes;
  digest_read_ = std::move(digest);
  return payload;
}

void PortionLogReader::Advance() {
  if (next_) {
    TakeRead();
  }
}

void PortionLogReader::TakeRead() {
  bytes_taken_ = bytes_read_;
  digest_taken_ = digest_read_;
  next_.reset();
  if (const auto payload = ReadPayload(kMostEntryBytes)) {
    try {
      next_ = Unpack(*payload);
    } catch (const std::runtime_error&) {
      // No entry that this program has written: as if it were not whole.
    }
  }
}

}  // namespace kaldo
