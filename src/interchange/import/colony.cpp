// SPDX-License-Identifier: GPL-3.0-or-later
// COLONY: the numbers of offspring and loci, settings, then blocks of genotypes of offspring,
// candidate fathers and candidate mothers, and what is known of parents; "!" begins a remark.
#include <algorithm>
#include <map>
#include <set>

#include <fmt/format.h>

#include "base/number_text.h"
#include "base/problem.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"

namespace kaldo {

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::size_t kFirstSettings = 12;  ///< full lines before the loci, at the least

/// A line that holds more than a remark. Its words are found when they are needed: those of all
/// lines would take many times the memory of the file.
struct FullLine {
  std::uint32_t number = 0;
  std::string_view text;

  std::vector<std::string_view> Words() const { return WordsBetween(text, kBlanks); }
  std::string_view FirstWord() const { return text.substr(0, text.find_first_of(kBlanks)); }
};

std::vector<FullLine> FullLinesOf(std::string_view text, std::size_t most) {
  std::vector<FullLine> full;
  TextLines lines(text);
  TextLine line;
  while (full.size() < most && lines.Next(line)) {
    line.text = Trimmed(line.text.substr(0, line.text.find('!')));
    if (!line.text.empty()) {
      full.push_back({line.number, line.text});
    }
  }
  return full;
}

std::size_t CountIn(std::string_view word) {
  const auto number = ParseInteger(word);
  return number && *number >= 0 ? static_cast<std::size_t>(*number) : 0;
}

class ColonyReader {
 public:
  ColonyReader(std::string_view text, StudyBuilder& builder)
      : lines_(FullLinesOf(text, kMostLines)), builder_(builder) {}

  void Read() {
    if (!FindLoci() || !builder_.SetLoci(loci_)) {
      return;
    }
    const std::size_t offspring = CountIn(lines_[2].FirstWord());
    if (!TakeGenotypes(offspring, Role::kOffspring, Sex::kUnknown)) {
      return;
    }
    ++at_;  // how probable it is that parents are among the candidates
    const auto counts = Counts(2);
    const bool has_sexes = lines_[6].FirstWord() != "1" || counts[1] > 0;
    if (!TakeGenotypes(counts[0], Role::kParent, has_sexes ? Sex::kMale : Sex::kUnknown) ||
        !TakeGenotypes(counts[1], Role::kParent, Sex::kFemale)) {
      return;
    }
    TakeKnown();
  }

 private:
  static constexpr std::size_t kMostLines = 400'000;
  static constexpr std::size_t kMostExclusions = 1'000'000;

  /// The names of the loci stand before three lines of settings of the loci and the genotypes.
  bool FindLoci() {
    const std::size_t number = lines_.size() > 3 ? CountIn(lines_[3].FirstWord()) : 0;
    const auto fits = [number](const FullLine& line) {
      const auto words = line.Words();
      return words.size() == number || (words.size() == 1 && words.back().ends_with('@'));
    };
    for (std::size_t k = kFirstSettings; number > 0 && k + 4 < lines_.size(); ++k) {
      if (fits(lines_[k]) && fits(lines_[k + 1]) && fits(lines_[k + 2]) && fits(lines_[k + 3]) &&
          lines_[k + 4].Words().size() == 1 + 2 * number) {
        NameLoci(lines_[k], number);
        CheckTypes(lines_[k + 1]);
        at_ = k + 4;
        return true;
      }
    }
    builder_.Fault(0, "", "",
                   fmt::format("the names of {} loci, their settings and the genotypes of the "
                               "offspring are not found",
                               number));
    return false;
  }

  /// "mk@" stands for mk1, mk2, ...
  void NameLoci(const FullLine& line, std::size_t number) {
    const auto words = line.Words();
    const std::string_view stem = words.back().substr(0, words.back().find('@'));
    const bool is_numbered = words.size() == 1 && words.back().ends_with('@');
    for (std::size_t k = 0; k < number; ++k) {
      loci_.push_back(is_numbered ? fmt::format("{}{}", stem, k + 1)
                                  : std::string(k + 1 == number ? stem : words[k]));
    }
  }

  void CheckTypes(const FullLine& line) {
    const auto words = line.Words();
    if (std::any_of(words.begin(), words.end(),
                    [](std::string_view word) { return word.starts_with('1'); })) {
      builder_.Fault(line.number, "", "",
                     "a locus is dominant; only codominant ones such as microsatellites are read");
    }
  }

  /// The numbers of the next line.
  std::vector<std::size_t> Counts(std::size_t wanted) {
    std::vector<std::size_t> counts;
    if (at_ < lines_.size()) {
      for (const std::string_view word : lines_[at_++].Words()) {
        counts.push_back(CountIn(word));
      }
    }
    counts.resize(std::max(counts.size(), wanted));
    return counts;
  }

