// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "method/error_model.h"
#include "method/offset_tolerance.h"
#include "runs/value_kinds.h"

namespace kaldo {

// The settings that allocations and simulations share, and their kinds of value.

/// The offset tolerance, in whole unit distances.
ValueKind<OffsetTolerance> ToleranceKind();

/// "none", "uniform=EPS", "nonuniform" or "nonuniform=M2,M1,FOCAL,P1,P2". A run record has the name
/// and, under a key of the model, its probabilities.
ValueKind<ErrorModel> ErrorModelKind();

/// All these ways to write a model of error, between the separators.
std::string ErrorModelForms(std::string_view separator);

/// What a model that stands alone means: "plain nonuniform: 0.002,0.008,0.980,0.008,0.002".
std::string PlainErrorModels();

/// The positions of the loci in a cumulative sequence, between commas; nothing said: no sequence.
/// Without positions the loci enter in file order.
ValueKind<std::optional<std::vector<std::int32_t>>> SequenceKind();
tl::expected<std::vector<std::int32_t>, Problem> ParseSequence(std::string_view option,
                                                               std::string_view text);

template <typename Settings>
Setting<Settings> ProjectSetting() {
  return {.key = "project",
          .option = "--project",
          .metavar = "DIR",
          .group = "Files",
          .help = "Folder for the results; made when missing",
          .value = Member(&Settings::project, TextKind())};
}

template <typename Settings>
Setting<Settings> LociSetting() {
  return {.key = "loci",
          .option = "--loci",
          .metavar = "FILE",
          .group = "Files",
          .help = "Names of the loci, in the order of the genotypes",
          .value = Member(&Settings::loci_file, TextKind())};
}

template <typename Settings>
Setting<Settings> ToleranceSetting(std::string help) {
  return {.key = "tolerance",
          .option = "--tolerance",
          .metavar = "N",
          .group = "Method",
          .help = std::move(help),
          .value = Member(&Settings::tolerance, ToleranceKind())};
}

template <typename Settings>
Setting<Settings> ErrorModelSetting(const std::string& more_help) {
  return {.key = "error",
          .option = "--error",
          .metavar = "MODEL",
          .group = "Method",
          .help = "Transmission error: " + ErrorModelForms(" | ") + more_help,
          .value = Member(&Settings::error_model, ErrorModelKind())};
}

template <typename Settings>
Setting<Settings> LociInUseSetting() {
  return {.key = "use",
          .option = "--use",
          .metavar = "NAME,...",
          .group = "Method",
          .help = "Loci in use, by name, between commas; default: all",
          .value = Member(&Settings::loci_in_use, NamesKind())};
}

template <typename Settings>
Setting<Settings> UndefinedParentsSetting() {
  return {.key = "allow_undefined_parents",
          .option = "--allow-undefined-parents",
          .group = "Method",
          .help = "Take collected parents with undefined loci (zeros) for carriers of any allele",
          .value = Member(&Settings::allow_undefined_parents, FlagKind())};
}

template <typename Settings>
Setting<Settings> ThreadsSetting() {
  return {.key = "threads",
          .option = "--threads",
          .metavar = "N",
          .group = "Machine",
          .help =
              "Threads; default: all usable cores (kaldo-mpi: 1 per process). The results never "
              "depend on it",
          .value = Member(&Settings::threads, ThreadsKind()),
          .in_head_of_record = true};
}

}  // namespace kaldo
