// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <cctype>

#include <fmt/format.h>

#include "genotypes/separator.h"
#include "interchange/export/pedigree.h"

namespace kaldo {

namespace {

struct SexWord {
  std::string_view word;
  Sex sex;
};

constexpr std::array<SexWord, 12> kSexWords{{{"m", Sex::kMale},
                                             {"male", Sex::kMale},
                                             {"1", Sex::kMale},
                                             {"f", Sex::kFemale},
                                             {"female", Sex::kFemale},
                                             {"2", Sex::kFemale},
                                             {"u", Sex::kUnknown},
                                             {"unknown", Sex::kUnknown},
                                             {"na", Sex::kUnknown},
                                             {"0", Sex::kUnknown},
                                             {"?", Sex::kUnknown},
                                             {"-", Sex::kUnknown}}};

std::optional<Sex> SexOf(std::string_view word) {
  std::string lower;
  for (const char character : word) {
    lower += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  const auto* const found = std::find_if(kSexWords.begin(), kSexWords.end(),
                                         [&](const SexWord& each) { return each.word == lower; });
  return found == kSexWords.end() ? std::nullopt : std::optional(found->sex);
}

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  return first == std::string_view::npos
             ? std::string_view()
             : text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The individuals of a study by what they are called in it, and before an import.
std::map<std::string, std::string, std::less<>> CodesByName(const AllocationInput& input,
                                                            const OriginalNames& names) {
  std::map<std::string, std::string, std::less<>> codes;
  for (const IndividualName& name : input.table.Names()) {
    const std::string code(name.Text());
    if (!IsSeparatorName(code)) {
      codes.emplace(names.Original(NameKind::kIndividual, code), code);
      codes.emplace(code, code);
    }
  }
  return codes;
}

}  // namespace

tl::expected<Sexes, Problem> ReadSexes(std::string_view text, const std::string& path,
                                       const AllocationInput& input, const OriginalNames& names) {
  const auto codes = CodesByName(input, names);
  Sexes sexes;
  std::uint32_t line_number = 0;
  text.remove_prefix(text.starts_with("\xef\xbb\xbf") ? 3 : 0);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = WithoutBlanks(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    ++line_number;
    // A name may hold blanks, a sex does not.
    const std::size_t gap = line.find_last_of(" \t");
    const std::string_view name =
        gap == std::string_view::npos ? line : WithoutBlanks(line.substr(0, gap));
    const auto sex = gap == std::string_view::npos ? std::nullopt : SexOf(line.substr(gap + 1));
    const auto fault = [&](ProblemKind kind, std::string found) {
      return tl::unexpected(Problem{.kind = kind,
                                    .file = path,
                                    .line = line_number,
                                    .individual = std::string(name),
                                    .found = std::move(found)});
    };
    if (line.empty() || (line_number == 1 && !sex && !codes.contains(name))) {
      continue;  // a line of heads
    }
    const auto code = codes.find(name);
    if (!sex) {
      return fault(ProblemKind::kOtherWordsWanted,
                   "a line holds an individual and its sex: m, male or 1, f, female or 2");
    }
    if (code == codes.end()) {
      return fault(ProblemKind::kUnknownName,
                   fmt::format("{} is none of the parents and offspring", Quoted(name)));
    }
    const auto [entry, is_new] = sexes.emplace(code->second, *sex);
    if (!is_new && entry->second != *sex) {
      return fault(ProblemKind::kOtherWordsWanted, "an earlier line tells another sex");
    }
  }
  return sexes;
}

}  // namespace kaldo
