// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "allocation/allocation_settings.h"
#include "base/file_source.h"
#include "interchange/import/import_choices.h"
#include "interchange/import/import_fault.h"
#include "interchange/import/study_files.h"
#include "interchange/import/study_preview.h"

namespace kaldo {

/// A study that was read from files of other programs and has passed all checks of a run.
struct ImportedStudy {
  std::vector<StudyFile> files;       ///< the report among them
  std::string summary;                ///< what was read and kept, a line per file and one more
  std::vector<std::string> warnings;  ///< what should be looked at
  std::string command;                ///< that runs the study
  AllocationSettings settings;  ///< its flow and the paths of its files, once they are written
};

/// A population of the files, and how many individuals it has.
struct CountedPopulation {
  std::string name;
  std::size_t individuals = 0;
};

/// What a first try tells, also where the files cannot be converted yet.
struct ImportTry {
  std::vector<ReadFile> files;                 ///< that could be opened
  std::vector<std::string> heads;              ///< of the columns of the first table
  std::vector<CountedPopulation> populations;  ///< in order of first appearance
  StudyPreview preview;
  tl::expected<ImportedStudy, ImportFaults> study;
};

/// Reads the files and settles what the choices settle. Nothing is written.
ImportTry TryImport(const ImportChoices& choices, FileSource& source);

/// Reads the files and settles all that a run needs. Nothing is written.
tl::expected<ImportedStudy, ImportFaults> ImportStudy(const ImportChoices& choices,
                                                      FileSource& source);

/// The names of the files in the folder of the choices that the study would replace or remove.
std::vector<std::string> FilesToReplace(const ImportChoices& choices);

/// Writes the study into the folder of the choices, as one step. Files of an earlier import are
/// replaced, others only where that is allowed, input files never. Throws RunRefused for such a
/// file, and RunFailure when the folder cannot be written to; nothing is changed then.
void WriteStudy(const ImportChoices& choices, const ImportedStudy& study);

/// What a file of another program holds, as far as it can be told before anything is chosen.
struct ForeignLook {
  std::string key;       ///< of the format
  std::string sentence;  ///< "This looks like GENEPOP, 2 populations, 9 loci."
  bool has_populations = false;
};

/// Nothing where the file is of no known format, such as a genotype file of this program.
std::optional<ForeignLook> LookAtForeignFile(const std::string& path, FileSource& source);

/// The same of bytes in memory.
std::optional<ForeignLook> LookAtForeignBytes(const std::string& path, std::string bytes);

}  // namespace kaldo
