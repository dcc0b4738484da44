// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/foreign_text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utf8.h>

#include <fmt/format.h>

namespace kaldo {

namespace {

/// The characters of the bytes 0x80 to 0x9f; 0 where there is none.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017d, 0,      0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178};

std::uint8_t ByteAt(std::string_view bytes, std::size_t place) {
  return static_cast<std::uint8_t>(bytes[place]);
}

tl::expected<std::string, std::string> FromUtf16(std::string_view bytes, bool is_little) {
  if (bytes.size() % 2 != 0) {
    return tl::unexpected(std::string("it is cut off in the middle of a character of UTF-16"));
  }
  std::u16string units;
  units.reserve(bytes.size() / 2);
  for (std::size_t k = 0; k < bytes.size(); k += 2) {
    const unsigned low = ByteAt(bytes, is_little ? k : k + 1);
    const unsigned high = ByteAt(bytes, is_little ? k + 1 : k);
    units.push_back(static_cast<char16_t>(high << 8U | low));
  }
  std::string text;
  try {
    utf8::utf16to8(units.begin(), units.end(), std::back_inserter(text));
  } catch (const utf8::exception&) {
    return tl::unexpected(std::string("it begins as UTF-16 and is not"));
  }
  return text;
}

tl::expected<std::string, std::string> FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t k = 0; k < bytes.size(); ++k) {
    const std::uint32_t byte = ByteAt(bytes, k);
    const bool is_special = byte >= 0x80 && byte < 0xa0;
    const std::uint32_t character = is_special ? kWindows1252.at(byte - 0x80) : byte;
    if (character == 0) {
      return tl::unexpected(
          fmt::format("byte {} is \\x{:02x}, which no text in UTF-8 or Windows-1252 has", k, byte));
    }
    utf8::append(character, std::back_inserter(text));
  }
  return text;
}

}  // namespace

tl::expected<std::string, std::string> ReadForeignBytes(const std::string& path,
                                                        FileSource& source) {
  constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
  const auto told = [](const Problem& problem) {
    return tl::unexpected(SentenceOf(problem) + ' ' + problem.found);
  };
  if (const auto problem = RefuseSpecialFile(path, kMaxForeignBytes)) {
    return told(*problem);
  }
  const auto bytes = source.Read(path);
  if (!bytes) {
    return told(bytes.error());
  }
  if (bytes->size() > kMaxForeignBytes) {
    return tl::unexpected(fmt::format("it holds more than {} MB", kMaxForeignBytes / kMegabyte));
  }
  return std::string(bytes->begin(), bytes->end());
}

tl::expected<ForeignText, std::string> DecodeText(std::string bytes) {
  const bool is_little = bytes.starts_with("\xff\xfe");
  tl::expected<std::string, std::string> text;
  std::string encoding = "UTF-8";
  if (is_little || bytes.starts_with("\xfe\xff")) {
    text = FromUtf16(std::string_view(bytes).substr(2), is_little);
    encoding = "UTF-16";
  } else if (utf8::is_valid(bytes.begin(), bytes.end())) {
    const std::size_t mark = bytes.starts_with("\xef\xbb\xbf") ? 3 : 0;
    text = mark == 0 ? std::move(bytes) : bytes.substr(mark);
  } else {
    text = FromWindows1252(bytes);
    encoding = "Windows-1252";
  }
  if (!text) {
    return tl::unexpected(text.error());
  }
  if (std::find(text->begin(), text->end(), '\0') != text->end()) {
    return tl::unexpected(std::string("it holds bytes of 0, which no text has"));
  }
  return ForeignText{std::move(*text), encoding};
}

bool TextLines::Next(TextLine& line) {
  if (text_.empty()) {
    return false;
  }
  const std::size_t end = std::min(text_.find_first_of("\r\n"), text_.size());
  line = {++number_, text_.substr(0, end)};
  text_.remove_prefix(end);
  text_.remove_prefix(text_.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text_.size()));
  return true;
}

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
  text.remove_prefix(begin);
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return lower;
}

std::vector<std::string_view> WordsBetween(std::string_view text, std::string_view signs) {
  std::vector<std::string_view> words;
  while (true) {
    text.remove_prefix(std::min(text.find_first_not_of(signs), text.size()));
    if (text.empty() || words.size() == kMaxWords) {
      return words;
    }
    const std::size_t end = std::min(text.find_first_of(signs), text.size());
    words.push_back(text.substr(0, end));
    text.remove_prefix(end);
  }
}

}  // namespace kaldo
