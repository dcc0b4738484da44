// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"

namespace kaldo {

/// Bytes of a file of another program. With 50 loci, so many hold more than twice the individuals
/// of any run.
inline constexpr std::size_t kMaxForeignBytes = std::size_t{64} * 1024 * 1024;

/// The bytes of such a file, or why it cannot be read.
tl::expected<std::string, std::string> ReadForeignBytes(const std::string& path,
                                                        FileSource& source);

/// A text in UTF-8, without a byte-order mark.
struct ForeignText {
  std::string text;
  std::string encoding;  ///< what it was written in
};

/// The text of such bytes: UTF-16 where a byte-order mark says so, UTF-8 where the bytes are valid
/// UTF-8, else Windows-1252, in which spreadsheets of western Europe save. Bytes that can be no
/// text are told.
tl::expected<ForeignText, std::string> DecodeText(std::string bytes);

/// A line of a text without its end.
struct TextLine {
  std::uint32_t number = 0;  ///< counted from 1
  std::string_view text;
};

/// The lines of a text one after the other; they end with LF, CR or CRLF.
class TextLines {
 public:
  explicit TextLines(std::string_view text) : text_(text) {}

  /// False behind the last line.
  bool Next(TextLine& line);

 private:
  std::string_view text_;
  std::uint32_t number_ = 0;
};

/// Without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// With ASCII letters in lower case.
std::string Lower(std::string_view text);

/// Words of a line; more are cut off, and then fit no study.
inline constexpr std::size_t kMaxWords = 50'000;

/// The words of a text that any of the signs part, so many at most.
std::vector<std::string_view> WordsBetween(std::string_view text, std::string_view signs);

}  // namespace kaldo
