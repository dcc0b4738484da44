// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/import_command.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <tuple>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "base/problem.h"
#include "interchange/import/import_run.h"
#include "interchange/import/import_words.h"

namespace kaldo {

namespace {

std::optional<MissingParents> MissingParentsNamed(std::string_view name) {
  constexpr std::array<std::pair<std::string_view, MissingParents>, 5> kNames{
      {{"", MissingParents::kRefused},
       {"drop-individuals", MissingParents::kDropIndividuals},
       {"drop-loci", MissingParents::kDropLoci},
       {"least", MissingParents::kLeast},
       {"keep", MissingParents::kKeep}}};
  const auto* const found = std::find_if(kNames.begin(), kNames.end(),
                                         [name](const auto& each) { return each.first == name; });
  return found == kNames.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

void TypedImport::AddTo(CLI::App& command) {
  AddFiles(command);
  AddColumns(command);
  AddRules(command);
}

void TypedImport::AddFiles(CLI::App& command) {
  const auto add = [&command](const char* name, std::string& file, const char* help) {
    command.add_option(name, file, help)->type_name("FILE")->group("Files");
  };
  command.add_option("files", files_, "Files in which parents and offspring stand together")
      ->type_name("FILE");
  command.add_option("--to", choices_.folder, "Folder for the converted files (required)")
      ->type_name("DIR")
      ->group("Files");
  add("--parents", parents_, "File in which all are parents");
  add("--males", males_, "File in which all are male parents");
  add("--females", females_, "File in which all are female parents");
  add("--offspring", offspring_, "File in which all are offspring");
  add("--offspring-list", choices_.offspring_list,
      "List of offspring, with their known parents and candidates");
  add("--father-list", choices_.father_list, "List of candidate fathers");
  add("--mother-list", choices_.mother_list, "List of candidate mothers");
  command.add_option("--from", choices_.format, "Format of the files; recognised unless told")
      ->type_name("NAME")
      ->group("Files");
  command.add_option("--sheet", choices_.sheet, "Sheet of a workbook; the first unless told")
      ->type_name("NAME")
      ->group("Files");
  command
      .add_flag("--replace", choices_.may_replace,
                "Replace files of these names that are not from an import, too")
      ->group("Files");
}

void TypedImport::AddColumns(CLI::App& command) {
  const auto add = [&command](const char* name, auto& value, const char* kind, const char* help) {
    command.add_option(name, value, help)->type_name(kind)->group("Who is who");
  };
  add("--id", choices_.id_column, "COLUMN", "Column of the names of individuals");
  add("--sex", choices_.sex_column, "COLUMN", "Column of sexes: m, male, 1 or f, female, 2");
  add("--group", choices_.group_column, "COLUMN", "Column of populations");
  add("--role", choices_.role_column, "COLUMN", "Column that says parent or offspring");
  add("--offspring-populations", offspring_populations_, "NAME,...",
      "Populations whose members are offspring; all others are parents");
  add("--rows", choices_.rows_per_individual, "N", "STRUCTURE: rows of an individual, 1 or 2");
  add("--leading", leading_, "NAME,...",
      "STRUCTURE: what stands before the genotypes: id, group, sex, role, other");
  command.add_flag("--no-groups", choices_.no_groups, "Populations do not become groups")
      ->group("Who is who");
  command.add_flag("--no-sexes", choices_.no_sexes, "One file of parents, whatever their sex")
      ->group("Who is who");
  command
      .add_flag("--unique-names", choices_.unique_names,
                "GENEPOP: refuse individuals without a name or with that of another")
      ->group("Who is who");
}

void TypedImport::AddRules(CLI::App& command) {
  const auto add = [&command](const char* name, auto& value, const char* kind, const char* help) {
    return command.add_option(name, value, help)->type_name(kind)->group("Genotypes");
  };
  add("--loci", loci_, "NAME,...", "Loci to be kept; all unless told");
  add("--missing", choices_.missing_code, "CODE", "One more word for a missing allele");
  add("--half-missing", half_missing_, "WHAT",
      "A genotype of which one allele is missing: undefined, or error")
      ->default_str("undefined");
  add("--missing-parents", missing_parents_, "WAY",
      "What becomes of parents undefined at a locus: drop-individuals, drop-loci, least or keep");
  add("--repeat-length", repeat_lengths_, "LENGTHS",
      "Loci whose alleles count repeats, with the length of a repeat: L=4,M=2 (bp)");
}

std::vector<ImportedFile> TypedImport::Files() const {
  std::vector<ImportedFile> files;
  for (const auto& [path, role, sex] : {std::tuple(&parents_, Role::kParent, Sex::kUnknown),
                                        std::tuple(&males_, Role::kParent, Sex::kMale),
                                        std::tuple(&females_, Role::kParent, Sex::kFemale),
                                        std::tuple(&offspring_, Role::kOffspring, Sex::kUnknown)}) {
    if (!path->empty()) {
      files.push_back({*path, role, sex});
    }
  }
  for (const std::string& path : files_) {
    const bool has_role = std::any_of(files.begin(), files.end(),
                                      [&](const ImportedFile& file) { return file.path == path; });
    if (!has_role) {
      files.push_back({path});
    }
  }
  return files;
}

tl::expected<ImportChoices, std::string> TypedImport::Choices() const {
  ImportChoices choices = choices_;
  choices.files = Files();
  if (choices.files.empty()) {
    return tl::unexpected(std::string("Name the files to be converted."));
  }
  if (choices.folder.empty()) {
    return tl::unexpected(std::string("--to is needed: the folder for the converted files."));
  }
  if (half_missing_ != "undefined" && half_missing_ != "error") {
    return tl::unexpected(
        fmt::format("--half-missing: {} is neither undefined nor error.", Quoted(half_missing_)));
  }
  const auto way = MissingParentsNamed(missing_parents_);
  if (!way) {
    return tl::unexpected(
        fmt::format("--missing-parents: {} is none of: drop-individuals, "
                    "drop-loci, least, keep.",
                    Quoted(missing_parents_)));
  }
  if (choices.rows_per_individual > 2) {
    return tl::unexpected(std::string("--rows: an individual has 1 row or 2."));
  }
  auto lengths = RepeatLengthsIn(repeat_lengths_);
  if (!lengths) {
    return tl::unexpected(lengths.error());
  }
  choices.repeat_lengths = std::move(*lengths);
  choices.half_missing_is_error = half_missing_ == "error";
  choices.missing_parents = *way;
  choices.offspring_populations = NamesBetweenCommas(offspring_populations_);
  choices.loci = NamesBetweenCommas(loci_);
  choices.leading = NamesBetweenCommas(leading_);
  return choices;
}

ExitCode RunImport(const TypedImport& typed, const CommandLineStreams& streams,
                   FileSource& source) {
  const auto choices = typed.Choices();
  if (!choices) {
    streams.err << Escaped(choices.error()) << "\nRun with --help for more information.\n";
    return ExitCode::kBadInput;
  }
  const auto study = ImportStudy(*choices, source);
  if (!study) {
    streams.err << study.error().Text();
    return ExitCode::kBadInput;
  }
  WriteStudy(*choices, *study);
  for (const std::string& warning : study->warnings) {
    streams.err << "Warning: " << Escaped(warning) << '\n';
  }
  streams.out << EscapedLines(study->summary)
              << Escaped(
                     fmt::format(R"(Files in "{}"; what was done is told in "Import report.txt")",
                                 choices->folder))
              << "\n\n"
              << Escaped(study->command) << '\n';
  return ExitCode::kDone;
}

}  // namespace kaldo
