// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/convert_command.h"

#include <ostream>

#include <fmt/format.h>

#include "allocation/allocation_command.h"
#include "allocation/allocation_input.h"
#include "base/disk_file.h"
#include "cli/missing_options.h"
#include "cli/tell.h"
#include "interchange/export/allocation_exporter.h"
#include "interchange/export/genotype_export.h"

namespace kaldo {

namespace {

tl::expected<std::string, Problem> Converted(const ConvertChoices& choices,
                                             const AllocationSettings& settings,
                                             FileSource& source) {
  const auto input = LoadAllocationInput(settings, source);
  if (!input) {
    return tl::unexpected(WithMissingOptions(input.error(), settings, false));
  }
  OriginalNames names;
  const std::string names_file = choices.names.value_or(NamesBeside(settings.offspring_file));
  if (!names_file.empty()) {
    auto read = OriginalNames::Read(names_file, source);
    if (!read) {
      return tl::unexpected(std::move(read.error()));
    }
    names = std::move(*read);
  }
  return choices.format == "csv" ? GenotypesCsv(*input, names, settings.flow)
                                 : GenepopText(*input, names, settings.flow);
}

}  // namespace

ExitCode RunConvert(const ConvertChoices& choices, const TypedSettings& typed,
                    const CommandLineStreams& streams, FileSource& source) {
  if (choices.format != "genepop" && choices.format != "csv") {
    streams.err << "There is no format " << Quoted(choices.format) << ": genepop or csv.\n";
    return ExitCode::kBadInput;
  }
  const auto settings = AllocationFrom(typed);
  if (!settings) {
    return Tell(settings.error(), streams);
  }
  const auto text = Converted(choices, *settings, source);
  if (!text) {
    return Tell(text.error(), streams);
  }
  if (const auto error = WriteNewFile(choices.file, *text)) {
    throw RunFailure(fmt::format("Cannot write \"{}\": {}", choices.file, error.message()));
  }
  return ExitCode::kDone;
}

}  // namespace kaldo
