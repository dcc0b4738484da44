// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/file_source.h"
#include "interchange/import/foreign_study.h"
#include "interchange/import/study_files.h"

namespace kaldo {

/// An individual as a person looks at it before anything is written.
struct PreviewedIndividual {
  std::string name = {};
  std::string who = {};                     ///< "male parent", or the file into which it is written
  std::string population = {};              ///< empty where there is none
  std::vector<std::string> genotypes = {};  ///< one per locus of the preview
};

/// The first individuals of a study: what was read, or what is going to be written.
struct StudyPreview {
  bool is_as_written = false;
  std::vector<std::string> loci = {};
  std::vector<PreviewedIndividual> individuals = {};
};

/// The first individuals of every role as they were read, alleles as 124/128, undefined ones as
/// "-".
StudyPreview PreviewAsRead(const ForeignStudy& study);

/// The first individuals of every file of genotypes as a run reads them, with their codes. `files`
/// are found in `folder` by the source.
StudyPreview PreviewAsWritten(const SettledStudy& settled, const std::vector<StudyFile>& files,
                              const std::string& folder, FileSource& source);

}  // namespace kaldo
