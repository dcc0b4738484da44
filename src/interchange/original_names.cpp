// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/original_names.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

#include "interchange/delimited_rows.h"

namespace kaldo {

namespace {

constexpr std::array<std::pair<NameKind, std::string_view>, 3> kWords{
    {{NameKind::kIndividual, "individual"},
     {NameKind::kLocus, "locus"},
     {NameKind::kGroup, "group"}}};

std::string_view WordOf(NameKind kind) { return kWords.at(static_cast<std::size_t>(kind)).second; }

std::optional<NameKind> KindOf(std::string_view word) {
  const auto* const found = std::find_if(kWords.begin(), kWords.end(),
                                         [word](const auto& each) { return each.second == word; });
  return found == kWords.end() ? std::nullopt : std::optional(found->first);
}

std::string CellText(const std::string& name) {
  if (name.find_first_of("\"\t\r\n") == std::string::npos) {
    return name;
  }
  std::string quoted = "\"";
  for (const char character : name) {
    quoted.append(character == '"' ? 2 : 1, character);
  }
  return quoted + '"';
}

Problem FaultAt(const std::string& path, std::uint32_t line, const std::string& found) {
  Problem problem = CannotOpenFile(path, found);
  problem.line = line;
  return problem;
}

}  // namespace

tl::expected<OriginalNames, Problem> OriginalNames::Read(const std::string& path,
                                                         FileSource& source) {
  const auto bytes = ReadText(path, source);
  if (!bytes) {
    return tl::unexpected(bytes.error());
  }
  return FromText({bytes->data(), bytes->size()}, path);
}

tl::expected<OriginalNames, Problem> OriginalNames::FromText(std::string_view text,
                                                             const std::string& path) {
  DelimitedRows rows(text, '\t');
  OriginalNames names;
  Row row;
  bool is_head = true;
  while (true) {
    const auto read = rows.Next(row);
    if (!read) {
      return tl::unexpected(FaultAt(path, read.error().line, read.error().found));
    }
    if (!*read) {
      break;
    }
    if (is_head) {
      if (row.cells != std::vector<std::string>{"kind", "code", "original"}) {
        return tl::unexpected(FaultAt(path, row.line, "the heads should be kind, code, original"));
      }
      is_head = false;
      continue;
    }
    const auto kind = KindOf(row.Cell(0));
    if (row.cells.size() != 3 || !kind) {
      return tl::unexpected(
          FaultAt(path, row.line, "expected individual, locus or group, a code and a name"));
    }
    if (names.places_.contains({*kind, row.cells[1]})) {
      return tl::unexpected(FaultAt(path, row.line, "the code stands in the table twice"));
    }
    names.Add({*kind, row.cells[1], row.cells[2]});
  }
  if (is_head) {
    return tl::unexpected(FaultAt(path, 0, "it is empty"));
  }
  return names;
}

void OriginalNames::Add(OriginalName name) {
  if (places_.emplace(std::pair(name.kind, name.code), names_.size()).second) {
    names_.push_back(std::move(name));
  }
}

const std::string& OriginalNames::Original(NameKind kind, const std::string& code) const {
  const auto place = places_.find({kind, code});
  return place == places_.end() ? code : names_[place->second].original;
}

std::string OriginalNames::Text() const {
  std::string text = "kind\tcode\toriginal\n";
  for (const OriginalName& name : names_) {
    text += fmt::format("{}\t{}\t{}\n", WordOf(name.kind), CellText(name.code),
                        CellText(name.original));
  }
  return text;
}

}  // namespace kaldo
