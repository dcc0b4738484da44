// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/temporary_folder.h"

#include <filesystem>
#include <system_error>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/folder_content.h"
#include "base/path_text.h"
#include "base/problem.h"

namespace kaldo {

// The folder of temporary files is the user's own, so that nobody else looks into it.
TemporaryFolder::TemporaryFolder()
    : path_(PathText(std::filesystem::temp_directory_path() / ("kaldo-" + RandomName()))) {
  std::error_code error;
  if (!std::filesystem::create_directory(FilePath(path_), error)) {
    throw RunFailure(fmt::format("Cannot make the folder \"{}\": {}", path_, error.message()));
  }
}

TemporaryFolder::~TemporaryFolder() { (void)RemoveFolder(path_); }

}  // namespace kaldo
