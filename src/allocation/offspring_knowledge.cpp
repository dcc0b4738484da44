// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/offspring_knowledge.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

#include <fmt/format.h>

#include "base/number_text.h"
#include "genotypes/lines.h"
#include "genotypes/separator.h"

namespace kaldo {

namespace {

/// Stands where nothing is known.
constexpr std::string_view kAny = "*";

/// Individuals by their names.
class Names {
 public:
  /// `kind` tells a user whose names these are: "offspring".
  explicit Names(std::string_view kind) : kind_(kind) {}

  void Add(const GenotypeTable& table, SlotRange slots) {
    for (std::uint32_t slot = slots.begin; slot < slots.end; ++slot) {
      const auto [entry, is_new] = slots_.try_emplace(table.Name(Slot{slot}).Text(), Slot{slot});
      if (!is_new) {
        entry->second.reset();
      }
    }
  }

  tl::expected<Slot, Problem> Find(std::string_view name) const {
    const auto entry = slots_.find(name);
    if (entry == slots_.end()) {
      return tl::unexpected(
          Problem{.kind = ProblemKind::kUnknownName,
                  .found = fmt::format("{} is none of the {}", Quoted(name), kind_)});
    }
    if (!entry->second) {
      return tl::unexpected(
          Problem{.kind = ProblemKind::kNameOfSeveral,
                  .found = fmt::format("{} stands more than once among the {}; rename all but one",
                                       Quoted(name), kind_)});
    }
    return *entry->second;
  }

 private:
  std::string_view kind_;
  std::unordered_map<std::string_view, std::optional<Slot>> slots_;  ///< none: several
};

Problem OtherWords(std::string found) {
  return {.kind = ProblemKind::kOtherWordsWanted, .found = std::move(found)};
}

/// Reads the files of a run one after the other.
class KnowledgeReader {
 public:
  KnowledgeReader(Flow flow, AllocationInput& input)
      : flow_(flow),
        input_(input),
        mothers_(flow == Flow::kSexed ? "collected females" : "collected parents") {
    offspring_.Add(input.table, input.offspring);
    for (const CandidateGroup& group : input.groups) {
      parents_.Add(input.table, group.first);
      if (flow == Flow::kSexed) {
        parents_.Add(input.table, group.second);
      }
      mothers_.Add(input.table, group.second);
    }
    input.allowed.resize(input.NumberOfOffspring());
    places_.resize(input.NumberOfOffspring());
  }

  std::optional<Problem> Read(const AllocationFile& file) {
    std::vector<std::uint32_t> lines(input_.NumberOfOffspring(), 0);
    for (const Line& line : LinesOf(file.tokens.Tokens())) {
      auto problem = ReadLine(file, line, lines);
      if (problem) {
        problem->file = file.tokens.Path();
        problem->line = line.front().line;
        return problem;
      }
    }
    return std::nullopt;
  }

  /// The first offspring without a pair, at the line that left it none.
  std::optional<Problem> FindWithoutPair() const {
    for (std::size_t i = 0; i < places_.size(); ++i) {
      if (places_[i].line == 0 || HasPair(flow_, input_.groups, input_.allowed[i])) {
        continue;
      }
      return Problem{.kind = ProblemKind::kNoPairAllowed,
                     .file = std::string(places_[i].file),
                     .line = places_[i].line,
                     .found = WhyNoPair(i)};
    }
    return std::nullopt;
  }

 private:
  struct Place {
    std::string_view file;
    std::uint32_t line = 0;
  };

