// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

#include "runs/portions.h"
#include "runs/run_record.h"

namespace kaldo {

// The file in which a long run keeps the results of finished portions. At its head is a record of
// the run, which tells what the results depend on; behind it the portions follow in the order in
// which they were taken. Each entry ends with a digest of itself and of the one before it, so that
// the file can be trusted up to the first entry that is not whole, wherever a crash has cut it.

/// The largest result that is kept. No run of usual size has one of a tenth of that; what is read
/// must not fill the memory, whatever the file says.
inline constexpr std::size_t kMostResultBytes = std::size_t{256} * 1024 * 1024;

/// The result of a portion.
struct LoggedPortion {
  std::uint64_t part = 0;  ///< of the run, counted from 0 in the order of their beginning
  Portion portion;
  std::string result;

  friend bool operator==(const LoggedPortion&, const LoggedPortion&) = default;
};

/// Makes the bytes of entries that follow each other.
class PortionLogText {
 public:
  PortionLogText() = default;

  /// Goes on behind an entry that ends with this digest.
  explicit PortionLogText(std::string last_digest) : last_digest_(std::move(last_digest)) {}

  std::string Head(const RunRecord& record);
  std::string Entry(const LoggedPortion& portion);

 private:
  std::string Seal(const std::string& payload);

  std::string last_digest_;
};

/// Reads such a file. Whatever is in it, reading ends at the first entry that is not whole.
class PortionLogReader {
 public:
  explicit PortionLogReader(const std::string& path);

  /// What is at the head; nothing where there is no such file, or one of another kind of machine.
  const std::optional<RunRecord>& Record() const { return record_; }

  /// The next entry without taking it, or nothing at the end of what is whole.
  const std::optional<LoggedPortion>& Next() const { return next_; }

  /// Takes the next entry, where there is one: the one behind it is next.
  void Advance();

  // Where a writer goes on behind the entries taken.
  std::uint64_t BytesTaken() const { return bytes_taken_; }
  PortionLogText TextBehind() const { return PortionLogText(digest_taken_); }

 private:
  std::optional<std::string> ReadPayload(std::uint64_t most);
  void TakeRead();

  std::ifstream file_;
  std::uint64_t bytes_ = 0;        ///< of the file
  std::uint64_t bytes_read_ = 0;   ///< of whole entries
  std::uint64_t bytes_taken_ = 0;  ///< of those taken
  std::string digest_read_;
  std::string digest_taken_;
  std::optional<RunRecord> record_;
  std::optional<LoggedPortion> next_;
};

}  // namespace kaldo
