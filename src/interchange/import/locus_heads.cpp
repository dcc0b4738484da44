// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/locus_heads.h"

#include <array>
#include <utility>

#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

constexpr std::string_view kSigns = ".-_ (";

constexpr std::array<std::pair<char, char>, 3> kAlleleSigns{{{'1', '2'}, {'a', 'b'}, {'A', 'B'}}};

/// The heads without what numbers the alleles.
std::optional<std::string_view> Stem(std::string_view first, std::string_view second) {
  const auto without_bracket = [](std::string_view head) {
    return head.ends_with(')') ? head.substr(0, head.size() - 1) : head;
  };
  first = without_bracket(first);
  second = without_bracket(second);
  if (first.size() < 2 || first.size() != second.size() ||
      first.substr(0, first.size() - 1) != second.substr(0, second.size() - 1)) {
    return std::nullopt;
  }
  for (const auto& [one, two] : kAlleleSigns) {
    if (first.back() == one && second.back() == two) {
      return first.substr(0, first.size() - 1);
    }
  }
  return std::nullopt;
}

/// Without the one sign that parts the name of a locus from that of its allele, and blanks around
/// it: a name may end with such a sign itself.
std::string_view WithoutSign(std::string_view stem) {
  stem = Trimmed(stem);
  const bool has_sign = !stem.empty() && kSigns.find(stem.back()) != std::string_view::npos;
  return Trimmed(stem.substr(0, stem.size() - (has_sign ? 1 : 0)));
}

}  // namespace

bool IsBlankHead(std::string_view head) {
  head = Trimmed(head);
  return head.empty() || Lower(head).starts_with("unnamed: ");
}

bool MayBeTwoLoci(std::string_view first, std::string_view second) {
  const auto stem = Stem(Trimmed(first), Trimmed(second));
  return stem && kSigns.find(stem->back()) == std::string_view::npos;
}

std::optional<std::string> CommonHead(std::string_view first, std::string_view second) {
  first = Trimmed(first);
  second = Trimmed(second);
  if (IsBlankHead(first)) {
    return std::nullopt;
  }
  if (const auto stem = Stem(first, second)) {
    const std::string_view name = WithoutSign(*stem);
    return name.empty() ? std::nullopt : std::optional(std::string(name));
  }
  const bool is_numbered_by_programs =
      second.starts_with(first) &&
      (second.substr(first.size()) == ".1" || second.substr(first.size()) == "_1" ||
       second.substr(first.size()) == "_2");
  if (IsBlankHead(second) || first == second || is_numbered_by_programs) {
    return std::string(first);
  }
  return std::nullopt;
}

}  // namespace kaldo
