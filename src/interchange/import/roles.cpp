// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/roles.h"

#include <algorithm>
#include <map>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/problem.h"

namespace kaldo {

namespace {

/// Populations by their names, those of files that only number them also by their numbers.
std::optional<std::size_t> FindPopulation(const ForeignStudy& study, const std::string& name) {
  for (const std::string& wanted : {name, fmt::format("pop{}", name)}) {
    const auto found = std::find(study.populations.begin(), study.populations.end(), wanted);
    if (found != study.populations.end()) {
      return static_cast<std::size_t>(found - study.populations.begin());
    }
  }
  return std::nullopt;
}

std::string NamesOfPopulations(const ForeignStudy& study) {
  constexpr std::size_t kMostTold = 20;
  std::string names;
  for (std::size_t k = 0; k < std::min(study.populations.size(), kMostTold); ++k) {
    names += (k == 0 ? "" : ", ") + Quoted(study.populations[k]);
  }
  return names + (study.populations.size() > kMostTold ? ", ..." : "");
}

void SettleByPopulation(ForeignStudy& study, const ImportChoices& choices, ImportLog& log) {
  std::vector<bool> is_of_offspring(study.populations.size());
  for (const std::string& name : choices.offspring_populations) {
    const auto population = FindPopulation(study, name);
    if (!population) {
      log.faults.Add(
          {.found = study.populations.empty()
                        ? "--offspring-populations: the files know no populations"
                        : fmt::format("--offspring-populations: there is no population {}, but {}",
                                      Quoted(name), NamesOfPopulations(study))});
      return;
    }
    is_of_offspring[*population] = true;
  }
  for (ForeignIndividual& individual : study.individuals) {
    if (individual.role == Role::kUnknown) {
      const bool is_offspring = individual.population && is_of_offspring[*individual.population];
      individual.role = is_offspring ? Role::kOffspring : Role::kParent;
    }
  }
}

const std::string& PathOf(const ForeignStudy& study, const ForeignIndividual& individual) {
  return study.files[individual.file].path;
}

}  // namespace

void SettleRoles(ForeignStudy& study, const ImportChoices& choices, ImportLog& log) {
  if (!choices.offspring_populations.empty()) {
    SettleByPopulation(study, choices, log);
  }
  std::size_t parents = 0;
  std::size_t open = 0;
  for (const ForeignIndividual& individual : study.individuals) {
    parents += individual.role == Role::kParent ? 1U : 0U;
    open += individual.role == Role::kUnknown ? 1U : 0U;
    if (individual.name.empty()) {
      log.faults.Add({.file = PathOf(study, individual),
                      .line = individual.line,
                      .found = "an individual has no name"});
    }
  }
  if (open > 0 && choices.offspring_populations.empty()) {
    const std::string populations =
        study.populations.empty() ? "" : fmt::format(" ({})", NamesOfPopulations(study));
    log.faults.Add({.found = fmt::format(
                        "Who is a parent and who an offspring? Of {} it is not known. Say it by "
                        "file (--parents FILE --offspring FILE, or --males and --females), by "
                        "--role COLUMN, or by --offspring-populations NAME,...{}",
                        Counted(open, "individual", "individuals"), populations)});
  } else if (parents == 0 && log.faults.IsEmpty()) {
    log.faults.Add({.found = "There is no parent among the individuals."});
  }
}

bool SettleSexes(const ForeignStudy& study, const ImportChoices& choices, ImportLog& log) {
  if (choices.no_sexes) {
    return false;
  }
  std::size_t known = 0;
  std::size_t unknown = 0;
  const ForeignIndividual* first_unknown = nullptr;
  for (const ForeignIndividual& individual : study.individuals) {
    if (individual.role != Role::kParent) {
      continue;
    }
    if (individual.sex != Sex::kUnknown) {
      ++known;
    } else {
      first_unknown = unknown == 0 ? &individual : first_unknown;
      ++unknown;
    }
  }
  if (known > 0 && unknown > 0) {
    log.faults.Add({.file = PathOf(study, *first_unknown),
                    .line = first_unknown->line,
                    .sample = first_unknown->name,
                    .found = fmt::format("the sex of {} is not known, here first, of {} it is: "
                                         "tell all of them, or --no-sexes",
                                         Counted(unknown, "parent", "parents"), known)});
  }
  return known > 0 && unknown == 0;
}

void MergeRepeated(ForeignStudy& study, ImportLog& log) {
  std::map<std::pair<Role, std::string>, std::size_t> places;
  std::vector<ForeignIndividual> kept;
  kept.reserve(study.individuals.size());
  for (ForeignIndividual& individual : study.individuals) {
    const auto [place, is_new] =
        places.emplace(std::pair(individual.role, individual.name), kept.size());
    if (is_new) {
      kept.push_back(std::move(individual));
      continue;
    }
    const ForeignIndividual& earlier = kept[place->second];
    const std::string where = fmt::format("line {} of {}", earlier.line, PathOf(study, earlier));
    const bool is_same = earlier.genotypes == individual.genotypes &&
                         earlier.sex == individual.sex &&
                         earlier.population == individual.population;
    if (is_same) {
      log.notes.push_back(
          fmt::format("{}, line {} ({}): the same individual with the same "
                      "genotypes as in {}; kept once",
                      PathOf(study, individual), individual.line, individual.name, where));
    } else {
      log.faults.Add(
          {.file = PathOf(study, individual),
           .line = individual.line,
           .sample = individual.name,
           .found = fmt::format("the name stands in {} with other genotypes, another sex "
                                "or population; which is right?",
                                where)});
    }
  }
  study.individuals = std::move(kept);
}

}  // namespace kaldo
