// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/input_clash.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/path_text.h"

namespace kaldo {

namespace {

/// Links count: what a name leads to is the same file.
bool IsSameFile(const std::string& one, const std::string& other) {
  std::error_code ignored;
  return std::filesystem::equivalent(FilePath(one), FilePath(other), ignored) ||
         std::filesystem::absolute(FilePath(one), ignored).lexically_normal() ==
             std::filesystem::absolute(FilePath(other), ignored).lexically_normal();
}

}  // namespace

std::optional<Problem> ClashWithInput(const std::string& path,
                                      std::span<const RecordedInput> inputs) {
  for (const RecordedInput& input : inputs) {
    if (IsSameFile(path, input.path)) {
      return Problem{
          .kind = ProblemKind::kOutputIsInput,
          .file = input.path,
          .found = fmt::format("it is \"{}\", which the run replaces or removes; choose another "
                               "project name, or give the input file another name",
                               path)};
    }
  }
  return std::nullopt;
}

}  // namespace kaldo
