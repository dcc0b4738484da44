// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

#include "interchange/rows.h"

namespace kaldo {

/// The rows of a text whose cells have a separator between them. A cell between quotation marks may
/// hold the separator, line ends and quotation marks, these doubled (RFC 4180). Line ends are LF,
/// CR or CRLF. Lines without any cell are passed over. The text must live as long.
class DelimitedRows final : public RowSource {
 public:
  DelimitedRows(std::string_view text, char separator) : text_(text), separator_(separator) {}

  RowRead Next(Row& row) override;
  void Rewind() override;

 private:
  bool IsAtLineEnd() const { return text_[at_] == '\n' || text_[at_] == '\r'; }
  void PassLineEnd();
  std::optional<std::string> ReadQuoted(std::string& cell);
  std::optional<std::string> ReadLine(Row& row);

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::uint32_t line_ = 1;
};

/// The separator of a table: the one of tab, ";" and "," that its first line that is not blank
/// holds most often outside of quotation marks, the first of them where they are even; nothing
/// where it holds none.
std::optional<char> FindSeparator(std::string_view text);

}  // namespace kaldo
