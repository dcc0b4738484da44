// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "interchange/import/foreign_file.h"
#include "interchange/import/study_builder.h"

namespace kaldo {

/// The reader of a format. A new format is a file with these two functions, declared below, and a
/// line in the table of format_readers.cpp.
struct FormatReader {
  std::string_view key;   ///< behind --from
  std::string_view name;  ///< for people

  /// Why the file is of this format; nothing where it is not.
  std::optional<std::string> (*recognise)(const ForeignFile& file);

  /// Takes all that the file holds into the study. Faults go to the builder.
  void (*read)(ForeignFile& file, StudyBuilder& builder);
};

/// The readers in the order in which they are tried.
std::span<const FormatReader> FormatReaders();

const FormatReader* FindFormatReader(std::string_view key);

/// A format that was recognised.
struct RecognisedFormat {
  const FormatReader* reader = nullptr;
  std::string why;
};

/// What the file was written for, by its contents alone; nothing where it is of no known format,
/// such as a genotype file of this program.
std::optional<RecognisedFormat> RecogniseFormat(const ForeignFile& file);

std::optional<std::string> RecogniseVcf(const ForeignFile& file);
void ReadVcf(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseGenepop(const ForeignFile& file);
void ReadGenepop(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseFstat(const ForeignFile& file);
void ReadFstat(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseColony(const ForeignFile& file);
void ReadColony(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseGenAlEx(const ForeignFile& file);
void ReadGenAlEx(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseGeneMapper(const ForeignFile& file);
void ReadGeneMapper(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseStructure(const ForeignFile& file);
void ReadStructure(ForeignFile& file, StudyBuilder& builder);

std::optional<std::string> RecogniseTable(const ForeignFile& file);
void ReadTable(ForeignFile& file, StudyBuilder& builder);

}  // namespace kaldo
