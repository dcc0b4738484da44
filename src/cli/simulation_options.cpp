// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/simulation_options.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "cli/option_text.h"
#include "cli/text_option.h"

namespace kaldo {

namespace {

void AddNonSexedParents(CLI::App& command, ParentalSetOptions& set) {
  const std::string group = "Parents, non-sexed";
  AddTextOption(command, group, "--collected-parents", set.collected, "FILE",
                "After the field work: genotypes of the collected parents");
  AddTextOption(command, group, "--pseudo-collected-sample", set.pseudo_collected_sample, "FILE",
                "Before it: sample to draw pseudo-collected parents from");
  AddTextOption(command, group, "--pseudo-collected", set.pseudo_collected, "N",
                "Number of pseudo-collected parents");
  AddTextOption(command, group, "--uncollected-sample", set.uncollected_sample, "FILE",
                "Sample to draw uncollected parents from");
  AddTextOption(command, group, "--uncollected", set.uncollected, "U",
                "Estimated number of uncollected parents");
}

void AddSexedParents(CLI::App& command, const std::string& sex, ParentalSetOptions& set) {
  const std::string group = "Parents, sexed";
  AddTextOption(command, group, "--collected-" + sex + "s", set.collected, "FILE",
                "After the field work: genotypes of the collected " + sex + "s");
  AddTextOption(command, group, "--pseudo-collected-" + sex + "-sample",
                set.pseudo_collected_sample, "FILE",
                "Before it: sample to draw pseudo-collected " + sex + "s from");
  AddTextOption(command, group, "--pseudo-collected-" + sex + "s", set.pseudo_collected, "N",
                "Number of pseudo-collected " + sex + "s");
  AddTextOption(command, group, "--uncollected-" + sex + "-sample", set.uncollected_sample, "FILE",
                "Sample to draw uncollected " + sex + "s from");
  AddTextOption(command, group, "--uncollected-" + sex + "s", set.uncollected, "N",
                "Number of uncollected " + sex + "s drawn at each iteration");
  AddTextOption(command, group, "--estimated-collected-" + sex + "s", set.estimated_collected, "X",
                "Estimated number of collected " + sex + "s in the population");
  AddTextOption(command, group, "--estimated-uncollected-" + sex + "s", set.estimated_uncollected,
                "X", "Estimated number of uncollected " + sex + "s in the population");
}

void AddMethod(CLI::App& command, SimulationOptions& options) {
  const std::string group = "Method";
  AddTextOption(command, group, "--iterations", options.iterations, "N",
                "Number of iterations; non-sexed below 1000");
  AddTextOption(command, group, "--offspring-per-iteration", options.offspring_per_iteration, "N",
                "Pseudo-offspring made at each iteration");
  AddTextOption(command, group, "--tolerance", options.tolerance, "N",
                "Maximal offset tolerance, in whole unit distances (repeats)")
      ->capture_default_str();
  AddTextOption(
      command, group, "--error", options.error, "MODEL",
      "Transmission error: none | uniform=EPS | nonuniform | nonuniform=M2,M1,FOCAL,P1,P2")
      ->capture_default_str();
  AddTextOption(command, group, "--use", options.use, "NAME,...",
                "Loci in use, by name, between commas; default: all");
  AddTextOption(command, group, "--seed", options.seed, "S",
                "Seed of the random numbers, 0 to 4294967295; default: the clock. Always told");
  const std::string loci = "Subsets of loci";
  AddTextOption(
      command, loci, "--strategy", options.strategy, "NAME",
      "choice: the loci in use | all: every subset | minimal: subsets until one reaches the "
      "criterion | cumulative: a sequence")
      ->capture_default_str();
  AddTextOption(command, loci, "--criterion", options.criterion, "X",
                "Probability that any allocation is correct, 0 to 1")
      ->capture_default_str();
  AddTextOption(command, loci, "--start-with", options.start_with, "K",
                "Loci of the smallest subset")
      ->capture_default_str();
  AddTextOption(command, loci, "--sequence", options.sequence, "I1,I2,...",
                "Position of each locus of the names file in the sequence; default: file order")
      ->expected(0, 1);
}

void AddOutput(CLI::App& command, SimulationOptions& options) {
  const std::string group = "Output";
  command
      .add_flag("--print-iterations", options.print_iterations,
                "Write the detailed results of every iteration")
      ->group(group);
  command
      .add_flag("--print-subset-statistics", options.print_subset_statistics,
                "Write the statistics of every subset into the summary")
      ->group(group);
  AddTextOption(command, group, "--keep", options.keep, "KINDS",
                "Generated files to keep: parents,offspring,matrices | all | none; default: "
                "parents,offspring, and none when sexed");
  AddTextOption(
      command, "Machine", "--threads", options.threads, "N",
      "Threads; default: all cores (kaldo-mpi: 1 per process). The results never depend on it");
}

tl::unexpected<Problem> Usage(ProblemKind kind, std::string found) {
  return tl::unexpected(Problem{.kind = kind, .found = std::move(found)});
}

bool AnyGiven(const ParentalSetOptions& set) {
  return set.collected || set.pseudo_collected_sample || set.pseudo_collected ||
         set.uncollected_sample || set.uncollected || set.estimated_collected ||
         set.estimated_uncollected;
}

/// Reads values out of option texts and remembers the first that is missing or not understood.
class OptionReader {
 public:
  template <typename Target, typename Value>
  void Take(Target& target, const tl::expected<Value, Problem>& value) {
    if (value) {
      target = *value;
    } else if (!fault_) {
      fault_ = value.error();
    }
  }

