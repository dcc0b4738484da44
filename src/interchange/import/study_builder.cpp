// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/study_builder.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "base/problem.h"
#include "genotypes/capacities.h"
#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

/// Individuals, parents and offspring, that any run could take.
constexpr std::size_t kMostIndividuals = 2 * kMaxIndividuals;

/// Genotypes of all loci, wanted or not, that are kept while a study is read.
constexpr std::size_t kMostGenotypes = 20'000'000;

template <typename Value>
using Words = std::initializer_list<std::pair<std::string_view, Value>>;

template <typename Value>
std::optional<Value> ValueOf(std::string_view cell, Words<Value> words) {
  const std::string word = Lower(Trimmed(cell));
  for (const auto& [each, value] : words) {
    if (each == word) {
      return value;
    }
  }
  return std::nullopt;
}

std::optional<Sex> SexOf(std::string_view cell) {
  return ValueOf<Sex>(cell, {{"m", Sex::kMale},
                             {"male", Sex::kMale},
                             {"1", Sex::kMale},
                             {"1.0", Sex::kMale},
                             {"f", Sex::kFemale},
                             {"female", Sex::kFemale},
                             {"2", Sex::kFemale},
                             {"2.0", Sex::kFemale}});
}

struct RoleAndSex {
  Role role;
  Sex sex = Sex::kUnknown;
};

std::optional<RoleAndSex> RoleOf(std::string_view cell) {
  return ValueOf<RoleAndSex>(cell, {{"parent", {Role::kParent}},
                                    {"parents", {Role::kParent}},
                                    {"adult", {Role::kParent}},
                                    {"adults", {Role::kParent}},
                                    {"candidate", {Role::kParent}},
                                    {"p", {Role::kParent}},
                                    {"father", {Role::kParent, Sex::kMale}},
                                    {"sire", {Role::kParent, Sex::kMale}},
                                    {"male", {Role::kParent, Sex::kMale}},
                                    {"mother", {Role::kParent, Sex::kFemale}},
                                    {"dam", {Role::kParent, Sex::kFemale}},
                                    {"female", {Role::kParent, Sex::kFemale}},
                                    {"offspring", {Role::kOffspring}},
                                    {"o", {Role::kOffspring}},
                                    {"juvenile", {Role::kOffspring}},
                                    {"young", {Role::kOffspring}},
                                    {"progeny", {Role::kOffspring}},
                                    {"child", {Role::kOffspring}}});
}

}  // namespace

StudyBuilder::StudyBuilder(ForeignStudy& study, ImportLog& log, const ImportChoices& choices,
                           const ImportedFile& file)
    : study_(study), log_(log), choices_(choices), file_(file) {
  study_.files.push_back({.path = file.path});
  for (std::size_t k = 0; k < study_.populations.size(); ++k) {
    populations_.emplace(study_.populations[k], k);
  }
}

void StudyBuilder::Fault(std::uint32_t line, std::string_view column, std::string_view sample,
                         std::string found) {
  log_.faults.Add({file_.path, line, std::string(column), std::string(sample), std::move(found)});
}

void StudyBuilder::Note(const std::string& sentence) {
  log_.notes.push_back(fmt::format("{}: {}", file_.path, sentence));
}

void StudyBuilder::Warn(const std::string& sentence) {
  log_.warnings.push_back(fmt::format("{}: {}", file_.path, sentence));
}

bool StudyBuilder::SetLoci(const std::vector<std::string>& names) {
  if (names.empty()) {
    Fault(0, "", "", "it holds no locus");
    return false;
  }
  for (const std::string& wanted : choices_.loci) {
    if (std::find(names.begin(), names.end(), wanted) == names.end()) {
      Fault(0, "", "", fmt::format("--loci: there is no locus {} in it", Quoted(wanted)));
      return false;
    }
  }
  digits_.assign(names.size(), 0);
  if (study_.files.size() == 1) {
    TakeFirstLoci(names);
    return true;
  }
  return PlaceLoci(names);
}

void StudyBuilder::TakeFirstLoci(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const auto& wanted = choices_.loci;
    const bool is_wanted =
        wanted.empty() || std::find(wanted.begin(), wanted.end(), name) != wanted.end();
    places_.push_back(is_wanted ? study_.loci.size() : kNotWanted);
    if (is_wanted) {
      study_.loci.push_back(name);
    }
  }
}

bool StudyBuilder::PlaceLoci(const std::vector<std::string>& names) {
  std::vector<bool> is_taken(study_.loci.size());
  for (const std::string& name : names) {
    std::size_t place = kNotWanted;
    for (std::size_t k = 0; k < study_.loci.size() && place == kNotWanted; ++k) {
      if (!is_taken[k] && study_.loci[k] == name) {
        place = k;
        is_taken[k] = true;
      }
    }
    if (place == kNotWanted && choices_.loci.empty()) {
      Fault(0, "", "",
            fmt::format("the locus {} is not in {}; name those that all files have with --loci",
                        Quoted(name), study_.files.front().path));
      return false;
    }
    places_.push_back(place);
  }
  const auto left = std::find(is_taken.begin(), is_taken.end(), false);
  if (left != is_taken.end()) {
    const auto& name = study_.loci[static_cast<std::size_t>(left - is_taken.begin())];
    Fault(0, "", "",
          fmt::format("the locus {} of {} is not in it; name those that all files have with --loci",
                      Quoted(name), study_.files.front().path));
    return false;
  }
  return true;
}