  bool TakeGenotypes(std::size_t count, Role role, Sex sex) {
    for (std::size_t k = 0; k < count; ++k, ++at_) {
      const FullLine line = at_ < lines_.size() ? lines_[at_] : FullLine();
      const auto words = line.Words();
      if (words.size() != 1 + 2 * loci_.size()) {
        builder_.Fault(line.number, "", "",
                       fmt::format("expected the name and the {} alleles of individual {} of {}",
                                   2 * loci_.size(), k + 1, count));
        return false;
      }
      if (!builder_.AddIndividual(words[0], line.number)) {
        return false;
      }
      builder_.Individual().role = role;
      builder_.Individual().sex = sex;
      for (std::size_t locus = 0; locus < loci_.size(); ++locus) {
        builder_.SetAlleles(locus, {words[1 + 2 * locus], line.number, loci_[locus]},
                            {words[2 + 2 * locus], line.number, loci_[locus]});
      }
      if (role == Role::kParent) {
        (sex == Sex::kFemale ? females_ : males_).emplace_back(words[0]);
      }
    }
    return true;
  }

  template <typename Take>
  void ForEachLine(Take take) {
    const std::size_t count = Counts(1)[0];
    for (std::size_t k = 0; k < count && at_ < lines_.size(); ++k, ++at_) {
      take(lines_[at_].Words());
    }
  }

  /// Known fathers and mothers, known sibs of either side, which no file of a run tells, and
  /// parents that are none.
  void TakeKnown() {
    using FieldsOfLine = std::vector<std::string_view>;
    std::map<std::string, std::string> fathers;
    std::map<std::string, std::string> mothers;
    std::map<std::string, std::set<std::string>> excluded;
    for (auto* parents : {&fathers, &mothers}) {
      ForEachLine([&](const FieldsOfLine& words) {
        if (words.size() > 1) {
          (*parents)[std::string(words[0])] = words[1];
        }
      });
    }
    std::size_t sibs = 0;
    std::size_t exclusions = 0;
    for (int side = 0; side < 2; ++side) {
      ForEachLine([&](const FieldsOfLine&) { ++sibs; });
    }
    for (int side = 0; side < 2; ++side) {
      ForEachLine([&](const FieldsOfLine& words) {
        for (std::size_t k = 2; k < words.size() && exclusions < kMostExclusions; ++k) {
          exclusions += excluded[std::string(words[0])].emplace(words[k]).second ? 1U : 0U;
        }
      });
    }
    if (exclusions == kMostExclusions) {
      builder_.Fault(0, "", "", fmt::format("it excludes {} parents or more", exclusions));
    }
    if (sibs > 0) {
      builder_.Note(fmt::format("{} known sibships are not taken over", sibs));
    }
    AddKnown(fathers, mothers, excluded);
  }

  void AddKnown(const std::map<std::string, std::string>& fathers,
                const std::map<std::string, std::string>& mothers,
                const std::map<std::string, std::set<std::string>>& excluded) {
    std::set<std::string> offspring;
    for (const auto* names : {&fathers, &mothers}) {
      for (const auto& [name, parent] : *names) {
        offspring.insert(name);
      }
    }
    for (const auto& [name, others] : excluded) {
      offspring.insert(name);
    }
    for (const std::string& name : offspring) {
      KnownOffspring known{.name = name, .mother = {}, .candidates = {}};
      if (const auto mother = mothers.find(name); mother != mothers.end()) {
        known.mother = mother->second;
      }
      const auto father = fathers.find(name);
      const auto others = excluded.find(name);
      const auto add = [&](const std::string& parent) {
        if (others == excluded.end() || !others->second.contains(parent)) {
          known.candidates.push_back(parent);
        }
      };
      if (father != fathers.end() || others != excluded.end()) {
        std::for_each(males_.begin(), males_.end(), [&](const std::string& male) {
          if (father == fathers.end() || father->second == male) {
            add(male);
          }
        });
        std::for_each(females_.begin(), females_.end(), add);
      }
      if (!builder_.AddKnown(std::move(known))) {
        return;
      }
    }
  }

  std::vector<FullLine> lines_;
  StudyBuilder& builder_;
  std::size_t at_ = 0;
  std::vector<std::string> loci_;
  std::vector<std::string> males_;
  std::vector<std::string> females_;
};

}  // namespace

std::optional<std::string> RecogniseColony(const ForeignFile& file) {
  const auto lines = FullLinesOf(*file.text, kFirstSettings + 1);
  if (lines.size() <= kFirstSettings || CountIn(lines[2].text) == 0 ||
      CountIn(lines[3].text) == 0) {
    return std::nullopt;
  }
  const bool are_settings =
      std::all_of(lines.begin() + 2, lines.begin() + kFirstSettings, [](const FullLine& line) {
        return line.Words().size() <= 4 && ParseDouble(line.FirstWord()).has_value();
      });
  if (!are_settings) {
    return std::nullopt;
  }
  return "a name, a file and a column of settings stand at its head";
}

void ReadColony(ForeignFile& file, StudyBuilder& builder) {
  ColonyReader(*file.text, builder).Read();
}

}  // namespace kaldo
