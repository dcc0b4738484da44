// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/import_report.h"

#include <algorithm>
#include <set>

#include <fmt/format.h>

#include "base/counted_text.h"
#include "base/version.h"

namespace kaldo {

namespace {

std::size_t CountOf(const ForeignStudy& study, Role role, Sex sex = Sex::kUnknown) {
  return static_cast<std::size_t>(
      std::count_if(study.individuals.begin(), study.individuals.end(), [&](const auto& each) {
        return each.role == role && (sex == Sex::kUnknown || each.sex == sex);
      }));
}

std::string FilesText(const ForeignStudy& study) {
  std::string text = "Files\n";
  for (const ReadFile& file : study.files) {
    text +=
        fmt::format("  {}: {}, {}\n    taken for that, since {}\n    {}\n", file.path, file.format,
                    Counted(file.individuals, "individual", "individuals"), file.why, file.text);
  }
  return text;
}

std::string KeptSection(const SettledStudy& settled) {
  std::string text =
      fmt::format("\nKept\n  {}\n  {} digits per field\n", KeptText(settled), 2 * settled.digits);
  for (std::size_t group = 0; settled.has_groups && group < settled.populations.size(); ++group) {
    text += fmt::format("  group {}: {}\n", group + 1,
                        settled.study.populations[settled.populations[group]]);
  }
  return text;
}

std::string Section(std::string_view head, const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += fmt::format("{}  {}\n", text.empty() ? fmt::format("\n{}\n", head) : "", line);
  }
  return text;
}

std::string LociSection(const SettledStudy& settled) {
  const ForeignStudy& study = settled.study;
  std::string text = fmt::format("\nLoci\n  {:<16}{:>8}{:>12}{:>20}{:>22}\n", "locus", "alleles",
                                 "sizes", "undefined parents", "undefined offspring");
  for (std::size_t k = 0; k < study.loci.size(); ++k) {
    std::set<ForeignAllele> sizes;
    std::size_t parents = 0;
    std::size_t offspring = 0;
    for (const ForeignIndividual& individual : study.individuals) {
      const ForeignGenotype& genotype = individual.genotypes[k];
      if (!genotype.IsUndefined()) {
        sizes.insert({genotype.first, genotype.second});
      } else {
        ++(individual.role == Role::kParent ? parents : offspring);
      }
    }
    const std::string range =
        sizes.empty() ? "-" : fmt::format("{}-{}", *sizes.begin(), *sizes.rbegin());
    text += fmt::format("  {:<16}{:>8}{:>12}{:>20}{:>22}\n", settled.names.loci[k], sizes.size(),
                        range, parents, offspring);
  }
  return text;
}

std::vector<std::string> RenamedLines(const OriginalNames& names) {
  std::vector<std::string> lines;
  for (const OriginalName& name : names.All()) {
    if (name.kind != NameKind::kGroup) {
      lines.push_back(fmt::format("{} is {}", name.code, name.original));
    }
  }
  return lines;
}

std::vector<std::string> ConversionLines(const ImportLog& log) {
  std::vector<std::string> lines;
  lines.reserve(log.conversions.size());
  for (const auto& [what, where] : log.conversions) {
    lines.push_back(fmt::format("{}: line {}", what, where.Text()));
  }
  return lines;
}

}  // namespace

std::string KeptText(const SettledStudy& settled) {
  const ForeignStudy& study = settled.study;
  const std::string parents =
      settled.is_sexed
          ? fmt::format("{}, {}",
                        Counted(CountOf(study, Role::kParent, Sex::kMale), "male", "males"),
                        Counted(CountOf(study, Role::kParent, Sex::kFemale), "female", "females"))
          : Counted(CountOf(study, Role::kParent), "parent", "parents");
  const std::string groups =
      settled.has_groups ? fmt::format(" in {} groups", settled.populations.size()) : "";
  return fmt::format("{}{}, {} offspring, {}", parents, groups, CountOf(study, Role::kOffspring),
                     Counted(study.loci.size(), "locus", "loci"));
}

std::string ImportReport(const SettledStudy& settled, const ImportLog& log,
                         const std::string& command) {
  std::string text = fmt::format("KALDO {}, import\n\n", Version());
  text += FilesText(settled.study) + KeptSection(settled);
  text += Section("To be looked at", log.warnings) + Section("What was done", log.notes);
  text += LociSection(settled);
  text += Section("Conversions", ConversionLines(log));
  text += Section(fmt::format("Half a genotype, taken for none ({})", log.half_missing_cells),
                  log.half_missing);
  text += Section("Renamed (names.tsv)", RenamedLines(settled.names.originals));
  return text + fmt::format("\nTo run it\n  {}\n", command);
}

}  // namespace kaldo
