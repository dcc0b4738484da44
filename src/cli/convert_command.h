// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "cli/command_line.h"
#include "runs/setting.h"

namespace kaldo {

/// What was typed behind `kaldo convert`.
struct ConvertChoices {
  std::string format;                ///< genepop or csv
  std::string file;                  ///< to be written; must not be there
  std::optional<std::string> names;  ///< the names before an import
};

/// Writes the genotypes of a study, whose files `typed` names, in the form of another program.
ExitCode RunConvert(const ConvertChoices& choices, const TypedSettings& typed,
                    const CommandLineStreams& streams, FileSource& source);

}  // namespace kaldo
