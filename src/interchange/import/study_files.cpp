// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/study_files.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

namespace {

constexpr std::size_t kFewestDigits = 3;

bool IsWritten(const ForeignIndividual& individual, Role role, Sex sex) {
  return individual.role == role && (sex == Sex::kUnknown || individual.sex == sex);
}

void AppendRecord(const SettledStudy& settled, const ForeignIndividual& individual,
                  std::string& text) {
  text += settled.names.Individual(individual.name);
  for (const ForeignGenotype& genotype : individual.genotypes) {
    text += fmt::format(" {0:0{2}}{1:0{2}}", genotype.first, genotype.second, settled.digits);
  }
  text += '\n';
}

std::string ParentsText(const SettledStudy& settled, Sex sex) {
  std::string text;
  const std::size_t groups = settled.has_groups ? settled.populations.size() : 1;
  for (std::size_t group = 0; group < groups; ++group) {
    text += group == 0 ? "" : "*\n";
    for (const ForeignIndividual& individual : settled.study.individuals) {
      if (IsWritten(individual, Role::kParent, sex) &&
          (!settled.has_groups || individual.population == settled.populations[group])) {
        AppendRecord(settled, individual, text);
      }
    }
  }
  return text;
}

std::string OffspringText(const SettledStudy& settled) {
  std::string text;
  for (const ForeignIndividual& individual : settled.study.individuals) {
    if (individual.role == Role::kOffspring) {
      AppendRecord(settled, individual, text);
    }
  }
  return text;
}

std::string LociText(const StudyNames& names) {
  return fmt::format("{}\n", fmt::join(names.loci, "\n"));
}

std::set<std::string> NamesOf(const ForeignStudy& study, Role role) {
  std::set<std::string> names;
  for (const ForeignIndividual& individual : study.individuals) {
    if (individual.role == role) {
      names.insert(individual.name);
    }
  }
  return names;
}

/// Two files of what is known of offspring, each only where something is.
void AddKnown(const SettledStudy& settled, std::vector<StudyFile>& files, ImportLog& log) {
  const auto parents = NamesOf(settled.study, Role::kParent);
  const auto offspring = NamesOf(settled.study, Role::kOffspring);
  std::string mothers;
  std::string candidates;
  for (const KnownOffspring& known : settled.study.known) {
    if (!offspring.contains(known.name)) {
      continue;
    }
    const std::string& name = settled.names.Individual(known.name);
    if (known.mother && parents.contains(*known.mother)) {
      mothers += fmt::format("{} {}\n", name, settled.names.Individual(*known.mother));
    } else if (known.mother) {
      log.warnings.push_back(
          fmt::format("The known mother {} of {} is none of the parents; she is "
                      "left out.",
                      Quoted(*known.mother), Quoted(known.name)));
    }
    std::string line;
    for (const std::string& candidate : known.candidates) {
      line += parents.contains(candidate) ? ' ' + settled.names.Individual(candidate) : "";
    }
    candidates += line.empty() ? "" : fmt::format("{}{}\n", name, line);
  }
  if (!mothers.empty()) {
    files.push_back({kImportedMothers, mothers});
  }
  if (!candidates.empty()) {
    files.push_back({kImportedCandidates, candidates});
  }
}

/// Whether the population has a parent of that sex.
bool HasParent(const ForeignStudy& study, std::size_t population, Sex sex) {
  return std::any_of(
      study.individuals.begin(), study.individuals.end(), [&](const ForeignIndividual& individual) {
        return IsWritten(individual, Role::kParent, sex) && individual.population == population;
      });
}

}  // namespace

std::size_t DigitsOfAlleles(const ForeignStudy& study) {
  ForeignAllele largest = 0;
  for (const ForeignIndividual& individual : study.individuals) {
    for (const ForeignGenotype& genotype : individual.genotypes) {
      largest = std::max({largest, genotype.first, genotype.second});
    }
  }
  return std::max(kFewestDigits, fmt::format("{}", largest).size());
}

void SettleGroups(SettledStudy& settled, bool no_groups, ImportLog& log) {
  const ForeignStudy& study = settled.study;
  bool has_homeless = false;
  bool has_offspring = false;
  for (const ForeignIndividual& individual : study.individuals) {
    if (individual.role == Role::kOffspring) {
      has_offspring = has_offspring || individual.population.has_value();
    } else if (!individual.population) {
      has_homeless = true;
    } else if (std::find(settled.populations.begin(), settled.populations.end(),
                         *individual.population) == settled.populations.end()) {
      settled.populations.push_back(*individual.population);
    }
  }
  if (has_offspring) {
    log.notes.emplace_back(
        "Populations of offspring are dropped: every offspring is tried against all groups.");
  }
  settled.has_groups = !no_groups && settled.populations.size() > 1;
  if (!settled.has_groups) {
    return;
  }
  if (has_homeless) {
    log.faults.Add({.found = "Some parents have a population and some have none; tell all of them, "
                             "or --no-groups."});
  }
  log.notes.emplace_back(
      "Populations of parents became groups, which do not mate with each other (--no-groups puts "
      "them together). Simulations of collected parents know no groups.");
  for (std::size_t group = 0; group < settled.populations.size(); ++group) {
    const std::size_t population = settled.populations[group];
    settled.names.originals.Add(
        {NameKind::kGroup, fmt::format("{}", group + 1), study.populations[population]});
    for (const auto& [sex, word] :
         {std::pair(Sex::kMale, "male"), std::pair(Sex::kFemale, "female")}) {
      if (settled.is_sexed && !HasParent(study, population, sex)) {
        log.warnings.push_back(fmt::format("Group {} ({}) has no {}: no pair can be formed in it.",
                                           group + 1, study.populations[population], word));
      }
    }
  }
}

std::vector<StudyFile> FilesOfStudy(const SettledStudy& settled, ImportLog& log) {
  std::vector<StudyFile> files = {{kImportedLoci, LociText(settled.names)}};
  if (settled.is_sexed) {
    files.push_back({kImportedMales, ParentsText(settled, Sex::kMale)});
    files.push_back({kImportedFemales, ParentsText(settled, Sex::kFemale)});
  } else {
    files.push_back({kImportedParents, ParentsText(settled, Sex::kUnknown)});
  }
  if (std::string offspring = OffspringText(settled); !offspring.empty()) {
    files.push_back({kImportedOffspring, std::move(offspring)});
  }
  AddKnown(settled, files, log);
  files.push_back({kImportedNames, settled.names.originals.Text()});
  return files;
}

}  // namespace kaldo
