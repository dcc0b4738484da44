// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/offspring_knowledge.h"

#include <algorithm>
#include <functional>
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

/// Is told a fault; false where no other one is wanted.
using FaultSink = std::function<bool(Problem)>;

/// Reads the files of a run one after the other.
class KnowledgeReader {
 public:
  KnowledgeReader(Flow flow, AllocationInput& input, FaultSink sink)
      : flow_(flow),
        input_(input),
        sink_(std::move(sink)),
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

  /// False where no more is wanted.
  bool Read(const AllocationFile& file) {
    std::vector<std::uint32_t> lines(input_.NumberOfOffspring(), 0);
    for (const Line& line : LinesOf(file.tokens.Tokens())) {
      bool goes_on = true;
      const FaultSink tell = [&](Problem problem) {
        problem.file = file.tokens.Path();
        problem.line = line.front().line;
        goes_on = sink_(std::move(problem));
        return goes_on;
      };
      ReadLine(file, line, lines, tell);
      if (!goes_on) {
        return false;
      }
    }
    return true;
  }

  /// The offspring without a pair, at the line that left them none.
  void FindWithoutPair() const {
    for (std::size_t i = 0; i < places_.size(); ++i) {
      if (places_[i].line == 0 || places_[i].is_at_fault ||
          HasPair(flow_, input_.groups, input_.allowed[i])) {
        continue;
      }
      if (!sink_(Problem{.kind = ProblemKind::kNoPairAllowed,
                         .file = std::string(places_[i].file),
                         .line = places_[i].line,
                         .found = WhyNoPair(i)})) {
        return;
      }
    }
  }

 private:
  struct Place {
    std::string_view file;
    std::uint32_t line = 0;
    bool is_at_fault = false;  ///< something that was said of it
  };

  void ReadLine(const AllocationFile& file, const Line& line, std::vector<std::uint32_t>& lines,
                const FaultSink& tell) {
    const auto offspring = offspring_.Find(line.front().text);
    if (!offspring) {
      (void)tell(offspring.error());
      return;
    }
    const std::size_t i = offspring->Value() - input_.offspring.begin;
    const FaultSink tell_of_it = [&](Problem problem) {
      places_[i].is_at_fault = true;
      return tell(std::move(problem));
    };
    if (lines[i] != 0) {
      (void)tell_of_it({.kind = ProblemKind::kOffspringHasTwoLines,
                        .found = fmt::format("{} stands in line {} already",
                                             Quoted(line.front().text), lines[i])});
      return;
    }
    lines[i] = line.front().line;
    const Line words = line.subspan(1);
    if (words.size() == 1 && words.front().text == kAny) {
      return;
    }
    places_[i].file = file.tokens.Path();
    places_[i].line = lines[i];
    ReadWords(file, words, input_.allowed[i], tell_of_it);
  }

  void ReadWords(const AllocationFile& file, const Line& words, AllowedPairs& allowed,
                 const FaultSink& tell) const {
    if (file.role.path == &AllocationSettings::candidates_file) {
      return ReadCandidates(words, allowed, tell);
    }
    std::optional<Problem> problem;
    if (words.size() != 1) {
      problem = OtherWords(fmt::format("{} words behind the name of the offspring, expected 1{}",
                                       words.size(), words.empty() ? "; * stands for any" : ""));
    } else {
      problem = file.role.path == &AllocationSettings::known_mother_file
                    ? ReadMother(words.front().text, allowed)
                    : ReadGroup(words.front().text, allowed);
    }
    if (problem) {
      (void)tell(std::move(*problem));
    }
  }

  std::optional<Problem> ReadMother(std::string_view name, AllowedPairs& allowed) const {
    const auto mother = mothers_.Find(name);
    if (!mother) {
      return mother.error();
    }
    allowed.known_parent = *mother;
    return std::nullopt;
  }

  void ReadCandidates(const Line& names, AllowedPairs& allowed, const FaultSink& tell) const {
    if (names.empty()) {
      (void)tell(OtherWords("no candidate behind the name of the offspring; * stands for all"));
      return;
    }
    auto& candidates = allowed.candidates.emplace();
    for (const Token& name : names) {
      const tl::expected<Slot, Problem> candidate =
          name.text == kAny ? tl::unexpected(OtherWords(
                                  "* stands for all candidates and goes without their names"))
                            : parents_.Find(name.text);
      if (candidate) {
        candidates.push_back(*candidate);
      } else if (!tell(candidate.error())) {
        return;
      }
    }
    std::sort(candidates.begin(), candidates.end());
    candidates.erase(std::unique(candidates.begin(), candidates.end()), candidates.end());
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
  FaultSink sink_;
  Names offspring_{"offspring"};
  Names parents_{"collected parents"};
  Names mothers_;
  std::vector<Place> places_;  ///< by offspring: the last that was said of it
};

void ReadKnowledge(Flow flow, const AllocationFiles& files, AllocationInput& input,
                   FaultSink sink) {
  if (files.knowledge.empty()) {
    return;
  }
  KnowledgeReader reader(flow, input, std::move(sink));
  for (const AllocationFile& file : files.knowledge) {
    if (!reader.Read(file)) {
      return;
    }
  }
  reader.FindWithoutPair();
}

}  // namespace

std::optional<Problem> ReadAllowedPairs(Flow flow, const AllocationFiles& files,
                                        AllocationInput& input) {
  std::optional<Problem> first;
  ReadKnowledge(flow, files, input, [&](Problem problem) {
    first = std::move(problem);
    return false;
  });
  return first;
}

AlikeGroups<Problem> FindKnowledgeFaults(Flow flow, const AllocationFiles& files,
                                         AllocationInput& input) {
  AlikeGroups<Problem> faults;
  ReadKnowledge(flow, files, input, [&](Problem problem) {
    faults.Add(std::move(problem));
    return true;
  });
  return faults;
}

}  // namespace kaldo
