// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include <tl/expected.hpp>

#include "base/file_source.h"
#include "interchange/import/import_choices.h"
#include "interchange/import/import_fault.h"
#include "interchange/import/study_files.h"

namespace kaldo {

/// A study that was read from files of other programs and has passed all checks of a run.
struct ImportedStudy {
  std::vector<StudyFile> files;       ///< the report among them
  std::string summary;                ///< what was read and kept, a line per file and one more
  std::vector<std::string> warnings;  ///< what should be looked at
  std::string command;                ///< that runs the study
};

/// Reads the files and settles all that a run needs. Nothing is written.
tl::expected<ImportedStudy, ImportFaults> ImportStudy(const ImportChoices& choices,
                                                      FileSource& source);

/// Writes the study into the folder of the choices, as one step. Files of an earlier import are
/// replaced, others only where that is allowed, input files never. Throws RunRefused for such a
/// file, and RunFailure when the folder cannot be written to; nothing is changed then.
void WriteStudy(const ImportChoices& choices, const ImportedStudy& study);

/// What a file of another program holds, as far as it can be told before anything is chosen.
struct ForeignLook {
  std::string key;       ///< of the format
  std::string sentence;  ///< "This looks like GENEPOP, 2 populations, 9 loci."
};

/// Nothing where the file is of no known format, such as a genotype file of this program.
std::optional<ForeignLook> LookAtForeignFile(const std::string& path, FileSource& source);

}  // namespace kaldo
