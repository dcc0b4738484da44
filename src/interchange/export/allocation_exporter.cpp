// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/export/allocation_exporter.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/file_digest.h"
#include "base/path_text.h"
#include "interchange/export/allocation_page.h"
#include "interchange/export/allocation_tables.h"
#include "interchange/export/pedigree.h"
#include "interchange/export/workbook.h"

namespace kaldo {

namespace {

constexpr std::string_view kPageFile = "/Report.html";
constexpr std::string_view kWorkbookFile = "/Results.xlsx";
constexpr std::string_view kPedigreeFile = "/Pedigree.tsv";
constexpr std::string_view kOptiSelFile = "/Pedigree optiSel.tsv";
constexpr std::string_view kKinship2File = "/Pedigree kinship2.tsv";
constexpr std::string_view kPlinkFile = "/Pedigree.fam";

constexpr std::string_view kNamesFileName = "names.tsv";

Problem NotExported(std::string found) {
  return {.kind = ProblemKind::kCannotExport, .found = std::move(found)};
}

/// What cannot be done whatever the files hold.
std::optional<Problem> CheckWanted(const AllocationSettings& settings) {
  const WantedExports& wanted = settings.exports;
  if (wanted.forms.workbook && !CanWriteWorkbooks()) {
    return NotExported(
        "this KALDO was built without libxlsxwriter and cannot write workbooks (xlsx)");
  }
  if (wanted.forms.pedigree && wanted.least_probability && !settings.confidence.computed) {
    return NotExported(
        "--min-probability asks for probabilities, which --no-confidence leaves out");
  }
  return std::nullopt;
}

/// The text of an input file, which from now on is one of the run.
tl::expected<std::string, Problem> ReadInput(std::string_view role, const std::string& path,
                                             AllocationInput& input, FileSource& source) {
  auto bytes = ReadText(path, source);
  if (!bytes) {
    return tl::unexpected(std::move(bytes.error()));
  }
  std::string text(bytes->begin(), bytes->end());
  RunningDigest digest;
  digest.Add(text);
  input.files.push_back({std::string(role), path, digest.SoFar()});
  return text;
}

std::string GuessedNamesWarning(std::size_t names) {
  return fmt::format(
      "{} of the names in the tables look like numbers, truths or nothing (00012, T, NA). R and "
      "pandas change them unless names are read as text, as contrib/r/read_kaldo.R does.",
      names);
}

}  // namespace

std::string NamesBeside(const std::string& offspring_file) {
  const auto place = FilePath(offspring_file).parent_path() / kNamesFileName;
  std::error_code ignored;
  return std::filesystem::is_regular_file(place, ignored) ? PathText(place) : std::string();
}

std::optional<Problem> AllocationExporter::ReadNames(const std::string& path,
                                                     AllocationInput& input, FileSource& source) {
  const auto text = ReadInput(kOriginalNamesRole, path, input, source);
  if (!text) {
    return text.error();
  }
  auto names = OriginalNames::FromText(*text, path);
  if (!names) {
    return std::move(names.error());
  }
  names_ = std::move(*names);
  return std::nullopt;
}

std::optional<Problem> AllocationExporter::ReadSexesFile(const std::string& path,
                                                         AllocationInput& input,
                                                         FileSource& source) {
  const auto text = ReadInput(kSexesRole, path, input, source);
  if (!text) {
    return text.error();
  }
  auto sexes = ReadSexes(*text, path, input, names_);
  if (!sexes) {
    return std::move(sexes.error());
  }
  sexes_ = std::move(*sexes);
  return std::nullopt;
}

std::optional<Problem> AllocationExporter::Prepare(AllocationSettings& settings,
                                                   AllocationInput& input, FileSource& source) {
  WantedExports& wanted = settings.exports;
  forms_ = wanted.forms;
  has_sequence_ = settings.sequence.has_value();
  knows_sexes_ = settings.flow == Flow::kSexed || !wanted.sexes_file.empty();
  std::optional<Problem> problem = CheckWanted(settings);
  if (!problem && forms_.Any() && wanted.names_file.empty()) {
    wanted.names_file = NamesBeside(settings.offspring_file);
  }
  if (!problem && !wanted.names_file.empty()) {
    problem = ReadNames(wanted.names_file, input, source);
  }
  if (!problem && !wanted.sexes_file.empty()) {
    problem = ReadSexesFile(wanted.sexes_file, input, source);
  }
  return problem;
}

std::vector<std::string_view> AllocationExporter::Files() const {
  std::vector<std::string_view> files;
  if (forms_.tables) {
    files.insert(files.end(), {kAllocationsTable, kParentsTable});
  }
  if (forms_.tables && has_sequence_) {
    files.push_back(kSequenceTable);
  }
  if (forms_.workbook) {
    files.push_back(kWorkbookFile);
  }
  if (forms_.page) {
    files.push_back(kPageFile);
  }
  if (forms_.pedigree) {
    files.push_back(kPedigreeFile);
  }
  if (forms_.pedigree && knows_sexes_) {
    files.insert(files.end(), {kOptiSelFile, kKinship2File, kPlinkFile});
  }
  return files;
}

void AllocationExporter::MakePedigree(const ExportedStudy& study, Exported& exported) const {
  const auto pedigree = PedigreeOf(study, knows_sexes_);
  if (!pedigree) {
    exported.refused.push_back(pedigree.error());
    return;
  }
  exported.files.push_back({kPedigreeFile, PlainPedigree(*pedigree)});
  if (knows_sexes_) {
    exported.files.push_back({kOptiSelFile, OptiSelPedigree(*pedigree)});
    exported.files.push_back({kKinship2File, Kinship2Pedigree(*pedigree)});
    exported.files.push_back({kPlinkFile, PlinkPedigree(*pedigree)});
  }
}

Exported AllocationExporter::Make(const AllocationSettings& settings, const AllocationInput& input,
                                  const AllocationResult& result, const RunRecord& record) {
  const ExportedStudy study(settings, input, result, names_, sexes_);
  Exported exported;
  if (forms_.tables) {
    exported.files.push_back({kAllocationsTable, TsvText(AllocationsTable(study))});
    exported.files.push_back({kParentsTable, TsvText(ParentsTable(study))});
  }
  if (forms_.tables && has_sequence_) {
    exported.files.push_back({kSequenceTable, TsvText(SequenceTable(study))});
  }
  if (forms_.tables || forms_.pedigree) {
    if (const std::size_t names = NamesGuessedAnew(study); names > 0) {
      exported.warnings.push_back(GuessedNamesWarning(names));
    }
  }
  if (forms_.workbook) {
    exported.files.push_back({kWorkbookFile, WorkbookBytes(study, record)});
  }
  if (forms_.page) {
    exported.files.push_back({kPageFile, AllocationPage(study, record)});
  }
  if (forms_.pedigree) {
    MakePedigree(study, exported);
  }
  made_.clear();
  for (const ExportedFile& file : exported.files) {
    made_.emplace_back(file.name.substr(1));
  }
  return exported;
}

}  // namespace kaldo