  std::optional<Problem> ReadLine(const AllocationFile& file, const Line& line,
                                  std::vector<std::uint32_t>& lines) {
    const auto offspring = offspring_.Find(line.front().text);
    if (!offspring) {
      return offspring.error();
    }
    const std::size_t i = offspring->Value() - input_.offspring.begin;
    if (lines[i] != 0) {
      return Problem{.kind = ProblemKind::kOffspringHasTwoLines,
                     .found = fmt::format("{} stands in line {} already", Quoted(line.front().text),
                                          lines[i])};
    }
    lines[i] = line.front().line;
    const Line words = line.subspan(1);
    if (words.size() == 1 && words.front().text == kAny) {
      return std::nullopt;
    }
    places_[i] = {file.tokens.Path(), lines[i]};
    AllowedPairs& allowed = input_.allowed[i];
    if (file.role.path == &AllocationSettings::candidates_file) {
      return ReadCandidates(words, allowed);
    }
    if (words.size() != 1) {
      return OtherWords(fmt::format("{} words behind the name of the offspring, expected 1{}",
                                    words.size(), words.empty() ? "; * stands for any" : ""));
    }
    return file.role.path == &AllocationSettings::known_mother_file
               ? ReadMother(words.front().text, allowed)
               : ReadGroup(words.front().text, allowed);
  }

  std::optional<Problem> ReadMother(std::string_view name, AllowedPairs& allowed) const {
    const auto mother = mothers_.Find(name);
    if (!mother) {
      return mother.error();
    }
    allowed.known_parent = *mother;
    return std::nullopt;
  }

  std::optional<Problem> ReadCandidates(const Line& names, AllowedPairs& allowed) const {
    if (names.empty()) {
      return OtherWords("no candidate behind the name of the offspring; * stands for all");
    }
    auto& candidates = allowed.candidates.emplace();
    for (const Token& name : names) {
      if (name.text == kAny) {
        return OtherWords("* stands for all candidates and goes without their names");
      }
      const auto candidate = parents_.Find(name.text);
      if (!candidate) {
        return candidate.error();
      }
      candidates.push_back(*candidate);
    }
    std::sort(candidates.begin(), candidates.end());
    candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
    return std::nullopt;
  }

  std::optional<Problem> ReadGroup(std::string_view text, AllowedPairs& allowed) const {
    const auto number = ParseInteger(text);
    const std::size_t groups = input_.groups.size();
    if (!number || *number < 1 || static_cast<std::size_t>(*number) > groups) {
      return Problem{.kind = ProblemKind::kUnknownGroup,
                     .found = groups == 1
                                  ? fmt::format("{}; there is 1 group, number 1", Quoted(text))
                                  : fmt::format("{}; there are {} groups, numbers 1 to {}",
                                                Quoted(text), groups, groups)};
    }
    allowed.group = static_cast<std::uint32_t>(*number - 1);
    return std::nullopt;
  }

  std::string WhyNoPair(std::size_t i) const {
    const AllowedPairs& allowed = input_.allowed[i];
    const auto name = [this](Slot slot) { return Quoted(input_.table.Name(slot).Text()); };
    const std::string of = name(Slot{input_.offspring.begin + static_cast<std::uint32_t>(i)});
    if (allowed.known_parent && !allowed.IsCandidate(*allowed.known_parent)) {
      return fmt::format("{} is known to be of {}, but is none of its candidates",
                         name(*allowed.known_parent), of);
    }
    return fmt::format("{} parents of one group agree with all that is told of {}",
                       flow_ == Flow::kSexed ? "no male and female" : "no two", of);
  }

  Flow flow_;
  AllocationInput& input_;
  Names offspring_{"offspring"};
  Names parents_{"collected parents"};
  Names mothers_;
  std::vector<Place> places_;  ///< by offspring: the last that was said of it
};

}  // namespace

std::optional<Problem> ReadAllowedPairs(Flow flow, const AllocationFiles& files,
                                        AllocationInput& input) {
  if (files.knowledge.empty()) {
    return std::nullopt;
  }
  KnowledgeReader reader(flow, input);
  for (const AllocationFile& file : files.knowledge) {
    if (auto problem = reader.Read(file)) {
      return problem;
    }
  }
  return reader.FindWithoutPair();
}

}  // namespace kaldo
