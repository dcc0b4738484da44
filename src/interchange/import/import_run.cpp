// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/import_run.h"

#include <algorithm>

#include <fmt/format.h>

#include "allocation/allocation_input.h"
#include "base/counted_text.h"
#include "base/shell_text.h"
#include "genotypes/capacities.h"
#include "interchange/import/candidate_lists.h"
#include "interchange/import/foreign_text.h"
#include "interchange/import/format_readers.h"
#include "interchange/import/import_report.h"
#include "interchange/import/missing_parents.h"
#include "interchange/import/roles.h"
#include "interchange/import/sizes.h"

namespace kaldo {

namespace {

std::string KeysOfFormats() {
  std::string keys;
  for (const FormatReader& reader : FormatReaders()) {
    keys += (keys.empty() ? "" : ", ") + std::string(reader.key);
  }
  return keys;
}

/// The format that the user names, else the one that the file looks like.
std::optional<RecognisedFormat> ChooseFormat(const ForeignFile& file, const ImportChoices& choices,
                                             ImportFaults& faults) {
  if (choices.format) {
    const FormatReader* const reader = FindFormatReader(*choices.format);
    if (reader == nullptr) {
      faults.Add({.found = fmt::format("--from: there is no format {}, but {}",
                                       Quoted(*choices.format), KeysOfFormats())});
      return std::nullopt;
    }
    return RecognisedFormat{reader, "--from says so"};
  }
  auto recognised = RecogniseFormat(file);
  if (const auto fault = recognised ? std::nullopt : file.FaultOfFirstRows()) {
    faults.Add({.file = file.path, .line = fault->line, .found = fault->found});
  } else if (!recognised) {
    faults.Add({.file = file.path,
                .found = fmt::format("its format is not known; if it is one of these, say so with "
                                     "--from: {}",
                                     KeysOfFormats())});
  }
  return recognised;
}

void ReadOne(const ImportedFile& file, const ImportChoices& choices, FileSource& source,
             ForeignStudy& study, std::vector<std::string>& heads, ImportLog& log) {
  auto opened = OpenForeignFile(file.path, choices.sheet, source);
  if (!opened) {
    log.faults.Add({.file = file.path, .found = opened.error()});
    return;
  }
  const auto format = ChooseFormat(*opened, choices, log.faults);
  if (!format) {
    return;
  }
  if (const auto first = opened->FirstRows(1); heads.empty() && !first.empty()) {
    heads = first.front().cells;
  }
  StudyBuilder builder(study, log, choices, file);
  builder.File().format = format->reader->name;
  builder.File().why = format->why;
  builder.File().text = opened->how;
  format->reader->read(*opened, builder);
  if (builder.File().individuals == 0 && log.faults.IsEmpty()) {
    log.faults.Add({.file = file.path, .found = "it holds no individual"});
  }
}

/// Settles one question after the other; the first that stays open ends it.
void Settle(const ImportChoices& choices, SettledStudy& settled, ImportLog& log) {
  ForeignStudy& study = settled.study;
  const auto is_sound = [&log] { return log.faults.IsEmpty(); };
  SettleRoles(study, choices, log);
  if (is_sound()) {
    settled.is_sexed = SettleSexes(study, choices, log);
    MergeRepeated(study, log);
  }
  if (is_sound() && study.loci.size() > kMaxLoci) {
    log.faults.Add({.found = fmt::format("There are {} loci, a run takes {}; name those to be kept "
                                         "with --loci NAME,...",
                                         study.loci.size(), kMaxLoci)});
  }
  if (is_sound()) {
    SettleSizes(study, choices, log);
    SettleMissingParents(study, choices, log);
  }
  if (is_sound()) {
    settled.names = ChooseNames(study);
    settled.digits = DigitsOfAlleles(study);
    SettleGroups(settled, choices.no_groups, log);
  }
}

/// The files of a study before they are written.
class UnwrittenFiles final : public FileSource {
 public:
  UnwrittenFiles(const std::string& folder, const std::vector<StudyFile>& files)
      : folder_(folder), files_(files) {}

  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override {
    for (const StudyFile& file : files_) {
      if (path == folder_ + std::string(file.name)) {
        return std::vector<char>(file.text.begin(), file.text.end());
      }
    }
    return tl::unexpected(CannotOpenFile(path, "there is no such file"));
  }

