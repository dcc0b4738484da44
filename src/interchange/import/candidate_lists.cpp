// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of offspring and of candidate parents, as programs of paternity analysis take them beside a
// table of genotypes.
#include "interchange/import/candidate_lists.h"

#include <algorithm>
#include <array>
#include <set>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/problem.h"
#include "interchange/delimited_rows.h"
#include "interchange/import/foreign_file.h"
#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

/// What a column of a list holds.
struct ListColumn {
  bool is_known = false;  ///< the parent itself, not a candidate
  Sex sex = Sex::kUnknown;
};

bool HoldsAny(const std::string& text, std::initializer_list<std::string_view> words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return text.find(word) != std::string::npos; });
}

/// "Mother ID", "Candidate father 2"; nothing where the head says none of it.
std::optional<ListColumn> ColumnHeaded(std::string_view head) {
  const std::string text = Lower(head);
  const bool is_candidate = HoldsAny(text, {"candidate"});
  const bool is_female = HoldsAny(text, {"mother", "dam", "female"});
  const bool is_male = !is_female && HoldsAny(text, {"father", "sire", "male"});
  if (!is_candidate && !is_female && !is_male && !HoldsAny(text, {"parent"})) {
    return std::nullopt;
  }
  return ListColumn{!is_candidate,
                    is_female ? Sex::kFemale : (is_male ? Sex::kMale : Sex::kUnknown)};
}

/// What the lists tell of an offspring; by sex where they tell it.
struct ToldParents {
  std::array<std::vector<std::string>, 3> candidates;
  std::array<std::string, 3> known;  ///< empty: nobody

  bool IsRestricted() const {
    return std::any_of(candidates.begin(), candidates.end(),
                       [](const auto& names) { return !names.empty(); });
  }
};

std::size_t PlaceOf(Sex sex) { return static_cast<std::size_t>(sex); }

class ListTaker {
 public:
  ListTaker(const ImportChoices& choices, FileSource& source, ForeignStudy& study, ImportLog& log)
      : choices_(choices), source_(source), study_(study), log_(log) {
    for (std::size_t k = 0; k < study.individuals.size(); ++k) {
      places_[study.individuals[k].name].push_back(k);
    }
  }

  void Take() {
    if (!study_.known.empty()) {
      log_.faults.Add({.found = "The files tell the parents of offspring themselves: there is "
                                "nothing to take from lists."});
      return;
    }
    TakeList(choices_.offspring_list, std::nullopt);
    TakeList(choices_.father_list, Sex::kMale);
    TakeList(choices_.mother_list, Sex::kFemale);
    if (log_.faults.IsEmpty()) {
      SettleOthers();
      AddKnown();
    }
  }

 private:
  void Fault(std::uint32_t line, std::string found) {
    log_.faults.Add({.file = path_, .line = line, .found = std::move(found)});
  }

  /// A list of candidates of one sex, or else of offspring.
  void TakeList(const std::string& path, std::optional<Sex> sex) {
    if (path.empty()) {
      return;
    }
    path_ = path;
    auto file = OpenForeignFile(path, std::nullopt, source_);
    if (!file) {
      Fault(0, file.error());
      return;
    }
    if (!file->rows) {
      file->rows = std::make_shared<DelimitedRows>(*file->text, ',');
    }
    const auto first = file->FirstRows(2);
    const bool is_of_offspring =
        !sex || std::any_of(first.begin(), first.end(), [](const Row& row) {
          return std::count_if(row.cells.begin(), row.cells.end(),
                               [](const std::string& cell) { return !Trimmed(cell).empty(); }) > 1;
        });
    columns_.assign(kMaxColumns, ListColumn{false, sex.value_or(Sex::kUnknown)});
    has_untyped_ = 0;
    rows_ = 0;
    TakeRows(*file->rows, is_of_offspring, sex);
    log_.notes.push_back(fmt::format("{}: {}", path_, Counted(rows_, "line", "lines")) +
                         (is_of_offspring ? " of offspring" : " of candidate parents"));
    if (has_untyped_ > 0) {
      log_.warnings.push_back(fmt::format(
          "{}: {} without genotypes left out, the first is {} (line {}).", path_,
          Counted(has_untyped_, "name", "names"), Quoted(first_untyped_), first_untyped_line_));
    }
  }

