// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/allocation_options.h"

#include "cli/option_text.h"
#include "cli/text_option.h"

namespace kaldo {

namespace {

void AddFileOptions(CLI::App& command, AllocationOptions& options) {
  const std::string group = "Files";
  AddTextOption(command, group, "--project", options.project, "DIR",
                "Folder for the results; made when missing");
  AddTextOption(command, group, "--loci", options.loci, "FILE",
                "Names of the loci, in the order of the genotypes");
  AddTextOption(command, group, "--offspring", options.offspring, "FILE",
                "Genotypes of the offspring");
  AddTextOption(command, group, "--parents", options.parents, "FILE",
                "Non-sexed: genotypes of the collected parents");
  AddTextOption(command, group, "--males", options.males, "FILE",
                "Sexed: genotypes of the collected males");
  AddTextOption(command, group, "--females", options.females, "FILE",
                "Sexed: genotypes of the collected females");
}

void AddMethodOptions(CLI::App& command, AllocationOptions& options) {
  const std::string group = "Method";
  AddTextOption(command, group, "--tolerance", options.tolerance, "N",
                "Maximal offset tolerance, in whole unit distances (repeats), 0 or more")
      ->capture_default_str();
  AddTextOption(command, group, "--error", options.error, "MODEL",
                "Transmission error: none | uniform=EPS | nonuniform | "
                "nonuniform=M2,M1,FOCAL,P1,P2 (plain nonuniform: 0.002,0.008,0.980,0.008,0.002)")
      ->capture_default_str();
  AddTextOption(command, group, "--use", options.use, "NAME,...",
                "Loci in use, by name, between commas; default: all");
  AddTextOption(command, group, "--sequence", options.sequence, "[I1,I2,...]",
                "Repeat for a cumulative sequence of loci: alone in file order, else the position "
                "of each locus of the names file, between commas")
      ->expected(0, 1);
  AddTextOption(
      command, "Machine", "--threads", options.threads, "N",
      "Threads; default: all cores (kaldo-mpi: 1 per process). The results never depend on it");
}

std::optional<Problem> CheckParentOptions(const AllocationOptions& options) {
  if (!options.parents || !(options.males || options.females)) {
    return std::nullopt;
  }
  return Problem{.kind = ProblemKind::kParentsAndSexes,
                 .found = "--parents goes without --males and --females"};
}

}  // namespace

void AddAllocationOptions(CLI::App& command, AllocationOptions& options) {
  AddFileOptions(command, options);
  AddMethodOptions(command, options);
}

tl::expected<AllocationSettings, Problem> SettingsFrom(const AllocationOptions& options) {
  if (auto problem = CheckParentOptions(options)) {
    return tl::unexpected(std::move(*problem));
  }
  AllocationSettings settings;
  settings.flow = options.males || options.females ? Flow::kSexed : Flow::kNonSexed;
  settings.project = options.project;
  settings.loci_file = options.loci;
  settings.offspring_file = options.offspring;
  settings.parents_file = options.parents.value_or("");
  settings.males_file = options.males.value_or("");
  settings.females_file = options.females.value_or("");
  if (options.use) {
    settings.loci_in_use = ParseNames(*options.use);
  }

  const auto tolerance = ParseWholeOption("--tolerance", options.tolerance);
  if (!tolerance) {
    return tl::unexpected(tolerance.error());
  }
  settings.tolerance = OffsetTolerance{*tolerance};

  const auto error_model = ParseErrorModel(options.error);
  if (!error_model) {
    return tl::unexpected(error_model.error());
  }
  settings.error_model = *error_model;

  if (options.sequence) {
    auto sequence = ParseSequence(*options.sequence);
    if (!sequence) {
      return tl::unexpected(std::move(sequence.error()));
    }
    settings.sequence = std::move(*sequence);
  }
  if (options.threads) {
    const auto threads = ParseThreads(*options.threads);
    if (!threads) {
      return tl::unexpected(threads.error());
    }
    settings.threads = *threads;
  }
  return settings;
}

}  // namespace kaldo
