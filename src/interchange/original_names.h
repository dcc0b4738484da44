// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"
#include "base/problem.h"

namespace kaldo {

/// What a name stands for.
enum class NameKind : std::uint8_t { kIndividual, kLocus, kGroup };

/// A name that a laboratory uses and the code that stands for it in the files of a run, because the
/// name is too long there, holds blanks or is not unique. A group has its number for a code.
struct OriginalName {
  NameKind kind;
  std::string code;
  std::string original;

  friend bool operator==(const OriginalName&, const OriginalName&) = default;
};

/// The file names.tsv beside imported files, with which results tell the names that a laboratory
/// knows. A table with the heads kind, code and original, cells between tabs; a name with a
/// quotation mark, a tab or a line end stands between quotation marks, its own doubled (RFC 4180).
class OriginalNames {
 public:
  /// A table that cannot be read, or that holds a code twice, is a Problem with its line.
  static tl::expected<OriginalNames, Problem> Read(const std::string& path, FileSource& source);
  static tl::expected<OriginalNames, Problem> FromText(std::string_view text,
                                                       const std::string& path);

  /// The first name of a code stays.
  void Add(OriginalName name);

  /// The name that the code stands for; the code itself where it stands for none.
  const std::string& Original(NameKind kind, const std::string& code) const;

  const std::vector<OriginalName>& All() const { return names_; }

  /// The table as text.
  std::string Text() const;

 private:
  std::vector<OriginalName> names_;
  std::map<std::pair<NameKind, std::string>, std::size_t> places_;
};

}  // namespace kaldo
