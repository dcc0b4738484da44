// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/project_folder.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/problem.h"

namespace kaldo {

bool ProjectFolder::Create() const {
  std::error_code error;
  const bool is_new = !std::filesystem::exists(name_, error);
  std::filesystem::create_directories(name_, error);
  if (!std::filesystem::is_directory(name_)) {
    throw RunFailure(fmt::format("Cannot make the folder \"{}\": {}", name_,
                                 error ? error.message() : "a file of that name is in the way"));
  }
  return is_new;
}

}  // namespace kaldo