bool StudyBuilder::AddIndividual(std::string_view name, std::uint32_t line) {
  if (study_.individuals.size() == kMostIndividuals ||
      study_.individuals.size() * study_.loci.size() >= kMostGenotypes) {
    Fault(line, "", "",
          fmt::format("there are more than {} individuals of {} loci, which no run can take",
                      study_.individuals.size(), study_.loci.size()));
    return false;
  }
  study_.individuals.push_back({.name = std::string(Trimmed(name)),
                                .file = study_.files.size() - 1,
                                .line = line,
                                .role = file_.role,
                                .sex = file_.sex,
                                .genotypes = std::vector<ForeignGenotype>(study_.loci.size())});
  ++File().individuals;
  return true;
}

void StudyBuilder::SetPopulation(std::string_view name) {
  name = Trimmed(name);
  auto known = populations_.find(name);
  if (known == populations_.end()) {
    known = populations_.emplace(std::string(name), study_.populations.size()).first;
    study_.populations.emplace_back(name);
  }
  Individual().population = known->second;
}

void StudyBuilder::SetSex(ForeignCell cell) {
  if (Individual().sex != Sex::kUnknown) {
    return;
  }
  if (const auto sex = SexOf(cell.text)) {
    Individual().sex = *sex;
  } else if (!IsMissingCell(cell.text, choices_.missing_code) &&
             !ValueOf<bool>(cell.text, {{"u", true}, {"unknown", true}, {"3", true}})) {
    Fault(cell.line, cell.column, Individual().name,
          Quoted(cell.text) + " is no sex: write m, male or 1, or f, female or 2");
  }
}

void StudyBuilder::SetRole(ForeignCell cell) {
  if (Individual().role != Role::kUnknown) {
    return;
  }
  if (const auto role = RoleOf(cell.text)) {
    Individual().role = role->role;
    if (Individual().sex == Sex::kUnknown) {
      Individual().sex = role->sex;
    }
  } else {
    Fault(cell.line, cell.column, Individual().name,
          Quoted(cell.text) + " is no role: write parent (father, mother) or offspring");
  }
}

void StudyBuilder::NoteDecimal(ForeignCell cell) {
  log_.conversions[fmt::format("{}, column {}: sizes with a fraction of 0, such as 124.0, taken "
                               "for whole numbers",
                               file_.path, Quoted(cell.column))]
      .Add(cell.line);
}

void StudyBuilder::Place(ForeignIndividual& individual, std::size_t locus, ForeignGenotype genotype,
                         ForeignCell cell) {
  constexpr std::size_t kMostListed = 10'000;
  if ((genotype.first == 0) != (genotype.second == 0)) {
    const ImportFault place{file_.path, cell.line, std::string(cell.column), individual.name,
                            fmt::format("one allele is {}, the other one is missing",
                                        std::max(genotype.first, genotype.second))};
    genotype = {};
    ++log_.half_missing_cells;
    if (choices_.half_missing_is_error) {
      log_.faults.Add(place);
    } else if (log_.half_missing.size() < kMostListed) {
      log_.half_missing.push_back(TextOf(place));
    }
  }
  individual.genotypes[places_[locus]] = genotype;
}

void StudyBuilder::SetAlleles(std::size_t locus, ForeignCell first, ForeignCell second) {
  SetAlleles(Individual(), locus, first, second);
}

void StudyBuilder::SetAlleles(ForeignIndividual& individual, std::size_t locus, ForeignCell first,
                              ForeignCell second) {
  if (!IsWanted(locus)) {
    return;
  }
  ForeignGenotype genotype;
  bool is_sound = true;
  for (const auto& [cell, allele] :
       {std::pair(&first, &genotype.first), std::pair(&second, &genotype.second)}) {
    const AlleleReading reading = ReadAllele(cell->text, choices_.missing_code);
    *allele = reading.size;
    if (!reading.fault.empty()) {
      is_sound = false;
      Fault(cell->line, cell->column, individual.name, reading.fault);
    } else if (reading.was_decimal) {
      NoteDecimal(*cell);
    }
  }
  if (is_sound) {
    Place(individual, locus, genotype, genotype.first == 0 ? first : second);
  }
}

void StudyBuilder::SetGenotype(std::size_t locus, ForeignCell both) {
  if (!IsWanted(locus)) {
    return;
  }
  const GenotypeReading reading = ReadGenotype(both.text, choices_.missing_code);
  if (!reading.fault.empty()) {
    Fault(both.line, both.column, Individual().name, reading.fault);
    return;
  }
  if (reading.digits != 0) {
    std::size_t& digits = digits_[locus];
    digits = digits == 0 ? reading.digits : digits;
    if (digits != reading.digits) {
      Fault(both.line, both.column, Individual().name,
            fmt::format("{} has {} digits per allele, others of the locus have {}",
                        Quoted(both.text), reading.digits, digits));
      return;
    }
  }
  if (reading.was_decimal) {
    NoteDecimal(both);
  }
  Place(Individual(), locus, {reading.first, reading.second}, both);
}

bool StudyBuilder::AddKnown(KnownOffspring known) {
  candidates_ += known.candidates.size();
  if (candidates_ > kMostCandidates) {
    Fault(0, "", "",
          fmt::format("its offspring have more than {} candidates, all together", kMostCandidates));
    return false;
  }
  study_.known.push_back(std::move(known));
  return true;
}

}  // namespace kaldo
