// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/saved_loci.h"

#include <filesystem>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "simulation/reports/simulation_file_names.h"

namespace kaldo {

namespace {

constexpr std::string_view kUnfinished = ".part";

/// Removes what programs that died while they wrote the file left behind.
void RemoveUnfinished() {
  std::error_code error;
  const std::string begin = fmt::format("{}.", kSavedLociFile);
  for (auto entry = std::filesystem::directory_iterator(".", error);
       !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with(begin) && name.ends_with(kUnfinished) &&
        name.size() > begin.size() + kUnfinished.size() &&
        IsRandomName(std::string_view(name).substr(
            begin.size(), name.size() - begin.size() - kUnfinished.size()))) {
      std::error_code ignored;
      std::filesystem::remove(name, ignored);
    }
  }
}

}  // namespace

std::string SavedLociText(const LociList& loci) {
  std::string text;
  for (const std::string& name : loci.Names()) {
    text += name + ' ';
  }
  return text;
}

std::optional<std::string> SaveLoci(const LociList& loci) {
  RemoveUnfinished();
  const std::string unfinished = fmt::format("{}.{}{}", kSavedLociFile, RandomName(), kUnfinished);
  std::error_code error = WriteNewFile(unfinished, SavedLociText(loci));
  if (!error) {
    std::filesystem::rename(unfinished, kSavedLociFile, error);
  }
  if (!error) {
    return std::nullopt;
  }
  std::error_code ignored;
  std::filesystem::remove(unfinished, ignored);
  return fmt::format(
      "The names of the loci could not be saved in \"{}\": {}. The results are not "
      "concerned.",
      kSavedLociFile, error.message());
}

}  // namespace kaldo
