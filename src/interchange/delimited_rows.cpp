// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/delimited_rows.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

namespace kaldo {

void DelimitedRows::PassLineEnd() {
  if (at_ < text_.size() && text_[at_] == '\r') {
    ++at_;
    if (at_ < text_.size() && text_[at_] == '\n') {
      ++at_;
    }
  } else if (at_ < text_.size()) {
    ++at_;
  }
  ++line_;
}

std::optional<std::string> DelimitedRows::ReadQuoted(std::string& cell) {
  ++at_;
  while (at_ < text_.size()) {
    const char character = text_[at_];
    if (character == '"') {
      ++at_;
      if (at_ == text_.size() || text_[at_] != '"') {
        const bool ends = at_ == text_.size() || text_[at_] == separator_ || IsAtLineEnd();
        return ends ? std::nullopt
                    : std::optional<std::string>(
                          "there is text behind the closing quotation mark of a cell");
      }
    } else if (character == '\n' || (character == '\r' && !text_.substr(at_).starts_with("\r\n"))) {
      ++line_;
    }
    cell += character;
    ++at_;
  }
  return "a quotation mark is opened and never closed";
}

std::optional<std::string> DelimitedRows::ReadLine(Row& row) {
  while (true) {
    if (row.cells.size() == kMaxColumns) {
      return fmt::format("it has more than {} cells", kMaxColumns);
    }
    std::string& cell = row.cells.emplace_back();
    if (at_ < text_.size() && text_[at_] == '"') {
      if (auto found = ReadQuoted(cell)) {
        return found;
      }
    } else {
      const std::size_t begin = at_;
      while (at_ < text_.size() && text_[at_] != separator_ && !IsAtLineEnd()) {
        ++at_;
      }
      cell = text_.substr(begin, at_ - begin);
    }
    if (at_ == text_.size() || text_[at_] != separator_) {
      PassLineEnd();
      return std::nullopt;
    }
    ++at_;
  }
}

RowRead DelimitedRows::Next(Row& row) {
  while (at_ < text_.size()) {
    row.cells.clear();
    row.line = line_;
    if (auto found = ReadLine(row)) {
      return tl::unexpected(RowFault{row.line, std::move(*found)});
    }
    if (std::any_of(row.cells.begin(), row.cells.end(),
                    [](const std::string& cell) { return !cell.empty(); })) {
      return true;
    }
  }
  return false;
}

void DelimitedRows::Rewind() {
  at_ = 0;
  line_ = 1;
}

std::optional<char> FindSeparator(std::string_view text) {
  constexpr std::array<char, 3> kSeparators = {'\t', ';', ','};
  std::array<std::size_t, kSeparators.size()> counts{};
  bool is_quoted = false;
  bool is_blank = true;
  for (const char character : text) {
    const bool ends = character == '\n' || character == '\r';
    if (ends && !is_quoted && !is_blank) {
      break;
    }
    is_quoted = is_quoted != (character == '"');
    is_blank = is_blank && (ends || character == ' ');
    const auto* const separator = std::find(kSeparators.begin(), kSeparators.end(), character);
    if (!is_quoted && separator != kSeparators.end()) {
      ++counts.at(static_cast<std::size_t>(separator - kSeparators.begin()));
    }
  }
  const auto* const most = std::max_element(counts.begin(), counts.end());
  return *most == 0
             ? std::nullopt
             : std::optional(kSeparators.at(static_cast<std::size_t>(most - counts.begin())));
}

}  // namespace kaldo
