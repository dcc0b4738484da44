// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/example_data.h"

#include <QDir>
#include <QFile>
#include <optional>

#include <fmt/format.h>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

std::string FolderOf(Flow flow) {
  return fmt::format("{}/data/{}", kExampleFolder, flow == Flow::kSexed ? "sexed" : "non-sexed");
}

std::string PathOf(Flow flow, std::string_view file) {
  return fmt::format("{}/{}", FolderOf(flow), file);
}

/// Copies the files; a user's changes to an earlier copy are not undone.
std::optional<std::string> CopyFiles(Flow flow) {
  const QString folder = Text(FolderOf(flow));
  if (!QDir().mkpath(folder)) {
    return Bytes(Tr("Cannot make the folder \"%1\".").arg(Text(FolderOf(flow))));
  }
  const QDir source(Text(flow == Flow::kSexed ? ":/examples/sexed" : ":/examples/non-sexed"));
  for (const QString& name : source.entryList()) {
    const QString copy = folder + Text("/") + name;
    if (QFile::exists(copy)) {
      continue;
    }
    if (!QFile::copy(source.filePath(name), copy)) {
      return Bytes(Tr("Cannot write \"%1\".").arg(copy));
    }
    QFile::setPermissions(
        copy, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
  }
  return std::nullopt;
}

}  // namespace

tl::expected<AllocationSettings, std::string> AllocationExample(Flow flow) {
  if (auto failure = CopyFiles(flow)) {
    return tl::unexpected(std::move(*failure));
  }
  AllocationSettings settings;
  settings.flow = flow;
  settings.project = fmt::format("{}/{}", kExampleFolder, flow == Flow::kSexed ? "ponds" : "lake");
  settings.loci_file = PathOf(flow, "loci.txt");
  settings.offspring_file = PathOf(flow, "offspring.txt");
  if (flow == Flow::kSexed) {
    settings.males_file = PathOf(flow, "males.txt");
    settings.females_file = PathOf(flow, "females.txt");
  } else {
    settings.parents_file = PathOf(flow, "parents.txt");
  }
  return settings;
}

tl::expected<SimulationSettings, std::string> SimulationExample(Flow flow) {
  if (auto failure = CopyFiles(flow)) {
    return tl::unexpected(std::move(*failure));
  }
  SimulationSettings settings;
  settings.flow = flow;
  settings.project =
      fmt::format("{}/{}-simulation", kExampleFolder, flow == Flow::kSexed ? "ponds" : "lake");
  settings.loci_file = PathOf(flow, "loci.txt");
  settings.iterations = 100;
  settings.offspring_per_iteration = 100;
  settings.print_subset_statistics = true;
  settings.seed = 1;
  if (flow == Flow::kNonSexed) {
    // After the field work: the adults of the lake, and ten more that were not netted.
    settings.sets[0].collected_file = PathOf(flow, "parents.txt");
    settings.sets[0].uncollected_sample = PathOf(flow, "parents.txt");
    settings.sets[0].uncollected = 10;
    return settings;
  }
  // Before it: parents are drawn from an earlier catch.
  settings.procedure = Procedure::kPreParental;
  for (std::size_t k = 0; k < settings.sets.size(); ++k) {
    ParentalSet& set = settings.sets.at(k);
    set.pseudo_collected_sample = PathOf(flow, k == 0 ? "sample-males.txt" : "sample-females.txt");
    set.uncollected_sample = set.pseudo_collected_sample;
    set.pseudo_collected = 16;
    set.uncollected = 4;
    set.estimated_collected = 16;
    set.estimated_uncollected = 4;
  }
  return settings;
}

}  // namespace kaldo