 private:
  const std::string& folder_;
  const std::vector<StudyFile>& files_;
};

bool HasFile(const std::vector<StudyFile>& files, std::string_view name) {
  return std::any_of(files.begin(), files.end(),
                     [name](const StudyFile& file) { return file.name == name; });
}

AllocationSettings SettingsFor(const ImportChoices& choices, const SettledStudy& settled,
                               const std::vector<StudyFile>& files) {
  const auto path = [&](std::string_view name) {
    return HasFile(files, name) ? choices.folder + std::string(name) : "";
  };
  AllocationSettings settings;
  settings.flow = settled.is_sexed ? Flow::kSexed : Flow::kNonSexed;
  settings.project = choices.folder + "/allocation";
  settings.loci_file = path(kImportedLoci);
  settings.parents_file = path(kImportedParents);
  settings.males_file = path(kImportedMales);
  settings.females_file = path(kImportedFemales);
  settings.offspring_file = path(kImportedOffspring);
  settings.known_mother_file = path(kImportedMothers);
  settings.candidates_file = path(kImportedCandidates);
  settings.allow_undefined_parents = choices.missing_parents == MissingParents::kKeep;
  return settings;
}

/// The study passes every check of a run, or its files are not written.
void CheckAsRun(const AllocationSettings& settings, const ImportChoices& choices,
                const std::vector<StudyFile>& files, ImportLog& log) {
  UnwrittenFiles unwritten(choices.folder, files);
  const auto input = LoadAllocationInput(settings, unwritten);
  if (!input) {
    log.faults.Add({.found = fmt::format("The study would not run: {} {}",
                                         SentenceOf(input.error()), DetailLine(input.error()))});
    return;
  }
  for (const std::string& line : WarningLines(input->warnings)) {
    log.warnings.push_back(line);
  }
}

std::string CommandFor(const AllocationSettings& settings) {
  if (settings.offspring_file.empty()) {
    return "There are no offspring to allocate; the parents are for a simulation (kaldo simulate).";
  }
  ShellCommand command("kaldo allocate");
  command.Add("--project", settings.project);
  command.Add("--loci", settings.loci_file);
  command.AddIfAny("--parents", settings.parents_file);
  command.AddIfAny("--males", settings.males_file);
  command.AddIfAny("--females", settings.females_file);
  command.Add("--offspring", settings.offspring_file);
  command.AddIfAny("--known-mother", settings.known_mother_file);
  command.AddIfAny("--candidates", settings.candidates_file);
  if (settings.allow_undefined_parents) {
    command.Add("--allow-undefined-parents");
  }
  return command.Text();
}

std::string SummaryOf(const SettledStudy& settled) {
  std::string summary;
  for (const ReadFile& file : settled.study.files) {
    summary += fmt::format("{}: {}, {}\n", file.path, file.format,
                           Counted(file.individuals, "individual", "individuals"));
  }
  return summary + KeptText(settled) + '\n';
}

std::vector<CountedPopulation> PopulationsOf(const ForeignStudy& study) {
  std::vector<CountedPopulation> populations;
  populations.reserve(study.populations.size());
  for (const std::string& name : study.populations) {
    populations.push_back({name});
  }
  for (const ForeignIndividual& individual : study.individuals) {
    if (individual.population) {
      ++populations[*individual.population].individuals;
    }
  }
  return populations;
}

/// Makes the files of a settled study and tests them as a run does.
void Finish(const ImportChoices& choices, const SettledStudy& settled, ImportLog& log,
            ImportedStudy& imported, StudyPreview& preview) {
  imported.files = FilesOfStudy(settled, log);
  imported.settings = SettingsFor(choices, settled, imported.files);
  if (!imported.settings.offspring_file.empty()) {
    CheckAsRun(imported.settings, choices, imported.files, log);
  }
  imported.command = CommandFor(imported.settings);
  if (!log.faults.IsEmpty()) {
    return;
  }
  UnwrittenFiles unwritten(choices.folder, imported.files);
  preview = PreviewAsWritten(settled, imported.files, choices.folder, unwritten);
  imported.summary = SummaryOf(settled);
  imported.warnings = log.warnings;
  imported.files.push_back({kImportReport, ImportReport(settled, log, imported.command)});
}

}  // namespace

ImportTry TryImport(const ImportChoices& choices, FileSource& source) {
  SettledStudy settled;
  ImportLog log;
  ImportTry tried;
  for (const ImportedFile& file : choices.files) {
    ReadOne(file, choices, source, settled.study, tried.heads, log);
  }
  tried.files = settled.study.files;
  tried.populations = PopulationsOf(settled.study);
  if (log.faults.IsEmpty()) {
    TakeCandidateLists(choices, source, settled.study, log);
  }
  if (log.faults.IsEmpty()) {
    Settle(choices, settled, log);
  }
  tried.preview = PreviewAsRead(settled.study);
  ImportedStudy imported;
  if (log.faults.IsEmpty()) {
    Finish(choices, settled, log, imported, tried.preview);
  }
  if (log.faults.IsEmpty()) {
    tried.study = std::move(imported);
  } else {
    tried.study = tl::unexpected(std::move(log.faults));
  }
  return tried;
}

tl::expected<ImportedStudy, ImportFaults> ImportStudy(const ImportChoices& choices,
                                                      FileSource& source) {
  return TryImport(choices, source).study;
}

std::optional<ForeignLook> LookAtForeignFile(const std::string& path, FileSource& source) {
  auto bytes = ReadForeignBytes(path, source);
  return bytes ? LookAtForeignBytes(path, std::move(*bytes)) : std::nullopt;
}

std::optional<ForeignLook> LookAtForeignBytes(const std::string& path, std::string bytes) {
  auto file = OpenForeignBytes(path, std::move(bytes), std::nullopt);
  const auto format = file ? RecogniseFormat(*file) : std::nullopt;
  if (!format) {
    return std::nullopt;
  }
  const ImportChoices choices;
  const ImportedFile imported{.path = path};
  ForeignStudy study;
  ImportLog log;
  StudyBuilder builder(study, log, choices, imported);
  format->reader->read(*file, builder);
  const std::string populations =
      study.populations.empty()
          ? ""
          : Counted(study.populations.size(), "population", "populations") + ", ";
  const std::string workbook = file->is_workbook ? " in a workbook (.xlsx)" : "";
  return ForeignLook{std::string(format->reader->key),
                     fmt::format("This looks like {}{}, {}{}.", format->reader->name, workbook,
                                 populations, Counted(study.loci.size(), "locus", "loci")),
                     !study.populations.empty()};
}

}  // namespace kaldo
