// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/codes.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "genotypes/capacities.h"
#include "genotypes/name_rules.h"

namespace kaldo {

namespace {

/// What no name in a file of a run can be, whatever it names.
bool IsUnfit(const std::string& name, std::size_t most_bytes) {
  return name.empty() || name.size() > most_bytes ||
         name.find_first_of(" \t\r\n\f\v") != std::string::npos || FaultOfName(name).has_value();
}

bool IsUnfitForIndividual(const std::string& name) {
  return IsUnfit(name, kMaxNameLength) || name.starts_with('*') || IsSignOfNoParent(name);
}

/// Codes of running numbers that begin as no other name does.
class CodeMaker {
 public:
  CodeMaker(std::string prefix, const std::set<std::string>& others, std::size_t count)
      : prefix_(std::move(prefix)), digits_(fmt::format("{}", count).size()) {
    const auto clashes = [this](const std::string& name) { return name.starts_with(prefix_); };
    while (std::any_of(others.begin(), others.end(), clashes)) {
      prefix_ += 'x';
    }
  }

  std::string Next() { return fmt::format("{}{:0{}}", prefix_, ++number_, digits_); }

 private:
  std::string prefix_;
  std::size_t digits_;
  std::size_t number_ = 0;
};

void NameIndividuals(const ForeignStudy& study, StudyNames& names) {
  std::map<std::string_view, std::set<std::string_view>> of_key;
  for (const ForeignIndividual& individual : study.individuals) {
    of_key[std::string_view(individual.name).substr(0, kNameKeyLength)].insert(individual.name);
  }
  std::vector<std::string> renamed;
  std::set<std::string> kept;
  std::set<std::string> seen;
  for (const ForeignIndividual& individual : study.individuals) {
    const std::string& name = individual.name;
    if (!seen.insert(name).second) {
      continue;
    }
    const bool is_shared = of_key[std::string_view(name).substr(0, kNameKeyLength)].size() > 1;
    if (is_shared || IsUnfitForIndividual(name)) {
      renamed.push_back(name);
    } else {
      kept.insert(name);
    }
  }
  CodeMaker codes("Ind", kept, renamed.size());
  for (const std::string& name : renamed) {
    const std::string code = codes.Next();
    names.individuals.emplace(name, code);
    names.originals.Add({NameKind::kIndividual, code, name});
  }
}

void NameLoci(const ForeignStudy& study, StudyNames& names) {
  std::set<std::string> kept;
  const auto is_renamed = [&](const std::string& name) {
    return IsUnfit(name, kMaxLocusNameLength) ||
           std::count(study.loci.begin(), study.loci.end(), name) > 1;
  };
  std::copy_if(study.loci.begin(), study.loci.end(), std::inserter(kept, kept.end()),
               [&](const std::string& name) { return !is_renamed(name); });
  CodeMaker codes("Loc", kept, study.loci.size());
  for (const std::string& name : study.loci) {
    const std::string written = is_renamed(name) ? codes.Next() : name;
    if (written != name) {
      names.originals.Add({NameKind::kLocus, written, name});
    }
    names.loci.push_back(written);
  }
}

}  // namespace

StudyNames ChooseNames(const ForeignStudy& study) {
  StudyNames names;
  NameIndividuals(study, names);
  NameLoci(study, names);
  return names;
}

}  // namespace kaldo
