// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/temporary_folder.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include <fmt/format.h>

#include "base/folder_content.h"
#include "base/problem.h"

namespace kaldo {

TemporaryFolder::TemporaryFolder()
    : path_((std::filesystem::temp_directory_path() / "kaldo-XXXXXX").string()) {
  if (::mkdtemp(path_.data()) == nullptr) {
    throw RunFailure(fmt::format("Cannot make the folder \"{}\": {}", path_,
                                 std::generic_category().message(errno)));
  }
}

TemporaryFolder::~TemporaryFolder() { (void)RemoveFolder(path_); }

}  // namespace kaldo