  void TakeRows(RowSource& rows, bool is_of_offspring, std::optional<Sex> sex) {
    Row row;
    std::set<std::string> seen;
    bool is_first = true;
    while (true) {
      const auto read = rows.Next(row);
      if (!read) {
        Fault(read.error().line, read.error().found);
        return;
      }
      if (!*read) {
        return;
      }
      const std::string name(Trimmed(row.Cell(0)));
      const bool is_head = is_first && !places_.contains(name);
      is_first = false;
      if (is_head) {
        if (!sex && !TakeHeads(row)) {
          return;
        }
        continue;
      }
      ++rows_;
      if (!is_of_offspring) {
        Enlist(name, Role::kParent, *sex, row.line);
      } else if (!seen.insert(name).second) {
        Fault(row.line, fmt::format("{} stands in an earlier line", Quoted(name)));
      } else if (Enlist(name, Role::kOffspring, Sex::kUnknown, row.line) && !TakeRow(name, row)) {
        return;
      }
    }
  }

  bool TakeHeads(const Row& heads) {
    ListColumn last;
    for (std::size_t k = 1; k < heads.cells.size(); ++k) {
      const std::string_view head = Trimmed(heads.cells[k]);
      const auto column = head.empty() ? last : ColumnHeaded(head);
      if (!column) {
        Fault(heads.line, fmt::format("{} is none of Mother, Father, Parent and Candidate ...: a "
                                      "head tells whether its column holds known parents or "
                                      "candidates",
                                      Quoted(head)));
        return false;
      }
      columns_[k] = *column;
      last = {false, column->sex};
    }
    std::fill(columns_.begin() +
                  static_cast<std::ptrdiff_t>(std::max<std::size_t>(1, heads.cells.size())),
              columns_.end(), last);
    return true;
  }

  bool TakeRow(const std::string& offspring, const Row& row) {
    ToldParents& told = told_[offspring];
    for (std::size_t k = 1; k < row.cells.size(); ++k) {
      const std::string name(Trimmed(row.cells[k]));
      const ListColumn& column = columns_[k];
      if (IsMissingCell(name, choices_.missing_code) ||
          !Enlist(name, Role::kParent, column.sex, row.line)) {
        continue;
      }
      if (column.is_known) {
        told.known.at(PlaceOf(SexOf(name, column.sex))) = name;
        continue;
      }
      told.candidates.at(PlaceOf(SexOf(name, column.sex))).push_back(name);
      if (++told_candidates_ > kMostCandidates) {
        Fault(row.line, fmt::format("there are more than {} candidates", kMostCandidates));
        return false;
      }
    }
    return true;
  }

  Sex SexOf(const std::string& name, Sex told) const {
    return told == Sex::kUnknown ? study_.individuals[places_.at(name).front()].sex : told;
  }

  /// Gives the individual the role and the sex. One that has the other role already gets both: it
  /// was an offspring once. False where there is none of that name.
  bool Enlist(const std::string& name, Role role, Sex sex, std::uint32_t line) {
    const auto found = places_.find(name);
    if (found == places_.end()) {
      if (has_untyped_++ == 0) {
        first_untyped_ = name;
        first_untyped_line_ = line;
      }
      return false;
    }
    bool has_role = false;
    for (const std::size_t place : found->second) {
      ForeignIndividual& individual = study_.individuals[place];
      individual.role = individual.role == Role::kUnknown ? role : individual.role;
      has_role = has_role || individual.role == role;
      if (sex != Sex::kUnknown && individual.sex != Sex::kUnknown && individual.sex != sex) {
        Fault(line, fmt::format("{} has the other sex elsewhere", Quoted(name)));
      }
      individual.sex = sex == Sex::kUnknown ? individual.sex : sex;
    }
    if (!has_role) {
      ForeignIndividual again = study_.individuals[found->second.front()];
      again.role = role;
      found->second.push_back(study_.individuals.size());
      study_.individuals.push_back(std::move(again));
    }
    return true;
  }

  void SettleOthers() {
    if (choices_.offspring_list.empty() || !choices_.offspring_populations.empty()) {
      return;
    }
    const bool tells_parents =
        std::any_of(study_.individuals.begin(), study_.individuals.end(),
                    [](const auto& each) { return each.role == Role::kParent; });
    std::size_t others = 0;
    for (ForeignIndividual& individual : study_.individuals) {
      if (individual.role == Role::kUnknown) {
        ++others;
        individual.role = tells_parents ? Role::kUnknown : Role::kParent;
      }
    }
    if (tells_parents && others > 0) {
      std::erase_if(study_.individuals,
                    [](const auto& each) { return each.role == Role::kUnknown; });
      log_.notes.push_back(fmt::format("{} in no list and left out",
                                       Counted(others, "individual stands", "individuals stand")));
    }
  }

