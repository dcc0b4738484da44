// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/study_preview.h"

#include <algorithm>
#include <array>
#include <map>

#include <fmt/format.h>

#include "genotypes/file_summary.h"

namespace kaldo {

namespace {

/// Of a kind of individuals; those of all kinds fit side by side into a window.
constexpr std::size_t kMostOfAKind = 3;

std::string WhoIs(const ForeignIndividual& individual) {
  if (individual.role == Role::kOffspring) {
    return "offspring";
  }
  const std::string_view sex = individual.sex == Sex::kMale     ? "male"
                               : individual.sex == Sex::kFemale ? "female"
                                                                : "";
  if (individual.role == Role::kUnknown) {
    return sex.empty() ? "not known" : std::string(sex);
  }
  return sex.empty() ? "parent" : fmt::format("{} parent", sex);
}

std::string GenotypeText(const ForeignGenotype& genotype) {
  return genotype.IsUndefined() ? "-" : fmt::format("{}/{}", genotype.first, genotype.second);
}

/// A file of genotypes by the name it shows.
bool HoldsGenotypes(const StudyFile& file) {
  constexpr std::array<std::string_view, 4> kFiles = {kImportedParents, kImportedMales,
                                                      kImportedFemales, kImportedOffspring};
  return std::find(kFiles.begin(), kFiles.end(), file.name) != kFiles.end();
}

}  // namespace

StudyPreview PreviewAsRead(const ForeignStudy& study) {
  StudyPreview preview{.loci = study.loci};
  std::map<std::string, std::size_t> of_kind;
  for (const ForeignIndividual& individual : study.individuals) {
    std::string who = WhoIs(individual);
    if (++of_kind[who] > kMostOfAKind || individual.genotypes.size() != study.loci.size()) {
      continue;
    }
    PreviewedIndividual shown{.name = individual.name, .who = std::move(who)};
    if (individual.population) {
      shown.population = study.populations[*individual.population];
    }
    for (const ForeignGenotype& genotype : individual.genotypes) {
      shown.genotypes.push_back(GenotypeText(genotype));
    }
    preview.individuals.push_back(std::move(shown));
  }
  return preview;
}

StudyPreview PreviewAsWritten(const SettledStudy& settled, const std::vector<StudyFile>& files,
                              const std::string& folder, FileSource& source) {
  StudyPreview preview{.is_as_written = true, .loci = settled.names.loci};
  for (const StudyFile& file : files) {
    if (!HoldsGenotypes(file)) {
      continue;
    }
    const auto text = TokenFile::Read(folder + std::string(file.name), source);
    if (!text) {
      continue;  // the checks have told it
    }
    for (RecordPreview& record :
         Summarize(*text, {preview.loci.size(), Separators::kAllowed}).first_few) {
      if (!record.fields.empty()) {  // a separator has none
        preview.individuals.push_back({.name = std::move(record.name),
                                       .who = std::string(file.name.substr(1)),
                                       .genotypes = std::move(record.fields)});
      }
    }
  }
  return preview;
}

}  // namespace kaldo
