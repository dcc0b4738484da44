// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/pedigree.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include <fmt/format.h>

#include "allocation/findings.h"
#include "runs/tsv_row.h"

namespace kaldo {

namespace {

using Parents = std::array<std::optional<std::size_t>, 2>;

/// Phrases of which the first are told, and how many more there are.
class Listing {
 public:
  void Add(std::string phrase) {
    constexpr std::size_t kMost = 20;
    if (!told_.insert(phrase).second) {
      return;
    }
    ++count_;
    if (count_ <= kMost) {
      phrases_.push_back(std::move(phrase));
    }
  }

  bool IsEmpty() const { return count_ == 0; }

  Problem Told() const {
    std::string found = fmt::format("{}", fmt::join(phrases_, "; "));
    if (count_ > phrases_.size()) {
      found += fmt::format("; and {} more", count_ - phrases_.size());
    }
    return {.kind = ProblemKind::kCannotExport, .found = std::move(found)};
  }

 private:
  std::size_t count_ = 0;
  std::set<std::string> told_;
  std::vector<std::string> phrases_;
};

/// Puts a pedigree together, in the order of the files.
class PedigreeMaker {
 public:
  PedigreeMaker(const ExportedStudy& study, bool by_sex) : study_(study), by_sex_(by_sex) {}

  tl::expected<Pedigree, Problem> Make() {
    for (const Slot parent : study_.Parents()) {
      AddParent(parent);
    }
    for (std::size_t place = 0; place < study_.NumberOfOffspring(); ++place) {
      AddOffspring(study_.Offspring(place));
    }
    if (!faults_.IsEmpty()) {
      return tl::unexpected(faults_.Told());
    }
    return InOrder();
  }

 private:
  std::size_t AddRow(Slot individual) {
    rows_.push_back(
        {study_.Name(individual), study_.Code(individual), study_.SexOf(individual), {}});
    return rows_.size() - 1;
  }

  void AddParent(Slot parent) {
    const auto [entry, is_new] = places_.try_emplace(study_.Name(parent), rows_.size());
    if (is_new) {
      place_of_parent_[parent] = AddRow(parent);
    } else {
      faults_.Add(fmt::format("{} is the name of two parents", Quoted(study_.Name(parent))));
    }
  }

  /// The places of the parents that the allocation names, as far as they are sure enough.
  Parents ParentsOf(const ExportedOffspring& offspring) const {
    const auto least = study_.Settings().exports.least_probability;
    Parents parents;
    for (std::size_t k = 0; k < parents.size(); ++k) {
      const ExportedSide& side = offspring.sides.at(k);
      const auto place =
          side.Parent() ? place_of_parent_.find(*side.Parent()) : place_of_parent_.end();
      if (place != place_of_parent_.end() && (!least || side.probability.value_or(-1) >= *least)) {
        parents.at(k) = place->second;
      }
    }
    return parents;
  }

  /// Sire and dam of two parents in any order.
  Parents BySex(const Parents& parents, const std::string& offspring) {
    Parents sorted;
    for (const auto& parent : parents) {
      if (!parent) {
        continue;
      }
      const Sex sex = rows_[*parent].sex;
      auto& place = sorted.at(sex == Sex::kFemale ? 1 : 0);
      if (sex == Sex::kUnknown) {
        faults_.Add(fmt::format("the sex of {} is not known", Quoted(rows_[*parent].name)));
      } else if (place) {
        faults_.Add(fmt::format("both parents of {}, {} and {}, are {}", Quoted(offspring),
                                Quoted(rows_[*place].name), Quoted(rows_[*parent].name),
                                sex == Sex::kMale ? "males" : "females"));
      } else {
        place = parent;
      }
    }
    return sorted;
  }

  void AddOffspring(const ExportedOffspring& offspring) {
    const std::string name = study_.Name(offspring.slot);
    Parents parents = ParentsOf(offspring);
    if (by_sex_) {
      parents = BySex(parents, name);
    }
    const auto [entry, is_new] = places_.try_emplace(name, rows_.size());
    if (is_new) {
      AddRow(offspring.slot);
    }
    if (!offspring_.emplace(entry->second, true).second) {
      faults_.Add(fmt::format("{} is the name of two offspring", Quoted(name)));
    }
    rows_[entry->second].parents = parents;
  }

  /// Founders first, then whoever has both parents above, again and again.
  tl::expected<Pedigree, Problem> InOrder() {
    constexpr auto kNowhere = static_cast<std::size_t>(-1);
    Pedigree pedigree{{}, by_sex_};
    std::vector<std::size_t> places(rows_.size(), kNowhere);
    std::vector<std::size_t> waiting(rows_.size());
    for (std::size_t k = 0; k < waiting.size(); ++k) {
      waiting[k] = k;
    }
    const auto is_ready = [&](std::size_t row) {
      return std::all_of(
          rows_[row].parents.begin(), rows_[row].parents.end(),
          [&](const auto& parent) { return !parent || places[*parent] != kNowhere; });
    };
    while (!waiting.empty()) {
      const auto rest = std::stable_partition(waiting.begin(), waiting.end(), is_ready);
      if (rest == waiting.begin()) {
        return tl::unexpected(OwnAncestors(waiting));
      }
      for (auto row = waiting.begin(); row != rest; ++row) {
        places[*row] = pedigree.rows.size();
        pedigree.rows.push_back(rows_[*row]);
        for (auto& parent : pedigree.rows.back().parents) {
          parent = parent ? std::optional(places[*parent]) : std::nullopt;
        }
      }
      waiting.erase(waiting.begin(), rest);
    }
    return pedigree;
  }

