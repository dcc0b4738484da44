// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/record_shape.h"

#include <algorithm>

#include <fmt/format.h>

namespace kaldo {

namespace {

/// `[[input]]` and a list of values.
constexpr int kDeepest = 2;

/// Goes through a text character by character; texts in quotes and comments do not count.
class ShapeScan {
 public:
  explicit ShapeScan(std::string_view text) : text_(text) {}

  std::optional<Problem> Fault() {
    for (; place_ < text_.size(); ++place_) {
      const char character = text_[place_];
      if (const char* const fault = Step(character)) {
        return Problem{.kind = ProblemKind::kNotARunRecord, .line = line_, .found = fault};
      }
    }
    return std::nullopt;
  }

 private:
  /// What is wrong with this character, or null.
  const char* Step(char character) {
    switch (character) {
      case '\n':
        ++line_;
        in_value_ = depth_ > 0;
        return nullptr;
      case '#':
        SkipTo("\n");
        return nullptr;
      case '"':
      case '\'':
        return SkipText(character);
      case '=':
        in_value_ = true;
        return nullptr;
      case '.':
        return in_value_ ? nullptr : "a key with a dot has no place in a run record";
      case '{':
        return "a table within a line has no place in a run record";
      case '[':
        return ++depth_ > kDeepest ? "lists within lists have no place in a run record" : nullptr;
      case ']':
        depth_ = std::max(depth_ - 1, 0);
        return nullptr;
      default:
        return nullptr;
    }
  }

  /// To just before the first of some characters.
  void SkipTo(std::string_view any_of) {
    const std::size_t next = text_.find_first_of(any_of, place_);
    place_ = (next == std::string_view::npos ? text_.size() : next) - 1;
  }

  const char* SkipText(char quote) {
    if (place_ + 2 < text_.size() && text_[place_ + 1] == quote && text_[place_ + 2] == quote) {
      return "a text over several lines has no place in a run record";
    }
    for (++place_; place_ < text_.size() && text_[place_] != quote; ++place_) {
      if (text_[place_] == '\n') {
        --place_;  // the parser tells that the text does not end
        return nullptr;
      }
      if (text_[place_] == '\\' && quote == '"') {
        ++place_;
      }
    }
    return nullptr;
  }

  std::string_view text_;
  std::size_t place_ = 0;
  std::uint32_t line_ = 1;
  int depth_ = 0;
  bool in_value_ = false;
};

}  // namespace

std::optional<Problem> ShapeFault(std::string_view text) {
  if (text.size() > kMostRecordBytes) {
    return Problem{.kind = ProblemKind::kNotARunRecord,
                   .found = fmt::format("it holds more than {} kB", kMostRecordBytes / 1024)};
  }
  return ShapeScan(text).Fault();
}

}  // namespace kaldo
