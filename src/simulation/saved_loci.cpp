// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulation/saved_loci.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/folder_content.h"
#include "genotypes/capacities.h"
#include "simulation/reports/simulation_file_names.h"

namespace kaldo {

namespace {

constexpr std::string_view kUnfinished = ".part";

/// Removes what programs that died while they wrote the file left behind.
void RemoveUnfinished() {
  const std::string begin = fmt::format("{}.", kSavedLociFile);
  for (const std::string& name : NamesIn(".")) {
    if (name.starts_with(begin) && name.ends_with(kUnfinished) &&
        name.size() > begin.size() + kUnfinished.size() &&
        IsRandomName(std::string_view(name).substr(
            begin.size(), name.size() - begin.size() - kUnfinished.size()))) {
      std::error_code ignored;
      std::filesystem::remove(name, ignored);
    }
  }
}

/// Whether a file of genotypes stands in the place of the copy: nobody would get it back.
bool IsSomebodysData() {
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(kSavedLociFile, unknown)) {
    return false;
  }
  std::ifstream file(std::string(kSavedLociFile), std::ios::binary);
  std::string begin(kMaxLociBytes, '\0');
  file.read(begin.data(), static_cast<std::streamsize>(begin.size()));
  begin.resize(static_cast<std::size_t>(file.gcount()));
  return HoldsGenotypes(begin);
}

std::string NotSaved(std::string_view why) {
  return fmt::format(
      "The names of the loci could not be saved in \"{}\": {}. The results are not "
      "concerned.",
      kSavedLociFile, why);
}

}  // namespace

bool HoldsGenotypes(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\n\v\f\r";
  constexpr std::size_t kFewestDigits = 4;  // two sizes of two digits
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find_first_of(kBlanks));
    if (word.size() >= kFewestDigits &&
        word.find_first_not_of("0123456789") == std::string_view::npos) {
      return true;
    }
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return false;
}

std::string SavedLociText(const LociList& loci) {
  std::string text;
  for (const std::string& name : loci.Names()) {
    text += name + ' ';
  }
  return text;
}

std::optional<std::string> SaveLoci(const LociList& loci) {
  RemoveUnfinished();
  if (IsSomebodysData()) {
    return NotSaved("a file of that name is there, which holds genotypes and stays as it is");
  }
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
  return NotSaved(error.message());
}

}  // namespace kaldo