  void AddKnown() {
    std::array<std::vector<std::string>, 3> parents;
    for (const ForeignIndividual& individual : study_.individuals) {
      if (individual.role == Role::kParent) {
        parents.at(PlaceOf(individual.sex)).push_back(individual.name);
      }
    }
    const bool is_sexed = parents.at(PlaceOf(Sex::kUnknown)).empty();
    std::size_t candidates = 0;
    for (auto& [offspring, told] : told_) {
      KnownOffspring known{.name = offspring, .mother = {}, .candidates = {}};
      is_sexed ? FillBySex(told, parents, known) : Fill(told, known);
      KeepOnce(offspring, known.candidates);
      candidates += known.candidates.size();
      if (candidates > kMostCandidates) {
        log_.faults.Add(
            {.found = fmt::format("The offspring have more than {} candidates.", kMostCandidates)});
        return;
      }
      if (known.mother || !known.candidates.empty()) {
        study_.known.push_back(std::move(known));
      }
    }
  }

  /// Every name once; nobody is its own parent.
  static void KeepOnce(const std::string& offspring, std::vector<std::string>& names) {
    std::set<std::string_view> seen = {offspring};
    std::vector<std::string> kept;
    kept.reserve(names.size());
    std::copy_if(names.begin(), names.end(), std::back_inserter(kept),
                 [&](const std::string& name) { return seen.insert(name).second; });
    names = std::move(kept);
  }

  /// A side of which nothing is told keeps all parents of that sex.
  static void FillBySex(const ToldParents& told,
                        const std::array<std::vector<std::string>, 3>& parents,
                        KnownOffspring& known) {
    const std::string& mother = told.known.at(PlaceOf(Sex::kFemale));
    const std::string& father = told.known.at(PlaceOf(Sex::kMale));
    if (!mother.empty()) {
      known.mother = mother;
    }
    if (!told.IsRestricted() && father.empty()) {
      return;
    }
    for (const Sex sex : {Sex::kMale, Sex::kFemale}) {
      const auto& listed = told.candidates.at(PlaceOf(sex));
      const auto& all = listed.empty() ? parents.at(PlaceOf(sex)) : listed;
      const std::string& one = told.known.at(PlaceOf(sex));
      if (one.empty() || (sex == Sex::kFemale && listed.empty())) {
        known.candidates.insert(known.candidates.end(), all.begin(), all.end());
      } else {
        known.candidates.push_back(one);
      }
    }
  }

  /// Where not all sexes are known, one of the known parents is told as such and the list holds
  /// everybody named.
  static void Fill(const ToldParents& told, KnownOffspring& known) {
    std::vector<std::string> named;
    std::copy_if(told.known.begin(), told.known.end(), std::back_inserter(named),
                 [](const std::string& name) { return !name.empty(); });
    if (!named.empty()) {
      known.mother = named.back();
    }
    if (told.IsRestricted() || named.size() > 1) {
      known.candidates = std::move(named);
      for (const auto& names : told.candidates) {
        known.candidates.insert(known.candidates.end(), names.begin(), names.end());
      }
    }
  }

  const ImportChoices& choices_;
  FileSource& source_;
  ForeignStudy& study_;
  ImportLog& log_;
  std::map<std::string, std::vector<std::size_t>> places_;  ///< of individuals, by name
  std::map<std::string, ToldParents> told_;                 ///< by offspring
  std::size_t told_candidates_ = 0;

  // Of the list that is read.
  std::string path_;
  std::vector<ListColumn> columns_;
  std::size_t rows_ = 0;
  std::size_t has_untyped_ = 0;
  std::string first_untyped_;
  std::uint32_t first_untyped_line_ = 0;
};

}  // namespace

void TakeCandidateLists(const ImportChoices& choices, FileSource& source, ForeignStudy& study,
                        ImportLog& log) {
  if (!choices.offspring_list.empty() || !choices.father_list.empty() ||
      !choices.mother_list.empty()) {
    ListTaker(choices, source, study, log).Take();
  }
}

}  // namespace kaldo
