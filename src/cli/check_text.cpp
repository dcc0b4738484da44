// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/check_text.h"

#include <algorithm>
#include <cmath>

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
  return fmt::format("{:<15}{:>5}{:>9}{:>11}{:>6}{:>9}{:>11}{:>10}{:>10}", Escaped(locus.name),
                     locus.in_use ? "yes" : "no", locus.alleles.size(), SizesText(locus),
                     locus.unit_distance ? fmt::format("{}", locus.unit_distance->Value()) : "-",
                     locus.in_step ? "yes" : "no", locus.undefined,
                     Share(locus.observed_heterozygosity), Share(locus.expected_heterozygosity));
}

/// A time as people say it.
std::string DurationText(double seconds) {
  constexpr double kMinute = 60;
  constexpr double kHour = 3600;
  constexpr double kDay = 24 * kHour;
  if (seconds < 2 * kMinute) {
    return seconds < 1 ? "1 second" : fmt::format("{:.0f} seconds", std::ceil(seconds));
  }
  if (seconds < 2 * kHour) {
    return fmt::format("{:.0f} minutes", seconds / kMinute);
  }
  return seconds < 2 * kDay ? fmt::format("{:.0f} hours", seconds / kHour)
                            : fmt::format("{:.0f} days", seconds / kDay);
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

std::string ForecastText(const RunForecast& forecast) {
  std::string text =
      fmt::format("\n{:<14}{:>16}{:>10}\n", "true parents", "pseudo-offspring", "weight");
  for (const ClassForecast& of_class : forecast.classes) {
    text += fmt::format("{:<14}{:>16}{:>10.4f}\n", of_class.name, of_class.pseudo_offspring,
                        of_class.weight);
  }
  const std::string subsets =
      forecast.subsets == forecast.subsets_in_all
          ? fmt::format("{}", forecast.subsets)
          : fmt::format("the first {} of {}", forecast.subsets, forecast.subsets_in_all);
  text += fmt::format("Subsets of loci: {}, with {} iterations each; about {:.3g} random draws.\n",
                      subsets, forecast.iterations, forecast.draws);
  const std::string_view bound = forecast.is_at_least  ? "more than"
                                 : forecast.is_at_most ? "at most about"
                                                       : "about";
  return text + fmt::format("Expected time: {} {} with {} {}.\n", bound,
                            DurationText(forecast.seconds), forecast.threads,
                            forecast.threads == 1 ? "thread" : "threads");
}

std::string ContentsText(const FullCheck& check) {
  std::string text =
      fmt::format("{:<15}{:>5}{:>9}{:>11}{:>6}{:>9}{:>11}{:>10}{:>10}", "locus", "used", "alleles",
                  "sizes", "unit", "in step", "undefined", "het obs", "het exp");
  text += check.off_ladder.empty() ? "\n" : "  off ladder\n";
  for (std::size_t k = 0; k < check.loci.size(); ++k) {
    text += LocusRow(check.loci[k]);
    text += check.off_ladder.empty() ? "\n" : fmt::format("{:>12}\n", Share(check.off_ladder[k]));
  }
  return check.project ? text + '\n' + FolderText(*check.project) : text;
}

}  // namespace kaldo