  Problem OwnAncestors(const std::vector<std::size_t>& rows) const {
    Listing listing;
    for (const std::size_t row : rows) {
      listing.Add(fmt::format("{} descends from itself", Quoted(rows_[row].name)));
    }
    return listing.Told();
  }

  const ExportedStudy& study_;
  bool by_sex_;
  Listing faults_;
  std::vector<PedigreeRow> rows_;
  std::map<std::string, std::size_t> places_;
  std::map<Slot, std::size_t> place_of_parent_;
  std::map<std::size_t, bool> offspring_;
};

void AddName(const Pedigree& pedigree, std::optional<std::size_t> place, TsvRow& row) {
  if (place) {
    row.Text(pedigree.rows[*place].name);
  } else {
    row.Nothing();
  }
}

std::string Heads(std::initializer_list<std::string_view> heads) {
  TsvRow row;
  for (const std::string_view head : heads) {
    row.Plain(head);
  }
  return row.Line();
}

/// Gives names that nobody has.
class NewNames {
 public:
  explicit NewNames(const Pedigree& pedigree) {
    for (const PedigreeRow& row : pedigree.rows) {
      taken_[row.name] = true;
      taken_[row.code] = true;
    }
  }

  std::string Like(std::string name) {
    while (!taken_.emplace(name, true).second) {
      name += '_';
    }
    return name;
  }

 private:
  std::map<std::string, bool> taken_;
};

/// The codes by which the individuals stand in a .fam file, which knows neither blanks nor "0".
std::vector<std::string> PlinkNames(const Pedigree& pedigree) {
  NewNames names(pedigree);
  std::vector<std::string> codes;
  codes.reserve(pedigree.rows.size());
  for (const PedigreeRow& row : pedigree.rows) {
    const bool fits = row.name != "0" && !row.name.empty() &&
                      row.name.find_first_of(" \t\r\n") == std::string::npos;
    const bool code_fits = row.code != "0";
    codes.push_back(fits ? row.name : (code_fits ? row.code : names.Like("ind0")));
  }
  return codes;
}

}  // namespace

tl::expected<Pedigree, Problem> PedigreeOf(const ExportedStudy& study, bool by_sex) {
  if (study.Settings().exports.least_probability && !KnowsCertainty(study.Result())) {
    return tl::unexpected(
        Problem{.kind = ProblemKind::kCannotExport,
                .found = "--min-probability asks for probabilities, which were not computed"});
  }
  return PedigreeMaker(study, by_sex).Make();
}

std::string PlainPedigree(const Pedigree& pedigree) {
  const bool sexed = pedigree.knows_sexes;
  std::string text = sexed ? Heads({"id", "dam", "sire"}) : Heads({"id", "parent1", "parent2"});
  for (const PedigreeRow& individual : pedigree.rows) {
    TsvRow row;
    row.Text(individual.name);
    AddName(pedigree, individual.parents[sexed ? 1 : 0], row);
    AddName(pedigree, individual.parents[sexed ? 0 : 1], row);
    text += row.Line();
  }
  return text;
}

std::string OptiSelPedigree(const Pedigree& pedigree) {
  std::string text = Heads({"Indiv", "Sire", "Dam", "Sex"});
  for (const PedigreeRow& individual : pedigree.rows) {
    TsvRow row;
    row.Text(individual.name);
    AddName(pedigree, individual.parents[0], row);
    AddName(pedigree, individual.parents[1], row);
    if (individual.sex == Sex::kUnknown) {
      row.Nothing();
    } else {
      row.Plain(individual.sex == Sex::kMale ? "male" : "female");
    }
    text += row.Line();
  }
  return text;
}

std::string Kinship2Pedigree(const Pedigree& pedigree) {
  NewNames names(pedigree);
  std::string founders;
  std::string others;
  for (const PedigreeRow& individual : pedigree.rows) {
    const auto& parents = individual.parents;
    TsvRow row;
    row.Text(individual.name);
    for (std::size_t k = 0; k < parents.size(); ++k) {
      if (parents.at(k) || !parents.at(1 - k)) {
        AddName(pedigree, parents.at(k), row);
        continue;
      }
      const std::string mate = names.Like("UC_" + individual.name);
      row.Text(mate);
      founders += TsvRow().Text(mate).Nothing().Nothing().Whole(k + 1).Line();
    }
    row.Whole(individual.sex == Sex::kUnknown ? 3 : static_cast<int>(individual.sex));
    (parents[0] || parents[1] ? others : founders) += row.Line();
  }
  return Heads({"id", "dadid", "momid", "sex"}) + founders + others;
}

std::string PlinkPedigree(const Pedigree& pedigree) {
  const auto names = PlinkNames(pedigree);
  std::string text;
  for (std::size_t k = 0; k < names.size(); ++k) {
    const PedigreeRow& row = pedigree.rows[k];
    const auto name_of = [&](std::optional<std::size_t> parent) {
      return parent ? std::string_view(names[*parent]) : "0";
    };
    text += fmt::format("1 {} {} {} {} -9\n", names[k], name_of(row.parents[0]),
                        name_of(row.parents[1]), static_cast<int>(row.sex));
  }
  return text;
}

}  // namespace kaldo