  std::int32_t Whole(const std::string& option, const std::optional<std::string>& text) {
    std::int32_t number = 0;
    Take(number, text ? ParseWholeOption(option, *text) : MissingNumber<std::int32_t>(option));
    return number;
  }

  double Real(const std::string& option, const std::optional<std::string>& text) {
    double number = 0;
    Take(number, text ? ParseRealOption(option, *text) : MissingNumber<double>(option));
    return number;
  }

  const std::optional<Problem>& Fault() const { return fault_; }

 private:
  template <typename Number>
  static tl::expected<Number, Problem> MissingNumber(const std::string& option) {
    return Usage(ProblemKind::kNumberMissing, fmt::format("{} is needed", option));
  }

  std::optional<Problem> fault_;
};

/// "--uncollected-males" or, in the non-sexed flow, "--uncollected".
std::string OptionName(Flow flow, std::string_view stem, std::string_view sex) {
  return flow == Flow::kSexed ? fmt::format("--{}-{}s", stem, sex) : fmt::format("--{}", stem);
}

ParentalSet SetFrom(const SimulationSettings& settings, const ParentalSetOptions& options,
                    std::string_view sex, OptionReader& reader) {
  ParentalSet set;
  const auto name = [&](std::string_view stem) { return OptionName(settings.flow, stem, sex); };
  set.collected_file = options.collected.value_or("");
  set.pseudo_collected_sample = options.pseudo_collected_sample.value_or("");
  set.uncollected_sample = options.uncollected_sample.value_or("");
  if (settings.procedure == Procedure::kPreParental) {
    set.pseudo_collected = reader.Whole(name("pseudo-collected"), options.pseudo_collected);
  }
  if (settings.flow == Flow::kNonSexed) {
    set.uncollected = reader.Real(name("uncollected"), options.uncollected);
    return set;
  }
  set.uncollected = reader.Whole(name("uncollected"), options.uncollected);
  set.estimated_collected = reader.Real(name("estimated-collected"), options.estimated_collected);
  set.estimated_uncollected =
      reader.Real(name("estimated-uncollected"), options.estimated_uncollected);
  return set;
}

tl::expected<LociStrategy, Problem> StrategyFrom(std::string_view name) {
  if (name == "choice") {
    return LociStrategy::kChoice;
  }
  if (name == "all") {
    return LociStrategy::kAll;
  }
  if (name == "minimal") {
    return LociStrategy::kMinimal;
  }
  if (name == "cumulative") {
    return LociStrategy::kCumulative;
  }
  return Usage(
      ProblemKind::kNoStrategy,
      fmt::format("--strategy: {} is none of: choice, all, minimal, cumulative", Quoted(name)));
}

tl::expected<KeptFiles, Problem> KeptFrom(std::string_view text) {
  KeptFiles kept;
  if (text == "none") {
    return kept;
  }
  for (const std::string& name : ParseNames(text)) {
    if (name == "parents" || name == "all") {
      kept.parents = true;
    }
    if (name == "offspring" || name == "all") {
      kept.offspring = true;
    }
    if (name == "matrices" || name == "all") {
      kept.matrices = true;
    }
    if (name != "parents" && name != "offspring" && name != "matrices" && name != "all") {
      return Usage(ProblemKind::kUnknownKeptFile,
                   fmt::format("--keep: {} is none of: parents, offspring, matrices, all, none",
                               Quoted(name)));
    }
  }
  return kept;
}

/// Options of the other flow, or of both procedures, would silently do nothing.
std::optional<Problem> CheckParents(const SimulationOptions& options) {
  if (options.sexed ? AnyGiven(options.parents)
                    : AnyGiven(options.males) || AnyGiven(options.females)) {
    return Usage(ProblemKind::kOptionsOfOtherFlow,
                 options.sexed ? "--sexed goes with the options of males and females"
                               : "the options of males and females go with --sexed")
        .value();
  }
  for (const ParentalSetOptions* set : {&options.parents, &options.males, &options.females}) {
    if (set->collected && (set->pseudo_collected_sample || set->pseudo_collected)) {
      return Usage(ProblemKind::kCollectedAndPseudoCollected,
                   "collected parents are read, pseudo-collected ones are drawn from a sample")
          .value();
    }
  }
  if (options.sexed &&
      options.males.collected.has_value() != options.females.collected.has_value() &&
      (options.males.pseudo_collected_sample || options.females.pseudo_collected_sample)) {
    return Usage(ProblemKind::kCollectedAndPseudoCollected,
                 "males and females come from files of parents, or both from samples")
        .value();
  }
  return std::nullopt;
}

void ReadChoices(const SimulationOptions& options, SimulationSettings& settings,
                 OptionReader& reader) {
  reader.Take(settings.error_model, ParseErrorModel(options.error));
  reader.Take(settings.strategy, StrategyFrom(options.strategy));
  reader.Take(settings.sequence, ParseSequence(options.sequence.value_or("")));
  if (options.keep) {
    reader.Take(settings.keep, KeptFrom(*options.keep));
  }
  if (options.threads) {
    reader.Take(settings.threads, ParseThreads(*options.threads));
  }
  if (options.seed) {
    reader.Take(settings.seed, ParseSeed(*options.seed));
  }
  if (options.use) {
    settings.loci_in_use = ParseNames(*options.use);
  }
}

}  // namespace

void AddSimulationOptions(CLI::App& command, SimulationOptions& options) {
  AddTextOption(command, "Files", "--project", options.project, "DIR",
                "Folder for the results; made when missing");
  AddTextOption(command, "Files", "--loci", options.loci, "FILE",
                "Names of the loci, in the order of the genotypes");
  command.add_flag("--sexed", options.sexed, "Males and females are known")
      ->group("Parents, sexed");
  AddNonSexedParents(command, options.parents);
  AddSexedParents(command, "male", options.males);
  AddSexedParents(command, "female", options.females);
  AddMethod(command, options);
  AddOutput(command, options);
}

tl::expected<SimulationSettings, Problem> SettingsFrom(const SimulationOptions& options) {
  if (auto problem = CheckParents(options)) {
    return tl::unexpected(std::move(*problem));
  }
  SimulationSettings settings;
  settings.flow = options.sexed ? Flow::kSexed : Flow::kNonSexed;
  const ParentalSetOptions& first = options.sexed ? options.males : options.parents;
  const bool any_collected = first.collected || options.females.collected;
  const bool any_pseudo_collected = first.pseudo_collected_sample || first.pseudo_collected ||
                                    options.females.pseudo_collected_sample ||
                                    options.females.pseudo_collected;
  settings.procedure =
      any_pseudo_collected && !any_collected ? Procedure::kPreParental : Procedure::kParental;
  settings.project = options.project;
  settings.loci_file = options.loci;
  OptionReader reader;
  settings.sets[0] = SetFrom(settings, first, "male", reader);
  if (options.sexed) {
    settings.sets[1] = SetFrom(settings, options.females, "female", reader);
  }
  settings.iterations = reader.Whole("--iterations", options.iterations);
  settings.offspring_per_iteration =
      reader.Whole("--offspring-per-iteration", options.offspring_per_iteration);
  settings.tolerance = OffsetTolerance{reader.Whole("--tolerance", options.tolerance)};
  settings.criterion = reader.Real("--criterion", options.criterion);
  settings.start_with = reader.Whole("--start-with", options.start_with);
  ReadChoices(options, settings, reader);
  if (reader.Fault()) {
    return tl::unexpected(*reader.Fault());
  }
  settings.print_iterations = options.print_iterations;
  settings.print_subset_statistics = options.print_subset_statistics;
  return settings;
}

}  // namespace kaldo
