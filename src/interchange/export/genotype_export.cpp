// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/genotype_export.h"

#include <algorithm>
#include <vector>

#include <fmt/format.h>

#include "interchange/import/foreign_text.h"

namespace kaldo {

namespace {

/// Individuals of one kind.
struct Population {
  SlotRange slots;
  std::string_view role;
  std::string_view sex;
  std::string group;
};

std::vector<Population> PopulationsOf(const AllocationInput& input, const OriginalNames& names,
                                      Flow flow) {
  const bool sexed = flow == Flow::kSexed;
  std::vector<Population> populations;
  populations.reserve(2 * input.groups.size() + 1);
  for (std::size_t k = 0; k < input.groups.size(); ++k) {
    const std::string name = names.Original(NameKind::kGroup, std::to_string(k + 1));
    populations.push_back({input.groups[k].first, "parent", sexed ? "m" : "", name});
    if (sexed) {
      populations.push_back({input.groups[k].second, "parent", "f", name});
    }
  }
  populations.push_back({input.offspring, "offspring", "", ""});
  std::erase_if(populations, [](const auto& each) { return each.slots.Size() == 0; });
  return populations;
}

std::vector<LocusIndex> AllLoci(const AllocationInput& input) {
  std::vector<LocusIndex> loci(input.loci.Count());
  for (std::size_t k = 0; k < loci.size(); ++k) {
    loci[k] = LocusIndex{static_cast<std::uint32_t>(k)};
  }
  return loci;
}

std::string CodeOf(const AllocationInput& input, Slot slot) {
  return std::string(input.table.Name(slot).Text());
}

/// The original of a code, unless GENEPOP would misread it.
std::string GenepopName(const OriginalNames& names, NameKind kind, const std::string& code) {
  const std::string& original = names.Original(kind, code);
  return original.find_first_of(",\r\n") == std::string::npos ? original : code;
}

/// Between quotation marks as well what another program could take for the separator.
std::string CsvCell(const std::string& text) {
  if (text.find_first_of("\",;\t\r\n") == std::string::npos) {
    return text;
  }
  std::string quoted = "\"";
  for (const char character : text) {
    quoted.append(character == '"' ? 2 : 1, character);
  }
  return quoted + '"';
}

std::string AlleleCell(AlleleSize allele) {
  return allele == kUndefinedAllele ? std::string() : std::to_string(allele.Value());
}

/// The first allele that three digits do not hold, and a locus that would begin a population.
std::optional<Problem> CheckForGenepop(const AllocationInput& input, const OriginalNames& names) {
  static constexpr AlleleSize kMost{999};
  for (const LocusIndex locus : AllLoci(input)) {
    const std::string name = GenepopName(names, NameKind::kLocus, input.loci.Name(locus));
    if (Lower(Trimmed(name)) == "pop") {
      return Problem{.kind = ProblemKind::kCannotExport,
                     .locus = name,
                     .found = "in GENEPOP a line with that name begins a population"};
    }
    const auto genotypes = input.table.Locus(locus);
    const auto large = std::find_if(genotypes.begin(), genotypes.end(), [](const auto& genotype) {
      return genotype.allele1 > kMost || genotype.allele2 > kMost;
    });
    if (large != genotypes.end()) {
      const Slot slot{static_cast<std::uint32_t>(large - genotypes.begin())};
      return Problem{.kind = ProblemKind::kCannotExport,
                     .individual = CodeOf(input, slot),
                     .locus = input.loci.Name(locus),
                     .found = "GENEPOP holds alleles of at most three digits"};
    }
  }
  return std::nullopt;
}

}  // namespace

tl::expected<std::string, Problem> GenepopText(const AllocationInput& input,
                                               const OriginalNames& names, Flow flow) {
  if (auto problem = CheckForGenepop(input, names)) {
    return tl::unexpected(std::move(*problem));
  }
  const auto loci = AllLoci(input);
  std::string text = "Genotypes written by KALDO\n";
  for (const LocusIndex locus : loci) {
    text += GenepopName(names, NameKind::kLocus, input.loci.Name(locus)) + '\n';
  }
  for (const Population& population : PopulationsOf(input, names, flow)) {
    text += "POP\n";
    for (std::uint32_t slot = population.slots.begin; slot < population.slots.end; ++slot) {
      text += GenepopName(names, NameKind::kIndividual, CodeOf(input, Slot{slot})) + " ,";
      for (const LocusIndex locus : loci) {
        const LocusGenotype& genotype = input.table.Genotype(locus, Slot{slot});
        text += fmt::format(" {:03}{:03}", genotype.allele1.Value(), genotype.allele2.Value());
      }
      text += '\n';
    }
  }
  return text;
}

std::string GenotypesCsv(const AllocationInput& input, const OriginalNames& names, Flow flow) {
  const auto loci = AllLoci(input);
  std::string text = "id,role,sex,group";
  for (const LocusIndex locus : loci) {
    const std::string& name = names.Original(NameKind::kLocus, input.loci.Name(locus));
    text += fmt::format(",{},{}", CsvCell(name + ".1"), CsvCell(name + ".2"));
  }
  text += '\n';
  for (const Population& population : PopulationsOf(input, names, flow)) {
    for (std::uint32_t slot = population.slots.begin; slot < population.slots.end; ++slot) {
      text += fmt::format("{},{},{},{}",
                          CsvCell(names.Original(NameKind::kIndividual, CodeOf(input, Slot{slot}))),
                          population.role, population.sex, CsvCell(population.group));
      for (const LocusIndex locus : loci) {
        const LocusGenotype& genotype = input.table.Genotype(locus, Slot{slot});
        text += fmt::format(",{},{}", AlleleCell(genotype.allele1), AlleleCell(genotype.allele2));
      }
      text += '\n';
    }
  }
  return text;
}

}  // namespace kaldo
