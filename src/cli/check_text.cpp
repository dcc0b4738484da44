// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/check_text.h"

#include <algorithm>

#include <fmt/format.h>

namespace kaldo {

namespace {

constexpr std::size_t kMostTold = 20;

std::string GroupText(const Alike<Problem>& group) {
  std::string text = SentenceOf(group.kept.front()) + '\n';
  const std::size_t told = std::min(group.kept.size(), kMostTold);
  for (std::size_t k = 0; k < told; ++k) {
    if (const std::string detail = DetailLine(group.kept[k]); !detail.empty()) {
      text += detail + '\n';
    }
  }
  if (const std::size_t more = group.kept.size() - told + group.more; more > 0) {
    text += fmt::format("... and {} more\n", more);
  }
  return text;
}

std::string Share(const std::optional<double>& share) {
  return share ? fmt::format("{:.4f}", *share) : "-";
}

std::string SizesText(const LocusStatistics& locus) {
  if (locus.alleles.empty()) {
    return "-";
  }
  const auto smallest = locus.alleles.begin()->first.Value();
  const auto largest = locus.alleles.rbegin()->first.Value();
  return smallest == largest ? fmt::format("{}", smallest)
                             : fmt::format("{}-{}", smallest, largest);
}

std::string LocusRow(const LocusStatistics& locus) {
  return fmt::format("{:<15}{:>5}{:>9}{:>11}{:>6}{:>9}{:>11}{:>10}{:>10}\n", Escaped(locus.name),
                     locus.in_use ? "yes" : "no", locus.alleles.size(), SizesText(locus),
                     locus.unit_distance ? fmt::format("{}", locus.unit_distance->Value()) : "-",
                     locus.in_step ? "yes" : "no", locus.undefined,
                     Share(locus.observed_heterozygosity), Share(locus.expected_heterozygosity));
}

std::string FolderText(const FolderCheck& folder) {
  const std::string name = Escaped(folder.folder);
  if (!folder.exists) {
    return fmt::format("The project folder \"{}\" can be made.\n", name);
  }
  if (!folder.earlier) {
    return fmt::format("The project folder \"{}\" can be written into.\n", name);
  }
  return fmt::format(
      "The project folder \"{}\" can be written into; its results ({}, of {}) would be "
      "replaced.\n",
      name, Escaped(folder.earlier->flow), Escaped(folder.earlier->date));
}

}  // namespace

std::string FaultsText(const FullCheck& check) {
  std::vector<std::string> parts;
  AlikeGroups<Problem> refusals;
  if (check.project) {
    refusals.AddAll(check.project->refusals);
  }
  for (const auto& group : check.faults.Groups()) {
    parts.push_back(GroupText(group));
  }
  if (check.project) {
    for (const std::string& obstacle : check.project->obstacles) {
      parts.push_back(Escaped(obstacle) + '\n');
    }
  }
  for (const auto& group : refusals.Groups()) {
    parts.push_back(GroupText(group));
  }
  return fmt::format("{}", fmt::join(parts, "\n"));
}

std::string ContentsText(const FullCheck& check) {
  std::string text =
      fmt::format("{:<15}{:>5}{:>9}{:>11}{:>6}{:>9}{:>11}{:>10}{:>10}\n", "locus", "used",
                  "alleles", "sizes", "unit", "in step", "undefined", "het obs", "het exp");
  for (const LocusStatistics& locus : check.loci) {
    text += LocusRow(locus);
  }
  return check.project ? text + '\n' + FolderText(*check.project) : text;
}

}  // namespace kaldo
